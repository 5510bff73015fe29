Print 1
If True Then
  Print (2 +
End If
