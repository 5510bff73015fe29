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

    uint rc;
    if (MulOfSpecial(ss2, rc))
        return rc;

    uint p[2 * man];
    words::fill(p, man - 1, 0);
    p[2 * man - 1] = kernel::mul_1(p + man - 1, mantissa.table, man, ss2.mantissa.table[man - 1]);
    return SetFromProduct(p, ss2, round);
}

} // namespace ttmath

#endif
