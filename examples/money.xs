// Exact money arithmetic: amounts come in and go out as Currency, and everything in
// between is done in BigNumberZQT, so no cent is lost on the way. Run with:
//   hostsim --plugin BigNumberZQT.so examples/money.xs

// An amount rounded to whole cents, halves away from zero.
Function ToCents(amount As BigNumberZQT) As Currency
  Var hundred As New BigNumberZQT(100)
  Return ((amount * hundred).Round / hundred).CurrencyValue
End Function

Print "Three items at 19.99 and two at 0.35"
Var price1 As Currency = 19.99
Var price2 As Currency = 0.35
Var subtotal As BigNumberZQT = New BigNumberZQT(price1).Multiply(3) + New BigNumberZQT(price2).Multiply(2)
Print "subtotal: " + Str(subtotal.CurrencyValue)

Print "Sales tax of 8.25 percent, rounded to the cent"
Var rate As New BigNumberZQT("0.0825")
Var tax As Currency = ToCents(subtotal * rate)
Print "tax:      " + Str(tax)
Var total As BigNumberZQT = subtotal + New BigNumberZQT(tax)
Print "total:    " + Str(total.CurrencyValue)
Print ""

Print "The total split three ways: two shares rounded, the last one takes the rest"
Var share As Currency = ToCents(total / New BigNumberZQT(3))
Var last As BigNumberZQT = total - New BigNumberZQT(share).Multiply(2)
Print "shares:   " + Str(share) + ", " + Str(share) + ", " + Str(last.CurrencyValue)
Print "they add up: " + Str(New BigNumberZQT(share).Multiply(2) + last = total)
Print ""

Print "A hundred thousand payments of 0.1 cent: how far from 100 is the sum?"
Var tenth As New BigNumberZQT("0.001")
Var sum As New BigNumberZQT(0)
Var sumDouble As Double = 0
For i As Integer = 1 To 100000
  sum = sum + tenth
  sumDouble = sumDouble + 0.001
Next
Print "BigNumberZQT: " + Str((sum - New BigNumberZQT(100)).DoubleValue) + ", in cents: " + Str(ToCents(sum))
Print "Double:       " + Str(sumDouble - 100.0)
