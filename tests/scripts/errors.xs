// Failed operations raise BigNumberErrorExceptionZQT, a RuntimeException, whose
// message names the operation and shows its operands: "nil" for a nil operand, "NaN"
// for a NaN. Nothing is changed and no result is returned.
Sub Attempt(label As String, x As BigNumberZQT)
  Print label + ": no exception"
End Sub

Var five As New BigNumberZQT(5)
Var zero As New BigNumberZQT
Var nothing As BigNumberZQT
Var nan As New BigNumberZQT(2)
nan.DataFlags = 64

Print "-- methods"
Try
  Attempt("Divide", New BigNumberZQT(1).Divide(zero))
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Attempt("Add", five.Add(nothing))
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Attempt("Subtract", five.Subtract(nan, False))
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Attempt("Multiply", nan.Multiply(five))
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Attempt("Multiply Integer", nan.Multiply(3))
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Var factor As UInt32 = 0
Try
  Attempt("Multiply UInt32", nan.Multiply(factor))
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Attempt("Modulate", New BigNumberZQT(7).Modulate(zero))
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Attempt("BitAnd", New BigNumberZQT(-6).BitAnd(New BigNumberZQT(3)))
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Attempt("BitOr", five.BitOr(nothing))
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Attempt("BitXOr", New BigNumberZQT("0.5").BitXOr(New BigNumberZQT("-0.25")))
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Attempt("Ceil", nan.Ceil)
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Attempt("Floor", nan.Floor)
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Attempt("Round", New BigNumberZQT(nothing).Round)
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try

Print "-- operators"
Try
  Attempt("+", five + nothing)
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Attempt("-", nan - five)
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Var huge As New BigNumberZQT("1e2000000000000000000")
Try
  Attempt("*", huge * huge)
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Attempt("/", five / zero)
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Attempt("\", New BigNumberZQT(1) \ zero)
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  Attempt("Mod", five Mod nothing)
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try

Print "-- the same messages from the larger class"
Try
  Var q As BiggerNumberZQT = New BiggerNumberZQT("2.5") / New BiggerNumberZQT
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Var noBigger As BiggerNumberZQT
Try
  Var r As BiggerNumberZQT = New BiggerNumberZQT(-1).Multiply(noBigger, False)
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try

Print "-- the exception is a RuntimeException with ErrorNumber 0; operands stay as they were"
Var result As BigNumberZQT = five
Try
  result = five.Divide(zero)
Catch e As RuntimeException
  Print Str(e IsA BigNumberErrorExceptionZQT) + " " + Str(e.ErrorNumber)
End Try
Print Str(result Is five) + " " + Str(five.DoubleValue) + " " + Str(zero.IsZero) + " " + Str(zero.IsNan)
