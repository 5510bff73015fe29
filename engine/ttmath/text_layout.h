// The text of a number from its digits D and exponent X, |value| = D * base^X with D read
// as an integer: plain or scientific form, then rounding, trimming and grouping. The sign
// is added by the caller.
#ifndef TTMATH_TEXT_LAYOUT_H
#define TTMATH_TEXT_LAYOUT_H

#include <string>

#include "conv.h"
#include "int.h"
#include "integer_digits.h"
#include "text_edits.h"

namespace ttmath {
namespace text {

// Plain form pads with as many zeros as the exponent says; beyond this many the text
// is not written and the conversion fails instead (the extreme values would need
// about 10^18 zeros in a 256-bit number and 10^153 in a 2048-bit one).
const uint max_padding_zeros = uint(1) << 24;

// |value| as a count when it is a non-negative number up to max_padding_zeros.
template<uint n>
bool PaddingCount(const Int<n> & value, uint & count)
{
    if (value.IsSign() || value > Int<n>(static_cast<sint>(max_padding_zeros)))
        return false;
    count = value.table[0];
    return true;
}

// Rounding and trimming, for texts that have a radix point.
inline void FinishFraction(std::string & text, const Conv & conv)
{
    const char comma = FieldChar(conv.comma);
    if (conv.round >= 0)
        RoundAfterComma(text, conv.round, conv.base, comma);
    if (conv.trim_zeroes)
        TrimZeroes(text, comma);
}

// S = X + len(D) - 1, the exponent of the leading digit.
template<uint n>
bool LeadingExponent(const std::string & digits, const Int<n> & exponent, Int<n> & leading)
{
    leading = exponent;
    return leading.Add(Int<n>(static_cast<sint>(digits.size()) - 1)) == 0;
}

// Scientific form when asked for, or when the leading exponent lies beyond
// +-scient_from. The comparison uses the wide exponent type, where -scient_from exists
// for every scient_from.
template<uint n>
bool IsScientific(const Int<n> & leading, const Conv & conv)
{
    if (conv.scient)
        return true;
    Int<n> limit(conv.scient_from);
    Int<n> negative_limit(limit);
    negative_limit.ChangeSign();
    return leading > limit || leading < negative_limit;
}

// D followed by X zeros, or D with a radix point |X| digits from its end, or "0", the
// radix point, |X| - len(D) zeros and D.
template<uint n>
bool PlainText(const std::string & digits, const Int<n> & exponent, const Conv & conv, std::string & text)
{
    const char comma = FieldChar(conv.comma);
    const sint length = static_cast<sint>(digits.size());
    uint zeros = 0;
    if (!exponent.IsSign()) {
        if (!PaddingCount(exponent, zeros))
            return false;
        text = digits;
        text.append(zeros, '0');
    } else if (exponent > Int<n>(-length)) {
        const std::size_t point = digits.size() - static_cast<std::size_t>(-exponent.ToInt());
        text.assign(digits, 0, point);
        text += comma;
        text.append(digits, point, std::string::npos);
        FinishFraction(text, conv);
    } else {
        Int<n> padding(exponent);
        padding.ChangeSign();
        padding.SubInt(static_cast<uint>(length));
        if (!PaddingCount(padding, zeros))
            return false;
        text = zero_text;
        text += comma;
        text.append(zeros, '0');
        text += digits;
        FinishFraction(text, conv);
    }
    GroupDigits(text, conv);
    return true;
}

// One digit, the radix point and the other digits, then the exponent of the leading digit:
// "e+S" / "e-S" in base 10, "*10^S" with S in the base for other bases.
template<uint n>
void ScientificText(const std::string & digits, const Int<n> & leading, const Conv & conv, std::string & text)
{
    text.assign(digits, 0, 1);
    if (digits.size() > 1) {
        text += FieldChar(conv.comma);
        text.append(digits, 1, std::string::npos);
        FinishFraction(text, conv);
    }
    GroupDigits(text, conv);
    if (conv.base == decimal_base) {
        text += decimal_exponent_mark;
        if (!leading.IsSign())
            text += '+';
    } else {
        text += power_exponent_mark;
    }
    AppendIntDigits<n>(text, leading, conv.base);
}

// The whole text but the sign; false when it cannot be written.
template<uint n>
bool LayOutText(const std::string & digits, const Int<n> & exponent, const Conv & conv, std::string & text)
{
    Int<n> leading;
    if (!LeadingExponent(digits, exponent, leading))
        return false;
    if (IsScientific(leading, conv)) {
        ScientificText(digits, leading, conv, text);
        return true;
    }
    return PlainText(digits, exponent, conv, text);
}

} // namespace text
} // namespace ttmath

#endif
