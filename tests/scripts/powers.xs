// Square roots and powers of both classes: Sqrt, Pow and the power operator. Like its
// twin, Operator_PowerRight raises its receiver to its argument.
Function Big(text As String) As BigNumberZQT
  If text = "nil" Then Return Nil
  If text = "NaN" Then Return BigNumberZQT.Nan
  Return New BigNumberZQT(text)
End Function
Function Bigger(text As String) As BiggerNumberZQT
  If text = "nil" Then Return Nil
  If text = "NaN" Then Return BiggerNumberZQT.Nan
  Return New BiggerNumberZQT(text)
End Function
Function BigPower(x As String, y As String) As String
  Try
    Return Str((Big(x) ^ Big(y)).DoubleValue)
  Catch e As BigNumberErrorExceptionZQT
    Return e.Message
  End Try
End Function
Function BiggerPower(x As String, y As String) As String
  Try
    Return Str(Bigger(x).Pow(Bigger(y)).DoubleValue)
  Catch e As BigNumberErrorExceptionZQT
    Return e.Message
  End Try
End Function
// BigNumberZQT through the operator, BiggerNumberZQT through Pow; the second result is
// printed after "|" only where it differs.
Sub Power(x As String, y As String)
  Var big As String = BigPower(x, y)
  Var bigger As String = BiggerPower(x, y)
  Var line As String = x + " ^ " + y + " = " + big
  If bigger <> big Then line = line + " | " + bigger
  Print line
End Sub
Function BigRoot(x As String) As String
  Try
    Return Str(Big(x).Sqrt.DoubleValue)
  Catch e As BigNumberErrorExceptionZQT
    Return e.Message
  End Try
End Function
Function BiggerRoot(x As String) As String
  Try
    Return Str(Bigger(x).Sqrt.DoubleValue)
  Catch e As BigNumberErrorExceptionZQT
    Return e.Message
  End Try
End Function
Sub Root(x As String)
  Var big As String = BigRoot(x)
  Var bigger As String = BiggerRoot(x)
  Var line As String = "Sqrt(" + x + ") = " + big
  If bigger <> big Then line = line + " | " + bigger
  Print line
End Sub

Print "-- Sqrt"
Root("2")
Root("0")
Root("6.25")
Root("-4")
Root("NaN")
Print Str(Big("16").Sqrt.Equals(Big("4"))) + " " + Str(Bigger("1e100").Sqrt.Equals(Bigger("1e50")))

Print "-- powers: integer and fractional exponents"
Power("2", "10")
Power("-2", "3")
Power("2", "-2")
Power("4", "0.5")
Power("2", "0.5")
Power("-3", "0")
Power("0", "5")
Print Str((Big("3") ^ Big("40")).Equals(Big("12157665459056928801"))) + " " + Str(Bigger("3").Pow(Bigger("200")).IsInteger)

Print "-- failures show both numbers"
Power("-8", "0.5")
Power("0", "0")
Power("0", "-1")
Power("NaN", "2")
Power("2", "nil")
Try
  Print (Big("10") ^ Big("1e30")).IsNan
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Print Bigger("10").Pow(Bigger("1e200")).IsNan
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try

Print "-- Operator_PowerRight computes receiver ^ argument"
Print Big("2").Operator_PowerRight(Big("5")).DoubleValue
Print Bigger("2").Operator_PowerRight(Bigger("5")).DoubleValue
Try
  Print Big("-1").Operator_PowerRight(Big("0.5")).IsNan
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
