// A tour of BigNumberZQT and BiggerNumberZQT, run with:
//   hostsim --plugin BigNumberZQT.so examples/demo.xs

// The decimal digits of a non-negative number, one at a time from its fraction.
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

Function DigitsOf(x As BigNumberZQT, count As Integer) As String
  Var ten As New BigNumberZQT(10)
  Var text As String = Str(x.SkipFraction.IntegerValue) + "."
  Var rest As BigNumberZQT = x.Frac
  For i As Integer = 1 To count
    rest = rest * ten
    text = text + Str(rest.SkipFraction.IntegerValue)
    rest = rest.Frac
  Next
  Return text
End Function

Print "The square root of 2 by Newton's method: x = (x + 2 / x) / 2"
Var two As New BigNumberZQT(2)
Var root As New BigNumberZQT(1)
For i As Integer = 1 To 10
  root = (root + two / root) / two
Next
Print "256 bits:  " + DigitsOf(root, 70)
Var twoBigger As New BiggerNumberZQT(2)
Var rootBigger As New BiggerNumberZQT(1)
For i As Integer = 1 To 13
  rootBigger = (rootBigger + twoBigger / rootBigger) / twoBigger
Next
Print "2048 bits: " + Digits(rootBigger, 120)
Print ""

Print "100! / 98! should be 100 x 99 = 9900"
Var factorial As New BigNumberZQT(1)
Var factorialBigger As New BiggerNumberZQT(1)
Var upTo98 As BiggerNumberZQT
For n As Integer = 1 To 100
  factorial = factorial.Multiply(n)
  factorialBigger = factorialBigger.Multiply(n)
  If n = 98 Then upTo98 = factorialBigger
Next
Print "100! is about " + Str(factorial.DoubleValue)
Print "2048 bits hold 100! exactly: " + Str((factorialBigger / upTo98).Int64Value)
Print ""

Print "Money: a thousand payments of one cent (77 digits keep the sum within a hair of 10)"
Var total As Double = 0
Var exact As New BigNumberZQT
Var cent As Currency = 0.01
For i As Integer = 1 To 1000
  total = total + 0.01
  exact = exact + BigNumberZQT.NumberWithCurrency(cent)
Next
Print "with Double:       " + Str(total) + ", exactly 10: " + Str(total = 10.0)
Print "with BigNumberZQT: " + Str(exact.CurrencyValue) + ", exactly 10: " + Str(exact.CurrencyValue = 10)
Print ""

Print "Dividing by zero"
Try
  Var share As BigNumberZQT = New BigNumberZQT(100) / New BigNumberZQT(0)
Catch e As BigNumberErrorExceptionZQT
  Print "caught: " + e.Message
End Try
