// Big::MulOneWord: Mul by a factor whose mantissa is zero below its top word, such as a
// small integer. The full product then has only one row of word products, m * w shifted
// up by man - 1 words, which costs man word products instead of man^2. Everything after
// the product (normalising shift, exponent steps, rounding, sign) is Mul's, so the words
// and the carry are Mul's. Text parsing multiplies by the base once per digit with it.
#ifndef TTMATH_BIG_MUL_ONE_WORD_H
#define TTMATH_BIG_MUL_ONE_WORD_H

namespace ttmath {

template<uint exp, uint man>
uint Big<exp, man>::MulOneWord(const Big & ss2, bool round)
{
    if (this == &ss2 || !words::is_zero(ss2.mantissa.table, man - 1))
        return Mul(ss2, round);

    if (IsNan() || ss2.IsNan())
        return CheckCarry(1);
    if (IsZero())
        return 0;
    if (ss2.IsZero()) {
        SetZero();
        return 0;
    }

    uint p[2 * man];
    words::fill(p, man - 1, 0);
    p[2 * man - 1] = kernel::mul_1(p + man - 1, mantissa.table, man, ss2.mantissa.table[man - 1]);
    uint shift = words::leading_zeros_fixed<2 * man>(p);
    if (shift)
        words::shl(p, 2 * man, shift);

    uint c = 0;
    uint k = mantissa_bits - shift;
    if (k != 0)
        c += exponent.Add(ExponentFromWord(k));
    c += exponent.Add(ss2.exponent);

    words::copy(mantissa.table, p + man, man);
    if (round && (p[man - 1] & TTMATH_UINT_HIGHEST_BIT)) {
        bool is_half = p[man - 1] == TTMATH_UINT_HIGHEST_BIT && words::is_zero(p, man - 1);
        c += RoundHalfToEven(is_half, true);
    }

    if (IsSign() == ss2.IsSign())
        ClearInfoBit(TTMATH_BIG_SIGN);
    else
        SetInfoBit(TTMATH_BIG_SIGN);

    c += Standardizing();
    return CheckCarry(c);
}

} // namespace ttmath

#endif
