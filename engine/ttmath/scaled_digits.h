// Digits in the bases that are not powers of two: the value is divided by base^n, n the
// exact digit exponent of its binary exponent, which leaves the integer digits of the
// mantissa in the quotient's integer part; then integers get zeros for the digits of
// their fraction, and other values may round off the last digit.
//
// The arithmetic runs in the type with one more exponent word (no power or quotient can
// leave its range) with the rounding of Pow and Div, which decides the last digits; the
// powers come from the cache, which gives Pow's words.
#ifndef TTMATH_SCALED_DIGITS_H
#define TTMATH_SCALED_DIGITS_H

#include <string>

#include "big.h"
#include "conv.h"
#include "digit_exponent.h"
#include "int_widen.h"
#include "integer_digits.h"
#include "power_cache.h"
#include "text_edits.h"

namespace ttmath {
namespace text {

// power = base^n as Pow(Int) gives it; returns Pow's carry.
template<uint exp, uint man>
uint BasePower(uint base, const Int<exp> & n, Big<exp, man> & power)
{
    Int<exp> magnitude(n);
    const bool negative = magnitude.IsSign();
    if (negative && magnitude.ChangeSign() == 0 && words::is_zero(magnitude.table + 1, exp - 1))
        return PowerCache<Big<exp, man>>::Power(base, magnitude.table[0], true, power);
    if (!negative && words::is_zero(magnitude.table + 1, exp - 1))
        return PowerCache<Big<exp, man>>::Power(base, magnitude.table[0], false, power);
    power.FromUInt(base);
    return power.Pow(n);
}

// The digits of the fraction of an integer are zeros: the last |X| digits (all of them
// if there are fewer) are overwritten, without rounding.
template<uint n>
void ZeroFractionDigits(std::string & digits, const Int<n> & exponent)
{
    if (!exponent.IsSign())
        return;
    Int<n> fraction(exponent);
    fraction.ChangeSign();
    std::size_t count = digits.size();
    if (fraction < Int<n>(static_cast<sint>(count)))
        count = static_cast<std::size_t>(fraction.table[0]);
    digits.replace(digits.size() - count, count, count, '0');
}

// True when rounding off the last digit is skipped: the value is an integer up to its
// last digit, or rounding would make it one (every fraction digit but the last is '0'
// and the last rounds down, or every one is base - 1 and the last rounds up).
template<uint n>
bool WouldBeInteger(const std::string & digits, const Int<n> & exponent, uint base)
{
    if (!exponent.IsSign() || exponent == Int<n>(-1))
        return true;
    const sint length = static_cast<sint>(digits.size());
    const bool beyond_digits = exponent < Int<n>(-length); // zeros between point and digits
    const std::size_t first = beyond_digits ? 0 : static_cast<std::size_t>(length + exponent.ToInt());
    char target = '0';
    if (RoundsUp(DigitValue(digits.back()), base)) {
        if (beyond_digits)
            return false;
        target = DigitChar(base - 1);
    }
    for (std::size_t i = first; i + 1 < digits.size(); ++i)
        if (digits[i] != target)
            return false;
    return true;
}

// Drops the last digit (it carries the error of the division) and rounds half up on it.
// Returns false when the exponent overflows.
template<uint n>
bool RoundOffLastDigit(std::string & digits, Int<n> & exponent, uint base, char comma)
{
    if (digits.size() < 2 || WouldBeInteger(digits, exponent, base))
        return true;
    const uint dropped = DigitValue(digits.back());
    digits.pop_back();
    if (exponent.AddOne())
        return false;
    if (RoundsUp(dropped, base))
        AddOneUnit(digits, base, comma);
    return true;
}

// One attempt with the digit exponent n; false when the quotient lies outside
// [1, 2^N) or any step carries.
template<uint exp, uint man>
bool ScaledDigitsWith(const Big<exp, man> & x, const Conv & conv, const Int<exp + 1> & n, std::string & digits,
                      Int<exp + 1> & exponent)
{
    typedef Big<exp + 1, man> Wide;
    exponent = n;
    Wide power;
    uint c = BasePower(conv.base, n, power);

    Wide scaled;
    scaled.info = 0;
    scaled.mantissa = x.mantissa;
    scaled.exponent = Widen(x.exponent);
    c += scaled.Div(power);
    if (c)
        return false;
    const Int<exp + 1> & e = scaled.exponent;
    if (e > Int<exp + 1>(0) || e <= Int<exp + 1>(-static_cast<sint>(Wide::mantissa_bits)))
        return false;

    // the integer part of the quotient
    UInt<man> integer(scaled.mantissa);
    integer.Rcr(uint(0) - static_cast<uint>(e.ToInt()));
    digits.clear();
    AppendUIntDigits<man>(digits, integer.table, conv.base);

    if (x.IsInteger())
        ZeroFractionDigits(digits, exponent);
    else if (conv.base_round)
        return RoundOffLastDigit(digits, exponent, conv.base, FieldChar(conv.comma));
    return true;
}

// Digits D and exponent X with |value| ~ D * base^X. A digit exponent one too small
// would leave a quotient of 2^N or more; the second attempt with n + 1 covers it.
template<uint exp, uint man>
bool ScaledDigits(const Big<exp, man> & x, const Conv & conv, std::string & digits, Int<exp + 1> & exponent)
{
    Int<exp + 1> n = DigitExponent(x.exponent, conv.base);
    if (ScaledDigitsWith(x, conv, n, digits, exponent))
        return true;
    return n.AddOne() == 0 && ScaledDigitsWith(x, conv, n, digits, exponent);
}

} // namespace text
} // namespace ttmath

#endif
