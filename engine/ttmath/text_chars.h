// Characters of the text forms of numbers: digit values and digit characters of bases up
// to 16 (letters of either case read as 10 and up, written in upper case), the white
// space the parser skips, and the texts written for special values.
#ifndef TTMATH_TEXT_CHARS_H
#define TTMATH_TEXT_CHARS_H

#include "types.h"

namespace ttmath {
namespace text {

const uint min_base = 2;
const uint max_base = 16;
const uint decimal_base = 10;

// A character's digit value is below this for every character that is a digit in some
// base up to 36; other characters read as this value, which is no digit in any base.
const uint not_a_digit = 36;

const char nan_text[] = "NaN";
const char overflow_text[] = "overflow";
const char zero_text[] = "0";
// Between the mantissa and the exponent: decimal texts write "e", other bases the power
// of "10" (the base written in itself).
const char decimal_exponent_mark[] = "e";
const char power_exponent_mark[] = "*10^";

inline bool IsValidBase(uint base)
{
    return base >= min_base && base <= max_base;
}

// Value of '0'-'9', 'a'-'z', 'A'-'Z'; not_a_digit for anything else, bytes above 0x7F
// included.
// The value of the digit 'a' (and 'A'); the letters follow the ten decimal digits.
const uint first_letter_digit = 10;

inline uint DigitValue(char c)
{
    if (c >= '0' && c <= '9')
        return static_cast<uint>(c - '0');
    if (c >= 'a' && c <= 'z')
        return static_cast<uint>(c - 'a') + first_letter_digit;
    if (c >= 'A' && c <= 'Z')
        return static_cast<uint>(c - 'A') + first_letter_digit;
    return not_a_digit;
}

inline char DigitChar(uint value)
{
    return static_cast<char>(value < first_letter_digit ? '0' + value : 'A' + (value - first_letter_digit));
}

// Space, tab, carriage return and line feed; no other character.
inline bool IsWhiteSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// The character a whole-word character field of the conversion record stands for in
// narrow text: its low byte.
inline char FieldChar(uint field)
{
    return static_cast<char>(static_cast<unsigned char>(field));
}

} // namespace text
} // namespace ttmath

#endif
