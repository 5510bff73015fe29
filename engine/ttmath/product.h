// Exact products of word arrays: the full 2n-word product of two n-word numbers.
// Small fixed sizes use column-wise accumulation, middle sizes schoolbook rows on the
// back end's multiply-accumulate kernel, large sizes Karatsuba's method. All give the
// same words; only the speed differs.
#ifndef TTMATH_PRODUCT_H
#define TTMATH_PRODUCT_H

#include <cstddef>
#include "kernels.h"
#include "words.h"

namespace ttmath {
namespace product {

// Sizes up to this use column-wise accumulation with everything unrolled.
const std::size_t column_max_words = 4;
// Sizes from this up use Karatsuba's method (each half at least this big / 2).
const std::size_t karatsuba_min_words = 24;

// r[0 .. an+bn) = a[0 .. an) * b[0 .. bn); an, bn >= 1; r must not overlap a or b.
inline void schoolbook(uint * r, const uint * a, std::size_t an, const uint * b, std::size_t bn)
{
    r[an] = kernel::mul_1(r, a, an, b[0]);
    for (std::size_t j = 1; j < bn; ++j)
        r[an + j] = kernel::addmul_1(r + j, a, an, b[j]);
}

// Column-wise product of fixed size n; the three-word accumulator c2:c1:c0 collects
// each column.
template<std::size_t n>
inline void columns(uint * r, const uint * a, const uint * b)
{
    uint c0 = 0, c1 = 0, c2 = 0;
    for (std::size_t k = 0; k + 1 < 2 * n; ++k) {
        std::size_t first = k + 1 > n ? k + 1 - n : 0;
        std::size_t last = k < n - 1 ? k : n - 1;
        for (std::size_t i = first; i <= last; ++i) {
            uint hi, lo;
            kernel::mul_ww(a[i], b[k - i], hi, lo);
            c0 += lo;
            hi += c0 < lo; // hi <= 2^64 - 2, so this cannot wrap
            c1 += hi;
            c2 += c1 < hi;
        }
        r[k] = c0;
        c0 = c1;
        c1 = c2;
        c2 = 0;
    }
    r[2 * n - 1] = c0;
}

// Scratch words Karatsuba needs for size n (and all its recursion).
inline std::size_t karatsuba_scratch(std::size_t n)
{
    return 6 * n + 64;
}

// r[0 .. 2n) = a * b by Karatsuba's method when n is even and large enough,
// schoolbook otherwise. scratch holds karatsuba_scratch(n) words.
inline void karatsuba(uint * r, const uint * a, const uint * b, std::size_t n, uint * scratch)
{
    if (n < karatsuba_min_words || (n & 1)) {
        schoolbook(r, a, n, b, n);
        return;
    }
    const std::size_t h = n / 2;
    const uint * a0 = a, * a1 = a + h, * b0 = b, * b1 = b + h;
    uint * da = scratch;          // |a0 - a1|, h words
    uint * db = da + h;           // |b1 - b0|, h words
    uint * t = db + h;            // da * db, 2h words
    uint * mid = t + 2 * h;       // z0 + z2 -/+ t, 2h + 1 words
    uint * deeper = mid + 2 * h + 1;

    bool negative = false;
    if (words::compare(a0, a1, h) >= 0) {
        kernel::sub_n(da, a0, a1, h, 0);
    } else {
        kernel::sub_n(da, a1, a0, h, 0);
        negative = !negative;
    }
    if (words::compare(b1, b0, h) >= 0) {
        kernel::sub_n(db, b1, b0, h, 0);
    } else {
        kernel::sub_n(db, b0, b1, h, 0);
        negative = !negative;
    }

    karatsuba(r, a0, b0, h, deeper);         // z0 into r[0 .. 2h)
    karatsuba(r + 2 * h, a1, b1, h, deeper); // z2 into r[2h .. 4h)
    karatsuba(t, da, db, h, deeper);

    // middle = z0 + z2 + (a0 - a1)(b1 - b0) = a0*b1 + a1*b0, never negative
    mid[2 * h] = kernel::add_n(mid, r, r + 2 * h, 2 * h, 0);
    if (negative)
        mid[2 * h] -= kernel::sub_n(mid, mid, t, 2 * h, 0);
    else
        mid[2 * h] += kernel::add_n(mid, mid, t, 2 * h, 0);

    // r += middle << (64 h)
    uint carry = kernel::add_n(r + h, r + h, mid, 2 * h + 1, 0);
    for (std::size_t i = 3 * h + 1; carry && i < 2 * n; ++i) {
        r[i] += 1;
        carry = r[i] == 0;
    }
}

// r[0 .. 2n) = a * b for a fixed size n. r must not overlap a or b.
template<std::size_t n>
inline void full(uint * r, const uint * a, const uint * b)
{
#ifdef TTMATH_ASM_X86_64
    if constexpr (n == 4) {
        if (x86_64_kernels::use_mulx_adx)
            x86_64_kernels::mul_4x4_adx(r, a, b);
        else
            x86_64_kernels::mul_4x4(r, a, b);
        return;
    }
#endif
    if (n <= column_max_words) {
        columns<n>(r, a, b);
    } else if (n < karatsuba_min_words) {
        schoolbook(r, a, n, b, n);
    } else {
        uint scratch[6 * n + 64];
        karatsuba(r, a, b, n, scratch);
    }
}

} // namespace product
} // namespace ttmath

#endif
