// ASin, ACos, ATan and ACot, correctly rounded, all through atan of an argument in
// (0, 1] (atan_kernel.h):
//   atan x  = atan |x| or pi/2 - atan(1/|x|), with the sign of x;
//   asin x  = atan(|x| / c) or pi/2 - atan(c / |x|), c = sqrt((1 - |x|)(1 + |x|)) from the
//             exact 1 - |x|, so arguments next to 1 lose nothing;
//   acos x  = pi/2 - asin x, arranged so that nothing cancels (atan(c / x) near 1);
//   acot x  = pi/2 - atan x, likewise (atan(1/x) for x >= 1).
// The library's codes: NaN -> err_improper_argument (the argument is returned), |x| > 1
// -> err_improper_argument for ASin and ACos; ATan and ACot report nothing. Exact
// results that are constants of the class: asin(+-1) and acos(0) are Set05Pi's value,
// acos(-1) is SetPi's (acot(0) is pi/2 correctly rounded).
#ifndef TTMATH_FUNCTIONS_INVERSE_TRIG_H
#define TTMATH_FUNCTIONS_INVERSE_TRIG_H

#include "atan_kernel.h"
#include "functions_trig.h"

namespace ttmath {
namespace wide {

enum class InverseTrig { asin, acos, atan, acot };

// The angle k pi/2 + sign * atan(t) for t in (0, 1], at n words; returns its error.
template<std::size_t C>
uint QuarterTurnsPlusATan(WideFloat<C> & v, unsigned half_pis, bool subtract, const WideFloat<C> & t, std::size_t n)
{
    WideFloat<C> a, base;
    uint err = ATanUnit(a, t, n + 1);
    if (half_pis == 0) {
        v = a;
        v.Resize(n + 1);
        return err;
    }
    LoadConstant(base, Short().pi, n + 2);
    if (half_pis == 1)
        base.Shift(-1);
    if (subtract)
        Sub(v, base, a, n + 1);
    else
        Add(v, base, a, n + 1);
    // the result is at least pi/4: atan's error shrinks or stays
    return err + 4;
}

// The approximation of f(x) for a moderate, non-zero x (|x| < 1 for asin and acos).
template<uint exp, uint man>
uint InverseTrigOfArgument(Approximation<exp, man> & out, InverseTrig which, const Argument<exp, man> & a,
                           std::size_t n)
{
    typedef typename Work<exp, man>::Float Float;
    Float x, t, one, c, d, s;
    a.ToWide(x, n + 1);
    x.neg = false;
    one.SetOne(n + 1);
    const bool neg = a.neg;
    if (which == InverseTrig::atan || which == InverseTrig::acot) {
        const bool big = CompareAbs(x, one) > 0;
        if (big)
            Div(t, one, x, n + 1);
        else
            t = x;
        if (which == InverseTrig::atan) {
            out.err = big ? QuarterTurnsPlusATan(out.v, 1, true, t, n) : QuarterTurnsPlusATan(out.v, 0, false, t, n);
            out.v.neg = neg;
        } else if (!neg) {
            // acot x = atan(1/x) for x >= 1, pi/2 - atan x below
            out.err = big ? QuarterTurnsPlusATan(out.v, 0, false, t, n) : QuarterTurnsPlusATan(out.v, 1, true, t, n);
        } else {
            // acot(-x) = pi - atan(1/x) for x >= 1, pi/2 + atan x below
            out.err = big ? QuarterTurnsPlusATan(out.v, 2, true, t, n) : QuarterTurnsPlusATan(out.v, 1, false, t, n);
        }
        out.err += 4;
        return 0;
    }
    // c = sqrt((1 - x)(1 + x)); 1 - x is exact
    Sub(d, one, x, n + 1);
    Add(s, one, x, n + 1);
    Mul(d, d, s, n + 1);
    Sqrt(c, d, n + 1);
    const bool steep = CompareAbs(x, c) > 0; // |x| > 1/sqrt(2)
    if (steep)
        Div(t, c, x, n + 1);
    else
        Div(t, x, c, n + 1);
    if (which == InverseTrig::asin) {
        out.err = steep ? QuarterTurnsPlusATan(out.v, 1, true, t, n) : QuarterTurnsPlusATan(out.v, 0, false, t, n);
        out.v.neg = neg;
    } else if (!neg) {
        out.err = steep ? QuarterTurnsPlusATan(out.v, 0, false, t, n) : QuarterTurnsPlusATan(out.v, 1, true, t, n);
    } else {
        // acos(-x) = pi - acos x
        out.err = steep ? QuarterTurnsPlusATan(out.v, 2, true, t, n) : QuarterTurnsPlusATan(out.v, 1, false, t, n);
    }
    out.err += 40;
    return 0;
}

// A constant of the working precision: pi/2 or pi, plus a tiny amount far below it
// that only needs to be within the error bound.
template<uint exp, uint man>
uint HalfPis(Approximation<exp, man> & out, unsigned half_pis, bool negative, std::size_t n)
{
    LoadConstant(out.v, Short().pi, n + 1);
    if (half_pis == 1)
        out.v.Shift(-1);
    out.v.neg = negative;
    out.err = 4;
    return 0;
}

template<uint exp, uint man>
Big<exp, man> InverseTrigOf(InverseTrig which, const Big<exp, man> & x, ErrorCode * err)
{
    typedef Big<exp, man> B;
    B result;
    ErrorCode unreported;
    ErrorCode & e = err ? *err : unreported;
    e = err_ok;
    if (x.IsNan()) {
        if (which == InverseTrig::asin || which == InverseTrig::acos)
            e = err_improper_argument;
        if (which == InverseTrig::acot) {
            result.Set05Pi();
            result.SetNan();
            return result;
        }
        return x;
    }
    Argument<exp, man> a(x);
    const sint bits = static_cast<sint>(B::mantissa_bits);
    const bool bounded = which == InverseTrig::asin || which == InverseTrig::acos;
    if (a.zero) {
        if (which == InverseTrig::acos)
            result.Set05Pi();
        else if (which == InverseTrig::acot)
            RoundCorrectly(result, [&](std::size_t n, Approximation<exp, man> & out) -> uint { return HalfPis(out, 1, false, n); });
        else
            result.SetZero();
        return result;
    }
    if (bounded) {
        const int above_one = a.CompareLead(1) > 0 ? 1 : a.CompareLead(1) < 0 ? -1 : (a.IsOneMagnitude() ? 0 : 1);
        if (above_one > 0) {
            e = err_improper_argument;
            result.SetZero();
            result.SetNan();
            return result;
        }
        if (above_one == 0) {
            if (which == InverseTrig::asin) {
                result.Set05Pi();
                if (a.neg)
                    result.SetSign();
            } else if (a.neg) {
                result.SetPi();
            } else {
                result.SetZero();
            }
            return result;
        }
    }
    sint lead;
    const bool moderate = a.Moderate(lead);
    // tiny |x|: asin and atan round to x; acos and acot to pi/2 (minus x, far below)
    if ((!moderate && a.CompareLead(0) < 0) || (moderate && lead <= -(bits / 2 + 4))) {
        if (which == InverseTrig::asin || which == InverseTrig::atan)
            return ArgumentValue(a);
        if (!moderate)
            RoundCorrectly(result, [&](std::size_t n, Approximation<exp, man> & out) -> uint { return HalfPis(out, 1, false, n); });
        else
            RoundCorrectly(result, [&](std::size_t n, Approximation<exp, man> & out) -> uint {
                return InverseTrigOfArgument(out, which, a, n);
            });
        return result;
    }
    if (!moderate) {
        // huge |x| (atan, acot only): pi/2 - 1/x
        if (which == InverseTrig::atan) {
            RoundCorrectly(result, [&](std::size_t n, Approximation<exp, man> & out) -> uint { return HalfPis(out, 1, a.neg, n); });
        } else if (a.neg) {
            RoundCorrectly(result, [&](std::size_t n, Approximation<exp, man> & out) -> uint { return HalfPis(out, 2, false, n); });
        } else if (ReciprocalOfTiny(result, a)) {
            // 1/x below the range: the library's 0
            result.SetZero();
        }
        return result;
    }
    RoundCorrectly(result, [&](std::size_t n, Approximation<exp, man> & out) -> uint {
        return InverseTrigOfArgument(out, which, a, n);
    });
    return result;
}

} // namespace wide

template<class ValueType>
ValueType ASin(ValueType x, ErrorCode * err = 0)
{
    return wide::InverseTrigOf(wide::InverseTrig::asin, x, err);
}

template<class ValueType>
ValueType ACos(const ValueType & x, ErrorCode * err = 0)
{
    return wide::InverseTrigOf(wide::InverseTrig::acos, x, err);
}

template<class ValueType>
ValueType ATan(ValueType x)
{
    return wide::InverseTrigOf(wide::InverseTrig::atan, x, 0);
}

template<class ValueType>
ValueType ACot(const ValueType & x)
{
    return wide::InverseTrigOf(wide::InverseTrig::acot, x, 0);
}

} // namespace ttmath

#endif
