// Operators: host code writes +, -, *, /, \, Mod, unary minus and comparisons with
// numbers of either class. A Right operator is served by its left-hand twin, so the
// receiver is always the left operand.
Var a As New BigNumberZQT(10)
Var b As New BigNumberZQT(3)

Print "-- arithmetic"
Print (a + b).DoubleValue
Print (a - b).DoubleValue
Print (a * b).DoubleValue
Print (a / b).DoubleValue
Print (a \ b).DoubleValue
Print (a Mod b).DoubleValue
Print (-a).DoubleValue
Print (New BigNumberZQT(-7) \ New BigNumberZQT(2)).DoubleValue
Print (New BigNumberZQT(1) \ New BigNumberZQT(3)).DataFlags
Print (New BigNumberZQT("-0.5") \ New BigNumberZQT(1)).DataFlags
Var x As New BiggerNumberZQT(10)
Var y As New BiggerNumberZQT(4)
Print ((x + y) * (x - y) / y).DoubleValue
Print (x \ y).DoubleValue
Print (-(x Mod y)).DoubleValue

Print "-- comparisons"
Print a > b
Print a < b
Print a = New BigNumberZQT(10)
Print a <> b
Print New BigNumberZQT(-2) < New BigNumberZQT(-1)
Print New BigNumberZQT(-2) >= New BigNumberZQT(-1)
Print New BigNumberZQT(-1) < New BigNumberZQT(0)
Print x <= New BiggerNumberZQT(10)
Print Str(a.Operator_Compare(b)) + " " + Str(b.Operator_Compare(a)) + " " + Str(a.Operator_Compare(a))
Var nothing As BigNumberZQT
Print Str(New BigNumberZQT.Operator_Compare(nothing)) + " " + Str(New BigNumberZQT(5).Operator_Compare(nothing))
Print New BigNumberZQT = Nil

Print "-- Right entries compute receiver op argument, like their twins"
Print a.Operator_SubtractRight(b).DoubleValue
Print a.Operator_DivideRight(b).DoubleValue
Print a.Operator_IntegerDivideRight(b).DoubleValue
Print a.Operator_ModuloRight(b).DoubleValue
Print a.Operator_AddRight(b).DoubleValue
Print a.Operator_MultiplyRight(b).DoubleValue
Try
  Var fromNil As BigNumberZQT = Nil - b
Catch e As BigNumberErrorExceptionZQT
  Print e.Message
End Try

Print "-- operands are left as they were"
Var before As Double = a.DoubleValue
Var product As BigNumberZQT = a * a
Print Str(a.DoubleValue = before) + " " + Str(product.DoubleValue)
