// Exact integer square roots of word arrays with their remainders: s = floor(sqrt(a))
// and r = a - s^2 for a 2n-word a, by divide and conquer. With a split into a high
// part A of 2h words and two low parts a1, a0 of l words (h = n - l >= l, β = 2^64):
//
//     (s', r') = root and remainder of A           (h words)
//     (q, u)   = (r' β^l + a1) divided by 2 s'     (l words, q <= β^l)
//     s = s' β^l + q,   r = u β^l + a0 - q^2
//
// and when r < 0, s - 1 and r + 2 s - 1 are the answer. A's top word must be at least
// 2^62 (its root then has its top bit set); the one-word roots at the bottom come from
// a double estimate refined by one Newton step on the exact residual. The remainder
// decides rounding exactly: r = 0 for exact roots, and sqrt(a) > s + 1/2 when r > s.
#ifndef TTMATH_INTEGER_SQRT_H
#define TTMATH_INTEGER_SQRT_H

#include <cmath>
#include <cstddef>

#include "kernels.h"
#include "square_columns.h"
#include "reciprocal.h"
#include "words.h"

namespace ttmath {
namespace integer_sqrt {

// Scratch words the recursion needs for an n-word root: each level keeps its
// remainder of the high part, the dividend, the quotient, the divider's remainder, the
// square of the quotient and the signed remainder.
constexpr std::size_t scratch_words(std::size_t n)
{
    return n <= 1 ? 0 : 5 * n + 8 + scratch_words(n - n / 2);
}

// The lowest value the top word of a normalised radicand may have.
const uint min_top_word = uint(1) << 62;

// Root s of the two-word a1:a0 (a1 >= 2^62), with the remainder r1:r0 (r1 is 0 or 1).
inline uint word_root(uint a1, uint a0, uint & r1, uint & r0)
{
    const double word_scale = 0x1p64;
    const double estimate = std::sqrt(static_cast<double>(a1) * word_scale + static_cast<double>(a0));
    uint s = estimate >= word_scale ? TTMATH_UINT_MAX_VALUE : static_cast<uint>(estimate);
    // The estimate is within about 2^12 of the root; one Newton step on the exact
    // residual e = a - s^2 (|e| < 2^80, two's complement in two words), truncated to an
    // integer step, leaves it within two; the loops below settle the last units.
    uint p1, p0;
    kernel::mul_ww(s, s, p1, p0);
    const uint e0 = a0 - p0;
    const uint e1 = a1 - p1 - (a0 < p0 ? 1 : 0);
    const double e = static_cast<double>(static_cast<sint>(e1)) * word_scale + static_cast<double>(e0);
    const sint step = static_cast<sint>(e / (2.0 * static_cast<double>(s))); // |step| < 2^14
    if (step < 0)
        s -= static_cast<uint>(-step);
    else if (TTMATH_UINT_MAX_VALUE - s < static_cast<uint>(step))
        s = TTMATH_UINT_MAX_VALUE;
    else
        s += static_cast<uint>(step);
    // s^2 <= a
    for (;;) {
        kernel::mul_ww(s, s, p1, p0);
        if (p1 < a1 || (p1 == a1 && p0 <= a0))
            break;
        --s;
    }
    r0 = a0 - p0;
    r1 = a1 - p1 - (a0 < p0 ? 1 : 0);
    // (s + 1)^2 > a, that is r <= 2 s
    for (;;) {
        const uint t1 = s >> 63, t0 = s << 1;
        if (r1 < t1 || (r1 == t1 && r0 <= t0))
            break;
        // r -= 2 s + 1
        const uint b0 = r0 < t0 ? 1 : 0;
        r0 -= t0;
        r1 -= t1 + b0;
        r1 -= r0 == 0 ? 1 : 0;
        r0 -= 1;
        ++s;
    }
    return s;
}

// One quotient word of the (h + 1)-word w by the h-word d (h >= 2, top bit set, w's top
// h words below d), from the reciprocal v of d's top words d1, d0; w's low h words
// become the remainder.
inline uint quotient_word(uint * w, const uint * d, std::size_t h, uint d1, uint d0, uint v)
{
    const uint u2 = w[h], u1 = w[h - 1], u0 = w[h - 2];
    if (u2 == d1 && u1 == d0) {
        // the estimate would not fit a word: the quotient word is β - 1 or β - 2
        uint q = TTMATH_UINT_MAX_VALUE;
        uint top = w[h] - kernel::submul_1(w, d, h, q);
        while (top != 0) {
            --q;
            top += kernel::add_n(w, w, d, h, 0);
        }
        w[h] = 0;
        return q;
    }
    uint t1, t0;
    uint q = reciprocal::div_3by2(u2, u1, u0, d1, d0, v, t1, t0);
    const uint borrow = h > 2 ? kernel::submul_1(w, d, h - 2, q) : 0;
    const uint b0 = t0 < borrow ? 1 : 0;
    w[h - 2] = t0 - borrow;
    const uint b1 = t1 < b0 ? 1 : 0;
    w[h - 1] = t1 - b0;
    w[h] = 0;
    if (b1) {
        // the estimate was one too large
        --q;
        kernel::add_n(w, w, d, h, 0);
    }
    return q;
}

// q[0 .. l] = floor(w / d) for the (h + l + 1)-word w whose top h + 1 words are at most
// the h-word d (top bit set): q[l] is 0 or 1, and then one word a step with one
// reciprocal for all of them. w's low h words become the remainder.
inline void quotient_at_most_one_word_over(uint * q, uint * w, std::size_t l, const uint * d, std::size_t h)
{
    uint * top = w + l;
    q[l] = 0;
    if (top[h] || words::compare(top, d, h) >= 0) {
        top[h] -= kernel::sub_n(top, top, d, h, 0);
        q[l] = 1;
    }
    if (h == 1) {
        for (std::size_t j = l; j-- > 0;) {
            q[j] = kernel::div_ww(w[j + 1], w[j], d[0], w[j]);
            w[j + 1] = 0;
        }
        return;
    }
    const uint d1 = d[h - 1], d0 = d[h - 2];
    const uint v = reciprocal::of_pair(d1, d0);
    for (std::size_t j = l; j-- > 0;)
        q[j] = quotient_word(w + j, d, h, d1, d0, v);
}

inline void sqrt_rem(uint * s, uint * r, const uint * a, std::size_t n, uint * scratch);

// A level of the recursion up to its remainder: s = s' β^l + q (n words, the returned
// carry word 1 for s = β^n), the quotient q (l + 1 words, q[l] = 1 for q = β^l) and
// t = u β^l + a0 (n + 2 words), so that a - s^2 = t - q^2. scratch holds
// n + h + 2 + scratch_words(h) words (h = n - n / 2).
inline uint root_and_partial_remainder(uint * s, uint * q, uint * t, const uint * a, std::size_t n, uint * scratch)
{
    const std::size_t l = n / 2, h = n - l;
    uint * rh = scratch;   // r', h + 1 words
    uint * d = rh + h + 1; // the dividend, n + 1 words
    uint * deeper = d + n + 1;

    uint * sh = s + l; // s' goes straight into the top of s
    sqrt_rem(sh, rh, a + 2 * l, h, deeper);

    // (q, u) = (r' β^l + a1) / (2 s'), from floor((r' β^l + a1) / 2) / s', which keeps
    // the divisor's top bit set; the halving's lost bit comes back into u. The dividend's
    // top h + 1 words are floor(r' / 2) <= s', so q <= β^l.
    words::copy(d, a + l, l);
    words::copy(d + l, rh, h + 1);
    const uint lost = d[0] & 1;
    words::shr_bits(d, d, n + 1, 1);
    quotient_at_most_one_word_over(q, d, l, sh, h);

    // t = u β^l + a0 with u = 2 u + lost (u is d's low h words)
    words::copy(t, a, l);
    words::copy(t + l, d, h);
    t[n + 1] = 0;
    t[n] = words::shl_bits(t + l, t + l, h, 1);
    t[l] |= lost;

    // s = s' β^l + q
    words::copy(s, q, l);
    uint s_top = 0;
    if (q[l]) {
        uint c = 1;
        for (std::size_t i = l; c && i < n; ++i) {
            s[i] += 1;
            c = s[i] == 0 ? 1 : 0;
        }
        s_top = c;
    }
    return s_top;
}

// t -= q^2 over n + 2 words (two's complement), for the (l + 1)-word q <= β^l; sq holds
// 2 l words.
inline void subtract_square(uint * t, const uint * q, std::size_t l, std::size_t n, uint * sq)
{
    std::size_t from = 2 * l;
    uint borrow = 1; // q = β^l: q^2 = β^(2l)
    if (!q[l]) {
        square::upper_columns(sq, q, l, 0);
        borrow = kernel::sub_n(t, t, sq, 2 * l, 0);
    }
    for (std::size_t i = from; borrow && i < n + 2; ++i) {
        const uint before = t[i];
        t[i] = before - 1;
        borrow = before == 0 ? 1 : 0;
    }
}

// While the remainder t (n + 2 words, two's complement) is negative: s -= 1 and
// t += 2 s + 1, for the n-word s with its carry word s_top.
inline void correct_root(uint * s, uint s_top, uint * t, std::size_t n)
{
    while (t[n + 1] & TTMATH_UINT_HIGHEST_BIT) {
        uint b = 1;
        for (std::size_t i = 0; b && i < n; ++i) {
            const uint before = s[i];
            s[i] = before - 1;
            b = before == 0 ? 1 : 0;
        }
        s_top -= b;
        uint c = kernel::add_n(t, t, s, n, 0);
        c += kernel::add_n(t, t, s, n, 0);
        c += 2 * s_top;
        uint one = 1;
        for (std::size_t i = 0; one && i < n; ++i) {
            t[i] += 1;
            one = t[i] == 0 ? 1 : 0;
        }
        c += one;
        const uint before = t[n];
        t[n] = before + c;
        t[n + 1] += t[n] < before ? 1 : 0;
    }
}

// s[0 .. n) = floor(sqrt(a)) and r[0 .. n] = a - s^2 (at most 2 s, so r[n] is 0 or 1)
// for the 2n-word a with a[2n - 1] >= 2^62. scratch holds scratch_words(n) words; no
// output may overlap a.
inline void sqrt_rem(uint * s, uint * r, const uint * a, std::size_t n, uint * scratch)
{
    if (n == 1) {
        s[0] = word_root(a[1], a[0], r[1], r[0]);
        return;
    }
    const std::size_t l = n / 2;
    uint * q = scratch;        // l + 1 words
    uint * t = q + l + 1;      // n + 2 words
    uint * sq = t + n + 2;     // 2 l words
    const uint s_top = root_and_partial_remainder(s, q, t, a, n, sq + 2 * l);
    subtract_square(t, q, l, n, sq);
    correct_root(s, s_top, t, n);
    words::copy(r, t, n + 1);
}

// Scratch words sqrt_rounds_up needs for an n-word root.
constexpr std::size_t rounding_scratch_words(std::size_t n)
{
    return scratch_words(n) + 2 * n + 4;
}

// True when the (n + 2)-word two's complement x is at least β^(n - 1).
inline bool at_least_below_top(const uint * x, std::size_t n)
{
    return !(x[n + 1] & TTMATH_UINT_HIGHEST_BIT) && (x[n + 1] | x[n] | x[n - 1]) != 0;
}

// True when the (n + 2)-word two's complement x is at most 0.
inline bool not_positive(const uint * x, std::size_t n)
{
    return (x[n + 1] & TTMATH_UINT_HIGHEST_BIT) || words::is_zero(x, n + 2);
}

// s[0 .. n) = floor(sqrt(a)) for the 2n-word a with a[2n - 1] >= 2^62; returns whether
// sqrt(a) > s + 1/2, that is a - s^2 > s. The top level needs its remainder
// r = t - q^2 only for its sign and that comparison, and the columns of q^2 from
// n - 3 up settle both: the ones left out add less than β^(n-1), so with
// hi = t - (those columns), r lies in (hi - β^(n-1), hi]. When r may lie within β^(n-1)
// of a boundary (rarely: 2^-64 of the cases), it is formed exactly. scratch holds
// rounding_scratch_words(n) words.
inline bool sqrt_rounds_up(uint * s, const uint * a, std::size_t n, uint * scratch)
{
    if (n == 1) {
        uint r1, r0;
        s[0] = word_root(a[1], a[0], r1, r0);
        return r1 != 0 || r0 > s[0];
    }
    const std::size_t l = n / 2;
    uint * q = scratch;     // l + 1 words
    uint * t = q + l + 1;   // n + 2 words
    uint * sq = t + n + 2;  // 2 l words
    uint * hi = sq + 2 * l;     // n + 2 words
    uint * wide_s = hi + n + 2; // n + 2 words
    const uint s_top = root_and_partial_remainder(s, q, t, a, n, wide_s + n + 2);
    if (!q[l]) {
        square::upper_columns(sq, q, l, n >= 3 ? n - 3 : 0);
        words::copy(hi, t, n + 2);
        uint borrow = kernel::sub_n(hi, hi, sq, 2 * l, 0);
        for (std::size_t i = 2 * l; borrow && i < n + 2; ++i) {
            const uint before = hi[i];
            hi[i] = before - 1;
            borrow = before == 0 ? 1 : 0;
        }
        const bool negative = (hi[n + 1] & TTMATH_UINT_HIGHEST_BIT) != 0;
        if (negative || at_least_below_top(hi, n)) {
            // r < 0: the root is s - 1 and rounds up when r + 2 s - 1 > s - 1, r + s > 0;
            // r > 0: it is s and rounds up when r - s > 0
            words::copy(wide_s, s, n);
            wide_s[n] = 0;
            wide_s[n + 1] = 0;
            if (negative)
                kernel::add_n(hi, hi, wide_s, n + 2, 0);
            else
                kernel::sub_n(hi, hi, wide_s, n + 2, 0);
            const bool up = at_least_below_top(hi, n);
            if (up || not_positive(hi, n)) {
                if (negative) {
                    for (std::size_t i = 0; i < n; ++i)
                        if (s[i]-- != 0)
                            break;
                }
                return up;
            }
        }
    }
    subtract_square(t, q, l, n, sq);
    correct_root(s, s_top, t, n);
    return t[n] != 0 || words::compare(t, s, n) > 0;
}

} // namespace integer_sqrt
} // namespace ttmath

#endif
