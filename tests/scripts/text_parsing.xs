// Text read into numbers: the StringValue setters, SetStringValue with a base and the
// out-parameters AfterText and ValueRead, the string constructor, Operator_Convert from
// String and NumberWithString, with both classes. A failed parse still stores what the
// library read.
Sub Read(text As String, base As Integer)
  Var a As New BigNumberZQT(1)
  Var b As New BiggerNumberZQT(1)
  Var restA As String = "old"
  Var restB As String = "old"
  Var readA, readB As Boolean
  a.SetStringValue(text, base, restA, readA)
  b.SetStringValue(text, base, restB, readB)
  Print a.StringValue + " [" + restA + "] " + Str(readA) + " | " + b.StringValue + " [" + restB + "] " + Str(readB)
End Sub

Print "-- SetStringValue(Text, Base, AfterText, ValueRead)"
Read "12.5abc", 10
Read "  -0.75e2 rest", 10
Read "1e", 10
Read "ff.8g", 16
Read "101.1e3", 2
Read "abc", 10
Read "", 10
Read "-", 10
Read "12,5", 10
Read "1 000", 10

Print "-- AfterText may be the text itself"
Var n As New BigNumberZQT
Var t As String = "42 and more"
Var ok As Boolean
n.SetStringValue(t, 10, t, ok)
Print n.StringValue + " [" + t + "] " + Str(ok)

Print "-- the StringValue setters"
Var a As New BigNumberZQT
a.StringValue = "3,25"
Print a
a.StringValue(16) = "-1F.8"
Print a
a.StringValue(3) = "0.1"
Print a.GetStringValue(10, False, 15, 20)
Var b As New BiggerNumberZQT
b.StringValue = "  7.5e-3xyz"
Print b
b.StringValue(2) = "1111"
Print b

Print "-- the constructor, Operator_Convert and NumberWithString"
Var c As New BigNumberZQT("6.02214076e23")
Print c
Var d As BiggerNumberZQT = "-1.5"
Print d
Print BigNumberZQT.NumberWithString("0.1").Equals(New BigNumberZQT("0.1"))
Print BiggerNumberZQT.NumberWithString("2,5 apples")
Print BigNumberZQT.NumberWithString("nothing").IsZero

Print "-- a long text"
Var digits As String = "9"
For i As Integer = 1 To 17
  digits = digits + digits
Next
Var rest As String
Var long As New BiggerNumberZQT
long.SetStringValue("0." + digits + "x", 10, rest, ok)
Print Str(Len(digits)) + " " + long.GetStringValue(10, False, 15, 5) + " [" + rest + "] " + Str(ok)
long.StringValue = digits
Print long.GetStringValue(10, True, 15, 5)

Print "-- failures carry the method's name; the object keeps what was read"
Sub TryRead(text As String, base As Integer)
  Var a As New BigNumberZQT(5)
  Var rest As String = "old"
  Var ok As Boolean = True
  Try
    a.SetStringValue(text, base, rest, ok)
  Catch e As BigNumberErrorExceptionZQT
    Print e.Message + " [" + rest + "] " + Str(ok) + " " + Str(a.IsNan)
  End Try
  Var b As New BiggerNumberZQT(6)
  Try
    b.StringValue(base) = text
  Catch e As BigNumberErrorExceptionZQT
    Print e.Message + " " + Str(b.IsNan)
  End Try
End Sub
TryRead "12", 1
TryRead "12", 17
TryRead "12", -5
TryRead "1e99999999999999999999", 10
Var e1 As New BigNumberZQT(8)
Try
  e1.StringValue = "1e-3000000000000000000"
Catch e As BigNumberErrorExceptionZQT
  Print e.Message + " " + Str(e1.IsNan)
End Try
Try
  Var e2 As New BiggerNumberZQT("5e1" + digits)
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Var e3 As BigNumberZQT = "1e2776511644261678643"
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Print BiggerNumberZQT.NumberWithString("-1e" + digits)
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
