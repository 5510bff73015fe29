// The value's storage as memory blocks and a flag byte: saved and restored bit for bit,
// taken as written, and refused when a block has the wrong size or is nil.
Function Bytes(m As MemoryBlock) As String
  Var s As String = Str(m.Size) + ":"
  For i As Integer = 0 To m.Size - 1
    If m.Byte(i) <> 0 Then s = s + " " + Str(i) + "=" + Str(m.Byte(i))
  Next
  Return s
End Function

Print "-- one is 2^255 x 2^-255: the top mantissa byte is 128, the exponent -255"
Var one As New BigNumberZQT(1)
Print Bytes(one.DataMantissa)
Print Bytes(one.DataExponent)
Print one.DataFlags
Var biggerOne As New BiggerNumberZQT(-1)
Print Bytes(biggerOne.DataMantissa)
Print Bytes(biggerOne.DataExponent)
Print biggerOne.DataFlags
Print New BigNumberZQT.DataFlags

Print "-- saved from one object and restored into another"
Var third As BigNumberZQT = New BigNumberZQT(-1) / New BigNumberZQT(3)
Var copy As New BigNumberZQT(5)
copy.DataMantissa = third.DataMantissa
copy.DataExponent = third.DataExponent
copy.DataFlags = third.DataFlags
Print Str(copy.Equals(third)) + " " + Str(copy.DataFlags)
Var biggerThird As BiggerNumberZQT = New BiggerNumberZQT(1) / New BiggerNumberZQT(3)
Var biggerCopy As New BiggerNumberZQT
biggerCopy.DataMantissa = biggerThird.DataMantissa
biggerCopy.DataExponent = biggerThird.DataExponent
biggerCopy.DataFlags = biggerThird.DataFlags
Print biggerCopy.Equals(biggerThird)

Print "-- written as given: flags keep only their low 8 bits and are not checked"
Var x As New BigNumberZQT(6)
x.DataFlags = 256 + 128
Print Str(x.DataFlags) + " " + Str(x.DoubleValue)
x.DataFlags = 64
Print Str(x.IsNan) + " " + Str(Bytes(x.DataMantissa) = Bytes(New BigNumberZQT(6).DataMantissa))
Var m As New MemoryBlock(32)
m.Byte(31) = 192
Var y As New BigNumberZQT(2)
y.DataMantissa = m
Print y.DoubleValue
Var zero As New BigNumberZQT
zero.DataMantissa = m
Print Str(zero.IsZero) + " " + Str(zero.DoubleValue)

Print "-- blocks of the wrong size or nil"
Try
  y.DataMantissa = New MemoryBlock(33)
Catch e As OutOfBoundsException
  Print e.Message
End Try
Print y.DoubleValue
Try
  New BiggerNumberZQT.DataExponent = New MemoryBlock(63)
Catch e As OutOfBoundsException
  Print e.Message
End Try
Try
  y.DataExponent = New MemoryBlock(0)
Catch e As OutOfBoundsException
  Print e.Message
End Try
Try
  y.DataMantissa = Nil
Catch e As NilObjectException
  Print e.Message
End Try
