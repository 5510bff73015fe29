// Angle conversions between degrees, radians and grads, and from degrees, minutes and
// seconds. Each is a fixed sequence of rounded multiplications and divisions with the
// built-in (truncated) pi, so DegToRad(180) is exactly SetPi().
#ifndef TTMATH_ANGLES_H
#define TTMATH_ANGLES_H

#include "big.h"

namespace ttmath {
namespace detail {

const int degrees_half_turn = 180;
const int grads_half_turn = 200;
const int minutes_per_degree = 60;
const int seconds_per_degree = 3600;

inline void SetError(ErrorCode * err, uint c)
{
    if (err)
        *err = c ? err_overflow : err_ok;
}

// (x / divisor) * pi
template<class ValueType>
ValueType ToRadians(const ValueType & x, int divisor, ErrorCode * err)
{
    if (x.IsNan()) {
        if (err)
            *err = err_improper_argument;
        return x;
    }
    ValueType result(x), pi;
    pi.SetPi();
    uint c = result.Div(ValueType(divisor));
    c += result.Mul(pi);
    SetError(err, c);
    return result;
}

// (factor * x) / pi
template<class ValueType>
ValueType FromRadians(const ValueType & x, int factor, ErrorCode * err)
{
    if (x.IsNan()) {
        if (err)
            *err = err_improper_argument;
        return x;
    }
    ValueType result(factor), pi;
    pi.SetPi();
    uint c = result.Mul(x);
    c += result.Div(pi);
    SetError(err, c);
    return result;
}

// (x * factor) / divisor
template<class ValueType>
ValueType Rescale(const ValueType & x, int factor, int divisor, ErrorCode * err)
{
    if (x.IsNan()) {
        if (err)
            *err = err_improper_argument;
        return x;
    }
    ValueType result(x);
    uint c = result.Mul(ValueType(factor));
    c += result.Div(ValueType(divisor));
    SetError(err, c);
    return result;
}

} // namespace detail

template<class ValueType>
ValueType DegToRad(const ValueType & x, ErrorCode * err = 0)
{
    return detail::ToRadians(x, detail::degrees_half_turn, err);
}

template<class ValueType>
ValueType GradToRad(const ValueType & x, ErrorCode * err = 0)
{
    return detail::ToRadians(x, detail::grads_half_turn, err);
}

template<class ValueType>
ValueType RadToDeg(const ValueType & x, ErrorCode * err = 0)
{
    return detail::FromRadians(x, detail::degrees_half_turn, err);
}

template<class ValueType>
ValueType RadToGrad(const ValueType & x, ErrorCode * err = 0)
{
    return detail::FromRadians(x, detail::grads_half_turn, err);
}

template<class ValueType>
ValueType DegToGrad(const ValueType & x, ErrorCode * err = 0)
{
    return detail::Rescale(x, detail::grads_half_turn, detail::degrees_half_turn, err);
}

template<class ValueType>
ValueType GradToDeg(const ValueType & x, ErrorCode * err = 0)
{
    return detail::Rescale(x, detail::degrees_half_turn, detail::grads_half_turn, err);
}

// d + (60 m + s) / 3600 with the sign of d; m and s must not be negative.
template<class ValueType>
ValueType DegToDeg(const ValueType & d, const ValueType & m, const ValueType & s, ErrorCode * err = 0)
{
    if (d.IsNan() || m.IsNan() || s.IsNan() || m.IsSign() || s.IsSign()) {
        if (err)
            *err = err_improper_argument;
        ValueType nan;
        nan.SetZeroNan();
        return nan;
    }
    ValueType fraction(detail::minutes_per_degree);
    uint c = fraction.Mul(m);
    c += fraction.Add(s);
    c += fraction.Div(ValueType(detail::seconds_per_degree));
    if (d.IsSign())
        fraction.ChangeSign();
    c += fraction.Add(d);
    detail::SetError(err, c);
    return fraction;
}

template<class ValueType>
ValueType DegToRad(const ValueType & d, const ValueType & m, const ValueType & s, ErrorCode * err = 0)
{
    ValueType degrees = DegToDeg(d, m, s, err);
    if (err && *err != err_ok)
        return degrees;
    return DegToRad(degrees, err);
}

template<class ValueType>
ValueType DegToGrad(const ValueType & d, const ValueType & m, const ValueType & s, ErrorCode * err = 0)
{
    ValueType degrees = DegToDeg(d, m, s, err);
    if (err && *err != err_ok)
        return degrees;
    return DegToGrad(degrees, err);
}

} // namespace ttmath

#endif
