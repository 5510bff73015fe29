// Sinh, Cosh, Tanh, Coth and their inverses, correctly rounded, from the exponential
// and logarithm kernels. Near 0 they use e^x - 1 and ln(1 + u) so that nothing cancels:
//   sinh = a (a + 2) / (2 (a + 1)), a = e^|x| - 1;  tanh = a / (a + 2), a = e^2|x| - 1;
//   asinh = ln(1 + |x| + x^2 / (1 + sqrt(1 + x^2)));  acosh = ln(1 + d + sqrt(d (2 + d))),
//   d = x - 1;  atanh = ln(1 + 2|x| / (1 - |x|)) / 2;  acoth = ln(1 + 2 / (|x| - 1)) / 2.
// The library's codes: NaN -> err_improper_argument (the argument is returned); coth(0),
// acosh(x < 1), atanh(|x| >= 1) and acoth(|x| <= 1) -> err_improper_argument. sinh,
// cosh, tanh and coth fail with err_overflow wherever e^|x| or e^-|x| leaves the
// exponent range (the bottom end is reached first: |x| > (2^(64 exp - 1) - P + 1) ln 2),
// even where tanh and coth are +-1.
#ifndef TTMATH_FUNCTIONS_HYPERBOLIC_H
#define TTMATH_FUNCTIONS_HYPERBOLIC_H

#include "functions_exp_log.h"
#include "functions_trig.h"

