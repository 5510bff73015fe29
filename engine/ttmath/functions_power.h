// Sqrt and Pow with a Big exponent, correctly rounded, with the library's checks and
// codes:
//   Sqrt:  NaN or a sign (also -0) -> 2; 0 -> 0;
//   Pow:   NaN -> 1; 0^y -> 0 for y > 0, else 2; x^0 = 1; a negative base needs an integer
//          exponent below 2^P in magnitude (the sign follows its parity), else 2; a result
//          outside the range -> 1;
// Powers whose value has at most P + 1 significant bits (exact results and exact ties)
// are computed exactly; every other power is irrational or has more bits, so the
// rounding test settles it.
#ifndef TTMATH_FUNCTIONS_POWER_H
#define TTMATH_FUNCTIONS_POWER_H

#include "functions_exp_log.h"
#include "integer_sqrt.h"

namespace ttmath {
namespace wide {

// sqrt of a positive argument, from the integer square root of the mantissa: with
// x = M 2^(L - P) for the P-bit integer M, t = L mod 2 and N = M 2^(P - t), sqrt(x) =
// sqrt(N) 2^((L + t) / 2 - P), and N's root s has exactly P bits. The remainder
// N - s^2 rounds it: sqrt(N) > s + 1/2 exactly when the remainder exceeds s (the root
// is never a tie: a tie's square has more than 2P bits and is odd).
template<uint exp, uint man>
uint SqrtOfArgument(Big<exp, man> & result, const Argument<exp, man> & a)
{
    typename Work<exp, man>::Offset half(a.lead);
    const bool odd = (half.table[0] & 1) != 0;
    if (odd)
        half.AddOne();
    half.Rcr(1, half.IsSign() ? 1 : 0);
    uint radicand[2 * man];
    words::fill(radicand, man, 0);
    words::copy(radicand + man, a.m, man);
    if (odd)
        words::shr_bits(radicand + man - 1, radicand + man - 1, man + 1, 1);
    uint scratch[integer_sqrt::rounding_scratch_words(man)];
    Rounded<man> r;
    r.lead = 0;
    if (integer_sqrt::sqrt_rounds_up(r.m, radicand, man, scratch)) {
        if (UInt<man>::AddOneTo(r.m)) {
            r.m[man - 1] = TTMATH_UINT_HIGHEST_BIT;
            ++r.lead;
        }
    }
    Meter().rounds++;
    Meter().Precision(man);
    return StoreRounded(result, r, false, half);
}

// The argument as (odd integer) 2^shift: the odd part's words and bit length.
template<uint exp, uint man>
struct OddPart {
    uint m[man];
    std::size_t bits;
    typename Work<exp, man>::Offset shift;

