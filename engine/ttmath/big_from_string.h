// Big::FromString: reads a number from text.
//
//   number   = WS [sign] WS integer [radix fraction] [exponent]
//   integer  = { digit | group }        fraction = { digit | group2 }
//   exponent = WS ("e" | "E") WS [sign] WS decimal-digit { decimal-digit }
//
// WS is any run of space, tab, CR and LF. The radix point is conv.comma, or conv.comma2
// when that is not 0; a separator is skipped where it is not 0; the exponent exists only
// in base 10 and after at least one mantissa digit. The text ends at its NUL, which
// matches no character of the record (a comma of 0 means there is no radix point).
//
// The integer digits accumulate with rounding at every step; the fraction digits
// accumulate separately until the sum reaches the mantissa's width (later digits are
// passed over), are divided by base^count and added; the exponent multiplies by the
// power of ten, a reciprocal for a negative exponent. A failure sets the NaN flag on
// whatever the value holds and returns 1; an empty or digitless text is no failure.
#ifndef TTMATH_BIG_FROM_STRING_H
#define TTMATH_BIG_FROM_STRING_H

#include <string>

#include "big.h"
#include "digit_accumulator.h"
#include "power_cache.h"

namespace ttmath {
namespace text {

inline const char * SkipWhiteSpace(const char * p)
{
    while (IsWhiteSpace(*p))
        ++p;
    return p;
}

inline bool IsRadix(char c, const Conv & conv)
{
    return c != '\0' && (c == FieldChar(conv.comma) || (conv.comma2 != 0 && c == FieldChar(conv.comma2)));
}

// power = 10^exponent as Pow gives it for an exponent read from text: the integer power
// for |exponent| < 2^N, otherwise a failure (the power is then far outside the range).
template<uint exp, uint man>
uint DecimalPower(const Big<exp, man> & exponent, Big<exp, man> & power)
{
    typedef Big<exp, man> Value;
    power.FromUInt(decimal_base);
    if (exponent.IsNan())
        return power.CheckCarry(1);
    const bool integer_path = exponent.exponent <= Int<exp>(0) &&
                              exponent.exponent > Int<exp>(-static_cast<sint>(Value::mantissa_bits)) &&
                              exponent.IsInteger();
    if (!integer_path)
        return power.CheckCarry(1);

    UInt<man> magnitude(exponent.mantissa);
    magnitude.Rcr(uint(0) - static_cast<uint>(exponent.exponent.ToInt()));
    if (exponent.IsZero() || words::is_zero(magnitude.table + 1, man - 1)) {
        const uint u = exponent.IsZero() ? 0 : magnitude.table[0];
        return PowerCache<Value>::Power(decimal_base, u, exponent.IsSign(), power);
    }
    return power.PowInt(exponent);
}

} // namespace text

template<uint exp, uint man>
uint Big<exp, man>::FromString(const char * source, const Conv & conv, const char ** after_source, bool * value_read)
{
    using namespace text;
    const uint base = conv.base;
    if (!IsValidBase(base)) {
        SetNan();
        if (after_source)
            *after_source = source;
        if (value_read)
            *value_read = false;
        return 1;
    }

    SetZero();
    const char * p = SkipWhiteSpace(source);
    const bool negative = *p == '-';
    if (*p == '-' || *p == '+')
        ++p;
    p = SkipWhiteSpace(p);

    uint carry = 0;
    const DigitRun integer_run = {base, conv.group != 0, FieldChar(conv.group)};
    const char * end = integer_run.End(p);
    Accumulated part = DigitAccumulator<exp, man>::Read(integer_run, p, end, RunKind::whole, *this);
    bool read = part.digits != 0 || part.carry != 0;
    carry += part.carry;
    p = part.stop;

    if (IsRadix(*p, conv)) {
        ++p;
        const DigitRun fraction_run = {base, conv.group2 != 0, FieldChar(conv.group2)};
        end = fraction_run.End(p);
        Big fraction;
        part = DigitAccumulator<exp, man>::Read(fraction_run, p, end, RunKind::until_full, fraction);
        read = read || part.digits != 0;
        carry += part.carry;
        p = part.stop;
        while (fraction_run.IsDigit(*p))
            ++p;
        Big power;
        carry += PowerCache<Big>::Power(base, part.digits, false, power);
        carry += fraction.Div(power);
        carry += Add(fraction);
    }

    if (read && base == decimal_base) {
        const char * q = SkipWhiteSpace(p);
        if (*q == 'e' || *q == 'E') {
            q = SkipWhiteSpace(q + 1);
            const bool negative_exponent = *q == '-';
            if (*q == '-' || *q == '+')
                ++q;
            q = SkipWhiteSpace(q);
            const DigitRun exponent_run = {decimal_base, false, '\0'};
            end = exponent_run.End(q);
            if (end != q) {
                Big exponent_value;
                part = DigitAccumulator<exp, man>::Read(exponent_run, q, end, RunKind::whole, exponent_value);
                carry += part.carry;
                p = part.stop;
                if (negative_exponent)
                    exponent_value.ChangeSign();
                Big power;
                carry += DecimalPower(exponent_value, power);
                carry += Mul(power);
            }
        }
    }

    if (negative && !IsZero())
        ChangeSign();
    if (after_source)
        *after_source = p;
    if (value_read)
        *value_read = read;
    return CheckCarry(carry);
}

template<uint exp, uint man>
uint Big<exp, man>::FromString(const char * source, uint base, const char ** after_source, bool * value_read)
{
    Conv conv;
    conv.base = base;
    return FromString(source, conv, after_source, value_read);
}

template<uint exp, uint man>
uint Big<exp, man>::FromString(const std::string & string, const Conv & conv, const char ** after_source,
                               bool * value_read)
{
    return FromString(string.c_str(), conv, after_source, value_read);
}

template<uint exp, uint man>
uint Big<exp, man>::FromString(const std::string & string, uint base, const char ** after_source, bool * value_read)
{
    return FromString(string.c_str(), base, after_source, value_read);
}

} // namespace ttmath

#endif
