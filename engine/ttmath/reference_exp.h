// The exponential as the library we replace computes it, bit for bit: its Taylor
// series at x (or at x's mantissa, followed by one squaring per integer bit), with its
// rounded operations and stopping rule. Only the edges of the exponent range use it:
// there the library's own rounding decides whether e^x (and so sinh, cosh, tanh and
// coth) fails, and what value it returns just outside the range.
#ifndef TTMATH_REFERENCE_EXP_H
#define TTMATH_REFERENCE_EXP_H

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

} // namespace wide
} // namespace ttmath

#endif
