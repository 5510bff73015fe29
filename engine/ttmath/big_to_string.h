// Big::ToString: the text of a value in a base from 2 to 16, as the conversion record
// asks. NaN is "NaN" in every base; an invalid base gives "overflow" and 1; zero is "0"
// whatever the other settings. Otherwise the digits come from the mantissa bits (bases
// 2, 4, 8, 16) or from a division by a power of the base (other bases), are laid out in
// plain or scientific form, and a '-' goes in front of a negative value.
#ifndef TTMATH_BIG_TO_STRING_H
#define TTMATH_BIG_TO_STRING_H

#include <string>

#include "big.h"
#include "bit_group_digits.h"
#include "scaled_digits.h"
#include "text_layout.h"

namespace ttmath {

template<uint exp, uint man>
uint Big<exp, man>::ToString(std::string & result, const Conv & conv) const
{
    result.clear();
    if (IsNan()) {
        result = text::nan_text;
        return 0;
    }
    if (!text::IsValidBase(conv.base)) {
        result = text::overflow_text;
        return 1;
    }
    if (IsZero()) {
        result = text::zero_text;
        return 0;
    }

    std::string digits;
    Int<exp + 1> exponent;
    bool written = true;
    if (unsigned bits = text::BitsPerDigit(conv.base))
        text::BitGroupDigits(*this, bits, digits, exponent);
    else
        written = text::ScaledDigits(*this, conv, digits, exponent);

    std::string body;
    if (written)
        written = text::LayOutText(digits, exponent, conv, body);
    if (!written) {
        result = text::overflow_text;
        return 1;
    }
    if (IsSign())
        result += '-';
    result += body;
    return 0;
}

template<uint exp, uint man>
uint Big<exp, man>::ToString(std::string & result, uint base, bool scient, sint scient_from, sint round,
                             bool trim_zeroes, char comma) const
{
    Conv conv;
    conv.base = base;
    conv.scient = scient;
    conv.scient_from = scient_from;
    conv.round = round;
    conv.trim_zeroes = trim_zeroes;
    conv.comma = static_cast<unsigned char>(comma);
    return ToString(result, conv);
}

template<uint exp, uint man>
std::string Big<exp, man>::ToString(const Conv & conv) const
{
    std::string result;
    ToString(result, conv);
    return result;
}

template<uint exp, uint man>
std::string Big<exp, man>::ToString(uint base) const
{
    Conv conv;
    conv.base = base;
    return ToString(conv);
}

} // namespace ttmath

#endif
