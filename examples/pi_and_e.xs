// Five hundred digits of pi and of e in BiggerNumberZQT (about 616 significant digits),
// from two classic series. Run with:
//   hostsim --plugin BigNumberZQT.so examples/pi_and_e.xs

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

// The arc tangent of 1/x: 1/x - 1/(3 x^3) + 1/(5 x^5) - ..., until a term no longer
// changes the sum.
Function ArcTanOfInverse(x As Integer) As BiggerNumberZQT
  Var xSquared As New BiggerNumberZQT(x * x)
  Var power As BiggerNumberZQT = New BiggerNumberZQT(1) / New BiggerNumberZQT(x)
  Var sum As BiggerNumberZQT = power
  Var k As Integer = 1
  While True
    power = power / xSquared
    Var term As BiggerNumberZQT = power / New BiggerNumberZQT(2 * k + 1)
    Var nextSum As BiggerNumberZQT
    If k Mod 2 = 1 Then
      nextSum = sum - term
    Else
      nextSum = sum + term
    End If
    If nextSum = sum Then Exit
    sum = nextSum
    k = k + 1
  Wend
  Return sum
End Function

// Machin's formula: pi = 16 atan(1/5) - 4 atan(1/239).
Var pi As BiggerNumberZQT = ArcTanOfInverse(5).Multiply(16) - ArcTanOfInverse(239).Multiply(4)
Print "pi = " + Digits(pi, 500)

// e = 1 + 1/1! + 1/2! + 1/3! + ..., until a term no longer changes the sum.
Var e As New BiggerNumberZQT(1)
Var term As New BiggerNumberZQT(1)
Var n As Integer = 1
While True
  term = term / New BiggerNumberZQT(n)
  If e + term = e Then Exit
  e = e + term
  n = n + 1
Wend
Print "e  = " + Digits(e, 500)
Print "terms of the series for e: " + Str(n)
