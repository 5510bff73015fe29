// The language on its own: literals, precedence, numeric types, strings, control flow.
Print 1 + 2 * 3
Print (1 + 2) * 3
Print -2 ^ 2
Print 2 ^ 3 ^ 2
Print 7 \ 2
Print 7 Mod 3
Print 10 / 4
Print &hFF + 1
Print 1.5e3
Print 12345678.0
Print 1 / 3
Print 18446744073709551615
Print "say ""hi""" + " there"
Print "abc" = "ABC"
Print Not True Or True And False
Var c As Currency = 2.5
Print c * 3
Var i32 As Int32 = 2147483647
i32 = i32 + 1
Print i32
Var total As Integer
For i As Integer = 1 To 10 Step 3
  total = total + i
Next
Print total
For d As Double = 1.0 To 0.0 Step -0.5
  Print d
Next
Var n As Integer = 0
While True
  n = n + 1
  If n >= 3 Then Exit
Wend
Print n
If n = 1 Then
  Print "one"
ElseIf n = 3 Then
  Print "three"
Else
  Print "other"
End If
Print Str(3.25) + "|" + Str(True) + "|" + CStr(42)
Print Val("12.5abc") + Len("héllo")
Print Fact(10)
Greet "world"

Function Fact(n As Integer) As Integer
  If n <= 1 Then Return 1
  Return n * Fact(n - 1)
End Function

Sub Greet(who As String, greeting As String = "hello")
  Print greeting + ", " + _
    who
End Sub
