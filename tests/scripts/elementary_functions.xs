// Abs, Sgn, Root, Log, Ln and Exp, shared by both classes. Each case runs with both;
// the BiggerNumberZQT result is printed after "|" only where it differs. Values are
// shown as doubles here; math_precision.xs checks them to the last bit.
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
Function BigCall(name As String, x As BigNumberZQT, y As BigNumberZQT) As String
  Try
    Var r As BigNumberZQT
    If name = "Abs" Then
      r = BigNumberZQT.Abs(x)
    ElseIf name = "Sgn" Then
      r = BigNumberZQT.Sgn(x)
    ElseIf name = "Root" Then
      r = BigNumberZQT.Root(x, y)
    ElseIf name = "Log" Then
      r = BigNumberZQT.Log(x, y)
    ElseIf name = "Ln" Then
      r = BigNumberZQT.Ln(x)
    Else
      r = BigNumberZQT.Exp(x)
    End If
    If r.IsNan Then Return "NaN, flags " + Str(r.DataFlags)
    Return Str(r.DoubleValue)
  Catch e As BigNumberErrorExceptionZQT
    Return e.Message
  End Try
End Function
Function BiggerCall(name As String, x As BiggerNumberZQT, y As BiggerNumberZQT) As String
  Try
    Var r As BiggerNumberZQT
    If name = "Abs" Then
      r = BiggerNumberZQT.Abs(x)
    ElseIf name = "Sgn" Then
      r = BiggerNumberZQT.Sgn(x)
    ElseIf name = "Root" Then
      r = BiggerNumberZQT.Root(x, y)
    ElseIf name = "Log" Then
      r = BiggerNumberZQT.Log(x, y)
    ElseIf name = "Ln" Then
      r = BiggerNumberZQT.Ln(x)
    Else
      r = BiggerNumberZQT.Exp(x)
    End If
    If r.IsNan Then Return "NaN, flags " + Str(r.DataFlags)
    Return Str(r.DoubleValue)
  Catch e As BigNumberErrorExceptionZQT
    Return e.Message
  End Try
End Function
Sub Both(name As String, x As String, y As String)
  Var big As String = BigCall(name, Big(x), Big(y))
  Var bigger As String = BiggerCall(name, Bigger(x), Bigger(y))
  Var line As String = name + "(" + x
  If y <> "" Then line = line + ", " + y
  line = line + ") " + big
  If bigger <> big Then line = line + " | " + bigger
  Print line
End Sub

Print "-- Abs and Sgn never fail; a NaN or nil argument comes back as a NaN"
Both("Abs", "-2.5", "")
Both("Abs", "nil", "")
Var negativeNan As BigNumberZQT = BigNumberZQT.Nan
negativeNan.DataFlags = 128 + 64 + 32
Print "Abs of a negative NaN: flags " + Str(BigNumberZQT.Abs(negativeNan).DataFlags)
Both("Sgn", "-0.5", "")
Both("Sgn", "0", "")
Both("Sgn", "1e300", "")
Both("Sgn", "NaN", "")
Both("Sgn", "nil", "")

Print "-- Root: every failure has the one message without numbers"
Both("Root", "8", "3")
Print Str(BigNumberZQT.Root(Big("8"), Big("3")).Equals(Big("2"))) + " " + Str(BiggerNumberZQT.Root(Bigger("8"), Bigger("3")).Equals(Bigger("2")))
Both("Root", "-8", "3")
Both("Root", "5", "0")
Both("Root", "0", "3")
Both("Root", "-7.25", "1")
Both("Root", "2", "2")
Both("Root", "-8", "2")
Both("Root", "8", "2.5")
Both("Root", "8", "-3")
Both("Root", "0", "0")
Both("Root", "NaN", "3")
Both("Root", "8", "nil")

Print "-- Log: a failure shows the value and the base"
Both("Log", "1", "10")
Both("Log", "1", "0.5")
Both("Log", "8", "2")
Both("Log", "100", "10")
Both("Log", "5", "1")
Both("Log", "0", "10")
Both("Log", "-1", "10")
Both("Log", "5", "0")
Both("Log", "5", "-2")
Both("Log", "NaN", "2")
Both("Log", "nil", "10")

Print "-- Ln and Exp: a failure shows the argument"
Both("Ln", "1", "")
Both("Ln", "10", "")
Both("Ln", "0", "")
Both("Ln", "-1", "")
Both("Ln", "NaN", "")
Both("Ln", "nil", "")
Both("Exp", "0", "")
Both("Exp", "-0.5", "")
Both("Exp", "1e200", "")
Both("Exp", "-1e200", "")
Both("Exp", "NaN", "")
Both("Exp", "nil", "")
