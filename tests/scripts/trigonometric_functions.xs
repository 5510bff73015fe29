// The circular and hyperbolic functions and their inverses, shared by both classes,
// angles in radians. Each case runs with both; the BiggerNumberZQT result is printed
// after "|" only where it differs. Values are shown as doubles here; math_precision.xs
// checks Sin and Cos to the last bit.
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

Function BigCall(name As String, x As BigNumberZQT) As String
  Try
    Var r As BigNumberZQT
    If name = "Sin" Then
      r = BigNumberZQT.Sin(x)
    ElseIf name = "Cos" Then
      r = BigNumberZQT.Cos(x)
    ElseIf name = "Tan" Then
      r = BigNumberZQT.Tan(x)
    ElseIf name = "Cot" Then
      r = BigNumberZQT.Cot(x)
    ElseIf name = "ASin" Then
      r = BigNumberZQT.ASin(x)
    ElseIf name = "ACos" Then
      r = BigNumberZQT.ACos(x)
    ElseIf name = "ATan" Then
      r = BigNumberZQT.ATan(x)
    ElseIf name = "ACot" Then
      r = BigNumberZQT.ACot(x)
    ElseIf name = "Sinh" Then
      r = BigNumberZQT.Sinh(x)
    ElseIf name = "Cosh" Then
      r = BigNumberZQT.Cosh(x)
    ElseIf name = "Tanh" Then
      r = BigNumberZQT.Tanh(x)
    ElseIf name = "Coth" Then
      r = BigNumberZQT.Coth(x)
    ElseIf name = "ASinh" Then
      r = BigNumberZQT.ASinh(x)
    ElseIf name = "ACosh" Then
      r = BigNumberZQT.ACosh(x)
    ElseIf name = "ATanh" Then
      r = BigNumberZQT.ATanh(x)
    Else
      r = BigNumberZQT.ACoth(x)
    End If
    If r.IsNan Then Return "NaN"
    Return Str(r.DoubleValue)
  Catch e As BigNumberErrorExceptionZQT
    Return e.Message
  End Try
End Function
Function BiggerCall(name As String, x As BiggerNumberZQT) As String
  Try
    Var r As BiggerNumberZQT
    If name = "Sin" Then
      r = BiggerNumberZQT.Sin(x)
    ElseIf name = "Cos" Then
      r = BiggerNumberZQT.Cos(x)
    ElseIf name = "Tan" Then
      r = BiggerNumberZQT.Tan(x)
    ElseIf name = "Cot" Then
      r = BiggerNumberZQT.Cot(x)
    ElseIf name = "ASin" Then
      r = BiggerNumberZQT.ASin(x)
    ElseIf name = "ACos" Then
      r = BiggerNumberZQT.ACos(x)
    ElseIf name = "ATan" Then
      r = BiggerNumberZQT.ATan(x)
    ElseIf name = "ACot" Then
      r = BiggerNumberZQT.ACot(x)
    ElseIf name = "Sinh" Then
      r = BiggerNumberZQT.Sinh(x)
    ElseIf name = "Cosh" Then
      r = BiggerNumberZQT.Cosh(x)
    ElseIf name = "Tanh" Then
      r = BiggerNumberZQT.Tanh(x)
    ElseIf name = "Coth" Then
      r = BiggerNumberZQT.Coth(x)
    ElseIf name = "ASinh" Then
      r = BiggerNumberZQT.ASinh(x)
    ElseIf name = "ACosh" Then
      r = BiggerNumberZQT.ACosh(x)
    ElseIf name = "ATanh" Then
      r = BiggerNumberZQT.ATanh(x)
    Else
      r = BiggerNumberZQT.ACoth(x)
    End If
    If r.IsNan Then Return "NaN"
    Return Str(r.DoubleValue)
  Catch e As BigNumberErrorExceptionZQT
    Return e.Message
  End Try
End Function
Sub Both(name As String, x As String)
  Var big As String = BigCall(name, Big(x))
  Var bigger As String = BiggerCall(name, Bigger(x))
  Var line As String = name + "(" + x + ") " + big
  If bigger <> big Then line = line + " | " + bigger
  Print line
End Sub
// Every function at one argument, at NaN and at nil.
Sub Each(name As String, x As String)
  Both(name, x)
  Both(name, "NaN")
  Both(name, "nil")
End Sub

Print "-- each function, then NaN and nil: only ATan and ACot never fail"
Each("Sin", "0.5")
Each("Cos", "0.5")
Each("Tan", "0.5")
Each("Cot", "0.5")
Each("ASin", "0.5")
Each("ACos", "0.5")
Each("ATan", "0.5")
Each("ACot", "0.5")
Each("Sinh", "0.5")
Each("Cosh", "0.5")
Each("Tanh", "0.5")
Each("Coth", "0.5")
Each("ASinh", "0.5")
Each("ACosh", "1.5")
Each("ATanh", "0.5")
Each("ACoth", "2")

Print "-- exact results"
Both("Sin", "0")
Both("Cos", "0")
Both("Tan", "0")
Both("ATan", "0")
Both("Sinh", "0")
Both("Cosh", "0")
Both("ACosh", "1")
Print Str(BigNumberZQT.ASin(Big("1")).Equals(BigNumberZQT.HalfPi)) + " " + Str(BiggerNumberZQT.ASin(Bigger("1")).Equals(BiggerNumberZQT.HalfPi))
Print Str(BigNumberZQT.ACos(Big("-1")).Equals(BigNumberZQT.Pi)) + " " + Str(BiggerNumberZQT.ACos(Bigger("-1")).Equals(BiggerNumberZQT.Pi))

Print "-- outside the domain"
Both("Cot", "0")
Both("ASin", "1.5")
Both("ACos", "-1.5")
Both("Coth", "0")
Both("ACosh", "0.5")
Both("ATanh", "1")
Both("ATanh", "-1")
Both("ACoth", "1")
Both("ACoth", "0.5")

Print "-- e^x leaves the exponent range: even Tanh, whose value is near one, fails"
Both("Sinh", "1e200")
Both("Cosh", "-1e200")
Both("Tanh", "1e200")
Both("Tanh", "20")
