// Digits in bases 2, 4, 8 and 16, whose digits are groups of 1 to 4 mantissa bits: no
// arithmetic and no rounding, the digits D and the exponent X give the value exactly,
// |value| = D * base^X.
#ifndef TTMATH_BIT_GROUP_DIGITS_H
#define TTMATH_BIT_GROUP_DIGITS_H

#include <string>

#include "int_widen.h"
#include "text_chars.h"

namespace ttmath {
namespace text {

// Bits per digit of a base that is a power of two up to 16; 0 for other bases.
inline unsigned BitsPerDigit(uint base)
{
    switch (base) {
    case 2: return 1;
    case 4: return 2;
    case 8: return 3;
    case 16: return 4;
    default: return 0;
    }
}

// Bits [position, position + width) of a word array, width < 64; the array holds the
// word after the one the field starts in whenever the field reaches into it.
inline uint BitField(const uint * words, uint position, unsigned width)
{
    const uint w = position / words::bits_per_word;
    const unsigned b = static_cast<unsigned>(position % words::bits_per_word);
    uint v = words[w] >> b;
    if (b + width > words::bits_per_word)
        v |= words[w + 1] << (words::bits_per_word - b);
    return v & ((uint(1) << width) - 1);
}

// The binary exponent k is split as k = q * bits + r with 0 <= r < bits; the mantissa
// shifted left by r holds the digits and q is the exponent. Every digit of the mantissa's
// own words is written, leading zeros of an unnormalised mantissa included.
template<uint exp, uint man>
void BitGroupDigits(const Big<exp, man> & x, unsigned bits, std::string & digits, Int<exp + 1> & exponent)
{
    exponent = Widen(x.exponent);
    uint r = 0;
    if (bits > 1) {
        const bool negative = exponent.IsSign();
        if (negative)
            exponent.ChangeSign();
        exponent.DivInt(bits, &r);
        if (negative) {
            exponent.ChangeSign();
            if (r) {
                exponent.SubOne();
                r = bits - r;
            }
        }
    }

    uint shifted[man + 1];
    words::copy(shifted, x.mantissa.table, man);
    shifted[man] = r ? words::shl_bits(shifted, shifted, man, static_cast<unsigned>(r)) : 0;
    const uint total_bits = man * words::bits_per_word + r;
    uint count = (total_bits + bits - 1) / bits;
    // When digits do not straddle words, a zero digit above the mantissa's words is left out.
    if (words::bits_per_word % bits == 0 && shifted[man] == 0)
        count = man * words::bits_per_word / bits;
    digits.resize(count);
    for (uint j = 0; j < count; ++j)
        digits[count - 1 - j] = DigitChar(BitField(shifted, j * bits, bits));
}

} // namespace text
} // namespace ttmath

#endif
