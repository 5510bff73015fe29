// Edits of a number's digit text, character by character: adding one unit in the last
// place, rounding to a number of digits after the radix point, trimming trailing zeros,
// and inserting group separators. The radix point is whatever character the conversion
// record names, so every edit finds it by comparison (the first occurrence counts) and
// the carry walks step over it.
#ifndef TTMATH_TEXT_EDITS_H
#define TTMATH_TEXT_EDITS_H

#include <string>

#include "conv.h"
#include "text_chars.h"

namespace ttmath {
namespace text {

// Adds one unit in the last digit: walks leftwards over the radix character, turning a
// digit that reaches the base into '0' and carrying; a carry off the front becomes a
// leading '1'.
inline void AddOneUnit(std::string & text, uint base, char comma)
{
    for (std::size_t i = text.size(); i-- > 0;) {
        if (text[i] == comma)
            continue;
        uint v = DigitValue(text[i]) + 1;
        if (v < base) {
            text[i] = DigitChar(v);
            return;
        }
        text[i] = '0';
    }
    text.insert(text.begin(), '1');
}

// True when a dropped digit of this value makes the kept digits round up: at least
// base / 2 (integer division, so odd bases round up a little below the true half).
inline bool RoundsUp(uint digit, uint base)
{
    return digit >= base / 2;
}

// Keeps at most `round` (>= 0) digits after the first radix character, rounding half up
// on the first dropped digit; with round 0 the radix character goes as well.
inline void RoundAfterComma(std::string & text, sint round, uint base, char comma)
{
    const std::size_t point = text.find(comma);
    if (point == std::string::npos)
        return;
    const std::size_t after = text.size() - point - 1;
    if (static_cast<uint>(round) >= after)
        return;
    const std::size_t first_dropped = point + 1 + static_cast<std::size_t>(round);
    const uint dropped = DigitValue(text[first_dropped]);
    text.erase(round == 0 ? point : first_dropped);
    if (RoundsUp(dropped, base))
        AddOneUnit(text, base, comma);
}

// Removes trailing zeros that follow the radix character, and the radix character when
// nothing follows it any more. The first character is never looked at.
inline void TrimZeroes(std::string & text, char comma)
{
    if (text.size() < 2 || text.back() != '0')
        return;
    std::size_t last = text.size() - 1; // the last character that is not '0', or 0
    while (last > 0 && text[last] == '0')
        --last;
    const std::size_t point = text.find(comma);
    if (point == std::string::npos || point > last)
        return;
    text.erase(text[last] == comma ? last : last + 1);
}

// Inserts conv.group between groups of conv.group_digits digits of the integer part,
// counted leftwards from the radix character (or the end), and conv.group2 between
// groups of the fraction part, counted rightwards from it. Each separator is used when
// its field is not 0; a group_digits of 0 counts as 1.
inline void GroupDigits(std::string & text, const Conv & conv)
{
    const bool integer_groups = conv.group != 0, fraction_groups = conv.group2 != 0;
    if (!integer_groups && !fraction_groups)
        return;
    const uint size = conv.group_digits ? conv.group_digits : 1;
    const char separator = FieldChar(conv.group), separator2 = FieldChar(conv.group2);
    std::size_t point = text.find(FieldChar(conv.comma));
    if (point == std::string::npos)
        point = text.size();

    std::string grouped;
    grouped.reserve(text.size() + text.size() / size + 1);
    for (std::size_t i = 0; i < point; ++i) {
        if (integer_groups && i > 0 && (point - i) % size == 0)
            grouped += separator;
        grouped += text[i];
    }
    if (point < text.size())
        grouped += text[point];
    for (std::size_t i = point + 1; i < text.size(); ++i) {
        if (fraction_groups && i > point + 1 && (i - point - 1) % size == 0)
            grouped += separator2;
        grouped += text[i];
    }
    text.swap(grouped);
}

} // namespace text
} // namespace ttmath

#endif
