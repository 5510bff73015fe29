// BigNumberConversionZQT: eleven settings the host reads and writes directly, handed to
// GetStringValue and SetStringValue of both number classes.
Sub Show(label As String, c As BigNumberConversionZQT, text As String)
  Print label + ": " + New BigNumberZQT(text).GetStringValue(c) + " | " + New BiggerNumberZQT(text).GetStringValue(c)
End Sub
Sub Read(label As String, c As BigNumberConversionZQT, text As String)
  Var a As New BigNumberZQT
  Var b As New BiggerNumberZQT
  Var restA, restB As String
  Var readA, readB As Boolean
  a.SetStringValue(text, c, restA, readA)
  b.SetStringValue(text, c, restB, readB)
  Print label + ": " + a.StringValue + " [" + restA + "] " + Str(readA) + " | " + b.StringValue + " [" + restB + "] " + Str(readB)
End Sub

Print "-- defaults"
Var c As New BigNumberConversionZQT
Print Str(c.Base) + " " + Str(c.Scientific) + " " + Str(c.ScientificFrom) + " " + Str(c.BaseRound) + " " + Str(c.Round) + " " + Str(c.TrimZeroes) + " " + Str(c.GroupDigits)
Print "[" + c.Comma + "] [" + c.Comma2 + "] [" + c.Group1 + "] [" + c.Group2 + "]"
Show "defaults", c, "-1234567.125"
Read "only the full stop", c, "2,5"
Read "full stop", c, "2.5"

Print "-- each setting"
c.Base = 16
Show "Base 16", c, "255.5"
Read "Base 16", c, "ff.8g"
c.Base = 10
c.Scientific = True
Show "Scientific", c, "1234.5"
c.Scientific = False
c.ScientificFrom = 2
Show "ScientificFrom 2", c, "123"
Show "ScientificFrom 2", c, "1234"
c.ScientificFrom = 15
c.Base = 3
Var third As BigNumberZQT = New BigNumberZQT(1) / New BigNumberZQT(3)
Print "Base 3 rounded: " + third.GetStringValue(c)
c.BaseRound = False
Print "Base 3 unrounded: " + third.GetStringValue(c)
c.BaseRound = True
c.Base = 10
c.Round = 2
Show "Round 2", c, "9.995"
Show "Round 2", c, "0.125"
c.Round = -1
c.TrimZeroes = False
c.Round = 3
Show "TrimZeroes off", c, "1.5"
c.TrimZeroes = True
c.Round = -1
c.Comma = ",."
Show "Comma of two characters", c, "-0.25"
Read "Comma of two characters", c, "3,75.5"
c.Comma2 = ";"
Read "Comma2", c, "3;75"
c.Comma = "."
c.Comma2 = ""
c.Group1 = " "
Show "Group1", c, "1234567.7654321"
Read "Group1", c, "1 234 567.765 4"
c.Group1 = ""
c.Group2 = "'"
Show "Group2", c, "1234567.7654321"
Read "Group2", c, "1234567.765'4"
c.Group1 = "_"
c.GroupDigits = 2
Show "both, GroupDigits 2", c, "1234567.7654321"
c.GroupDigits = 0
Show "GroupDigits 0", c, "1234.5678"
c.GroupDigits = -1
Show "GroupDigits -1", c, "1234.5678"

Print "-- empty and nil separators mean none"
Var d As New BigNumberConversionZQT
d.Group1 = ""
Show "empty Group1", d, "1234567"
Show "nil Group1", New BigNumberConversionZQT, "1234567"
d.Comma = ""
Show "empty Comma cuts at the radix point", d, "-12.5"
Read "empty Comma reads no radix point", d, "12.5"
d.Comma = "é"
Show "non-ASCII Comma reads as none", d, "12.5"

Print "-- bases the library refuses are reported by the method's name"
Sub TryBase(base As Integer)
  Var c As New BigNumberConversionZQT
  c.Base = base
  Var a As New BigNumberZQT("2.5")
  Try
    Print a.GetStringValue(c)
  Catch e As BigNumberErrorExceptionZQT
    Print e.Message
  End Try
  Var rest As String = "unchanged"
  Var ok As Boolean = True
  Try
    a.SetStringValue("7", c, rest, ok)
  Catch e As BigNumberErrorExceptionZQT
    Print e.Message + " [" + rest + "] " + Str(ok) + " " + Str(a.IsNan)
  End Try
  Try
    a.SetStringValue("7", c)
  Catch e As BigNumberErrorExceptionZQT
    Print e.Message
  End Try
End Sub
TryBase 1
TryBase 17
TryBase -5

Print "-- a nil conversion is refused"
Var none As BigNumberConversionZQT
Var x As New BiggerNumberZQT(5)
Var rest As String = "old"
Var ok As Boolean = True
Try
  Print x.GetStringValue(none)
Catch e As NilObjectException
  Print e.Message
End Try
Try
  x.SetStringValue("6", none, rest, ok)
Catch e As NilObjectException
  Print e.Message + " [" + rest + "] " + Str(ok)
End Try
Try
  x.SetStringValue("6", none)
Catch e As NilObjectException
  Print e.Message
End Try
Print x
