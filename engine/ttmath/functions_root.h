// Root(x, index), correctly rounded, with the library's order of checks: NaN
// (err_improper_argument), a negative index, index 0 (1, or err_improper_argument for
// x = 0), index 1 (x), index 2 (Sqrt), a fractional index, x = 0 (0), a negative x with
// an even index (every index of 2^P or more counts as even). Roots are never exact
// ties (a tie has P + 1 bits, and its k-th power more than P), so the rounding test
// settles every root; exact roots are found like any other value.
#ifndef TTMATH_FUNCTIONS_ROOT_H
#define TTMATH_FUNCTIONS_ROOT_H

#include "functions_power.h"

namespace ttmath {
namespace wide {

// Indexes below 2^root_newton_index_bits take Newton's iteration on y^k = x.
const sint root_newton_index_bits = 20;

// |x|^(1/k) for x != 0, 1 and a word k >= 3, negated when asked. With x = m 2^L,
// L = q k + r (0 <= r < k): the root is (m 2^r)^(1/k) 2^q. Newton's steps
// y += y (x / y^k - 1) / k double the correct bits; the last runs at full precision.
template<uint exp, uint man>
uint RootByNewton(Big<exp, man> & result, const Argument<exp, man> & x, uint k, bool negative)
{
    typedef typename Work<exp, man>::Float Float;
    typedef typename Work<exp, man>::Offset Offset;
    // floor division of the leading exponent by k
    Offset l(x.lead), q;
    const bool l_neg = l.IsSign();
    if (l_neg)
        l.ChangeSign();
    uint rem = 0;
    q = l;
    q.DivInt(k, &rem);
    uint r = rem;
    if (l_neg) {
        q.ChangeSign();
        if (rem) {
            q.SubOne();
            r = k - rem;
        }
    }
    const double start = std::exp2((std::log2(static_cast<double>(x.m[man - 1]) * 0x1p-64) + static_cast<double>(r)) /
                                   static_cast<double>(k));
    return RoundCorrectly(result, [&](std::size_t n, Approximation<exp, man> & out) -> uint {
        const std::size_t last = n + 1;
        const sint target = static_cast<sint>(last * word_bits) + 16;
        Float xr, y, p, base, e, one;
        x.MantissaToWide(xr, last);
        xr.Shift(static_cast<sint>(r)); // m 2^r with m in [1/2, 1)
        y.FromDouble(start, 2);
        sint acc = 40;
        std::size_t steps = 0;
        bool final_step = false;
        while (!final_step) {
            std::size_t wp = static_cast<std::size_t>(2 * acc / static_cast<sint>(word_bits)) + 2;
            if (wp >= last || 2 * acc - 8 >= target) {
                wp = last;
                final_step = 2 * acc - 8 >= target;
            }
            // p = y^k by binary powering
            base = y;
            base.Resize(wp);
            p.SetOne(wp);
            for (uint b = k;;) {
                if (b & 1)
                    Mul(p, p, base, wp);
                b >>= 1;
                if (!b)
                    break;
                Mul(base, base, base, wp);
            }
            Div(e, xr, p, wp);
            one.SetOne(wp);
            Sub(e, e, one, wp);
            DivWord(e, e, k, wp);
            Mul(e, e, y, wp);
            y.Resize(wp);
            Add(y, y, e, wp);
            acc = 2 * acc - 8;
            ++steps;
        }
        Meter().Series(steps);
        out.v = y;
        out.v.neg = negative;
        out.offset = q;
        out.err = 32;
        return 0;
    });
}

// |x|^(1/index) with the sign of x, for x not zero and an integer index >= 3.
template<uint exp, uint man>
uint RootOfArguments(Big<exp, man> & result, const Argument<exp, man> & x, const Argument<exp, man> & index)
{
    typedef typename Work<exp, man>::Float Float;
    Argument<exp, man> ax(x);
    ax.neg = false;
    if (index.zero) {
        // a zero mantissa without the zero flag: the library divides by it and fails
        result.SetNan();
        return 1;
    }
    sint ie;
    if (ax.IsOne() || !index.Moderate(ie)) {
        // the root of 1, or an index so large that the root rounds to 1
        result.SetOne();
        if (x.neg)
            result.SetSign();
        return 0;
    }
    if (ie >= 2 && ie <= root_newton_index_bits)
        return RootByNewton(result, ax, index.m[man - 1] >> (word_bits - static_cast<std::size_t>(ie)), x.neg);
    return RoundCorrectly(result, [&](std::size_t n, Approximation<exp, man> & out) -> uint {
        // t = ln|x| / index; ln|x| may have as many integer bits as the exponent
        const std::size_t wp = n + exp + 2;
        Float l, iw, t;
        uint el = LnToWide(l, ax, wp);
        index.ToWide(iw, man);
        Div(t, l, iw, wp);
        ExpSplit<exp, man>(out, t, n);
        out.err += el / 4 + 2;
        out.v.neg = x.neg;
        return 0;
    });
}

template<uint exp, uint man>
Big<exp, man> RootOf(const Big<exp, man> & x, const Big<exp, man> & index, ErrorCode & e)
{
    typedef Big<exp, man> B;
    B result;
    e = err_ok;
    if (x.IsNan() || index.IsNan()) {
        e = err_improper_argument;
        result = x;
        result.SetNan();
        return result;
    }
    if (index.IsSign()) {
        e = err_improper_argument;
        return result;
    }
    if (index.IsZero()) {
        if (x.IsZero())
            e = err_improper_argument;
        else
            result.SetOne();
        return result;
    }
    B one, two;
    one.SetOne();
    two.SetOne();
    two.exponent.AddOne();
    Argument<exp, man> a(x), n(index);
    if (index == one) {
        result = x;
        if (a.zero)
            result.SetZero();
        else
            result.Standardizing();
        result.ClearInfoBit(TTMATH_BIG_NAN);
        return result;
    }
    if (index == two)
        return Sqrt(x, &e);
    if (!index.IsInteger()) {
        e = err_improper_argument;
        return result;
    }
    if (a.zero) {
        result.SetZero();
        return result;
    }
    if (a.neg && index.Mod2() == 0) {
        e = err_improper_argument;
        return result;
    }
    if (RootOfArguments(result, a, n)) {
        result.SetNan();
        e = err_overflow;
    }
    return result;
}

} // namespace wide

template<class ValueType>
ValueType Root(ValueType x, const ValueType & index, ErrorCode * err = 0)
{
    ErrorCode e;
    ValueType result = wide::RootOf(x, index, e);
    if (err)
        *err = e;
    return result;
}

} // namespace ttmath

#endif
