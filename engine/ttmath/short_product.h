// The rounded high half of a product of two normalised mantissas from the upper
// columns of the product only: Mul keeps n of its 2n words, so the word products far
// below them are left out, which saves almost half of the work for long mantissas.
//
// The products left out (a_i * b_j with i + j below n - guard_words) add up to less
// than n * β^(n-1), β = 2^64: the exact product lies between the computed part P and
// P + n in word n - 1. When word n - 1 of P and that word plus n lie strictly inside
// one quarter of the word's range (same top two bits, lower bits not all zero), every
// value between rounds the same way: the high words, the normalising shift, the kept
// bit from word n - 1 and the side of the rounding boundary are all fixed, and no
// value is an exact tie. Otherwise (random data almost never) the caller forms the
// whole product.
#ifndef TTMATH_SHORT_PRODUCT_H
#define TTMATH_SHORT_PRODUCT_H

#include <cstddef>
#include "high_half.h"
#include "kernels.h"
#include "words.h"

namespace ttmath {
namespace short_product {

// Columns of the low half computed below its top word.
const std::size_t guard_words = 2;
// Mantissas of at least this many words use the short product; below it the saving
// does not pay for the second rounding.
const std::size_t min_words = 8;

// p[n - guard_words .. 2n) = the sum of the word products a_i * b_j with
// i + j >= n - guard_words, with carries; the words below are zero.
template<std::size_t n>
inline void upper_columns(uint * p, const uint * a, const uint * b)
{
    static_assert(n > guard_words, "the guard words lie within the low half");
    const std::size_t low = n - guard_words;
    words::fill(p, n, 0);
    for (std::size_t j = 0; j < n; ++j) {
        const std::size_t i0 = j >= low ? 0 : low - j;
        p[j + n] = kernel::addmul_1(p + j + i0, a + i0, n - i0, b[j]);
    }
}

// Word n - 1's top two bits fix the rounding of the high half (see above).
const unsigned quarter_shift = 62;

// As high_half::rounded for the product a * b (both with their top bits set): m, the
// returned shift and `carry`. Returns false, with m meaningless, when the upper columns
// do not decide the result.
template<std::size_t n>
inline bool rounded_high_half(uint * m, const uint * a, const uint * b, bool round, unsigned & shift, uint & carry)
{
    uint p[2 * n];
    upper_columns<n>(p, a, b);
    const uint below = p[n - 1], above = below + n;
    if (((below ^ above) >> quarter_shift) != 0 || (below << (words::bits_per_word - quarter_shift)) == 0)
        return false;
    shift = high_half::rounded<n>(m, p, round, carry);
    return true;
}

} // namespace short_product
} // namespace ttmath

#endif
