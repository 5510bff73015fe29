// An operation error nobody catches ends the program with its message.
Var price As New BigNumberZQT("19.99")
Print price.CurrencyValue
Var perPerson As BigNumberZQT = price / New BigNumberZQT(0)
Print "not reached"
