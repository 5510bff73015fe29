// Results to the last bit: the constants' raw data (DataMantissa, DataExponent,
// DataFlags) and Exp, Ln, Sin and Cos at a few arguments, for both classes. A number
// is shown as its mantissa's 64-bit words, most significant first, its exponent and its
// flags, and then as the decimal digits StringValue prints. The expected words and
// digits come from an independent multiple-precision library: the constants' words
// truncated, the functions' rounded to nearest, every printed digit as the true value's
// rounded to that length.
Function HexDigit(d As Integer) As String
  If d < 10 Then Return Str(d)
  If d = 10 Then Return "a"
  If d = 11 Then Return "b"
  If d = 12 Then Return "c"
  If d = 13 Then Return "d"
  If d = 14 Then Return "e"
  Return "f"
End Function
Function Words(block As MemoryBlock) As String
  Var s As String
  For i As Integer = block.Size - 1 To 0 Step -1
    s = s + HexDigit(block.Byte(i) \ 16) + HexDigit(block.Byte(i) Mod 16)
    If i Mod 8 = 0 And i > 0 Then s = s + " "
  Next
  Return s
End Function
// In decimal when the exponent fits in its lowest word, else as its words.
Function Exponent(block As MemoryBlock) As String
  Var negative As Boolean = block.Byte(block.Size - 1) >= 128
  Var fill As Integer = 0
  If negative Then fill = 255
  For i As Integer = 8 To block.Size - 1
    If block.Byte(i) <> fill Then Return Words(block)
  Next
  If (block.Byte(7) >= 128) <> negative Then Return Words(block)
  Var e As Integer = 0
  For i As Integer = 7 To 0 Step -1
    If negative Then e = e * 256 + 255 - block.Byte(i) Else e = e * 256 + block.Byte(i)
  Next
  If negative Then e = -e - 1
  Return Str(e)
End Function
Function Bits(mantissa As MemoryBlock, exponent As MemoryBlock, flags As Integer) As String
  Return Words(mantissa) + " e" + Exponent(exponent) + " flags " + Str(flags)
End Function
Function BigBits(x As BigNumberZQT) As String
  Return Bits(x.DataMantissa, x.DataExponent, x.DataFlags)
End Function
Function BiggerBits(x As BiggerNumberZQT) As String
  Return Bits(x.DataMantissa, x.DataExponent, x.DataFlags)
End Function

Print "-- BigNumberZQT constants"
Print "One    " + BigBits(BigNumberZQT.One)
Print "Pi     " + BigBits(BigNumberZQT.Pi)
Print "HalfPi " + BigBits(BigNumberZQT.HalfPi)
Print "TwoPi  " + BigBits(BigNumberZQT.TwoPi)
Print "E      " + BigBits(BigNumberZQT.E)
Print "Ln2    " + BigBits(BigNumberZQT.Ln2)
Print "Ln10   " + BigBits(BigNumberZQT.Ln10)
Print "Max    " + BigBits(BigNumberZQT.Max)
Print "Min    " + BigBits(BigNumberZQT.Min)
Print "Zero   " + BigBits(BigNumberZQT.Zero)
Print "Nan    " + BigBits(BigNumberZQT.Nan)

Print "-- BigNumberZQT functions"
Print "Exp(1)    " + BigBits(BigNumberZQT.Exp(New BigNumberZQT(1)))
Print "Exp(-10)  " + BigBits(BigNumberZQT.Exp(New BigNumberZQT(-10)))
Print "Ln(10)    " + BigBits(BigNumberZQT.Ln(New BigNumberZQT(10)))
Print "Ln(0.75)  " + BigBits(BigNumberZQT.Ln(New BigNumberZQT(0.75)))
Print "Sin(1)    " + BigBits(BigNumberZQT.Sin(New BigNumberZQT(1)))
Print "Cos(1)    " + BigBits(BigNumberZQT.Cos(New BigNumberZQT(1)))
Print "Sin(100)  " + BigBits(BigNumberZQT.Sin(New BigNumberZQT(100)))
Print "Cos(-0.5) " + BigBits(BigNumberZQT.Cos(New BigNumberZQT(-0.5)))

Print "-- BiggerNumberZQT constants"
Print "One    " + BiggerBits(BiggerNumberZQT.One)
Print "Pi     " + BiggerBits(BiggerNumberZQT.Pi)
Print "HalfPi " + BiggerBits(BiggerNumberZQT.HalfPi)
Print "TwoPi  " + BiggerBits(BiggerNumberZQT.TwoPi)
Print "E      " + BiggerBits(BiggerNumberZQT.E)
Print "Ln2    " + BiggerBits(BiggerNumberZQT.Ln2)
Print "Ln10   " + BiggerBits(BiggerNumberZQT.Ln10)
Print "Max    " + BiggerBits(BiggerNumberZQT.Max)
Print "Min    " + BiggerBits(BiggerNumberZQT.Min)
Print "Zero   " + BiggerBits(BiggerNumberZQT.Zero)
Print "Nan    " + BiggerBits(BiggerNumberZQT.Nan)

Print "-- BiggerNumberZQT functions"
Print "Exp(1)    " + BiggerBits(BiggerNumberZQT.Exp(New BiggerNumberZQT(1)))
Print "Exp(-10)  " + BiggerBits(BiggerNumberZQT.Exp(New BiggerNumberZQT(-10)))
Print "Ln(10)    " + BiggerBits(BiggerNumberZQT.Ln(New BiggerNumberZQT(10)))
Print "Ln(0.75)  " + BiggerBits(BiggerNumberZQT.Ln(New BiggerNumberZQT(0.75)))
Print "Sin(1)    " + BiggerBits(BiggerNumberZQT.Sin(New BiggerNumberZQT(1)))
Print "Cos(1)    " + BiggerBits(BiggerNumberZQT.Cos(New BiggerNumberZQT(1)))
Print "Sin(100)  " + BiggerBits(BiggerNumberZQT.Sin(New BiggerNumberZQT(100)))
Print "Cos(-0.5) " + BiggerBits(BiggerNumberZQT.Cos(New BiggerNumberZQT(-0.5)))

Print "-- decimal digits"
Print BigNumberZQT.Pi.StringValue
Print BigNumberZQT.E.StringValue
Print BigNumberZQT.Ln2.StringValue
Print BigNumberZQT.Ln10.StringValue
Print BigNumberZQT.Exp(New BigNumberZQT(-10)).StringValue
Print BigNumberZQT.Ln(New BigNumberZQT(0.75)).StringValue
Print BigNumberZQT.Sin(New BigNumberZQT(1)).StringValue
Print BigNumberZQT.Cos(New BigNumberZQT(1)).StringValue
Print BiggerNumberZQT.Pi.StringValue
Print BiggerNumberZQT.E.StringValue
Print BiggerNumberZQT.Ln2.StringValue
Print BiggerNumberZQT.Ln10.StringValue
Print BiggerNumberZQT.Exp(New BiggerNumberZQT(-10)).StringValue
Print BiggerNumberZQT.Ln(New BiggerNumberZQT(0.75)).StringValue
Print BiggerNumberZQT.Sin(New BiggerNumberZQT(1)).StringValue
Print BiggerNumberZQT.Cos(New BiggerNumberZQT(1)).StringValue
