// Host services as a plugin uses them: encodings, string data, framework functions
// found by declaration, memory blocks, variants of every kind, class lookup.
Print ProbeHost.EncodingOf("abc") = &h08000100
Print ProbeHost.Utf16Units("a€𝄞")
Print ProbeHost.ByteLength("a€𝄞")
Print ProbeHost.CString("plain")
Var latin As String = ProbeHost.ConvertTo("café", &h0201)
Print ProbeHost.EncodingOf(latin) = &h0201
Print ProbeHost.ByteLength(latin)
Print latin
Var mac As String = ProbeHost.ConvertTo("€", 0)
Print ProbeHost.ByteLength(mac)
Print ProbeHost.ConvertTo("é", &h0600)
Var m As MemoryBlock = ProbeHost.BytesOf("Zürich")
Print m.Size
Print m.Byte(0)
Var le As New MemoryBlock(4)
le.Byte(0) = &h41
le.Byte(2) = &hAC
le.Byte(3) = &h20
Print ProbeHost.Build(le, &h14000100)
Print ProbeHost.VariantKind(ProbeHost.MakeVariant(0)) + ProbeHost.VariantInt64(ProbeHost.MakeVariant(0))
Print ProbeHost.VariantKind(ProbeHost.MakeVariant(1))
Print ProbeHost.VariantText(ProbeHost.MakeVariant(2))
Print ProbeHost.IsUnsignedVariant(ProbeHost.MakeVariant(2))
Print ProbeHost.IsUnsignedVariant(ProbeHost.MakeVariant(1))
Print ProbeHost.VariantText(ProbeHost.MakeVariant(3))
Print ProbeHost.VariantInt64(ProbeHost.MakeVariant(4))
Print ProbeHost.VariantKind(Nil)
Print ProbeHost.VariantKind(True)
Print ProbeHost.VariantKind(1.5)
Var one As Single = 1
Print ProbeHost.VariantKind(one)
Var cash As Currency = 0.8
Print ProbeHost.VariantKind(cash)
Print ProbeHost.VariantCurrency(cash)
Print ProbeHost.VariantInt64(cash)
Var cs As CString = "c"
Print ProbeHost.VariantKind(cs)
Var ws As WString = "w"
Print ProbeHost.VariantKind(ws)
Var ps As PString = "p"
Print ProbeHost.VariantKind(ps)
Var tx As Text = "t"
Print ProbeHost.VariantKind(tx)
Var u32 As UInt32 = 7
Print ProbeHost.VariantKind(u32)
Print ProbeHost.VariantKind(&c102030)
Print ProbeHost.VariantKind(New Probe)
Var d As New Date
d.TotalSeconds = 100.5
Print ProbeHost.VariantKind(d)
Print ProbeHost.VariantKind(New DateTime(1.5))
Print ProbeHost.VariantText(New Probe)
Print ProbeHost.IsProbe(New ProbeChild)
Print ProbeHost.IsProbe(New MemoryBlock(1))
Print ProbeHost.Guarded("inner")
Print ProbeHost.DataOffset Mod 16
Var v As Variant = "12345"
Var fromVariant As Integer = v
Print fromVariant + 1
Print VarType(v)
Print v.IntegerValue
