// Every declared type goes to a handler and back with the C type of its declaration.
Var p As New Probe
Print p.EchoBoolean(True)
Print p.EchoInt8(-128)
Print p.EchoUInt8(255)
Print p.EchoInt16(-32768)
Print p.EchoUInt16(65535)
Print p.EchoInt32(-2147483648)
Print p.EchoUInt32(4294967295)
Print p.EchoInt64(-9223372036854775807)
Print p.EchoUInt64(18446744073709551615)
Print p.EchoInteger(123456789012)
Print p.EchoUInteger(42)
Print p.EchoSingle(0.1)
Print p.EchoDouble(0.1)
Print p.EchoCurrency(1.5)
Var tint As Color = p.EchoColor(p.Tint)
Print p.EchoString("text ü")
Var v As Variant = p.EchoVariant(3.5)
Print v
Print p.EchoMemoryBlock(New MemoryBlock(3)).Size
Print p.EchoProbe(p) = p
Print p.EchoProbe(Nil) Is Nil