    explicit OddPart(const Argument<exp, man> & a)
    {
        words::copy(m, a.m, man);
        uint tz = 0;
        while (tz < man * word_bits && !((m[tz / word_bits] >> (tz % word_bits)) & 1))
            ++tz;
        words::shr(m, man, tz);
        bits = man * word_bits - tz;
        // x = odd 2^(lead - P + tz)
        shift = a.lead;
        shift.Sub(typename Work<exp, man>::Offset(static_cast<sint>(man * word_bits) - static_cast<sint>(tz)));
    }
};

// |x|^y for |x| != 1, y != 0, both not zero; `negative` gives the result's sign.
template<uint exp, uint man>
uint PowOfArguments(Big<exp, man> & result, const Argument<exp, man> & x, const Argument<exp, man> & y,
                    bool y_integer, bool negative)
{
    typedef Work<exp, man> W;
    typedef typename W::Float Float;
    typedef typename W::Offset Offset;
    const sint range_bits = static_cast<sint>(exp * word_bits);
    OddPart<exp, man> odd(x);

    sint ye;
    if (!y.Moderate(ye)) {
        // |y| >= 2^(2^40): out of range either way; |y| tiny: the power rounds to 1
        if (y.CompareLead(0) > 0) {
            result.SetNan();
            return 1;
        }
        result.SetOne();
        if (negative)
            result.SetSign();
        return 0;
    }

    // A power of two to a power: 2^(s y), exact when s y is an integer.
    if (odd.bits == 1) {
        const std::size_t pw = exp + 1 + man + 1;
        Float s, yw, p;
        IntegerToWide(s, odd.shift.table, exp + 1, pw);
        y.ToWide(yw, man);
        Mul(p, s, yw, pw);
        if (p.e > range_bits + 2) {
            result.SetNan();
            return 1;
        }
        // integer when no bit lies below the binary point
        bool integer = p.e >= 1;
        if (integer && p.e < static_cast<sint>(pw * word_bits))
            integer = words::low_bits_zero(p.w, static_cast<uint>(static_cast<sint>(pw * word_bits) - p.e));
        if (integer) {
            uint k[exp + 2];
            NearestInteger(p, k, exp + 1);
            Offset off;
            words::copy(off.table, k, exp + 1);
            if (p.neg)
                off.ChangeSign();
            Rounded<man> one;
            words::fill(one.m, man, 0);
            one.m[man - 1] = TTMATH_UINT_HIGHEST_BIT;
            one.lead = 1;
            return StoreRounded(result, one, negative, off);
        }
    }

    // A small positive integer power of the odd part: exact in P + 128 bits.
    if (y_integer && !y.neg && ye <= static_cast<sint>(word_bits)) {
        uint yv = y.m[man - 1] >> (word_bits - static_cast<std::size_t>(ye));
        const std::size_t exact_words = man + 2;
        if (yv <= (exact_words - 1) * word_bits && yv * odd.bits <= (exact_words - 1) * word_bits) {
            Float base, acc;
            base.SetWords(odd.m, man, 0, exact_words);
            acc.SetOne(exact_words);
            for (uint k = yv;;) {
                if (k & 1)
                    Mul(acc, acc, base, exact_words);
                k >>= 1;
                if (!k)
                    break;
                Mul(base, base, base, exact_words);
            }
            Rounded<man> r = RoundNearest<man>(acc.w, exact_words, acc.e);
            // x^y = odd^y 2^(shift y); the exponent fits one word more than the type's
            // (two's complement products wrap correctly; the value fits)
            Offset scaled(odd.shift);
            scaled.MulInt(yv);
            return StoreRounded(result, r, negative, scaled);
        }
    }

    // |y ln x| estimated in doubles decides the extra integer bits of t = y ln|x|.
    double lead_d = 0;
    {
        sint le;
        if (x.Moderate(le))
            lead_d = static_cast<double>(le);
        else
            lead_d = x.lead.IsSign() ? -std::ldexp(1.0, 62) : std::ldexp(1.0, 62);
    }
    const double mant = static_cast<double>(x.m[man - 1]) * 0x1p-64; // in [1/2, 1)
    const double ln_abs = std::fabs(lead_d * 0.6931471805599453 + std::log(mant));
    const double t_log2 = std::log2(ln_abs + 1e-300) + static_cast<double>(ye);
    if (t_log2 > static_cast<double>(range_bits + 1)) {
        result.SetNan();
        return 1;
    }
    const std::size_t tw = t_log2 > 0 ? static_cast<std::size_t>(t_log2) / word_bits + 1 : 0;
    return RoundCorrectly(result, [&](std::size_t n, Approximation<exp, man> & out) -> uint {
        Float l, yw, t;
        const std::size_t wp = n + tw + 1;
        uint el = LnToWide(l, x, wp);
        y.ToWide(yw, man);
        Mul(t, l, yw, wp);
        if (t.e > range_bits + 2)
            return 1;
        ExpSplit<exp, man>(out, t, n);
        out.err += el / 4 + 2;
        out.v.neg = negative;
        return 0;
    });
}

} // namespace wide

template<uint exp, uint man>
uint Big<exp, man>::Sqrt()
{
    if (IsNan() || IsSign()) {
        SetNan();
        return 2;
    }
    wide::Argument<exp, man> a(*this);
    if (a.zero) {
        SetZero();
        return 0;
    }
    return wide::SqrtOfArgument(*this, a);
}

template<uint exp, uint man>
uint Big<exp, man>::Pow(const Big & pow)
{
    if (IsNan() || pow.IsNan())
        return CheckCarry(1);
    wide::Argument<exp, man> x(*this), y(pow);
    if (IsZero()) {
        if (pow.IsSign() || pow.IsZero()) {
            SetNan();
            return 2;
        }
        SetZero();
        return 0;
    }
    if (y.zero) {
        SetOne();
        return 0;
    }
    // Integer exponents below 2^P in magnitude (by the stored exponent, as the library
    // dispatches) allow a negative base.
    const bool small_integer = pow.exponent > Int<exp>(-static_cast<sint>(mantissa_bits)) &&
                               !(pow.exponent > Int<exp>(0)) && pow.IsInteger();
    const bool integer = pow.IsInteger();
    bool negative = false;
    if (IsSign()) {
        if (!small_integer) {
            SetNan();
            return 2;
        }
        negative = pow.Mod2() != 0;
    }
    if (x.zero && !integer && y.neg) {
        // a zero mantissa without the zero flag to a negative power: the library's
        // e^(y ln x)
        Big l, t(pow);
        uint c = wide::ReferenceLn(l, *this);
        c += t.Mul(l);
        c += wide::ReferenceExp(*this, t);
        return c ? CheckCarry(1) : 0;
    }
    if (x.zero) {
        // a zero mantissa without the zero flag: its powers are 0, its negative powers
        // divide by zero
        if (y.neg) {
            SetNan();
            return 1;
        }
        if (y.zero) {
            SetOne();
            return 0;
        }
        SetZero();
        return 0;
    }
    wide::Argument<exp, man> ax(x);
    ax.neg = false;
    if (ax.IsOne()) {
        SetOne();
        if (negative)
            SetSign();
        return 0;
    }
    uint c = wide::PowOfArguments(*this, ax, y, integer, negative);
    if (c)
        SetNan();
    return c;
}

template<class ValueType>
ValueType Sqrt(ValueType x, ErrorCode * err = 0)
{
    if (x.IsNan() || x.IsSign()) {
        x.SetNan();
        if (err)
            *err = err_improper_argument;
        return x;
    }
    uint c = x.Sqrt();
    if (err)
        *err = c ? err_overflow : err_ok;
    return x;
}

} // namespace ttmath

#endif
