// options: --hide VariantToInt32 --hide VariantToUInt32 --hide VariantToInt64 --hide VariantToUInt64 --hide VariantToSingle --hide VariantToDouble --hide VariantToString
// A host without the direct variant readers: values are read through the variants'
// properties instead (Int32Value, UInt32Value, LongValue, UInt64Value, SingleValue,
// DoubleValue, StringValue). This host has no LongValue, so a 64-bit integer reads as 0.
Sub Show(v As Variant)
  Var a As New BigNumberZQT(99)
  a.VariantValue = v
  Print Str(VarType(v)) + ": " + a.StringValue + " || " + BiggerNumberZQT.NumberWithVariant(v).StringValue
End Sub
Var i32 As Int32 = -7
Show i32
Var u32 As UInt32 = 4294967295
Show u32
Show -9223372036854775807 - 1
Var u64 As UInt64 = 18446744073709551615
Show u64
Var single As Single = 0.1
Show single
Show 0.1
Show "12.5"
Var tx As Text = "-0.25"
Show tx
