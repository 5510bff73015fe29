// Big::Add and Big::Sub.
//
// The operand of larger magnitude keeps its exponent; the other is shifted right by the
// exponent difference and added or subtracted. The bits shifted out are rounded
// (half to even) before the result is normalised, so a subtraction that cancels
// leading bits rounds at the old position: that is the arithmetic's defined result,
// not an accident to be corrected.
#ifndef TTMATH_BIG_ADD_H
#define TTMATH_BIG_ADD_H

#include "aligned_sum.h"
#ifdef TTMATH_ASM_X86_64
#include "big_add_x86_64.h"
#endif

namespace ttmath {
namespace detail {

// m >>= d for 0 < d < 64*n, reporting the highest bit shifted out (`last`) and whether
// all the other bits shifted out were zero (`rest_zero`).
template<std::size_t n>
inline void ShiftRightKeepingRoundBits(uint * m, uint d, bool & last, bool & rest_zero)
{
    if (d < words::bits_per_word) {
        // the usual case: operands of similar size
        const unsigned b = static_cast<unsigned>(d);
        const uint lost = m[0] << (words::bits_per_word - b);
        last = (lost >> (words::bits_per_word - 1)) != 0;
        rest_zero = (lost << 1) == 0;
        words::shr_bits(m, m, n, b);
        return;
    }
    // The bits shifted out, read as the n-word number m << (64n - d): its top bit is
    // `last`, the rest must be zero for `rest_zero`.
    uint lost[n];
    words::copy(lost, m, n);
    words::shl_fixed<n>(lost, n * words::bits_per_word - d);
    last = (lost[n - 1] >> (words::bits_per_word - 1)) != 0;
    rest_zero = (lost[n - 1] << 1) == 0 && words::is_zero(lost, n - 1);
    words::shr_fixed<n>(m, d);
}

} // namespace detail

// The common case of Add for a one-word exponent: two normalised non-zero values (no
// flag but the sign) whose exponents differ by less than a word, and a result that
// needs less than a word of normalising shift. It computes exactly what the general
// algorithm computes for such operands: the mantissa steps are those of aligned_sum.h,
// which compute the whole shifted sum and its rounding without branches. Returns false,
// changing nothing, for any other operands.
template<uint exp, uint man>
inline bool Big<exp, man>::AddNormalised(const Big & ss2, bool round, bool adding, uint & rc)
{
    if constexpr (exp != 1) {
        (void)ss2, (void)round, (void)adding, (void)rc;
        return false;
    } else {
        const unsigned char info1 = info;
        const unsigned char info2 = static_cast<unsigned char>(adding ? ss2.info : ss2.info ^ TTMATH_BIG_SIGN);
        const uint * a = mantissa.table;
        const uint * b = ss2.mantissa.table;
        if (((info1 | info2) & ~TTMATH_BIG_SIGN) != 0 || !(a[man - 1] & b[man - 1] & TTMATH_UINT_HIGHEST_BIT))
            return false;

        const bool differ = ((info1 ^ info2) & TTMATH_BIG_SIGN) != 0;
#ifdef TTMATH_ASM_X86_64
        if constexpr (man == 4) {
            static_assert(sizeof(Big) == 8 * (exp + man + 1), "the assembly relies on Big's layout");
            uint * first = exponent.table;
            const uint * second = ss2.exponent.table;
            bool done;
            if (differ)
                done = round ? x86_64_add::difference<true>(first, second) : x86_64_add::difference<false>(first, second);
            else
                done = round ? x86_64_add::sum<true>(first, second) : x86_64_add::sum<false>(first, second);
            if (!done)
                return false;
            rc = IsNan() ? 1 : 0;
            return true;
        }
#endif
        const uint e1 = exponent.table[0], e2 = ss2.exponent.table[0];
        const uint diff = e1 - e2;
        // The true difference must fit a signed word: it does not when the exponents'
        // signs differ and the wrapped difference has the second one's sign.
        if (static_cast<sint>((e1 ^ e2) & (e1 ^ diff)) < 0)
            return false;
        bool swapped = static_cast<sint>(diff) < 0;
        if (diff == 0 && differ) // a sum is symmetric; a difference needs the larger first
            swapped = words::compare(a, b, man) < 0;
        const uint d = swapped ? 0 - diff : diff;
        if (d >= words::bits_per_word)
            return false;
        const uint * large = swapped ? b : a;
        const uint * small = swapped ? a : b;
        const uint large_exponent = swapped ? e2 : e1;

        uint r[man];
        uint e, c;
        unsigned char sign;
        if (!differ) {
            sign = info1 & TTMATH_BIG_SIGN;
            e = large_exponent + aligned::sum<man>(r, large, small, static_cast<unsigned>(d), round);
            c = static_cast<sint>(e) < static_cast<sint>(large_exponent); // passed the top
        } else {
            sign = (swapped ? info2 : info1) & TTMATH_BIG_SIGN;
            const unsigned z = aligned::difference<man>(r, large, small, static_cast<unsigned>(d), round);
            if (z >= words::bits_per_word)
                return false; // cancellation of a word or more
            e = large_exponent - z;
            c = static_cast<sint>(e) > static_cast<sint>(large_exponent); // passed the bottom
        }

        exponent.table[0] = e;
        words::copy(mantissa.table, r, man);
        info = static_cast<unsigned char>(sign | (c ? TTMATH_BIG_NAN : 0));
        rc = c;
        return true;
    }
}

template<uint exp, uint man>
inline uint Big<exp, man>::Add(Big ss2, bool round, bool adding)
{
    uint rc;
    if (AddNormalised(ss2, round, adding, rc))
        return rc;
    return AddGeneral(ss2, round, adding);
}

// The algorithm for every input.
template<uint exp, uint man>
TTMATH_NOINLINE uint Big<exp, man>::AddGeneral(Big ss2, bool round, bool adding)
{
    if ((info | ss2.info) & TTMATH_BIG_NAN)
        return CheckCarry(1);

    if (!adding)
        ss2.ChangeSign();

    // The result starts from the operand of larger magnitude (`large`); `small` is
    // aligned to it. Working through references avoids swapping whole values.
    const bool swapped = SmallerWithoutSignThan(ss2);
    const Big & large = swapped ? ss2 : *this;
    const Big & small = swapped ? *this : ss2;

    if (small.IsZero()) {
        if (swapped)
            *this = ss2;
        return 0;
    }

    // The exponent difference. When it does not fit the exponent type the smaller
    // operand lies far below the last mantissa bit: the larger one is the result.
    Int<exp> diff(large.exponent);
    Int<exp> min_exponent;
    min_exponent.SetMin();
    bool far = diff.Sub(small.exponent) != 0 || diff == min_exponent;
    uint d = 0;
    if (!far) {
        diff.Abs();
        d = diff.table[0];
        // d > N: small does not reach even the rounding position.
        far = !words::is_zero(diff.table + 1, exp - 1) || d > mantissa_bits;
    }
    if (far) {
        if (swapped)
            *this = ss2;
        return 0;
    }

    bool last = false;      // the highest bit shifted out of small
    bool rest_zero = false; // all lower bits shifted out were zero
    bool do_add = false;
    const bool up = large.IsSign() == small.IsSign();

    UInt<man> aligned(small.mantissa);
    if (d == mantissa_bits) {
        last = aligned.IsTheHighestBitSet();
        rest_zero = aligned.AreFirstBitsZero(mantissa_bits - 1);
    } else {
        rest_zero = true;
        if (d > 0)
            detail::ShiftRightKeepingRoundBits<man>(aligned.table, d, last, rest_zero);
        do_add = true;
    }

    if (swapped)
        *this = ss2;

    uint c = 0;
    if (do_add) {
        if (up) {
            if (mantissa.Add(aligned)) {
                rest_zero = rest_zero && !last;
                last = mantissa.IsTheLowestBitSet();
                words::shr_bits(mantissa.table, mantissa.table, man, 1);
                mantissa.table[man - 1] |= TTMATH_UINT_HIGHEST_BIT;
                c += exponent.AddOne();
            }
        } else {
            mantissa.Sub(aligned);
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
