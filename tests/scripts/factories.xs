// Shared methods that make numbers from native values: the class-level twins of the
// typed constructors, with the same values, and never an exception.
Print "-- integers of every width, exactly"
Print BigNumberZQT.NumberWithInteger(-42).Int64Value
Print BigNumberZQT.NumberWithInt64(-9223372036854775807 - 1).Equals(New BigNumberZQT("-9223372036854775808"))
Var i32 As Int32 = -2147483648
Print BigNumberZQT.NumberWithInt32(i32).Int64Value
Var u64 As UInt64 = 18446744073709551615
Print BigNumberZQT.NumberWithUInt64(u64).Equals(New BigNumberZQT("18446744073709551615"))
Var u32 As UInt32 = 4294967295
Print BigNumberZQT.NumberWithUInt32(u32).Int64Value
Var ui As UInteger = 18446744073709551615
Print BigNumberZQT.NumberWithUInteger(ui).UInt64Value
Print BigNumberZQT.NumberWithInteger(0).IsZero
Print BiggerNumberZQT.NumberWithInteger(-42).Int64Value
Print BiggerNumberZQT.NumberWithUInteger(ui).Equals(New BiggerNumberZQT(u64))

Print "-- floating point, exactly; NaN and infinities give NaN"
Var s As Single = 0.1
Print BigNumberZQT.NumberWithSingle(s).Equals(New BigNumberZQT(s))
Print BigNumberZQT.NumberWithDouble(0.1).Equals(New BigNumberZQT(0.1))
Print BigNumberZQT.NumberWithDouble(1.0 / 0.0).IsNan
Print BiggerNumberZQT.NumberWithDouble(Val("nan")).IsNan
Print BiggerNumberZQT.NumberWithDouble(-2.5e-300).DoubleValue

Print "-- currency: the count of ten-thousandths divided by 10000"
Print BigNumberZQT.NumberWithCurrency(1.5).Equals(New BigNumberZQT("1.5"))
Print BigNumberZQT.NumberWithCurrency(0.0001).Equals(New BigNumberZQT(1) / New BigNumberZQT(10000))
Print BiggerNumberZQT.NumberWithCurrency(-922337203685477.5808).CurrencyValue

Var price As Currency = 12.3456
Print BigNumberZQT.NumberWithCurrency(price).Equals(New BigNumberZQT(price))
