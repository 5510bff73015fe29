// The hidden switch Debugging, shared by both classes, writes a trace to standard
// error: each handler's name and the values of the currency conversions.
Print BigNumberZQT.Debugging
BigNumberZQT.Debugging = True
Print BiggerNumberZQT.Debugging
Var a As New BigNumberZQT(2)
Var c As Currency = 1.2345
Var b As New BiggerNumberZQT(c)
Print a.CurrencyValue
Try
  Var d As BigNumberZQT = a / New BigNumberZQT
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Try
  a.DataMantissa = Nil
Catch e As NilObjectException
  Print e.Message
End Try
Print Str(a.IsNegative) + " " + Str(b.Add(b).IsZero) + " " + Str(BiggerNumberZQT.NumberWithInt32(3).Modulate2)
BiggerNumberZQT.Debugging = False
Print BigNumberZQT.Debugging
