// Root(x, index), correctly rounded, with the library's order of checks: NaN
// (err_improper_argument), a negative index, index 0 (1, or err_improper_argument for
// x = 0), index 1 (x), index 2 (Sqrt), a fractional index, x = 0 (0), a negative x with
// an even index (every index of 2^P or more counts as even). Roots are never exact
// ties (a tie has P + 1 bits, and its k-th power more than P), so the rounding test
// settles every root; exact roots are found like any other value.
#ifndef TTMATH_FUNCTIONS_ROOT_H
#define TTMATH_FUNCTIONS_ROOT_H

#include "functions_power.h"
#include "truncated_product.h"

namespace ttmath {
namespace wide {

// Indexes below 2^root_newton_index_bits take Newton's iteration on y^k = x.
const sint root_newton_index_bits = 20;
// Correct bits of the double starting value, with a margin.
const sint root_start_bits = 48;

// p = b^k (k >= 1) at precision n by left-to-right binary powering: squarings at n
// words and multiplications by b at b's own precision. Each operation truncates (by
// less than 1 + 2^-50 units); an error made while p = b^e grows k / e fold by the end,
// so p is off by less than 2k units of 2^(1 - 64 n) relative to b^k.
template<std::size_t C>
void PowerByWord(WideFloat<C> & p, const WideFloat<C> & b, uint k, std::size_t n)
{
    unsigned bit = words::bits_per_word - 1 - words::clz(k);
    if (bit == 0) {
        p = b;
        p.Resize(n);
        return;
    }
    MulTruncated(p, b, b, n);
    for (;;) {
        if ((k >> --bit) & 1)
            MulTruncated(p, p, b, n);
        if (bit == 0)
            break;
        MulTruncated(p, p, p, n);
    }
}

// |x|^(1/k) for x != 0, 1 and a word k >= 3, negated when asked. With x = m 2^L,
// L = q k + r (0 <= r < k): the root is a^(1/k) 2^q for a = m 2^r.
//
// Newton's steps z += z (1 - a z^k) / k on the reciprocal root z = a^(-1/k) need no
// division; a relative error g becomes about (k + 1) g^2 / 2, so each step runs at the
// precision of the bits it will have. Once z is right to about half the result's bits
// (plus 1.5 log2 k, see below), y0 = a z^(k-1) has an error d = (k - 1) g, and one step
//
//     y = y0 + (a - y0^k) t / k,    t = z^(k-1), which is 1 / y0^(k-1) within k (k - 1) g,
//
// leaves an error below (k - 1) d^2 / 2 + k (k - 1) g d < 1.5 k^3 g^2: a fraction of a unit
// of the result. Only y0^k is formed at the full precision; the rounding of its 2k-fold
// error is divided by k again, a few units in all.
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
    const double start = std::exp2(-(std::log2(static_cast<double>(x.m[man - 1]) * 0x1p-64) + static_cast<double>(r)) /
                                   static_cast<double>(k));
    const sint k_bits = static_cast<sint>(words::bits_per_word - words::clz(k));
    const sint wb = static_cast<sint>(word_bits);
    return RoundCorrectly(result, [&](std::size_t n, Approximation<exp, man> & out) -> uint {
        // the bits z needs before the last step, and the words that hold them
        const sint need = static_cast<sint>(n) * wb / 2 + (3 * k_bits + 1) / 2 + 2;
        const std::size_t half = static_cast<std::size_t>((need + wb - 1) / wb);
        Float a, z, p, one;
        x.MantissaToWide(a, man);
        a.Shift(static_cast<sint>(r)); // m 2^r with m in [1/2, 1)
        z.FromDouble(start, 1);
        sint acc = root_start_bits;
        std::size_t steps = 0;
        while (acc < need) {
            // the error after the step: (k + 1) g^2 / 2 from the last one, a few units
            // of 2^(-64 wp) from the rounding
            const sint aim = 2 * acc - k_bits < need ? 2 * acc - k_bits : need;
            std::size_t wp = static_cast<std::size_t>((aim + 4 + wb - 1) / wb);
            if (wp > n)
                wp = n;
            PowerByWord(p, z, k, wp);
            MulTruncated(p, p, a, wp);
            one.SetOne(wp);
            Sub(p, one, p, wp);
            MulTruncated(p, p, z, wp);
            DivWord(p, p, k, wp);
            z.Resize(wp);
            Add(z, z, p, wp);
            const sint rounding_bits = static_cast<sint>(wp) * wb - 3;
            acc = (2 * acc - k_bits < rounding_bits ? 2 * acc - k_bits : rounding_bits) - 1;
            ++steps;
        }
        Meter().Series(steps + 1);
        const std::size_t hw = half < z.n ? half : z.n;
        Float t, y, e;
        PowerByWord(t, z, k - 1, hw); // t = z^(k-1)
        MulTruncated(y, a, t, hw); // y0
        PowerByWord(p, y, k, n);
        Sub(e, a, p, n); // a - y0^k: the top words cancel
        MulTruncated(e, e, t, hw);
        DivWord(e, e, k, hw);
        y.Resize(n);
        Add(y, y, e, n);
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
