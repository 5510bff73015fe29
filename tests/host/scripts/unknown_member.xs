Var p As New Probe
p.NoSuchMethod(1)
