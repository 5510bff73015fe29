// Raising twice before returning: the first exception is the one the script sees.
ProbeHost.RaiseTwice
