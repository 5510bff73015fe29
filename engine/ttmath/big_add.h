// Big::Add and Big::Sub.
//
// The operand of larger magnitude keeps its exponent; the other is shifted right by the
// exponent difference and added or subtracted. The bits shifted out are rounded
// (half to even) before the result is normalised, so a subtraction that cancels
// leading bits rounds at the old position: that is the arithmetic's defined result,
// not an accident to be corrected.
#ifndef TTMATH_BIG_ADD_H
#define TTMATH_BIG_ADD_H

namespace ttmath {

template<uint exp, uint man>
uint Big<exp, man>::Add(Big ss2, bool round, bool adding)
{
    if (IsNan() || ss2.IsNan())
        return CheckCarry(1);

    if (!adding)
        ss2.ChangeSign();

    if (SmallerWithoutSignThan(ss2))
        Swap(ss2);

    if (ss2.IsZero())
        return 0;

    // The exponent difference. When it does not fit the exponent type the smaller
    // operand lies far below the last mantissa bit: the larger one is the result.
    Int<exp> diff(exponent);
    if (diff.Sub(ss2.exponent))
        return 0;
    Int<exp> min_exponent;
    min_exponent.SetMin();
    if (diff == min_exponent)
        return 0;
    diff.Abs();

    // d > N: ss2 does not reach even the rounding position.
    uint d = diff.table[0];
    if (!words::is_zero(diff.table + 1, exp - 1) || d > mantissa_bits)
        return 0;

    bool last = false;      // the highest bit shifted out of ss2
    bool rest_zero = false; // all lower bits shifted out were zero
    bool do_add = false;
    bool up = IsSign() == ss2.IsSign();

    if (d == mantissa_bits) {
        last = ss2.mantissa.IsTheHighestBitSet();
        rest_zero = ss2.mantissa.AreFirstBitsZero(mantissa_bits - 1);
    } else {
        rest_zero = true;
        if (d > 0) {
            last = ss2.mantissa.GetBit(d - 1) != 0;
            if (d > 1)
                rest_zero = ss2.mantissa.AreFirstBitsZero(d - 1);
            ss2.mantissa.Rcr(d);
        }
        do_add = true;
    }

    uint c = 0;
    if (do_add) {
        if (up) {
            if (mantissa.Add(ss2.mantissa)) {
                rest_zero = rest_zero && !last;
                last = mantissa.IsTheLowestBitSet();
                mantissa.Rcr(1, 1);
                c += exponent.AddOne();
            }
        } else {
            mantissa.Sub(ss2.mantissa);
        }
    }

    bool do_round = round && last;
    if (do_round)
        c += RoundHalfToEven(rest_zero, up);

    // d < N always added; d == N only normalises when it rounded.
    if (do_add || do_round)
        c += Standardizing();

    return CheckCarry(c);
}

} // namespace ttmath

#endif
