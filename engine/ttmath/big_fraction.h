// Integer and fraction parts: SkipFraction, RemainFraction, IsInteger, Round.
// The binary point lies `-exponent` bits above the mantissa's lowest bit.
#ifndef TTMATH_BIG_FRACTION_H
#define TTMATH_BIG_FRACTION_H

namespace ttmath {

// Truncates toward zero. Only the fraction bits are cleared; the result is not
// normalised again.
template<uint exp, uint man>
void Big<exp, man>::SkipFraction()
{
    if (IsNan() || IsZero())
        return;
    if (!exponent.IsSign())
        return;
    if (CompareExponent(-static_cast<sint>(mantissa_bits)) <= 0) {
        SetZero();
        return;
    }
    mantissa.ClearFirstBits(uint(0) - static_cast<uint>(exponent.ToInt()));
}

// Keeps the fraction, with the sign; an integer gives +0.
template<uint exp, uint man>
void Big<exp, man>::RemainFraction()
{
    if (IsNan() || IsZero())
        return;
    if (!exponent.IsSign()) {
        SetZero();
        return;
    }
    if (CompareExponent(-static_cast<sint>(mantissa_bits)) <= 0)
        return;
    uint integer_bits = mantissa_bits + static_cast<uint>(exponent.ToInt());
    mantissa.Rcl(integer_bits);
    exponent.SubInt(integer_bits);
    Standardizing();
}

// True for zero and for values without fraction bits; the NaN flag is not looked at.
template<uint exp, uint man>
bool Big<exp, man>::IsInteger() const
{
    if (IsZero())
        return true;
    if (!exponent.IsSign())
        return true;
    if (CompareExponent(-static_cast<sint>(mantissa_bits)) <= 0)
        return false;
    return mantissa.AreFirstBitsZero(uint(0) - static_cast<uint>(exponent.ToInt()));
}

// Half away from zero, computed as a rounded addition of +-0.5 and a truncation.
template<uint exp, uint man>
uint Big<exp, man>::Round()
{
    if (IsNan())
        return 1;
    if (IsZero())
        return 0;
    Big half;
    half.Set05();
    uint c = IsSign() ? Sub(half) : Add(half);
    SkipFraction();
    return CheckCarry(c);
}

} // namespace ttmath

#endif
