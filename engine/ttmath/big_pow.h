// Integer powers by right-to-left binary exponentiation: the running square and the
// accumulated product are rounded multiplications in a fixed order, and a negative
// exponent divides 1 by the power at the end. The sequence is part of the result, since
// text conversion builds its powers of the base this way.
#ifndef TTMATH_BIG_POW_H
#define TTMATH_BIG_POW_H

namespace ttmath {

// The units bit of the integer part of |this|; neither flag is looked at.
template<uint exp, uint man>
uint Big<exp, man>::Mod2() const
{
    if (CompareExponent(0) > 0)
        return 0; // the units bit lies below the mantissa: it is 0
    if (CompareExponent(-static_cast<sint>(mantissa_bits)) <= 0)
        return 0; // |this| < 1
    uint bit = uint(0) - static_cast<uint>(exponent.ToInt());
    return mantissa.GetBit(bit);
}

template<uint exp, uint man>
template<uint pow_size>
uint Big<exp, man>::Pow(UInt<pow_size> pow)
{
    if (IsNan())
        return 1;
    if (IsZero()) {
        if (pow.IsZero()) {
            SetNan();
            return 2;
        }
        return 0;
    }

    Big start(*this);
    Big result;
    result.SetOne();
    uint c = 0;
    while (!c) {
        if (pow.table[0] & 1)
            c += result.Mul(start);
        pow.Rcr(1);
        if (pow.IsZero())
            break;
        c += start.Mul(start);
    }
    *this = result;
    return CheckCarry(c);
}

template<uint exp, uint man>
template<uint pow_size>
uint Big<exp, man>::Pow(Int<pow_size> pow)
{
    if (IsNan())
        return 1;
    if (!pow.IsSign())
        return Pow(static_cast<UInt<pow_size>>(pow));
    if (IsZero()) {
        SetNan();
        return 2;
    }

    // The most negative exponent cannot be negated; its words read unsigned are still
    // its magnitude, but the carry makes the result NaN.
    uint c = pow.ChangeSign();
    Big temp(*this);
    c += temp.Pow(static_cast<UInt<pow_size>>(pow));
    SetOne();
    c += Div(temp);
    return CheckCarry(c);
}

// this ^ |trunc(pow)|. Each round halves pow by decrementing its exponent and tests its
// units bit, so the loop runs once per integer bit of pow.
template<uint exp, uint man>
uint Big<exp, man>::PowUInt(Big pow)
{
    if (IsNan() || pow.IsNan())
        return CheckCarry(1);
    if (IsZero()) {
        if (pow.IsZero()) {
            SetNan();
            return 2;
        }
        return 0;
    }

    pow.Abs();
    Big start(*this), result, one;
    result.SetOne();
    one.SetOne();
    uint c = 0;
    while (!c) {
        if (pow.Mod2())
            c += result.Mul(start);
        c += pow.exponent.SubOne();
        if (pow < one)
            break;

        // A rounded square is exactly 1 only when the base was +-1 (the squares of the
        // neighbours of 1 round away from it), so from here every square is 1 and the
        // result is +-1, which multiplications by 1 leave as it is. Stopping now gives
        // the same result, and a huge exponent cannot mean a huge number of rounds.
        if (start == one)
            break;
        c += start.Mul(start);
    }
    *this = result;
    return CheckCarry(c);
}

template<uint exp, uint man>
uint Big<exp, man>::PowInt(const Big & pow)
{
    if (IsNan() || pow.IsNan())
        return CheckCarry(1);
    if (!pow.IsSign())
        return PowUInt(pow);
    if (IsZero()) {
        SetNan();
        return 2;
    }

    Big temp(*this);
    uint c = temp.PowUInt(pow);
    SetOne();
    c += Div(temp);
    return CheckCarry(c);
}

} // namespace ttmath

#endif
