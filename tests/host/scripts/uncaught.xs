Print "before"
Var p As New Probe
p.Fail("handler failed")
Print "after"
