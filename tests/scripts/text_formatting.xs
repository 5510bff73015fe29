// Numbers written as text: the StringValue property, Operator_Convert as String,
// StringValue(Base) and the six-argument GetStringValue, with both classes.
Function Both(text As String, base As Integer) As String
  Return New BigNumberZQT(text).StringValue(base) + " | " + New BiggerNumberZQT(text).StringValue(base)
End Function

Print "-- StringValue and Operator_Convert give the same text"
Var a As New BigNumberZQT("-255.375")
Var b As New BiggerNumberZQT("1e20")
Var s As String = a
Print a.StringValue + " " + s
Print a
s = b
Print b.StringValue + " " + s
Print b
Print New BigNumberZQT("1e-16").StringValue + " " + New BiggerNumberZQT("123456789012345678").StringValue
Var nothing As BigNumberZQT
Print New BigNumberZQT(nothing).StringValue + " " + New BigNumberZQT.StringValue

Print "-- StringValue(Base)"
Print Both("-255.375", 2)
Print Both("-255.375", 8)
Print Both("-255.375", 16)
Print Both("4095", 16)
Print Both("1e30", 16)
Print New BigNumberZQT("0.5").StringValue(7)

Print "-- GetStringValue(Base, scientific, scientificFrom, round, TrimZeros, comma)"
Var x As New BigNumberZQT("1234.56789")
Var y As New BiggerNumberZQT("1234.56789")
Print x.GetStringValue + " | " + y.GetStringValue
Print x.GetStringValue(16, False, 15, 4) + " | " + y.GetStringValue(16, False, 15, 4)
Print x.GetStringValue(10, True) + " | " + y.GetStringValue(10, True)
Print x.GetStringValue(10, False, 2) + " | " + y.GetStringValue(10, False, 2)
Print x.GetStringValue(10, False, -1) + " | " + y.GetStringValue(10, False, -1)
Print x.GetStringValue(10, False, 15, 2) + " | " + y.GetStringValue(10, False, 15, 0)
Print x.GetStringValue(10, True, 15, 3, False) + " | " + y.GetStringValue(10, False, 15, 8, False)
Print x.GetStringValue(10, False, 15, 1000000000) + " | " + y.GetStringValue(10, False, 15, 1000000000)
Print x.GetStringValue(10, False, 15, -7) + " | " + y.GetStringValue(10, False, 15, -7)

Print "-- the radix point: the first byte of comma, else a full stop"
Print x.GetStringValue(10, False, 15, -1, True, ",;") + " | " + y.GetStringValue(10, False, 15, -1, True, ",;")
Print x.GetStringValue(10, False, 15, -1, True, "") + " | " + y.GetStringValue(10, False, 15, -1, True, "")
Print x.GetStringValue(10, False, 15, -1, True, "é") + " | " + y.GetStringValue(10, False, 15, -1, True, "é")
Print New BigNumberZQT("-0.4").GetStringValue(10, False, 15, 0, True, "x")

Print "-- long texts"
Var huge As New BigNumberZQT("1e100000")
Print Len(huge.GetStringValue(10, False, 200000))
Print Len(New BiggerNumberZQT("-1e-5000").GetStringValue(10, False, 9000, -1, True, ","))

Print "-- failures carry the method's name"
Sub TryFormat(n As BigNumberZQT, base As Integer)
  Try
    Print n.GetStringValue(base)
  Catch e As BigNumberErrorExceptionZQT
    Print e.Message
  End Try
  Try
    Print n.StringValue(base)
  Catch e As BigNumberErrorExceptionZQT
    Print e.Message
  End Try
End Sub
TryFormat x, 1
TryFormat x, 17
TryFormat x, -5
Try
  Print y.GetStringValue(0)
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Print New BigNumberZQT("7e2776511644261678642").GetStringValue(10, False, 9223372036854775807)
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Var noValue As BiggerNumberZQT
Print "a NaN has no base: " + New BigNumberZQT(nothing).GetStringValue(17) + " " + New BiggerNumberZQT(noValue).StringValue(1)
