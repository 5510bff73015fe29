// Writing numbers in other bases, in scientific notation, rounded, and with their digits
// grouped, through GetStringValue and BigNumberConversionZQT. Run with:
//   hostsim --plugin BigNumberZQT.so examples/formatting.xs

Var n As New BigNumberZQT(48879)
Print "48879 in base 16: " + n.GetStringValue(16)
Print "in base 2:        " + n.GetStringValue(2)
Print "in base 8:        " + n.StringValue(8)
Print ""

Var big As New BigNumberZQT("1234567890.0987654321")
Print "plain:            " + big.StringValue
Print "scientific:       " + big.GetStringValue(10, True)
Print "two decimals:     " + big.GetStringValue(10, False, 15, 2)
Print "decimal comma:    " + big.GetStringValue(10, False, 15, -1, True, ",")
Print ""

Var settings As New BigNumberConversionZQT
settings.Group1 = ","
settings.Round = 2
Print "grouped:          " + big.GetStringValue(settings)
settings.Comma = ","
settings.Group1 = "."
Print "European:         " + big.GetStringValue(settings)
settings.Base = 16
settings.Comma = "."
settings.Group1 = " "
settings.GroupDigits = 4
settings.Round = -1
Print "hex in fours:     " + New BigNumberZQT(4294967295).GetStringValue(settings)
Print ""

// Reading text back: the radix point and the base come from the settings too.
Var reader As New BigNumberConversionZQT
reader.Base = 16
Var back As New BigNumberZQT
back.SetStringValue("BEEF", reader)
Print "BEEF read in base 16: " + Str(back.IntegerValue)
