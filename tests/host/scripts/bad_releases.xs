// Releasing what one does not own, releasing twice, or handing back something that is
// not a host string is reported with the call.
Var mine As String = "mine"
ProbeHost.OverRelease(mine)
ProbeHost.ReleaseTwice
ProbeHost.DisposeTwice("data")
Print "[" + ProbeHost.ReturnForeign + "]"
