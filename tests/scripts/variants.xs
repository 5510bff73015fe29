// Numbers and variants: VariantValue hands out every number as its StringValue text,
// and takes back a variant of any supported type; NumberWithVariant makes a new number
// from one, reading a Double at single precision. Unsupported contents raise
// "Conversion not supported." and leave the number as it was.
Function StoredBig(v As Variant, n As BigNumberZQT) As String
  Try
    n.VariantValue = v
  Catch e As UnsupportedOperationException
    Return e.Message + " " + n.StringValue
  End Try
  Return n.StringValue
End Function
Function StoredBigger(v As Variant, n As BiggerNumberZQT) As String
  Try
    n.VariantValue = v
  Catch e As UnsupportedOperationException
    Return e.Message + " " + n.StringValue
  End Try
  Return n.StringValue
End Function
Function MadeBig(n As BigNumberZQT) As String
  If n Is Nil Then Return "Nil"
  Return n.StringValue
End Function
Function MadeBigger(n As BiggerNumberZQT) As String
  If n Is Nil Then Return "Nil"
  Return n.StringValue
End Function
Sub Show(v As Variant)
  Var text As String = Str(VarType(v)) + ": " + StoredBig(v, New BigNumberZQT(99)) + " | " + StoredBigger(v, New BiggerNumberZQT(99))
  Try
    text = text + " || " + MadeBig(BigNumberZQT.NumberWithVariant(v))
  Catch e As UnsupportedOperationException
    text = text + " || " + e.Message
  End Try
  Try
    text = text + " | " + MadeBigger(BiggerNumberZQT.NumberWithVariant(v))
  Catch e As UnsupportedOperationException
    text = text + " | " + e.Message
  End Try
  Print text
End Sub

Print "-- VariantValue is always a String variant"
Var x As Variant = New BigNumberZQT(5).VariantValue
Print Str(VarType(x)) + " " + x
x = New BiggerNumberZQT("-2.5").VariantValue
Print Str(VarType(x)) + " " + x
x = New BigNumberZQT("18446744073709551615").VariantValue
Print Str(VarType(x)) + " " + x
Var nothing As BigNumberZQT
x = New BigNumberZQT(nothing).VariantValue
Print Str(VarType(x)) + " " + x

Print "-- setter (both classes) || NumberWithVariant (both classes)"
Var v As Variant
Show v
Var i32 As Int32 = -7
Show i32
Var i8 As Int8 = -128
Show i8
Show True
Show -9223372036854775807 - 1
Var u32 As UInt32 = 4294967295
Show u32
Var u64 As UInt64 = 18446744073709551615
Show u64
Var single As Single = 0.1
Show single
Show 0.1
Show 1.0 / 0.0
Var money As Currency = -12.3456
Show money
Var c As Color = &cFF8000
Show c
Show "12.5e3 and more"
Show "3,5"
Var cs As CString = "-1e-3"
Show cs
Var ws As WString = "7"
Show ws
Var ps As PString = "8"
Show ps
Var cf As CFStringRef = "9"
Show cf
Var os As OSType = 1684633187
Show os
Var tx As Text = "0.25"
Show tx
Var date As New Date
date.TotalSeconds = 3786825600.5
Show date
Show New DateTime(1700000000.25)
Show New BigNumberZQT("1.5")
Show New BiggerNumberZQT("2.5")

Print "-- not supported"
Var p As Ptr
Show p
Var w As WindowPtr
Show w
Show New MemoryBlock(4)
Show New BigNumberConversionZQT

Print "-- failures of the delegated setters"
Var a As New BigNumberZQT(3)
Try
  a.VariantValue = "1e99999999999999999999"
Catch e As BigNumberErrorExceptionZQT
  Print e.Message + " " + Str(a.IsNan)
End Try
Try
  Print BigNumberZQT.NumberWithVariant("1e99999999999999999999")
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