namespace ttmath {
namespace wide {

enum class Hyperbolic { sinh, cosh, tanh, coth, asinh, acosh, atanh, acoth };

// ln w for a positive working number, at n words; returns the error bound.
template<uint exp, uint man>
uint LnOfWide(typename Work<exp, man>::Float & y, const typename Work<exp, man>::Float & w, std::size_t n)
{
    typename Work<exp, man>::Float m(w);
    typename Work<exp, man>::Offset e(static_cast<sint>(m.e - 1));
    m.e = 1;
    return LnSplit<exp, man>(y, m, e, n);
}

// True when |x| > (2^(64 exp - 1) - P + 1) ln 2, where e^-|x| leaves the range.
template<uint exp, uint man>
bool BeyondHyperbolicRange(const Argument<exp, man> & a)
{
    typedef typename Work<exp, man>::Float Float;
    const sint top = static_cast<sint>(exp * word_bits) - 1; // the threshold lies in [2^(top-1), 2^top)
    if (a.CompareLead(top) > 0)
        return true;
    if (a.CompareLead(top) < 0)
        return false;
    const std::size_t n = exp + man + 2;
    // (2^top - P + 1) as an integer of exp words, times ln 2
    Float k, ln2, limit, x;
    UInt<exp> words_k;
    words_k.SetZero();
    words_k.table[exp - 1] = TTMATH_UINT_HIGHEST_BIT;
    words_k.SubInt(man * word_bits - 1);
    k.SetWords(words_k.table, exp, 0, n);
    LoadConstant(ln2, Short().ln2, n + 1);
    Mul(limit, k, ln2, n);
    x.SetWords(a.m, man, top - static_cast<sint>(man * word_bits), n);
    return CompareAbs(x, limit) > 0;
}

// sinh, cosh, tanh or coth of a moderate, non-zero x at n words.
template<uint exp, uint man>
uint DirectHyperbolic(Approximation<exp, man> & out, Hyperbolic which, const Argument<exp, man> & a, std::size_t n)
{
    typedef typename Work<exp, man>::Float Float;
    // no step cancels more than a bit (e^-|x| <= e^-1/2 where it is subtracted), so
    // the round's own words suffice
    const std::size_t wp = n;
    Float x, t, u, one, two;
    a.ToWide(x, wp);
    x.neg = false;
    one.SetOne(wp);
    two.SetPowerOfTwo(1, wp);
    const bool doubled = which == Hyperbolic::tanh || which == Hyperbolic::coth;
    if (doubled)
        x.Shift(1);
    out.offset.SetZero();
    if (x.e <= 0) {
        // |x| (or 2|x|) < 1: a = e^x - 1 keeps tiny arguments exact
        Float e1;
        uint ea = ExpM1(e1, x, wp);
        if (which == Hyperbolic::sinh || which == Hyperbolic::cosh) {
            // sinh = a (a + 2) / (2 (a + 1)), cosh = (a^2 + 2a + 2) / (2 (a + 1))
            Add(t, e1, two, wp);
            Mul(t, t, e1, wp);
            if (which == Hyperbolic::cosh)
                Add(t, t, two, wp);
            Add(u, e1, one, wp);
            Div(out.v, t, u, wp);
            out.v.Shift(-1);
        } else {
            Add(u, e1, two, wp);
            if (which == Hyperbolic::tanh)
                Div(out.v, e1, u, wp);
            else
                Div(out.v, u, e1, wp);
        }
        out.err = 2 * ea + 8;
        return 0;
    }
    // e^x = v 2^k
    Approximation<exp, man> e;
    if (doubled)
        x.neg = true; // e^-2|x|
    ExpSplit<exp, man>(e, x, wp);
    sint k;
    const bool small_k = !e.offset.ToInt(k) && k < static_cast<sint>(wp * word_bits) / 2 + 4 &&
                         k > -static_cast<sint>(wp * word_bits) - 4;
    if (which == Hyperbolic::sinh || which == Hyperbolic::cosh) {
        if (!small_k) {
            // e^-x is below an ulp of e^x: the result is e^x / 2
            out.v = e.v;
            out.offset = e.offset;
            out.offset.SubOne();
            out.err = e.err + 2;
            return 0;
        }
        Float big(e.v), inv;
        big.Shift(k);
        Div(inv, one, big, wp);
        if (which == Hyperbolic::sinh)
            Sub(out.v, big, inv, wp);
        else
            Add(out.v, big, inv, wp);
        out.v.Shift(-1);
        out.err = 2 * e.err + 8;
        return 0;
    }
    // tanh = (1 - f) / (1 + f), coth = (1 + f) / (1 - f), f = e^-2|x| = v 2^k (k < 0)
    if (!small_k) {
        out.v = one;
        out.err = 2;
        return 0;
    }
    Float f(e.v);
    f.Shift(k);
    Sub(t, one, f, wp);
    Add(u, one, f, wp);
    if (which == Hyperbolic::tanh)
        Div(out.v, t, u, wp);
    else
        Div(out.v, u, t, wp);
    out.err = 2 * e.err + 8;
    return 0;
}

// asinh, acosh, atanh or acoth of a moderate x inside the domain (|x| for the odd
// ones), at n words.
template<uint exp, uint man>
uint InverseHyperbolic(Approximation<exp, man> & out, Hyperbolic which, const Argument<exp, man> & a, std::size_t n)
{
    typedef typename Work<exp, man>::Float Float;
    // the differences below are exact at the round's words (man + 1 at least), and
    // each value then has an error of a few ulps, which the logarithm's condition
    // (its result is at least 1/8 where w is taken, a small u keeps ln(1 + u)
    // relative) turns into the 64 ulps of the bound
    const std::size_t wp = n;
    Float x, one, d, s, t, u;
    a.ToWide(x, wp);
    x.neg = false;
    one.SetOne(wp);
    uint err = 0;
    // u with ln(1 + u) the result (or twice it), when u is small; else w = 1 + u
    bool small = false;
    Float w;
    switch (which) {
    case Hyperbolic::asinh:
        // u = x + x^2 / (1 + sqrt(1 + x^2))
        Mul(t, x, x, wp);
        Add(s, t, one, wp);
        Sqrt(s, s, wp);
        if (x.e <= -2) {
            Add(d, s, one, wp);
            Div(t, t, d, wp);
            Add(u, x, t, wp);
            small = true;
        } else {
            Add(w, x, s, wp);
        }
        break;
    case Hyperbolic::acosh:
        // d = x - 1 (exact for x < 2); u = d + sqrt(d (2 + d))
        Sub(d, x, one, wp);
        if (CompareAbs(d, one) < 0 && d.e <= -4) {
            Add(t, d, one, wp);
            Add(t, t, one, wp);
            Mul(t, t, d, wp);
            Sqrt(t, t, wp);
            Add(u, d, t, wp);
            small = true;
        } else {
            Add(t, x, one, wp);
            Mul(t, t, d, wp);
            Sqrt(t, t, wp);
            Add(w, x, t, wp);
        }
        break;
    case Hyperbolic::atanh:
        // 1 + u = (1 + x) / (1 - x), u = 2x / (1 - x)
        Sub(d, one, x, wp);
        if (x.e <= -3) {
            Div(u, x, d, wp);
            u.Shift(1);
            small = true;
        } else {
            Add(t, one, x, wp);
            Div(w, t, d, wp);
        }
        break;
    default:
        // 1 + u = (x + 1) / (x - 1), u = 2 / (x - 1)
        Sub(d, x, one, wp);
        if (x.e >= 4) {
            Div(u, one, d, wp);
            u.Shift(1);
            small = true;
        } else {
            Add(t, x, one, wp);
            Div(w, t, d, wp);
        }
        break;
    }
    if (small)
        err = Log1p(out.v, u, wp);
    else
        err = LnOfWide<exp, man>(out.v, w, wp);
    if (which == Hyperbolic::atanh || which == Hyperbolic::acoth)
        out.v.Shift(-1);
    out.err = err + 64;
    return 0;
}

// Whether the library's e^-|x| fails.
template<uint exp, uint man>
bool ReferenceExpFails(const Big<exp, man> & x)
{
    Big<exp, man> minus(x), r;
    minus.Abs();
    minus.ChangeSign();
    return ReferenceExp(r, minus) != 0;
}

template<uint exp, uint man>
Big<exp, man> HyperbolicOf(Hyperbolic which, const Big<exp, man> & x, ErrorCode * err)
{
    typedef Big<exp, man> B;
    B result;
    ErrorCode unreported;
    ErrorCode & e = err ? *err : unreported;
    e = err_ok;
    if (x.IsNan()) {
        e = err_improper_argument;
        return x;
    }
    Argument<exp, man> a(x);
    const sint bits = static_cast<sint>(B::mantissa_bits);
    const bool direct = which == Hyperbolic::sinh || which == Hyperbolic::cosh || which == Hyperbolic::tanh ||
                        which == Hyperbolic::coth;
    // Mantissas without their top bit: the library's checks look at the zero flag and
    // compare the words as they are, and its formulas then fail on values its checks
    // let through (a zero for coth, values below 1 for acosh).
    if (!x.IsZero() && !x.mantissa.IsTheHighestBitSet()) {
        B one;
        one.SetOne();
        if ((which == Hyperbolic::coth && a.zero) || (which == Hyperbolic::acosh && !(x < one) && !a.neg &&
                                                      (a.zero || a.CompareLead(1) < 0))) {
            e = err_overflow;
            return result;
        }
    }
    // acoth of a mantissa without its top bit, worth at most 1, which the library's
    // comparison of the words lets through: its ln((x + 1)/(x - 1)), halved
    const bool unnormalised = !x.IsZero() && !x.mantissa.IsTheHighestBitSet();
    B ax(x), one;
    ax.Abs();
    one.SetOne();
    if (which == Hyperbolic::acoth && unnormalised && ax > one && (a.zero || a.CompareLead(1) <= 0) &&
        !(a.CompareLead(1) == 0 && !a.IsOneMagnitude())) {
        B q(x), d(x);
        uint c = q.Add(one);
        c += d.Sub(one);
        c += q.Div(d);
        c += ReferenceLn(result, q);
        c += result.exponent.SubOne();
        e = c ? err_overflow : err_ok;
        return result;
    }
    // domains
    const int vs_one = a.zero ? -1 : a.CompareLead(1) > 0 ? 1 : a.CompareLead(1) < 0 ? -1 : (a.IsOneMagnitude() ? 0 : 1);
    if ((which == Hyperbolic::coth && a.zero) || (which == Hyperbolic::acosh && (a.neg || vs_one < 0)) ||
        (which == Hyperbolic::atanh && vs_one >= 0) || (which == Hyperbolic::acoth && vs_one <= 0)) {
        e = err_improper_argument;
        return result;
    }
    if (a.zero) {
        if (which == Hyperbolic::cosh)
            result.SetOne();
        else
            result.SetZero();
        return result;
    }
    if (which == Hyperbolic::acosh && vs_one == 0) {
        result.SetZero();
        return result;
    }
    // beyond the range of e^-|x|; next to its edge, as the library's e^-|x| rounds
    if (direct && (a.NearRangeEdge() ? ReferenceExpFails(x) : BeyondHyperbolicRange(a))) {
        e = err_overflow;
        return result;
    }
    sint lead;
    const bool moderate = a.Moderate(lead);
    const bool tiny = (moderate && lead <= -(bits / 2 + 4)) || (!moderate && a.CompareLead(0) < 0);
    if (tiny && which != Hyperbolic::coth) {
        // odd functions round to x, cosh to 1
        if (which == Hyperbolic::cosh)
            result.SetOne();
        else
            result = ArgumentValue(a);
        return result;
    }
    if (!moderate) {
        if (which == Hyperbolic::coth) {
            ReciprocalOfTiny(result, a);
        } else if (which == Hyperbolic::acoth) {
            // 1/x, and below the range the library's zero (its halving leaves exponent -1)
            if (ReciprocalOfTiny(result, a)) {
                result.SetZero();
                result.exponent.SubOne();
            }
        } else {
            // asinh, acosh of huge |x|: ln 2|x| (the next term, 1/(4 x^2), is far below)
            RoundCorrectly(result, [&](std::size_t n, Approximation<exp, man> & out) -> uint {
                typename Work<exp, man>::Float m;
                a.MantissaToWide(m, n + 1);
                m.Shift(1);
                out.err = LnSplit<exp, man>(out.v, m, a.lead, n + 1) + 2;
                out.v.neg = a.neg;
                return 0;
            });
        }
        return result;
    }
    uint c = RoundCorrectly(result, [&](std::size_t n, Approximation<exp, man> & out) -> uint {
        uint status = direct ? DirectHyperbolic(out, which, a, n) : InverseHyperbolic(out, which, a, n);
        const bool odd = which != Hyperbolic::cosh && which != Hyperbolic::acosh;
        if (odd && a.neg)
            out.v.Negate();
        return status;
    });
    if (c)
        e = err_overflow;
    return result;
}

} // namespace wide

#define TTMATH_HYPERBOLIC_FUNCTION(Name, which)                               \
    template<class ValueType>                                                 \
    ValueType Name(const ValueType & x, ErrorCode * err = 0)                  \
    {                                                                         \
        return wide::HyperbolicOf(wide::Hyperbolic::which, x, err);           \
    }

TTMATH_HYPERBOLIC_FUNCTION(Sinh, sinh)
TTMATH_HYPERBOLIC_FUNCTION(Cosh, cosh)
TTMATH_HYPERBOLIC_FUNCTION(Tanh, tanh)
TTMATH_HYPERBOLIC_FUNCTION(Coth, coth)
TTMATH_HYPERBOLIC_FUNCTION(ASinh, asinh)
TTMATH_HYPERBOLIC_FUNCTION(ACosh, acosh)
TTMATH_HYPERBOLIC_FUNCTION(ATanh, atanh)
TTMATH_HYPERBOLIC_FUNCTION(ACoth, acoth)

#undef TTMATH_HYPERBOLIC_FUNCTION

} // namespace ttmath

#endif
