// Newton's method in BiggerNumberZQT: the real root of x^3 - 2x - 5 = 0, the equation
// on which Newton first showed his method. Each step x = x - f(x) / f'(x) about doubles
// the number of correct digits; it stops when a step no longer changes x. Run with:
//   hostsim --plugin BigNumberZQT.so examples/newton.xs

Function F(x As BiggerNumberZQT) As BiggerNumberZQT
  Return x * x * x - x.Multiply(2) - New BiggerNumberZQT(5)
End Function

Function Slope(x As BiggerNumberZQT) As BiggerNumberZQT
  Return (x * x).Multiply(3) - New BiggerNumberZQT(2)
End Function

// The first `count` decimal digits after the point of a non-negative number.
Function Digits(x As BiggerNumberZQT, count As Integer) As String
  Var ten As New BiggerNumberZQT(10)
  Var text As String = Str(x.SkipFraction.IntegerValue) + "."
  Var rest As BiggerNumberZQT = x.Frac
  For i As Integer = 1 To count
    rest = rest * ten
    text = text + Str(rest.SkipFraction.IntegerValue)
    rest = rest.Frac
  Next
  Return text
End Function

Var x As New BiggerNumberZQT(2)
Var steps As Integer = 0
While True
  Var nextX As BiggerNumberZQT = x - F(x) / Slope(x)
  steps = steps + 1
  If steps <= 5 Then Print "step " + Str(steps) + ": " + Digits(nextX, 40)
  If nextX = x Then Exit
  x = nextX
Wend
Print "steps until x stood still: " + Str(steps)
Print "x = " + Digits(x, 200)
Print "f(x) is within 1e-600 of zero: " + Str(F(x).Abs < New BiggerNumberZQT("1e-600"))
