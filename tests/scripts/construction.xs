// Constructors of both classes: every native type, copies, decimal text, and what
// each one stores (value and flag byte: 128 sign, 64 NaN, 32 zero).
Function Show(x As BigNumberZQT) As String
  Return Str(x.DoubleValue) + " flags " + Str(x.DataFlags)
End Function
Function ShowBigger(x As BiggerNumberZQT) As String
  Return Str(x.DoubleValue) + " flags " + Str(x.DataFlags)
End Function

Print "-- native values"
Print Show(New BigNumberZQT)
Print Show(New BigNumberZQT(-7))
Var i32 As Int32 = -2147483648
Print New BigNumberZQT(i32).Int64Value
Var u32 As UInt32 = 4294967295
Print New BigNumberZQT(u32).Int64Value
Var u64 As UInt64 = 18446744073709551615
Print New BigNumberZQT(u64).UInt64Value
Print New BigNumberZQT(-9223372036854775807 - 1).Int64Value
Print Show(New BigNumberZQT(-2.5))
Var c As Currency = -1.2345
Print New BigNumberZQT(c).CurrencyValue
Print ShowBigger(New BiggerNumberZQT)
Print New BiggerNumberZQT(i32).Int64Value
Print New BiggerNumberZQT(u64).UInt64Value
Print New BiggerNumberZQT(c).CurrencyValue

Print "-- a single is widened exactly, not read as decimal"
Var s As Single = 0.1
Print New BigNumberZQT(s).Equals(New BigNumberZQT(0.100000001490116119384765625))
Print New BigNumberZQT(s).Equals(New BigNumberZQT(0.1))
Print New BiggerNumberZQT(s).DoubleValue = 0.100000001490116119384765625

Print "-- doubles that are not numbers give NaN, silently"
Print Show(New BigNumberZQT(Val("nan")))
Print New BigNumberZQT(1.0 / 0.0).IsNan
Print New BiggerNumberZQT(-1.0 / 0.0).IsNan

Print "-- decimal text"
Print Show(New BigNumberZQT("-12.5e3"))
Print ShowBigger(New BiggerNumberZQT("  0.125"))
Print New BigNumberZQT("1,5").DoubleValue
Print Show(New BigNumberZQT(""))
Print "-- 256 bits hold about 77 digits, 2048 bits about 616"
Print (New BigNumberZQT(1) + New BigNumberZQT("1e-100")).Equals(New BigNumberZQT(1))
Print (New BiggerNumberZQT(1) + New BiggerNumberZQT("1e-100")).Equals(New BiggerNumberZQT(1))
Print (New BiggerNumberZQT(1) + New BiggerNumberZQT("1e-700")).Equals(New BiggerNumberZQT(1))

Print "-- text beyond the exponent range is reported; the receiver keeps the failed value"
Try
  Var huge As New BigNumberZQT("1e99999999999999999999")
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Var target As New BigNumberZQT(3)
Try
  target.Constructor("-1e99999999999999999999")
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try
Print target.IsNan
Print New BiggerNumberZQT("1e99999999999999999999").IsNan
Try
  Var hugeBigger As New BiggerNumberZQT("1e" + "9999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999")
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try

Print "-- copies are independent; a copy of nil is zero and NaN"
Var original As New BigNumberZQT(3)
Var copy As New BigNumberZQT(original)
copy.Int64Value = 4
Print Str(original.Int64Value) + " " + Str(copy.Int64Value)
Var nothing As BigNumberZQT
Print Show(New BigNumberZQT(nothing))
Var nothingBigger As BiggerNumberZQT
Print ShowBigger(New BiggerNumberZQT(nothingBigger))
