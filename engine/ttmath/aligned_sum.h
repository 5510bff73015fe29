// Sums and differences of two mantissas whose exponents differ by less than a word:
// the smaller operand is shifted right by k bits, and the bits shifted out decide the
// rounding. These are the mantissa steps of Add's common case (big_add.h); on x86-64
// the 256-bit type has them in assembly (big_add_x86_64.h), with the same results.
#ifndef TTMATH_ALIGNED_SUM_H
#define TTMATH_ALIGNED_SUM_H

#include <cstddef>
#include "kernels.h"
#include "words.h"

namespace ttmath {
namespace aligned {

// Half-to-even rounding of a kept part whose lowest word is `low` on the bits below it,
// held from the top of `lost` down: true when they exceed half a unit, or equal it and
// the kept part is odd.
inline bool rounds_away(uint lost, uint low)
{
    const uint half = TTMATH_UINT_HIGHEST_BIT;
    return lost > half || (lost == half && (low & 1));
}

// small >> k into s (k < 64); returns the bits shifted out, from the top of a word down.
template<std::size_t n>
inline uint shift_right(uint * s, const uint * small, unsigned k)
{
    for (std::size_t i = 0; i + 1 < n; ++i)
        s[i] = words::shr_pair(small[i + 1], small[i], k);
    s[n - 1] = small[n - 1] >> k;
    return words::shr_pair(small[0], 0, k);
}

// r = big + small / 2^k (top bits of big and small set, k < 64), halved when it carries
// out of n words, then rounded half to even on all the bits below r, or truncated when
// `round` is false. A rounding that carries out leaves only the top bit. Returns the
// number of halvings (0, 1 or 2): the exponent's increase. r may alias neither input.
template<std::size_t n>
inline uint sum(uint * r, const uint * big, const uint * small, unsigned k, bool round)
{
    uint s[n];
    uint lost = shift_right<n>(s, small, k);
    const uint carry = kernel::add_n(r, big, s, n, 0);
    if (carry) {
        // lost's lowest bit is always zero for k < 64: nothing falls off it
        lost = words::shr_pair(r[0], lost, 1);
        for (std::size_t i = 0; i + 1 < n; ++i)
            r[i] = words::shr_pair(r[i + 1], r[i], 1);
        r[n - 1] = (r[n - 1] >> 1) | TTMATH_UINT_HIGHEST_BIT;
    }
    const uint overflow = fixed::add_carry<n>(r, round && rounds_away(lost, r[0]) ? 1 : 0);
    if (overflow)
        r[n - 1] = TTMATH_UINT_HIGHEST_BIT;
    return carry + overflow;
}

// r = big - floor(small / 2^k) (big >= small, k < 64), then decremented when `round` is
// true and the bits shifted out exceed half a unit or equal it with r odd, then shifted
// left until its top bit is set. Returns that shift (below 64), or 64 when the top word
// is zero (r is then meaningless). r may alias neither input.
template<std::size_t n>
inline unsigned difference(uint * r, const uint * big, const uint * small, unsigned k, bool round)
{
    uint s[n];
    const uint lost = shift_right<n>(s, small, k);
    kernel::sub_n(r, big, s, n, 0);
    fixed::sub_carry<n>(r, round && rounds_away(lost, r[0]) ? 1 : 0);
    if (r[n - 1] == 0)
        return words::bits_per_word;
    const unsigned z = words::clz(r[n - 1]);
    for (std::size_t i = n - 1; i > 0; --i)
        r[i] = words::shl_pair(r[i], r[i - 1], z);
    r[0] <<= z;
    return z;
}

} // namespace aligned
} // namespace ttmath

#endif
