// The digits of an integer of any number of words in a base from 2 to 16, most
// significant first, without leading zeros ("0" for zero), upper-case letters, a '-' in
// front of a negative integer.
//
// The integer is divided by the largest power of the base that fits a word, which yields
// that many digits per division of the whole array; each remainder is then split into
// digits in one word.
#ifndef TTMATH_INTEGER_DIGITS_H
#define TTMATH_INTEGER_DIGITS_H

#include <string>

#include "int.h"
#include "text_chars.h"
#include "word_divider.h"

namespace ttmath {
namespace text {

// base^digits, the largest power of the base that fits a word.
struct WordPower {
    uint power;
    unsigned digits;
};

inline WordPower LargestWordPower(uint base)
{
    WordPower p = {base, 1};
    while (p.power <= TTMATH_UINT_MAX_VALUE / base) {
        p.power *= base;
        ++p.digits;
    }
    return p;
}

// Writes the `count` lowest digits of `value` at out[0 .. count), leading zeros
// included. The base is a template parameter so that the divisions become products.
template<uint base>
void WriteWordDigits(uint value, char * out, unsigned count)
{
    for (unsigned i = count; i-- > 0;) {
        out[i] = DigitChar(value % base);
        value /= base;
    }
}

inline void WriteWordDigits(uint base, uint value, char * out, unsigned count)
{
    switch (base) {
    case 2: WriteWordDigits<2>(value, out, count); break;
    case 3: WriteWordDigits<3>(value, out, count); break;
    case 4: WriteWordDigits<4>(value, out, count); break;
    case 5: WriteWordDigits<5>(value, out, count); break;
    case 6: WriteWordDigits<6>(value, out, count); break;
    case 7: WriteWordDigits<7>(value, out, count); break;
    case 8: WriteWordDigits<8>(value, out, count); break;
    case 9: WriteWordDigits<9>(value, out, count); break;
    case 10: WriteWordDigits<10>(value, out, count); break;
    case 11: WriteWordDigits<11>(value, out, count); break;
    case 12: WriteWordDigits<12>(value, out, count); break;
    case 13: WriteWordDigits<13>(value, out, count); break;
    case 14: WriteWordDigits<14>(value, out, count); break;
    case 15: WriteWordDigits<15>(value, out, count); break;
    default: WriteWordDigits<16>(value, out, count); break;
    }
}

// Number of digits of a non-zero word.
inline unsigned WordDigitCount(uint base, uint value)
{
    unsigned n = 0;
    for (; value; value /= base)
        ++n;
    return n;
}

// Appends the digits of words[0 .. n) (least significant first) to out.
template<uint n>
void AppendUIntDigits(std::string & out, const uint * words, uint base)
{
    uint rest[n];
    words::copy(rest, words, n);
    std::size_t used = words::used_words(rest, n);
    if (used == 0) {
        out += '0';
        return;
    }
    const WordPower wp = LargestWordPower(base);
    const WordDivider divider(wp.power);
    // least significant first, wp.digits digits each; a chunk holds more than half a word
    uint chunks[2 * n];
    std::size_t count = 0;
    while (used > 1 || rest[0] >= wp.power) {
        chunks[count++] = divider.Divide(rest, rest, used);
        used = words::used_words(rest, used);
    }
    const uint top = rest[0];
    const unsigned top_digits = WordDigitCount(base, top);
    std::size_t at = out.size();
    out.resize(at + top_digits + count * wp.digits);
    WriteWordDigits(base, top, &out[at], top_digits);
    at += top_digits;
    while (count-- > 0) {
        WriteWordDigits(base, chunks[count], &out[at], wp.digits);
        at += wp.digits;
    }
}

// Appends the digits of a signed integer, with a '-' in front of a negative one.
template<uint n>
void AppendIntDigits(std::string & out, Int<n> value, uint base)
{
    if (value.IsSign()) {
        out += '-';
        // the most negative value stays as it is, and reads right as unsigned
        value.ChangeSign();
    }
    AppendUIntDigits<n>(out, value.table, base);
}

} // namespace text
} // namespace ttmath

#endif
