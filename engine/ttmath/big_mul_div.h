// Big::Mul, Div, MulUInt, MulInt and Mod.
//
// Mul and Div form the exact double-width product or floor quotient of the mantissas,
// normalise it and round the kept half on the discarded half (Div never looks at the
// remainder). The exponent is adjusted in two steps, by the normalisation shift and
// then by the other operand's exponent, and a carry in either step counts: a result
// near the ends of the range can fail although it would fit.
#ifndef TTMATH_BIG_MUL_DIV_H
#define TTMATH_BIG_MUL_DIV_H

#include "high_half.h"
#include "short_product.h"
#ifdef TTMATH_ASM_X86_64
#include "big_div_x86_64.h"
#include "big_mul_x86_64.h"
#endif

namespace ttmath {

namespace detail {

// x + y and x - y wrapping, recording in `overflow` whether the signed result left the
// word's range.
inline uint AddSigned(uint x, uint y, bool & overflow)
{
#if defined(__GNUC__) || defined(__clang__)
    sint r;
    overflow |= __builtin_add_overflow(static_cast<sint>(x), static_cast<sint>(y), &r);
    return static_cast<uint>(r);
#else
    const uint sum = x + y;
    overflow |= static_cast<sint>((x ^ sum) & (y ^ sum)) < 0;
    return sum;
#endif
}

inline uint SubSigned(uint x, uint y, bool & overflow)
{
#if defined(__GNUC__) || defined(__clang__)
    sint r;
    overflow |= __builtin_sub_overflow(static_cast<sint>(x), static_cast<sint>(y), &r);
    return static_cast<uint>(r);
#else
    const uint difference = x - y;
    overflow |= static_cast<sint>((x ^ y) & (x ^ difference)) < 0;
    return difference;
#endif
}

} // namespace detail

// The common case of Mul: two normalised values with no flag but the sign. The
// product's leading bit is then one of its top two bits, and high_half.h normalises and
// rounds it without branches; long mantissas form only the upper columns of the product
// (short_product.h) unless those cannot decide the result. It computes exactly what the
// general algorithm computes, exponent steps and carries included. Returns false,
// changing nothing, for any other operands.
template<uint exp, uint man>
inline bool Big<exp, man>::MulNormalised(const Big & ss2, bool round, uint & rc)
{
    const unsigned char info1 = info, info2 = ss2.info;
    const uint * a = mantissa.table;
    const uint * b = ss2.mantissa.table;
    if (((info1 | info2) & ~TTMATH_BIG_SIGN) != 0 || !(a[man - 1] & b[man - 1] & TTMATH_UINT_HIGHEST_BIT))
        return false;
#ifdef TTMATH_ASM_X86_64
    if constexpr (exp == 1 && man == 4) {
        if (x86_64_kernels::use_mulx_adx) {
            static_assert(sizeof(Big) == 8 * (exp + man + 1), "the assembly relies on Big's layout");
            if (round)
                x86_64_mul::product<true>(exponent.table, ss2.exponent.table);
            else
                x86_64_mul::product<false>(exponent.table, ss2.exponent.table);
            rc = IsNan() ? 1 : 0;
            return true;
        }
    }
#endif
    const Int<exp> e2(ss2.exponent); // (ss2 may be *this)

    uint m[man];
    uint carry = 0;
    unsigned shift = 0;
    bool done = false;
    if constexpr (man >= short_product::min_words)
        done = short_product::rounded_high_half<man>(m, a, b, round, shift, carry);
    if (!done) {
        uint p[2 * man];
        product::full<man>(p, a, b);
        shift = high_half::rounded<man>(m, p, round, carry);
    }

    // the exponent steps of the general algorithm, each checked
    bool overflow = false;
    if constexpr (exp == 1) {
        uint e = detail::AddSigned(exponent.table[0], mantissa_bits - shift, overflow);
        e = detail::AddSigned(e, e2.table[0], overflow);
        e = detail::AddSigned(e, carry, overflow);
        exponent.table[0] = e;
    } else {
        overflow = exponent.Add(ExponentFromWord(mantissa_bits - shift)) != 0;
        overflow = (exponent.Add(e2) != 0) || overflow;
        if (carry)
            overflow = (exponent.AddOne() != 0) || overflow;
    }

    words::copy(mantissa.table, m, man);
    info = static_cast<unsigned char>(((info1 ^ info2) & TTMATH_BIG_SIGN) | (overflow ? TTMATH_BIG_NAN : 0));
    rc = overflow ? 1 : 0;
    return true;
}

// The product when either factor is NaN or zero; false when both are finite and not zero.
template<uint exp, uint man>
bool Big<exp, man>::MulOfSpecial(const Big & ss2, uint & rc)
{
    rc = 0;
    if (IsNan() || ss2.IsNan())
        rc = CheckCarry(1);
    else if (ss2.IsZero() && !IsZero())
        SetZero();
    else if (!IsZero())
        return false;
    return true;
}

// This becomes the 2 man-word product p of its mantissa and ss2's: the product is
// normalised, the exponents are summed with the product's own shift, the low half rounds
// half to even when asked, and the signs combine.
template<uint exp, uint man>
uint Big<exp, man>::SetFromProduct(uint * p, const Big & ss2, bool round)
{
    uint shift = words::leading_zeros_fixed<2 * man>(p);
    if (shift)
        words::shl(p, 2 * man, shift);

    uint c = 0;
    // mantissa_bits - shift as a word: it wraps for products of unnormalised
    // mantissas and is then added zero-extended.
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

// The algorithm for every input.
template<uint exp, uint man>
TTMATH_NOINLINE uint Big<exp, man>::MulGeneral(const Big & ss2_, bool round)
{
    if (this == &ss2_) {
        Big copy(ss2_);
        return MulGeneral(copy, round);
    }
    const Big & ss2 = ss2_;

    uint rc;
    if (MulOfSpecial(ss2, rc))
        return rc;

    uint p[2 * man];
    product::full<man>(p, mantissa.table, ss2.mantissa.table);
    return SetFromProduct(p, ss2, round);
}

// The common case of Div: two normalised values with no flag but the sign. The
// quotient of the mantissas then has N or N + 1 bits: it fits the mantissa exactly, or
// its lowest bit is the rounding bit, taken as a tie whatever the remainder. It computes
// exactly what the general algorithm computes, exponent steps and carries included,
// without branching on the data. Returns false, changing nothing, for any other
// operands.
template<uint exp, uint man>
inline bool Big<exp, man>::DivNormalised(const Big & ss2, bool round, uint & rc)
{
    if constexpr (man < 2) {
        (void)ss2, (void)round, (void)rc;
        return false;
    } else {
        const unsigned char info1 = info, info2 = ss2.info;
        const uint * a = mantissa.table;
        const uint * b = ss2.mantissa.table;
        if (((info1 | info2) & ~TTMATH_BIG_SIGN) != 0 || !(a[man - 1] & b[man - 1] & TTMATH_UINT_HIGHEST_BIT))
            return false;
#ifdef TTMATH_ASM_X86_64
        if constexpr (exp == 1 && man == 4) {
            static_assert(sizeof(Big) == 8 * (exp + man + 1), "the assembly relies on Big's layout");
            const bool done = round ? x86_64_div::quotient<true>(mantissa.table, ss2.mantissa.table)
                                    : x86_64_div::quotient<false>(mantissa.table, ss2.mantissa.table);
            if (done) {
                rc = IsNan() ? 1 : 0;
                return true;
            }
        }
#endif
        const Int<exp> e2(ss2.exponent); // (ss2 may be *this)

        uint q[man + 1];
        quotient::shifted_by_normalized<man>(q, a, b);
        const unsigned extra = static_cast<unsigned>(q[man]); // the quotient has N + extra bits
        uint m[man];
        for (std::size_t i = 0; i < man; ++i)
            m[i] = words::shr_pair(q[i + 1], q[i], extra);
        const uint up = (round ? 1 : 0) & extra & q[0] & (q[0] >> 1);
        const uint carry = fixed::add_carry<man>(m, up);
        if (carry) // all ones rounded up: only the top bit is left
            m[man - 1] = TTMATH_UINT_HIGHEST_BIT;

        // the exponent steps of the general algorithm, each checked
        bool overflow = false;
        if constexpr (exp == 1) {
            uint e = detail::SubSigned(exponent.table[0], mantissa_bits - extra, overflow);
            e = detail::SubSigned(e, e2.table[0], overflow);
            e = detail::AddSigned(e, carry, overflow);
            exponent.table[0] = e;
        } else {
            overflow = exponent.SubInt(mantissa_bits - extra) != 0;
            overflow = (exponent.Sub(e2) != 0) || overflow;
            if (carry)
                overflow = (exponent.AddOne() != 0) || overflow;
        }

        words::copy(mantissa.table, m, man);
        info = static_cast<unsigned char>(((info1 ^ info2) & TTMATH_BIG_SIGN) | (overflow ? TTMATH_BIG_NAN : 0));
        rc = overflow ? 1 : 0;
        return true;
    }
}

// The algorithm for every input.
template<uint exp, uint man>
TTMATH_NOINLINE uint Big<exp, man>::DivGeneral(const Big & ss2_, bool round)
{
    if (this == &ss2_) {
        Big copy(ss2_);
        return DivGeneral(copy, round);
    }
    const Big & ss2 = ss2_;

    if (IsNan() || ss2.IsNan())
        return CheckCarry(1);
    if (ss2.IsZero()) {
        SetNan();
        return 2;
    }
    if (IsZero())
        return 0;

    // q = floor(mantissa * 2^N / ss2.mantissa), 2N bits. A zero divisor mantissa
    // without the zero flag leaves the dividend as it is.
    uint q[2 * man];
    bool done = false;
    if constexpr (man >= 2) {
        if (ss2.mantissa.IsTheHighestBitSet()) {
            words::fill(q + man + 1, man - 1, 0);
            quotient::shifted_by_normalized<man>(q, mantissa.table, ss2.mantissa.table);
            done = true;
        }
    }
    if (!done) {
        uint u[2 * man];
        words::fill(u, man, 0);
        words::copy(u + man, mantissa.table, man);
        std::size_t vn = words::used_words(ss2.mantissa.table, man);
        std::size_t un = words::used_words(u, 2 * man);
        if (vn == 0) {
            words::copy(q, u, 2 * man);
        } else {
            words::fill(q, 2 * man, 0);
            if (un >= vn) {
                uint scratch[3 * man + 1];
                quotient::floor_quotient(q, u, un, ss2.mantissa.table, vn, scratch);
            }
        }
    }

    uint shift = words::leading_zeros_fixed<2 * man>(q);
    if (shift)
        words::shl(q, 2 * man, shift);

    uint c = 0;
    if (shift)
        c += exponent.SubInt(shift);
    c += exponent.Sub(ss2.exponent);

    words::copy(mantissa.table, q + man, man);
    if (round && (q[man - 1] & TTMATH_UINT_HIGHEST_BIT)) {
        bool is_half = q[man - 1] == TTMATH_UINT_HIGHEST_BIT && words::is_zero(q, man - 1);
        c += RoundHalfToEven(is_half, true);
    }

    if (IsSign() == ss2.IsSign())
        ClearInfoBit(TTMATH_BIG_SIGN);
    else
        SetInfoBit(TTMATH_BIG_SIGN);

    c += Standardizing();
    return CheckCarry(c);
}

// Multiplies by a word, dropping (not rounding) the bits that fall off the end.
template<uint exp, uint man>
uint Big<exp, man>::MulUInt(uint ss2)
{
    if (IsNan())
        return 1;
    if (IsZero())
        return 0;
    if (ss2 == 0) {
        SetZero();
        return 0;
    }

    uint p[man + 1];
    p[man] = kernel::mul_1(p, mantissa.table, man, ss2);
    uint c = 0;
    if (p[man] != 0) {
        // Shift right by the bit length of the top word, so that it fits again.
        uint moved = words::bits_per_word - words::clz(p[man]);
        if (moved == words::bits_per_word)
            words::copy(p, p + 1, man);
        else
            words::shr_bits(p, p, man + 1, static_cast<unsigned>(moved));
        c += exponent.AddInt(moved);
    }
    words::copy(mantissa.table, p, man);

    c += Standardizing();
    return CheckCarry(c);
}

template<uint exp, uint man>
uint Big<exp, man>::MulInt(sint ss2)
{
    if (IsNan())
        return 1;
    if (ss2 == 0) {
        SetZero();
        return 0;
    }
    if (IsZero())
        return 0;

    if (IsSign() != (ss2 < 0))
        SetSign();
    else
        Abs();

    uint magnitude = ss2 < 0 ? uint(0) - static_cast<uint>(ss2) : static_cast<uint>(ss2);
    return MulUInt(magnitude);
}

// Remainder with the sign of the dividend: this = this - ss2 * trunc(this / ss2), each
// step rounded as the basic operations round.
template<uint exp, uint man>
uint Big<exp, man>::Mod(const Big & ss2_)
{
    if (this == &ss2_) {
        Big copy(ss2_);
        return Mod(copy);
    }
    const Big & ss2 = ss2_;

    if (IsNan() || ss2.IsNan())
        return CheckCarry(1);
    if (ss2.IsZero()) {
        SetNan();
        return 2;
    }

    uint c = 0;
    if (!SmallerWithoutSignThan(ss2)) {
        Big temp(*this);
        c = temp.Div(ss2);
        temp.SkipFraction();
        c += temp.Mul(ss2);
        c += Sub(temp);
        if (!SmallerWithoutSignThan(ss2))
            c += 1;
    }
    return CheckCarry(c);
}

} // namespace ttmath

#endif
