// Calling shapes: many mixed arguments (some on the stack), defaults, ByRef,
// assignable methods, overloads, direct-field and accessor properties, shared members.
Var p As New Probe
Print p.Mix(-5, 65000, 1.25, 2.125, -70000, 3.5, True, 18446744073709551615, "mid", -9000000000, 4.5, 5.5, &cABCDEF, -300, 6.5, 7.5, 8.5, 9.5, 200)
Print p.Sum(1)
Print p.Sum(1, 2)
Print p.Sum(1, 2, 3.25)
Var n As Integer = 21
p.Twice(n)
Print n
Var b As Int8 = 127
p.Bump(b)
Print b
Var f As Single = 3
p.Halve(f)
Print f
Var s As String = "head"
p.Append(s, "+tail")
Print s
Var x As New Probe(1)
Var y As New Probe(2)
p.SwapProbes(x, y)
Print x.Count
Print y.Count
p.Slot(2) = 99
Print p.Slot(2)
p.Cell(7) = "seven"
Print p.Label
Print p.Kind(1)
Print p.Kind(1.5)
Print p.Kind("one")
Print p.Kind(p)
Var small As Int8 = 3
Print p.Kind(small)
p.Count = 5
p.Ratio = 0.75
p.Flag = True
p.Small = -12
p.Fraction = 0.5
p.Money = 12.3456
p.Big = 18446744073709551615
p.Label = "field"
p.Link = x
Print p.Count
Print p.Ratio
Print p.Flag
Print p.Small
Print p.Fraction
Print p.Money
Print p.Big
Print p.Label
Print p.Link.Count
Print p.Initialized
Print p.Tag
p.Tag = 10
Print p.Count
Probe.Counter = 17
Print Probe.Counter
Print Probe.Average(1.0, 2.0)
Print Probe.Make(8).Count
