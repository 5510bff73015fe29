// Free-function forms of the sign and rounding operations, and of Mod.
#ifndef TTMATH_BASIC_FUNCTIONS_H
#define TTMATH_BASIC_FUNCTIONS_H

#include "big.h"

namespace ttmath {

template<class ValueType>
ValueType Abs(const ValueType & x)
{
    ValueType result(x);
    result.Abs();
    return result;
}

template<class ValueType>
ValueType Sgn(ValueType x)
{
    x.Sgn();
    return x;
}

template<class ValueType>
ValueType SkipFraction(const ValueType & x)
{
    ValueType result(x);
    result.SkipFraction();
    return result;
}

template<class ValueType>
ValueType Round(const ValueType & x, ErrorCode * err = 0)
{
    if (x.IsNan()) {
        if (err)
            *err = err_improper_argument;
        return x;
    }
    ValueType result(x);
    uint c = result.Round();
    if (err)
        *err = c ? err_overflow : err_ok;
    return result;
}

// Rounds toward plus infinity (ceiling) or minus infinity (floor).
template<class ValueType>
ValueType Ceil(const ValueType & x, ErrorCode * err = 0)
{
    if (x.IsNan()) {
        if (err)
            *err = err_improper_argument;
        return x;
    }
    ValueType result(x);
    result.SkipFraction();
    uint c = 0;
    if (result != x && !x.IsSign()) {
        ValueType one;
        one.SetOne();
        c += result.Add(one);
    }
    if (err)
        *err = c ? err_overflow : err_ok;
    return result;
}

template<class ValueType>
ValueType Floor(const ValueType & x, ErrorCode * err = 0)
{
    if (x.IsNan()) {
        if (err)
            *err = err_improper_argument;
        return x;
    }
    ValueType result(x);
    result.SkipFraction();
    uint c = 0;
    if (result != x && x.IsSign()) {
        ValueType one;
        one.SetOne();
        c += result.Sub(one);
    }
    if (err)
        *err = c ? err_overflow : err_ok;
    return result;
}

template<class ValueType>
ValueType Mod(ValueType a, const ValueType & b, ErrorCode * err = 0)
{
    if (a.IsNan() || b.IsNan()) {
        if (err)
            *err = err_improper_argument;
        a.SetNan();
        return a;
    }
    uint c = a.Mod(b);
    if (err)
        *err = c ? err_overflow : err_ok;
    return a;
}

} // namespace ttmath

#endif
