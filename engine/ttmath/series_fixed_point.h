// Fixed-point numbers for summing series: a value A / 2^(64 L) held in two's
// complement over L + 2 words (L fraction words, an integer word and a sign word).
// Adding a term that is a power of x times a word is one multiply-accumulate pass
// over the words, with no alignment or normalising, which is what makes the many
// cheap terms of a series cheap.
#ifndef TTMATH_SERIES_FIXED_POINT_H
#define TTMATH_SERIES_FIXED_POINT_H

#include "wide_float.h"

namespace ttmath {
namespace wide {

// The 64 bits of the n-word W starting at bit `pos` (bits outside W read as zero).
inline uint BitsAt(const uint * w, std::size_t n, sint pos)
{
    const sint bits = static_cast<sint>(word_bits);
    const sint q = pos >= 0 ? pos / bits : -((-pos + bits - 1) / bits);
    const unsigned r = static_cast<unsigned>(pos - q * bits);
    const uint lo = q >= 0 && q < static_cast<sint>(n) ? w[q] : 0;
    const uint hi = q + 1 >= 0 && q + 1 < static_cast<sint>(n) ? w[q + 1] : 0;
    return words::shr_pair(hi, lo, r);
}

// out[0 .. width) = floor(|v| 2^(64 frac)), for |v| < 2^(64 (width - frac)).
template<std::size_t C>
void ToFixed(uint * out, const WideFloat<C> & v, std::size_t frac, std::size_t width)
{
    if (v.zero) {
        words::fill(out, width, 0);
        return;
    }
    // bit i of the mantissa has weight 2^(i + e - 64 n), bit j of out 2^(j - 64 frac)
    const sint shift = v.e + static_cast<sint>(word_bits) * (static_cast<sint>(frac) - static_cast<sint>(v.n));
    for (std::size_t j = 0; j < width; ++j)
        out[j] = BitsAt(v.w, v.n, static_cast<sint>(j * word_bits) - shift);
}

// Two's complement negation over n words.
inline void NegateWords(uint * a, std::size_t n)
{
    uint c = 1;
    for (std::size_t i = 0; i < n; ++i) {
        a[i] = ~a[i] + c;
        c = c && a[i] == 0;
    }
}

// The signed fixed-point acc (L + 2 words) as a working number at n words.
template<std::size_t C>
void FromFixed(WideFloat<C> & r, const uint * acc, std::size_t frac, std::size_t n)
{
    const std::size_t width = frac + 2;
    uint mag[C + 4] = {}; // zeroed: compilers cannot see that the copy fills what SetWords reads
    words::copy(mag, acc, width);
    const bool negative = (acc[width - 1] & TTMATH_UINT_HIGHEST_BIT) != 0;
    if (negative)
        NegateWords(mag, width);
    r.SetWords(mag, width, -static_cast<sint>(frac * word_bits), n);
    r.neg = negative && !r.zero;
}

// acc (L + 2 words) += or -= p (L words) times the word k.
inline void AccumulateTerm(uint * acc, const uint * p, std::size_t frac, uint k, bool subtract)
{
    if (subtract) {
        uint b = kernel::submul_1(acc, p, frac, k);
        uint old = acc[frac];
        acc[frac] = old - b;
        acc[frac + 1] -= old < b ? 1 : 0;
    } else {
        uint c = kernel::addmul_1(acc, p, frac, k);
        acc[frac] += c;
        acc[frac + 1] += acc[frac] < c ? 1 : 0;
    }
}

// acc (L + 2 words) += or -= the integer k.
inline void AccumulateInteger(uint * acc, std::size_t frac, uint k, bool subtract)
{
    uint old = acc[frac];
    if (subtract) {
        acc[frac] = old - k;
        acc[frac + 1] -= old < k ? 1 : 0;
    } else {
        acc[frac] = old + k;
        acc[frac + 1] += acc[frac] < k ? 1 : 0;
    }
}

} // namespace wide
} // namespace ttmath

#endif
