// options: --ide
// The class constants as numbers, Rand, and the hidden LibTypeStr, for both classes.
// math_precision.xs checks the constants' words; this script runs as in the IDE, where
// the generator behind Rand is not seeded.
Print "-- pi's multiples move only the exponent; Min is Max negated"
Print Str(BigNumberZQT.HalfPi.Multiply(2).Equals(BigNumberZQT.Pi)) + " " + Str(BigNumberZQT.Pi.Multiply(2).Equals(BigNumberZQT.TwoPi))
Print Str(BiggerNumberZQT.HalfPi.Multiply(2).Equals(BiggerNumberZQT.Pi)) + " " + Str(BiggerNumberZQT.Pi.Multiply(2).Equals(BiggerNumberZQT.TwoPi))
Print Str(BigNumberZQT.Min.IsNegative) + " " + Str(BigNumberZQT.Min.Equals(BigNumberZQT.Max.Negate))
Print Str(BiggerNumberZQT.Min.IsNegative) + " " + Str(BiggerNumberZQT.Min.Equals(BiggerNumberZQT.Max.Negate))

Print "-- Zero, One and Nan"
Print Str(BigNumberZQT.Zero.IsZero) + " " + Str(BigNumberZQT.Zero.IsNan) + " " + Str(BigNumberZQT.One.Equals(New BigNumberZQT(1)))
Print Str(BiggerNumberZQT.Zero.IsZero) + " " + Str(BiggerNumberZQT.Zero.IsNan) + " " + Str(BiggerNumberZQT.One.Equals(New BiggerNumberZQT(1)))
Print Str(BigNumberZQT.Nan.IsNan) + " " + Str(BigNumberZQT.Nan.IsZero) + " " + Str(BiggerNumberZQT.Nan.IsNan) + " " + Str(BiggerNumberZQT.Nan.IsZero)
Print Str(BigNumberZQT.Pi.DoubleValue) + " " + Str(BigNumberZQT.E.DoubleValue) + " " + Str(BiggerNumberZQT.Ln2.DoubleValue) + " " + Str(BiggerNumberZQT.Ln10.DoubleValue)

Print "-- Rand: positive and not NaN, with a full-width mantissa and exponent; two draws differ"
Var r As BigNumberZQT = BigNumberZQT.Rand
Print Str(r.IsNegative) + " " + Str(r.IsNan) + " " + Str(r.DataFlags) + " " + Str(r.DataMantissa.Size) + " " + Str(r.DataExponent.Size)
Print r.Equals(BigNumberZQT.Rand)
Var rr As BiggerNumberZQT = BiggerNumberZQT.Rand
Print Str(rr.IsNegative) + " " + Str(rr.IsNan) + " " + Str(rr.DataFlags) + " " + Str(rr.DataMantissa.Size) + " " + Str(rr.DataExponent.Size)
Print rr.Equals(BiggerNumberZQT.Rand)

Print "-- LibTypeStr: the arithmetic back end, the same for both classes"
Var backEnd As String = BigNumberZQT.LibTypeStr
Print Str(backEnd = BiggerNumberZQT.LibTypeStr) + " " + Str(backEnd = "asm_gcc_64" Or backEnd = "no_asm_64")
