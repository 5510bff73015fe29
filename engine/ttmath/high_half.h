// The kept half of a double-width product of two normalised mantissas: its leading bit
// is one of its top two bits, so normalising is a shift by 0 or 1, and the low half
// decides the half-to-even rounding. The four-word size (the 256-bit mantissa) has
// branch-free assembly on x86-64, every size has the C++ here; both give the same words.
#ifndef TTMATH_HIGH_HALF_H
#define TTMATH_HIGH_HALF_H

#include <cstddef>
#include "kernels.h"
#include "words.h"

namespace ttmath {
namespace high_half {

// m = the high n words of the 2n-word p shifted left by i (0 or 1, whichever sets the
// top bit; p's leading bit must be one of its top two), rounded half to even on the
// low n words when `round` is true, truncated otherwise. A rounding that carries out
// leaves only the top bit and sets `carry` to 1 (else 0). Returns i.
template<std::size_t n>
inline unsigned rounded(uint * m, const uint * p, bool round, uint & carry)
{
#ifdef TTMATH_ASM_X86_64
    if constexpr (n == 4)
        return static_cast<unsigned>(x86_64_kernels::high_half_rounded_4(m, p, round ? 1 : 0, carry));
#endif
    const unsigned i = static_cast<unsigned>(~p[2 * n - 1] >> (words::bits_per_word - 1));
    for (std::size_t j = 0; j < n; ++j)
        m[j] = words::shl_pair(p[n + j], p[n + j - 1], i);
    // the low half after the shift: its top word, and whether anything below is set
    uint below = p[n - 1] << i;
    bool rest = false;
    if constexpr (n >= 2) {
        below = words::shl_pair(p[n - 1], p[n - 2], i);
        rest = (p[n - 2] << i) != 0 || !words::is_zero(p, n - 2);
    }
    const uint half = TTMATH_UINT_HIGHEST_BIT;
    const bool up = round && (below > half || (below == half && (rest || (m[0] & 1))));
    carry = fixed::add_carry<n>(m, up ? 1 : 0);
    if (carry)
        m[n - 1] = TTMATH_UINT_HIGHEST_BIT;
    return i;
}

} // namespace high_half
} // namespace ttmath

#endif
