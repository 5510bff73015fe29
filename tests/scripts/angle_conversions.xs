// Conversions between degrees, radians and grads, shared by both classes. Each case
// runs with both; the BiggerNumberZQT result is printed after "|" only where it differs.
// A failed conversion of one value shows it; a failed conversion of a degrees, minutes
// and seconds triple names only itself.
Function Big(text As String) As BigNumberZQT
  If text = "nil" Then Return Nil
  If text = "NaN" Then Return BigNumberZQT.Nan
  If text = "Max" Then Return BigNumberZQT.Max
  Return New BigNumberZQT(text)
End Function
Function Bigger(text As String) As BiggerNumberZQT
  If text = "nil" Then Return Nil
  If text = "NaN" Then Return BiggerNumberZQT.Nan
  If text = "Max" Then Return BiggerNumberZQT.Max
  Return New BiggerNumberZQT(text)
End Function

Function BigCall(name As String, d As BigNumberZQT, m As BigNumberZQT, s As BigNumberZQT) As String
  Try
    Var r As BigNumberZQT
    If name = "DegToDeg" Then
      r = BigNumberZQT.DegToDeg(d, m, s)
    ElseIf name = "DegToRad3" Then
      r = BigNumberZQT.DegToRad(d, m, s)
    ElseIf name = "DegToGrad3" Then
      r = BigNumberZQT.DegToGrad(d, m, s)
    ElseIf name = "DegToGrad" Then
      r = BigNumberZQT.DegToGrad(d)
    ElseIf name = "GradToDeg" Then
      r = BigNumberZQT.GradToDeg(d)
    ElseIf name = "GradToRad" Then
      r = BigNumberZQT.GradToRad(d)
    ElseIf name = "RadToGrad" Then
      r = BigNumberZQT.RadToGrad(d)
    ElseIf name = "DegToRad" Then
      r = BigNumberZQT.DegToRad(d)
    Else
      r = BigNumberZQT.RadToDeg(d)
    End If
    Return Str(r.DoubleValue)
  Catch e As BigNumberErrorExceptionZQT
    Return e.Message
  End Try
End Function
Function BiggerCall(name As String, d As BiggerNumberZQT, m As BiggerNumberZQT, s As BiggerNumberZQT) As String
  Try
    Var r As BiggerNumberZQT
    If name = "DegToDeg" Then
      r = BiggerNumberZQT.DegToDeg(d, m, s)
    ElseIf name = "DegToRad3" Then
      r = BiggerNumberZQT.DegToRad(d, m, s)
    ElseIf name = "DegToGrad3" Then
      r = BiggerNumberZQT.DegToGrad(d, m, s)
    ElseIf name = "DegToGrad" Then
      r = BiggerNumberZQT.DegToGrad(d)
    ElseIf name = "GradToDeg" Then
      r = BiggerNumberZQT.GradToDeg(d)
    ElseIf name = "GradToRad" Then
      r = BiggerNumberZQT.GradToRad(d)
    ElseIf name = "RadToGrad" Then
      r = BiggerNumberZQT.RadToGrad(d)
    ElseIf name = "DegToRad" Then
      r = BiggerNumberZQT.DegToRad(d)
    Else
      r = BiggerNumberZQT.RadToDeg(d)
    End If
    Return Str(r.DoubleValue)
  Catch e As BigNumberErrorExceptionZQT
    Return e.Message
  End Try
End Function
Sub Both(name As String, d As String, m As String, s As String)
  Var big As String = BigCall(name, Big(d), Big(m), Big(s))
  Var bigger As String = BiggerCall(name, Bigger(d), Bigger(m), Bigger(s))
  Var line As String = name + "(" + d
  If m <> "0" Or s <> "0" Then line = line + ", " + m + ", " + s
  line = line + ") " + big
  If bigger <> big Then line = line + " | " + bigger
  Print line
End Sub
Sub One(name As String, x As String)
  Both(name, x, "0", "0")
End Sub

Print "-- one value"
One("DegToGrad", "90")
One("GradToDeg", "200")
One("GradToRad", "100")
One("RadToGrad", "1")
One("DegToRad", "-45")
One("RadToDeg", "1")
Print "-- exact where the library's constants make them so"
Print Str(BigNumberZQT.DegToRad(Big("180")).Equals(BigNumberZQT.Pi)) + " " + Str(BiggerNumberZQT.DegToRad(Bigger("180")).Equals(BiggerNumberZQT.Pi))
Print Str(BigNumberZQT.GradToDeg(Big("200")).Equals(Big("180"))) + " " + Str(BiggerNumberZQT.GradToDeg(Bigger("200")).Equals(Bigger("180")))
Print Str(BigNumberZQT.DegToGrad(Big("90")).Equals(Big("100"))) + " " + Str(BiggerNumberZQT.DegToGrad(Bigger("90")).Equals(Bigger("100")))
Print Str(BigNumberZQT.RadToDeg(BigNumberZQT.Pi).Equals(Big("180"))) + " " + Str(BigNumberZQT.GradToRad(Big("200")).Equals(BigNumberZQT.Pi))

Print "-- degrees, minutes and seconds: the fraction takes the sign of the degrees"
Both("DegToDeg", "10", "30", "0")
Both("DegToDeg", "-10", "30", "0")
Both("DegToDeg", "0", "30", "0")
Both("DegToDeg", "1", "1", "36")
Both("DegToRad3", "180", "0", "0")
Both("DegToGrad3", "-90", "30", "0")
Print Str(BigNumberZQT.DegToRad(Big("90"), Big("0"), Big("0")).Equals(BigNumberZQT.HalfPi)) + " " + Str(BiggerNumberZQT.DegToRad(Bigger("90"), Bigger("0"), Bigger("0")).Equals(BiggerNumberZQT.HalfPi))

Print "-- failures: NaN, nil, negative minutes or seconds, overflow"
One("DegToGrad", "NaN")
One("GradToDeg", "nil")
One("GradToRad", "NaN")
One("RadToGrad", "nil")
One("DegToRad", "NaN")
One("RadToDeg", "nil")
Try
  Print BigNumberZQT.DegToGrad(BigNumberZQT.Max).IsNan
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Both("DegToDeg", "10", "-30", "0")
Both("DegToDeg", "10", "0", "-1")
Both("DegToDeg", "NaN", "0", "1")
Both("DegToRad3", "1", "nil", "0")
Both("DegToGrad3", "1", "0", "NaN")
Both("DegToRad3", "0", "Max", "0")
