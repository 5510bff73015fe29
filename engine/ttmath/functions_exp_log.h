// Exp, Ln and Log, as members (status codes) and free functions (ErrorCode),
// correctly rounded. The checks and codes are the library's:
//   Exp: NaN -> 1; e^x outside the range (overflow or underflow) -> 1;
//   Ln:  NaN -> 1; x <= 0 -> 2;
//   Log: NaN -> 1; x <= 0 -> 2; base <= 0 or base = 1 -> 3; x = 1 -> 0 (before any
//        other work, so Log(1, b) is 0 for every valid b).
// A failed member call sets the NaN flag on the result.
#ifndef TTMATH_FUNCTIONS_EXP_LOG_H
#define TTMATH_FUNCTIONS_EXP_LOG_H

#include "exp_log_kernels.h"
#include "function_arguments.h"
#include "reference_exp_ln.h"

namespace ttmath {
namespace wide {

// e^x for an argument that is not zero, with the trivial ranges settled first.
template<uint exp, uint man>
uint ExpOfArgument(Big<exp, man> & result, const Big<exp, man> & x, const Argument<exp, man> & a)
{
    typedef Work<exp, man> W;
    const sint bits = static_cast<sint>(Big<exp, man>::mantissa_bits);
    // |x| < 2^-(P+2): e^x rounds to 1
    if (a.CompareLead(-(bits + 2)) <= 0) {
        result.SetOne();
        return 0;
    }
    // |x| >= 2^(64 exp + 2): far beyond both ends of the range
    if (a.CompareLead(static_cast<sint>(exp * word_bits) + 2) > 0) {
        result.SetNan();
        return 1;
    }
    uint c = RoundCorrectly(result, [&](std::size_t n, Approximation<exp, man> & out) -> uint {
        typename W::Float x;
        a.ToWide(x, n);
        return ExpSplit<exp, man>(out, x, n);
    });
    // Just outside the range the library's own rounding may still land inside it, and
    // its value is the answer there.
    if (c && a.NearRangeEdge())
        return ReferenceExp(result, x);
    return c;
}

// ln of an argument at n words into v, with its error bound.
template<uint exp, uint man>
uint LnToWide(typename Work<exp, man>::Float & v, const Argument<exp, man> & a, std::size_t n)
{
    typename Work<exp, man>::Float m;
    a.MantissaToWide(m, n);
    m.Shift(1);
    typename Work<exp, man>::Offset e(a.lead);
    e.SubOne();
    return LnSplit<exp, man>(v, m, e, n);
}

// ln x for x > 0, x != 1.
template<uint exp, uint man>
uint LnOfArgument(Big<exp, man> & result, const Argument<exp, man> & a)
{
    return RoundCorrectly(result, [&](std::size_t n, Approximation<exp, man> & out) -> uint {
        out.err = LnToWide(out.v, a, n);
        return 0;
    });
}

} // namespace wide

template<uint exp, uint man>
uint Big<exp, man>::Exp(const Big & x)
{
    if (x.IsNan())
        return CheckCarry(1);
    wide::Argument<exp, man> a(x);
    if (a.zero) {
        SetOne();
        return 0;
    }
    Big copy(x);
    return wide::ExpOfArgument(*this, copy, a);
}

template<uint exp, uint man>
uint Big<exp, man>::Ln(const Big & x)
{
    if (x.IsNan())
        return CheckCarry(1);
    wide::Argument<exp, man> a(x);
    if (x.IsZero() || x.IsSign()) {
        SetNan();
        return 2;
    }
    if (a.zero)
        return wide::ReferenceLn(*this, x);
    if (a.IsOne()) {
        SetZero();
        return 0;
    }
    return wide::LnOfArgument(*this, a);
}

template<uint exp, uint man>
uint Big<exp, man>::Log(const Big & x, const Big & base)
{
    if (x.IsNan() || base.IsNan())
        return CheckCarry(1);
    wide::Argument<exp, man> a(x), b(base);
    if (x.IsZero() || x.IsSign()) {
        SetNan();
        return 2;
    }
    if (base.IsZero() || base.IsSign() || b.IsOne()) {
        SetNan();
        return 3;
    }
    if (a.IsOne()) {
        SetZero();
        return 0;
    }
    if (a.zero || b.zero) {
        // a zero mantissa without the zero flag: the library's quotient of logarithms
        Big lb;
        uint c = wide::ReferenceLn(*this, x) + wide::ReferenceLn(lb, base);
        c += Div(lb);
        return CheckCarry(c);
    }
    typedef wide::Work<exp, man> W;
    return wide::RoundCorrectly(*this, [&](std::size_t n, wide::Approximation<exp, man> & out) -> uint {
        typename W::Float lx, lb;
        uint ex = wide::LnToWide(lx, a, n + 1);
        uint eb = wide::LnToWide(lb, b, n + 1);
        wide::Div(out.v, lx, lb, n + 1);
        out.err = 2 * (ex + eb) + 4;
        return 0;
    });
}

template<class ValueType>
ValueType Exp(const ValueType & x, ErrorCode * err = 0)
{
    if (x.IsNan()) {
        if (err)
            *err = err_improper_argument;
        return x;
    }
    ValueType result;
    uint c = result.Exp(x);
    if (err)
        *err = c ? err_overflow : err_ok;
    return result;
}

template<class ValueType>
ValueType Ln(const ValueType & x, ErrorCode * err = 0)
{
    if (x.IsNan()) {
        if (err)
            *err = err_improper_argument;
        return x;
    }
    ValueType result;
    uint c = result.Ln(x);
    if (err)
        *err = c == 0 ? err_ok : c == 1 ? err_overflow : err_improper_argument;
    return result;
}

template<class ValueType>
ValueType Log(const ValueType & x, const ValueType & base, ErrorCode * err = 0)
{
    if (x.IsNan()) {
        if (err)
            *err = err_improper_argument;
        return x;
    }
    if (base.IsNan()) {
        if (err)
            *err = err_improper_argument;
        return base;
    }
    ValueType result;
    uint c = result.Log(x, base);
    if (err)
        *err = c == 0 ? err_ok : c == 1 ? err_overflow : err_improper_argument;
    return result;
}

} // namespace ttmath

#endif
