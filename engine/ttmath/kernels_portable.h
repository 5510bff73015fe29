// Word kernels in portable C++: carry chains, products and quotients of 64-bit words.
// Every kernel of the x86-64 back end has a twin here with identical results; this one
// is used on every other processor and on x86-64 when TTMATH_NOASM is defined.
#ifndef TTMATH_KERNELS_PORTABLE_H
#define TTMATH_KERNELS_PORTABLE_H

#include <cstddef>
#include "types.h"

#if defined(__SIZEOF_INT128__) && !defined(TTMATH_NO_INT128)
#define TTMATH_HAVE_INT128 1
#endif

namespace ttmath {
namespace portable_kernels {

#ifdef TTMATH_HAVE_INT128
typedef unsigned __int128 dword;
#endif

// All ones when x >= y, else 0.
inline uint mask_at_least(uint x, uint y)
{
    return 0 - static_cast<uint>(x >= y);
}

// hi:lo = a * b
inline void mul_ww(uint a, uint b, uint & hi, uint & lo)
{
#ifdef TTMATH_HAVE_INT128
    dword p = static_cast<dword>(a) * b;
    hi = static_cast<uint>(p >> 64);
    lo = static_cast<uint>(p);
#else
    const uint mask = 0xffffffffu;
    uint a0 = a & mask, a1 = a >> 32, b0 = b & mask, b1 = b >> 32;
    uint p00 = a0 * b0, p01 = a0 * b1, p10 = a1 * b0, p11 = a1 * b1;
    uint mid = (p00 >> 32) + (p01 & mask) + (p10 & mask);
    lo = (mid << 32) | (p00 & mask);
    hi = p11 + (p01 >> 32) + (p10 >> 32) + (mid >> 32);
#endif
}

// Quotient of hi:lo by d, which must be greater than hi; the remainder goes to rem.
inline uint div_ww(uint hi, uint lo, uint d, uint & rem)
{
#ifdef TTMATH_HAVE_INT128
    dword n = (static_cast<dword>(hi) << 64) | lo;
    uint q = static_cast<uint>(n / d);
    rem = static_cast<uint>(n - static_cast<dword>(q) * d);
    return q;
#else
    // Two steps of schoolbook division by a normalised divisor in 32-bit digits.
    const uint b = 1ull << 32;
    unsigned s = 0;
    while (!(d & TTMATH_UINT_HIGHEST_BIT)) {
        d <<= 1;
        ++s;
    }
    if (s) {
        hi = (hi << s) | (lo >> (64 - s));
        lo <<= s;
    }
    uint d1 = d >> 32, d0 = d & 0xffffffffu;
    uint l1 = lo >> 32, l0 = lo & 0xffffffffu;
    uint q1 = hi / d1, r = hi - q1 * d1;
    while (q1 >= b || q1 * d0 > ((r << 32) | l1)) {
        --q1;
        r += d1;
        if (r >= b)
            break;
    }
    uint u = (hi << 32) + l1 - q1 * d;
    uint q0 = u / d1;
    r = u - q0 * d1;
    while (q0 >= b || q0 * d0 > ((r << 32) | l0)) {
        --q0;
        r += d1;
        if (r >= b)
            break;
    }
    rem = ((u << 32) + l0 - q0 * d) >> s;
    return (q1 << 32) + q0;
#endif
}

// r = a + b + c over n words (c is 0 or 1); returns the carry out. r may alias a or b.
inline uint add_n(uint * r, const uint * a, const uint * b, std::size_t n, uint c)
{
    for (std::size_t i = 0; i < n; ++i) {
        uint s = a[i] + c;
        c = s < c;
        uint t = s + b[i];
        c += t < s;
        r[i] = t;
    }
    return c;
}

// r = a - b - c over n words (c is 0 or 1); returns the borrow out. r may alias a or b.
inline uint sub_n(uint * r, const uint * a, const uint * b, std::size_t n, uint c)
{
    for (std::size_t i = 0; i < n; ++i) {
        uint ai = a[i], bi = b[i];
        uint t = ai - bi;
        uint c1 = ai < bi;
        uint u = t - c;
        c = c1 | (t < c);
        r[i] = u;
    }
    return c;
}

// r = a * b over n words; returns the high word. r may alias a.
inline uint mul_1(uint * r, const uint * a, std::size_t n, uint b)
{
    uint carry = 0;
    for (std::size_t i = 0; i < n; ++i) {
        uint hi, lo;
        mul_ww(a[i], b, hi, lo);
        lo += carry;
        hi += lo < carry;
        r[i] = lo;
        carry = hi;
    }
    return carry;
}

// r += a * b over n words; returns the word carried out of the top.
inline uint addmul_1(uint * r, const uint * a, std::size_t n, uint b)
{
    uint carry = 0;
    for (std::size_t i = 0; i < n; ++i) {
        uint hi, lo;
        mul_ww(a[i], b, hi, lo);
        lo += carry;
        hi += lo < carry;
        uint t = r[i] + lo;
        hi += t < lo;
        r[i] = t;
        carry = hi;
    }
    return carry;
}

// r -= a * b over n words; returns the word borrowed from above the top.
inline uint submul_1(uint * r, const uint * a, std::size_t n, uint b)
{
    uint carry = 0;
    for (std::size_t i = 0; i < n; ++i) {
        uint hi, lo;
        mul_ww(a[i], b, hi, lo);
        lo += carry;
        hi += lo < carry;
        uint t = r[i];
        r[i] = t - lo;
        hi += t < lo;
        carry = hi;
    }
    return carry;
}

inline const char * lib_type_str() { return "no_asm_64"; }
inline LibTypeCode lib_type() { return no_asm_64; }

} // namespace portable_kernels
} // namespace ttmath

#endif
