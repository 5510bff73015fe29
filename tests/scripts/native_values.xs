// Properties that show a number as a native value: the four tests, and the Integer,
// Int64, UInt64, Double and Currency conversions in both directions. A value that
// does not fit is reported and the getter gives 0.
Function N(text As String) As BigNumberZQT
  Return New BigNumberZQT(text)
End Function
Function Pow2(k As Integer) As BigNumberZQT
  Var r As New BigNumberZQT(1)
  Var two As New BigNumberZQT(2)
  If k >= 0 Then
    For i As Integer = 1 To k
      r = r * two
    Next
  Else
    For i As Integer = 1 To -k
      r = r / two
    Next
  End If
  Return r
End Function
Function Tests(x As BigNumberZQT) As String
  Return Str(x.IsZero) + " " + Str(x.IsNegative) + " " + Str(x.IsNan) + " " + Str(x.IsInteger)
End Function

Print "-- IsZero IsNegative IsNan IsInteger"
Print Tests(New BigNumberZQT)
Print Tests(N("-3"))
Print Tests(N("2.5"))
Print Tests(N("1e30"))
Var nan As New BigNumberZQT(7)
nan.DataFlags = 64
Print Tests(nan)
Var nothing As BigNumberZQT
Print Tests(New BigNumberZQT(nothing))
Print New BiggerNumberZQT("-0.001").IsNegative

Print "-- integers truncate toward zero"
Print Str(N("1.9").IntegerValue) + " " + Str(N("-1.9").IntegerValue) + " " + Str(N("-1.9").Int64Value)
Print N("-9223372036854775808").Int64Value
Print Str(N("0.5").UInt64Value) + " " + Str(N("18446744073709551615").UInt64Value)
Print New BiggerNumberZQT("-123456789.75").IntegerValue
Try
  Print N("9223372036854775808").Int64Value
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Print N("-1e19").IntegerValue
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Print N("18446744073709551616").UInt64Value
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Print N("-0.5").UInt64Value
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Print N("-1").UInt64Value
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try

Print "-- doubles: truncated to 53 bits, NaN without a report, outside the range reported"
Print Str(N("0.1").DoubleValue) + " " + Str(N("-2.5e-300").DoubleValue)
Print (New BigNumberZQT(1) - Pow2(-60)).DoubleValue < 1.0
Print nan.DoubleValue
Print Pow2(-1074).DoubleValue
Print Pow2(1023).DoubleValue
Try
  Print Pow2(1024).DoubleValue
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Print Pow2(-1075).DoubleValue
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try

Print "-- currency: the value times 10000, rounded half away from zero"
Print Str(Pow2(-14).CurrencyValue) + " " + Str((-Pow2(-14)).CurrencyValue) + " " + Str(Pow2(-15).CurrencyValue)
Print N("-922337203685477.5808").CurrencyValue
Print New BiggerNumberZQT("12.34565").CurrencyValue
Try
  Print N("1e20").CurrencyValue
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try

Print "-- setters replace the value"
Var x As New BigNumberZQT
x.IntegerValue = -42
Print Str(x.DoubleValue) + " " + Str(x.IsInteger)
x.Int64Value = -9223372036854775807 - 1
Print x.Equals(N("-9223372036854775808"))
Var top As UInt64 = 18446744073709551615
x.UInt64Value = top
Print x.Equals(N("18446744073709551615"))
x.DoubleValue = 0.1
Print Str(x.Equals(New BigNumberZQT(0.1))) + " " + Str(x.Equals(N("0.1")))
x.DoubleValue = Val("nan")
Print x.IsNan
x.CurrencyValue = 1.2345
Print Str(x.CurrencyValue) + " " + Str(x.DoubleValue)
Var y As New BiggerNumberZQT
y.CurrencyValue = -0.0001
Print Str(y.CurrencyValue) + " " + Str(y.IsNegative)
