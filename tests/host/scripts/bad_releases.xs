// Releasing what one does not own, or releasing twice, is reported with the call.
Var mine As String = "mine"
ProbeHost.OverRelease(mine)
ProbeHost.ReleaseTwice
ProbeHost.DisposeTwice("data")
