// A plugin may write its own trace while the script succeeds.
ProbeHost.Trace("entered")
Print "ok"
