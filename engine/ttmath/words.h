// Small operations on arrays of words (least significant first) that need no
// back-end support: bit counts, shifts, comparisons.
#ifndef TTMATH_WORDS_H
#define TTMATH_WORDS_H

#include <cstddef>
#include "types.h"

namespace ttmath {
namespace words {

const unsigned bits_per_word = 64;

// Leading zero bits of a non-zero word.
inline unsigned clz(uint x)
{
#if defined(__GNUC__) || defined(__clang__)
    return static_cast<unsigned>(__builtin_clzll(x));
#else
    unsigned n = 0;
    while (!(x & TTMATH_UINT_HIGHEST_BIT)) {
        x <<= 1;
        ++n;
    }
    return n;
#endif
}

// Trailing zero bits of a non-zero word.
inline unsigned ctz(uint x)
{
#if defined(__GNUC__) || defined(__clang__)
    return static_cast<unsigned>(__builtin_ctzll(x));
#else
    unsigned n = 0;
    while (!(x & 1)) {
        x >>= 1;
        ++n;
    }
    return n;
#endif
}

inline void copy(uint * r, const uint * a, std::size_t n)
{
    for (std::size_t i = 0; i < n; ++i)
        r[i] = a[i];
}

inline void fill(uint * r, std::size_t n, uint value)
{
    for (std::size_t i = 0; i < n; ++i)
        r[i] = value;
}

inline bool is_zero(const uint * a, std::size_t n)
{
    uint any = 0;
    for (std::size_t i = 0; i < n; ++i)
        any |= a[i];
    return any == 0;
}

// Number of words up to and including the most significant non-zero one.
inline std::size_t used_words(const uint * a, std::size_t n)
{
    while (n > 0 && a[n - 1] == 0)
        --n;
    return n;
}

// -1, 0 or 1 as a is below, equal to or above b (unsigned, n words each).
inline int compare(const uint * a, const uint * b, std::size_t n)
{
    for (std::size_t i = n; i-- > 0;) {
        if (a[i] != b[i])
            return a[i] < b[i] ? -1 : 1;
    }
    return 0;
}

// r = a << bits over n words, 0 < bits < 64; returns the bits shifted out of the top
// (in the low end of the result). r may equal a.
inline uint shl_bits(uint * r, const uint * a, std::size_t n, unsigned bits)
{
    uint out = a[n - 1] >> (bits_per_word - bits);
    for (std::size_t i = n - 1; i > 0; --i)
        r[i] = (a[i] << bits) | (a[i - 1] >> (bits_per_word - bits));
    r[0] = a[0] << bits;
    return out;
}

// r = a >> bits over n words, 0 < bits < 64; returns the bits shifted out of the
// bottom (in the high end of the result). r may equal a.
inline uint shr_bits(uint * r, const uint * a, std::size_t n, unsigned bits)
{
    uint out = a[0] << (bits_per_word - bits);
    for (std::size_t i = 0; i + 1 < n; ++i)
        r[i] = (a[i] >> bits) | (a[i + 1] << (bits_per_word - bits));
    r[n - 1] = a[n - 1] >> bits;
    return out;
}

// The low word of the double word hi:lo shifted right by k, 0 <= k < 64 (lo for k = 0).
inline uint shr_pair(uint hi, uint lo, unsigned k)
{
#if defined(__SIZEOF_INT128__) && !defined(TTMATH_NO_INT128)
    // compilers turn this into a single double-word shift instruction; the mask tells
    // them that the count is below a word
    typedef unsigned __int128 dword;
    return static_cast<uint>(((static_cast<dword>(hi) << bits_per_word) | lo) >> (k & (bits_per_word - 1)));
#else
    // (hi << 1) << (63 - k) is hi << (64 - k), and 0 for k = 0
    return (lo >> k) | ((hi << 1) << (bits_per_word - 1 - k));
#endif
}

// The high word of the double word hi:lo shifted left by k, 0 <= k < 64 (hi for k = 0).
inline uint shl_pair(uint hi, uint lo, unsigned k)
{
#if defined(__SIZEOF_INT128__) && !defined(TTMATH_NO_INT128)
    typedef unsigned __int128 dword;
    return static_cast<uint>((((static_cast<dword>(hi) << bits_per_word) | lo) << (k & (bits_per_word - 1))) >> bits_per_word);
#else
    return (hi << k) | ((lo >> 1) >> (bits_per_word - 1 - k));
#endif
}

// Leading zero bits of an n-word number; 0 when it is zero.
inline uint leading_zeros(const uint * a, std::size_t n)
{
    for (std::size_t i = n; i-- > 0;) {
        if (a[i])
            return (n - 1 - i) * bits_per_word + clz(a[i]);
    }
    return 0;
}

// Shifts a left by any count below 64*n, in place, filling with zeros.
inline void shl(uint * a, std::size_t n, uint count)
{
    std::size_t w = static_cast<std::size_t>(count / bits_per_word);
    unsigned b = static_cast<unsigned>(count % bits_per_word);
    if (w) {
        for (std::size_t i = n; i-- > w;)
            a[i] = a[i - w];
        fill(a, w, 0);
    }
    if (b)
        shl_bits(a + w, a + w, n - w, b);
}

// Shifts a right by any count below 64*n, in place, filling with zeros.
inline void shr(uint * a, std::size_t n, uint count)
{
    std::size_t w = static_cast<std::size_t>(count / bits_per_word);
    unsigned b = static_cast<unsigned>(count % bits_per_word);
    if (w) {
        for (std::size_t i = 0; i + w < n; ++i)
            a[i] = a[i + w];
        fill(a + n - w, w, 0);
    }
    if (b)
        shr_bits(a, a, n - w, b);
}

// True when the lowest `count` bits of a are all zero (count <= 64*n).
inline bool low_bits_zero(const uint * a, uint count)
{
    std::size_t w = static_cast<std::size_t>(count / bits_per_word);
    unsigned b = static_cast<unsigned>(count % bits_per_word);
    if (!is_zero(a, w))
        return false;
    return b == 0 || (a[w] << (bits_per_word - b)) == 0;
}

// Clears the lowest `count` bits of a (count <= 64*n).
inline void clear_low_bits(uint * a, uint count)
{
    std::size_t w = static_cast<std::size_t>(count / bits_per_word);
    unsigned b = static_cast<unsigned>(count % bits_per_word);
    fill(a, w, 0);
    if (b)
        a[w] &= ~((uint(1) << b) - 1);
}

// Sets the lowest `count` bits of a to one (count < 64*n).
inline void fill_low_bits(uint * a, uint count)
{
    std::size_t w = static_cast<std::size_t>(count / bits_per_word);
    unsigned b = static_cast<unsigned>(count % bits_per_word);
    fill(a, w, TTMATH_UINT_MAX_VALUE);
    if (b)
        a[w] |= (uint(1) << b) - 1;
}

// Sets the highest `count` bits of the n-word a to one (count < 64*n).
inline void fill_high_bits(uint * a, std::size_t n, uint count)
{
    std::size_t w = static_cast<std::size_t>(count / bits_per_word);
    unsigned b = static_cast<unsigned>(count % bits_per_word);
    fill(a + n - w, w, TTMATH_UINT_MAX_VALUE);
    if (b)
        a[n - w - 1] |= ~(TTMATH_UINT_MAX_VALUE >> b);
}

// Shifts over a size known at compile time, unrolled; the word and bit parts of the
// count are handled without branches. count < 64*n.
template<std::size_t n>
inline void shl_fixed(uint * a, uint count)
{
    const std::size_t w = static_cast<std::size_t>(count / bits_per_word);
    const unsigned b = static_cast<unsigned>(count % bits_per_word);
    uint t[n];
    copy(t, a, n);
    for (std::size_t i = n; i-- > 0;) {
        uint hi = i >= w ? t[i - w] : 0;
        uint lo = i >= w + 1 ? t[i - w - 1] : 0;
        // (lo >> 1) >> (63 - b) is lo >> (64 - b), and 0 when b == 0
        a[i] = (hi << b) | ((lo >> 1) >> (bits_per_word - 1 - b));
    }
}

template<std::size_t n>
inline void shr_fixed(uint * a, uint count)
{
    const std::size_t w = static_cast<std::size_t>(count / bits_per_word);
    const unsigned b = static_cast<unsigned>(count % bits_per_word);
    uint t[n];
    copy(t, a, n);
    for (std::size_t i = 0; i < n; ++i) {
        uint lo = i + w < n ? t[i + w] : 0;
        uint hi = i + w + 1 < n ? t[i + w + 1] : 0;
        a[i] = (lo >> b) | ((hi << 1) << (bits_per_word - 1 - b));
    }
}

// Leading zero bits of an n-word number (n known at compile time); 0 when it is zero.
template<std::size_t n>
inline uint leading_zeros_fixed(const uint * a)
{
    if (a[n - 1])
        return clz(a[n - 1]);
    return leading_zeros(a, n);
}

} // namespace words
} // namespace ttmath

#endif
