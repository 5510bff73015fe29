// Division by a normalised divisor through a precomputed reciprocal of its top two
// words: one hardware division per divisor, then each quotient word of a three-word by
// two-word division from two multiplications and a few additions and corrections. The
// results are exact floor quotients, the same words as any other exact division.
#ifndef TTMATH_RECIPROCAL_H
#define TTMATH_RECIPROCAL_H

#include "kernels.h"

namespace ttmath {
namespace reciprocal {

// floor((β^2 - 1) / d) - β, β = 2^64, for d with its top bit set.
inline uint of_word(uint d)
{
    uint rem;
    return kernel::div_ww(~d, TTMATH_UINT_MAX_VALUE, d, rem);
}

// v = floor((β^3 - 1) / (d1:d0)) - β for d1 with its top bit set: the reciprocal of d1,
// corrected for d0. The corrections are computed, not branched on: they depend on
// the data.
inline uint of_pair(uint d1, uint d0)
{
    uint v = of_word(d1);
    uint p = d1 * v + d0;
    const uint wrapped = p < d0 ? 1 : 0;
    const uint twice = wrapped & static_cast<uint>(p >= d1);
    v -= wrapped + twice;
    p -= (d1 & (0 - wrapped)) + (d1 & (0 - twice));
    uint t1, t0;
    kernel::mul_ww(v, d0, t1, t0);
    p += t1;
    const uint wrapped_again = p < t1 ? 1 : 0;
    const uint at_least_d = static_cast<uint>(p > d1) | (static_cast<uint>(p == d1) & static_cast<uint>(t0 >= d0));
    v -= wrapped_again + (wrapped_again & at_least_d);
    return v;
}

// q = floor((u2:u1:u0) / (d1:d0)) and the remainder r1:r0, for (u2:u1) < (d1:d0),
// d1's top bit set and v = of_pair(d1, d0).
inline uint div_3by2(uint u2, uint u1, uint u0, uint d1, uint d0, uint v, uint & r1, uint & r0)
{
    uint q1, q0;
    kernel::mul_ww(v, u2, q1, q0);
    q0 += u1;
    q1 += u2 + (q0 < u1 ? 1 : 0);
    // the remainder for the candidate q1 + 1, computed modulo β^2
    uint t1, t0;
    kernel::mul_ww(d0, q1, t1, t0);
    const uint borrow = u0 < t0 ? 1 : 0;
    r0 = u0 - t0;
    r1 = u1 - q1 * d1 - t1 - borrow;
    const uint borrow2 = r0 < d0 ? 1 : 0;
    r0 -= d0;
    r1 -= d1 + borrow2;
    ++q1;
    // The candidate is one too large when r1 >= q0 (as likely as not): step back.
    const uint back = kernel::mask_at_least(r1, q0);
    q1 += back;
    const uint add0 = d0 & back;
    r0 += add0;
    r1 += (d1 & back) + (r0 < add0 ? 1 : 0);
    // Rarely the candidate was one too small.
    if (r1 > d1 || (r1 == d1 && r0 >= d0)) {
        ++q1;
        const uint b = r0 < d0 ? 1 : 0;
        r0 -= d0;
        r1 -= d1 + b;
    }
    return q1;
}

} // namespace reciprocal
} // namespace ttmath

#endif
