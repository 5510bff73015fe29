// Arithmetic methods of both classes: each returns a new number and leaves its
// receiver and argument as they were.
Function N(text As String) As BigNumberZQT
  Return New BigNumberZQT(text)
End Function
Function B(text As String) As BiggerNumberZQT
  Return New BiggerNumberZQT(text)
End Function

Print "-- add, subtract, multiply, divide"
Var a As BigNumberZQT = N("7.5")
Var two As BigNumberZQT = N("2")
Print a.Add(two).DoubleValue
Print a.Subtract(two).DoubleValue
Print a.Multiply(two).DoubleValue
Print a.Divide(two).DoubleValue
Var sum As BigNumberZQT = a.Add(two)
Print Str(a.DoubleValue) + " " + Str(two.DoubleValue) + " " + Str(sum Is a)
Print B("7.5").Divide(New BiggerNumberZQT(-2)).DoubleValue

Print "-- the round flag: true rounds the last bit to nearest, false drops what falls off"
Print Str(N("3").Divide(N("5"), True).DataMantissa.Byte(0)) + " " + Str(N("3").Divide(N("5"), False).DataMantissa.Byte(0))
// a quotient rounds on the bits the library keeps: 1 / 3 keeps none beyond the last
Print N("1").Divide(N("3"), True).Equals(N("1").Divide(N("3"), False))
Var tiny As BigNumberZQT = N("1e-77")
Print N("1").Add(tiny, False).Equals(N("1"))
Print N("1").Add(tiny, True).Equals(N("1"))
Print N("1").Subtract(tiny, False).Equals(N("1").Subtract(tiny, True))
Var twoSevenths As BigNumberZQT = N("2").Divide(N("7"))
Print N("3").Multiply(twoSevenths, True).Equals(N("3").Multiply(twoSevenths, False))
Print Str(B("3").Divide(B("5"), True).DataMantissa.Byte(0)) + " " + Str(B("3").Divide(B("5"), False).DataMantissa.Byte(0))

Print "-- multiply by a machine integer"
Print N("2.5").Multiply(-4).DoubleValue
Var big32 As UInt32 = 4294967295
Print N("2").Multiply(big32).Int64Value
Print B("-0.5").Multiply(1000000).DoubleValue

Print "-- remainders"
Print N("7.5").Modulate(two).DoubleValue
Print N("-7").Modulate(two).DoubleValue
Print Str(N("3").Modulate2) + " " + Str(N("4").Modulate2) + " " + Str(N("2.5").Modulate2) + " " + Str(N("-5").Modulate2)
Print Str(N("1e30").Modulate2) + " " + Str(B("0.5").Modulate2)

Print "-- integer parts"
Print Str(N("-2.5").Ceil.DoubleValue) + " " + Str(N("2.5").Ceil.DoubleValue) + " " + Str(N("-0.5").Ceil.DoubleValue)
Print Str(N("-2.5").Floor.DoubleValue) + " " + Str(N("2.5").Floor.DoubleValue)
Print Str(N("2.5").Round.DoubleValue) + " " + Str(N("-2.5").Round.DoubleValue) + " " + Str(N("2.4999").Round.DoubleValue)
Print Str(N("-2.7").SkipFraction.DoubleValue) + " " + Str(N("-2.75").Frac.DoubleValue) + " " + Str(N("3").Frac.IsZero)
Print Str(B("-2.5").Ceil.DoubleValue) + " " + Str(B("-2.5").Floor.DoubleValue) + " " + Str(B("-2.5").Round.DoubleValue)

Print "-- sign"
Print Str(N("-3").Abs.DoubleValue) + " " + Str(N("3").Negate.DoubleValue) + " " + Str(B("3").Negate.IsNegative)
Var zero As New BigNumberZQT
Print Str(zero.Negate.DataFlags) + " " + Str(N("-0").DataFlags)

Print "-- bitwise, on the binary digits of non-negative values"
Print Str(N("6").BitAnd(N("3")).DoubleValue) + " " + Str(N("6").BitOr(N("3")).DoubleValue) + " " + Str(N("6").BitXOr(N("3")).DoubleValue)
Print Str(N("0.75").BitAnd(N("0.5")).DoubleValue) + " " + Str(N("5.5").BitXOr(N("0.25")).DoubleValue)
Print B("12").BitOr(B("3")).DoubleValue

Print "-- equality is exact and ignores the NaN flag"
Print N("0.1").Equals(N("0.1"))
Print N("0.1").Equals(N("-0.1"))
Print N("1").Equals(N("1").Add(tiny))
Var nothing As BigNumberZQT
Print zero.Equals(nothing)
Print N("5").Equals(nothing)
