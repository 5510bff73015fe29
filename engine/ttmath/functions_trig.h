// Sin, Cos, Tan and Cot, correctly rounded, with the library's codes: a NaN argument
// gives err_improper_argument (the argument is returned), Cot(0) gives
// err_improper_argument, and arguments at or beyond 2^trig_reduction_limit_bits give
// err_overflow. Every other argument succeeds: the reduction is exact, so poles and
// zeros are never hit by a representable argument other than 0.
#ifndef TTMATH_FUNCTIONS_TRIG_H
#define TTMATH_FUNCTIONS_TRIG_H

#include "trig_kernels.h"
#include "trig_reduction.h"

namespace ttmath {
namespace wide {

enum class Trig { sin, cos, tan, cot };

// The function of a reduced argument in the given quadrant, at n words.
template<std::size_t C>
uint TrigOfReduced(WideFloat<C> & v, Trig which, const WideFloat<C> & r, unsigned quadrant, std::size_t n)
{
    const bool odd = (quadrant & 1) != 0;
    const bool both = which == Trig::tan || which == Trig::cot;
    const bool need_sin = both || ((which == Trig::sin) != odd);
    const bool need_cos = both || ((which == Trig::sin) == odd);
    SinCos<C> sc(r, n, need_sin, need_cos);
    switch (which) {
    case Trig::sin:
        v = odd ? sc.cos : sc.sin;
        if (quadrant >= 2)
            v.Negate();
        return odd ? sc.cos_err : sc.sin_err;
    case Trig::cos:
        v = odd ? sc.sin : sc.cos;
        if (quadrant == 1 || quadrant == 2)
            v.Negate();
        return odd ? sc.sin_err : sc.cos_err;
    case Trig::tan:
        if (odd) {
            Div(v, sc.cos, sc.sin, n);
            v.Negate();
        } else {
            Div(v, sc.sin, sc.cos, n);
        }
        return 2 * (sc.sin_err + sc.cos_err) + 4;
    default:
        if (odd) {
            Div(v, sc.sin, sc.cos, n);
            v.Negate();
        } else {
            Div(v, sc.cos, sc.sin, n);
        }
        return 2 * (sc.sin_err + sc.cos_err) + 4;
    }
}

// The normalised argument itself (sin, tan of tiny arguments).
template<uint exp, uint man>
Big<exp, man> ArgumentValue(const Argument<exp, man> & a)
{
    Big<exp, man> r;
    Rounded<man> m;
    words::copy(m.m, a.m, man);
    m.lead = 0;
    StoreRounded(r, m, a.neg, a.lead);
    return r;
}

// 1/x for |x| below 2^-moderate_exponent (cot of tiny arguments): its perturbation
// x/3 is far below any precision.
template<uint exp, uint man>
uint ReciprocalOfTiny(Big<exp, man> & result, const Argument<exp, man> & a)
{
    return RoundCorrectly(result, [&](std::size_t n, Approximation<exp, man> & out) -> uint {
        typename Work<exp, man>::Float m, one;
        a.MantissaToWide(m, n + 1);
        one.SetOne(n + 1);
        Div(out.v, one, m, n + 1);
        out.v.neg = a.neg;
        out.offset = a.lead;
        out.offset.ChangeSign();
        out.err = 4;
        return 0;
    });
}

// The code Tan and Cot give beyond the reduction limit, as the library decides it: its
// reduction x mod 2 pi (with the truncated pi, for Tan applied to x + pi/2) either
// fails (err_overflow) or leaves a remainder <= 0, a sine of exactly 0 that makes the
// quotient improper (err_improper_argument).
template<uint exp, uint man>
ErrorCode HugeTanCotCode(Trig which, const Big<exp, man> & x)
{
    Big<exp, man> y(x), two_pi;
    y.Abs();
    if (which == Trig::tan) {
        Big<exp, man> half_pi;
        half_pi.Set05Pi();
        if (y.Add(half_pi))
            return err_overflow;
    }
    two_pi.Set2Pi();
    if (y.Mod(two_pi) || !y.SmallerWithoutSignThan(two_pi))
        return err_overflow;
    return y.IsZero() || y.IsSign() ? err_improper_argument : err_overflow;
}

template<uint exp, uint man>
Big<exp, man> TrigOf(Trig which, const Big<exp, man> & x, ErrorCode * err)
{
    typedef Work<exp, man> W;
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
    if (a.zero && which == Trig::cot && !x.IsZero()) {
        // A zero mantissa without the zero flag. Its words compare below pi/4 when its
        // exponent is low: then the library's sine leaves it as it is and its cosine is
        // 1, so the cotangent is the quotient 1 / x. Otherwise the library's reduction
        // of the words fails.
        B quarter_pi, ax(x);
        quarter_pi.Set05Pi();
        quarter_pi.exponent.SubOne();
        ax.Abs();
        if (!(ax < quarter_pi)) {
            e = err_overflow;
            return result;
        }
        result.SetOne();
        e = result.Div(x) ? err_overflow : err_ok;
        return result;
    }
    if (a.zero) {
        if (which == Trig::cot)
            e = err_improper_argument;
        else if (which == Trig::cos)
            result.SetOne();
        else
            result.SetZero();
        return result;
    }
    const sint bits = static_cast<sint>(B::mantissa_bits);
    sint lead;
    if (!a.Moderate(lead))
        lead = a.CompareLead(0) > 0 ? moderate_exponent + 1 : -moderate_exponent - 1;
    if (lead > static_cast<sint>(trig_reduction_limit_bits)) {
        e = which == Trig::tan || which == Trig::cot ? HugeTanCotCode(which, x) : err_overflow;
        return result;
    }
    // |x| < 2^-(P/2 + 4): sin x and tan x round to x, cos x to 1
    if (lead <= -(bits / 2 + 4) && which != Trig::cot) {
        if (which == Trig::cos)
            result.SetOne();
        else
            result = ArgumentValue(a);
        return result;
    }
    if (lead < -moderate_exponent) {
        ReciprocalOfTiny(result, a);
        return result;
    }
    uint c = RoundCorrectly(result, [&](std::size_t n, Approximation<exp, man> & out) -> uint {
        typename W::Float r;
        unsigned quadrant = 0;
        if (lead <= -1) {
            a.ToWide(r, n);
            r.neg = false;
        } else if (!ReduceQuarterTurns(r, quadrant, a, lead, n)) {
            return 1;
        }
        out.err = TrigOfReduced(out.v, which, r, quadrant, n) + 8;
        if (a.neg && which != Trig::cos)
            out.v.Negate();
        return 0;
    });
    if (c)
        e = err_overflow;
    return result;
}

} // namespace wide

template<class ValueType>
ValueType Sin(ValueType x, ErrorCode * err = 0)
{
    return wide::TrigOf(wide::Trig::sin, x, err);
}

template<class ValueType>
ValueType Cos(ValueType x, ErrorCode * err = 0)
{
    return wide::TrigOf(wide::Trig::cos, x, err);
}

template<class ValueType>
ValueType Tan(const ValueType & x, ErrorCode * err = 0)
{
    return wide::TrigOf(wide::Trig::tan, x, err);
}

template<class ValueType>
ValueType Cot(const ValueType & x, ErrorCode * err = 0)
{
    return wide::TrigOf(wide::Trig::cot, x, err);
}

} // namespace ttmath

#endif
