// The exponential and the logarithm as the library we replace computes them, bit for
// bit: their Taylor series (the exponential's at x, or at x's mantissa followed by one
// squaring per integer bit), with its rounded operations and stopping rule. Two places
// use them. At the edges of the exponent range the library's own rounding decides
// whether e^x (and so sinh, cosh, tanh and coth) fails, and what value it returns just
// outside the range. And a zero mantissa without the zero flag passes the library's
// checks of ln, log, acoth and fractional powers; what it then computes is the result.
#ifndef TTMATH_REFERENCE_EXP_LN_H
#define TTMATH_REFERENCE_EXP_LN_H

#include "big.h"
#include "work_meter.h"

namespace ttmath {
namespace wide {

// The library's series limit, and how often it compares the sum with an earlier one.
const uint reference_series_limit = TTMATH_ARITHMETIC_MAX_LOOP;
const uint reference_check_every = 4;

// 1 + y + y^2/2! + ...: running power and factorial, one rounded quotient per term;
// it stops when the sum equals the one four terms earlier, or on a carry.
template<uint exp, uint man>
Big<exp, man> ReferenceExpSeries(const Big<exp, man> & y)
{
    typedef Big<exp, man> B;
    B sum, numerator, denominator, old, term;
    sum.SetOne();
    numerator.SetOne();
    denominator.SetOne();
    old = sum;
    for (uint i = 1; i <= reference_series_limit; ++i) {
        Meter().Series(i);
        uint c = numerator.Mul(y);
        c += denominator.Mul(B(i));
        term = numerator;
        c += term.Div(denominator);
        if (c)
            break;
        if (sum.Add(term))
            break;
        if (i % reference_check_every == 0) {
            if (sum == old)
                break;
            old = sum;
        }
    }
    return sum;
}

// e^x for a non-zero x, as the library computes it; returns its status (1 on a carry).
template<uint exp, uint man>
uint ReferenceExp(Big<exp, man> & result, const Big<exp, man> & x)
{
    typedef Big<exp, man> B;
    // x = m 2^j with |m| in [1/2, 1), j = exponent + P
    Int<exp> j(x.exponent);
    uint c = j.Add(Int<exp>(static_cast<sint>(B::mantissa_bits)));
    if (j.IsSign() || j.IsZero()) {
        result = ReferenceExpSeries(x);
        return c;
    }
    B m(x);
    m.exponent = Int<exp>(-static_cast<sint>(B::mantissa_bits));
    result = ReferenceExpSeries(m);
    B power;
    power.SetOne();
    c += power.exponent.Add(j);
    c += result.PowUInt(power);
    return result.CheckCarry(c);
}

// 2 (z + z^3/3 + z^5/5 + ...) with z = (m - 1)/(m + 1): the library's series for ln m,
// with the same stopping rule.
template<uint exp, uint man>
Big<exp, man> ReferenceLnSeries(const Big<exp, man> & m)
{
    typedef Big<exp, man> B;
    B one, z, t, z2, power, sum, old, term;
    one.SetOne();
    sum.SetZero();
    if (m == one)
        return sum;
    z = m;
    z.Sub(one);
    t = m;
    t.Add(one);
    z.Div(t);
    z2 = z;
    z2.Mul(z);
    power = z;
    old = sum;
    for (uint i = 1; i <= reference_series_limit; ++i) {
        Meter().Series(i);
        term = power;
        uint c = term.Div(B(2 * i - 1));
        if (c)
            break;
        if (sum.Add(term))
            break;
        if (i % reference_check_every == 0) {
            if (sum == old)
                break;
            old = sum;
        }
        if (power.Mul(z2))
            break;
    }
    sum.exponent.AddOne();
    return sum;
}

// ln x as the library computes it (1 for NaN, 2 for a sign or the zero flag): the mantissa read
// as a number in [1, 2) and the exponent times its ln 2. The library's checks let some
// words through whose value is not positive (a zero mantissa without the zero flag);
// its result there is what this returns.
template<uint exp, uint man>
uint ReferenceLn(Big<exp, man> & result, const Big<exp, man> & x)
{
    typedef Big<exp, man> B;
    if (x.IsNan() || x.IsSign() || x.IsZero()) {
        result = x;
        result.SetNan();
        return x.IsNan() ? 1 : 2;
    }
    B m(x), e, ln2;
    m.exponent = Int<exp>(-static_cast<sint>(B::mantissa_bits - 1));
    e.FromInt(x.exponent);
    uint c = e.Add(B(static_cast<sint>(B::mantissa_bits - 1)));
    ln2.SetLn2();
    c += e.Mul(ln2);
    result = ReferenceLnSeries(m);
    c += result.Add(e);
    return result.CheckCarry(c);
}

} // namespace wide
} // namespace ttmath

#endif
