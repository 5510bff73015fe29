// Exact floor quotients of word arrays (schoolbook division, Knuth's algorithm D).
#ifndef TTMATH_QUOTIENT_H
#define TTMATH_QUOTIENT_H

#include <cstddef>
#include "kernels.h"
#include "reciprocal.h"
#include "words.h"

namespace ttmath {
namespace quotient {

// q[0 .. un) = floor(u / d) for a single non-zero word d; returns the remainder.
// q may equal u.
inline uint by_word(uint * q, const uint * u, std::size_t un, uint d)
{
    uint rem = 0;
    for (std::size_t i = un; i-- > 0;)
        q[i] = kernel::div_ww(rem, u[i], d, rem);
    return rem;
}

// The steps of algorithm D that produce quotient words steps-1 down to 0. u has
// steps + vn words, and u[j + 1 .. j + vn] < v before the step producing word j.
inline void normalized_steps(uint * q, uint * u, std::size_t steps, const uint * v, std::size_t vn)
{
    const uint v1 = v[vn - 1], v2 = v[vn - 2];
    for (std::size_t j = steps; j-- > 0;) {
        uint * uj = u + j;
        const uint top = uj[vn], next = uj[vn - 1];
        uint qhat, rhat;
        bool rhat_overflow = false;
        if (top >= v1) {
            // The estimate is B - 1 or one more than it should be; start from B - 1.
            qhat = TTMATH_UINT_MAX_VALUE;
            rhat = next + v1;
            rhat_overflow = rhat < next || top > v1;
        } else {
            qhat = kernel::div_ww(top, next, v1, rhat);
        }
        // Refine with the second divisor word: at most two corrections.
        while (!rhat_overflow) {
            uint ph, pl;
            kernel::mul_ww(qhat, v2, ph, pl);
            if (ph < rhat || (ph == rhat && pl <= uj[vn - 2]))
                break;
            --qhat;
            uint r2 = rhat + v1;
            rhat_overflow = r2 < rhat;
            rhat = r2;
        }
        uint borrow = kernel::submul_1(uj, v, vn, qhat);
        uint before = uj[vn];
        uj[vn] = before - borrow;
        if (before < borrow) {
            // qhat was one too large: add the divisor back.
            --qhat;
            uj[vn] += kernel::add_n(uj, uj, v, vn, 0);
        }
        q[j] = qhat;
    }
}

// Core of algorithm D. u has un + 1 words (u[un] is the extra top word, at most v's top
// word), v has vn >= 2 words with its top bit set, un >= vn. Writes the un - vn + 1
// quotient words to q; u is left holding the remainder in its low vn words.
inline void normalized(uint * q, uint * u, std::size_t un, const uint * v, std::size_t vn)
{
    normalized_steps(q, u, un - vn + 1, v, vn);
}

// Scratch words `floor_quotient` needs for sizes un, vn.
inline std::size_t scratch_words(std::size_t un, std::size_t vn)
{
    return un + 1 + vn;
}

// q[0 .. un - vn + 1) = floor(u / v) where u has un words, v has vn words and
// v[vn - 1] != 0, un >= vn. scratch holds scratch_words(un, vn) words. If rem is not
// null it receives the remainder (vn words).
inline void floor_quotient(uint * q, const uint * u, std::size_t un, const uint * v, std::size_t vn,
                           uint * scratch, uint * rem = 0)
{
    if (vn == 1) {
        uint r = by_word(q, u, un, v[0]);
        if (rem)
            rem[0] = r;
        return;
    }
    const unsigned s = words::clz(v[vn - 1]);
    uint * un_ = scratch;        // un + 1 words
    uint * vn_ = scratch + un + 1; // vn words
    if (s) {
        words::shl_bits(vn_, v, vn, s);
        un_[un] = words::shl_bits(un_, u, un, s);
    } else {
        words::copy(vn_, v, vn);
        words::copy(un_, u, un);
        un_[un] = 0;
    }
    normalized(q, un_, un, vn_, vn);
    if (rem) {
        // The remainder is below the shifted divisor, so it fits its vn words.
        if (s)
            words::shr_bits(rem, un_, vn, s);
        else
            words::copy(rem, un_, vn);
    }
}

// One quotient word of w / d for the (n + 1)-word w = r * β, n-word r < d, d's top bit
// set: the word is estimated from w's top three words by d's top two (d1, d0, with v
// their reciprocal), which leaves it at most one too large, and w[0 .. n) becomes the
// remainder (w[n] is consumed).
template<std::size_t n>
inline uint shifted_step(uint * w, const uint * d, uint d1, uint d0, uint v)
{
    const uint u2 = w[n], u1 = w[n - 1], u0 = w[n - 2];
    if (u2 == d1 && u1 == d0) {
        // The estimate would not fit a word (this needs r's top two words equal to
        // d's): the quotient word is then β - 1 or β - 2; work it out over all words.
        uint q = TTMATH_UINT_MAX_VALUE;
        uint top = w[n] - kernel::submul_1(w, d, n, q);
        while (top != 0) { // negative: q was too large
            --q;
            top += kernel::add_n(w, w, d, n, 0);
        }
        return q;
    }
    uint t1, t0;
    uint q = reciprocal::div_3by2(u2, u1, u0, d1, d0, v, t1, t0);
    // w - q * d = (t1, t0, w[n-3], ..., w[0]) - q * (d[n-3], ..., d[0])
    uint borrow = 0;
    if constexpr (n > 2)
        borrow = fixed::submul_1<n - 2>(w, d, q);
    const uint b0 = t0 < borrow ? 1 : 0;
    w[n - 2] = t0 - borrow;
    const uint b1 = t1 < b0 ? 1 : 0;
    w[n - 1] = t1 - b0;
    if (b1) {
        // the estimate was one too large (rare): add the divisor back
        --q;
        fixed::add<n>(w, w, d, 0);
    }
    return q;
}

// Steps j, j - 1, ..., 0 of the quotient below.
template<std::size_t n, std::size_t j>
inline void shifted_steps_unrolled(uint * q, uint * u, const uint * d, uint d1, uint d0, uint v)
{
    q[j] = shifted_step<n>(u + j, d, d1, d0, v);
    if constexpr (j > 0)
        shifted_steps_unrolled<n, j - 1>(q, u, d, d1, d0, v);
}

// q[0 .. n] = floor(a * 2^(64n) / d) for n-word a and d with d's top bit set (the
// quotient then has at most 64n + 1 bits): the top quotient word, 0 or 1, is whether
// a >= d; the others come from a reciprocal of d's top two words, one word a step, the
// remainder sliding down a 2n-word buffer.
template<std::size_t n>
inline void shifted_by_normalized(uint * q, const uint * a, const uint * d)
{
    static_assert(n >= 2, "two divisor words are needed for the estimate");
#ifdef TTMATH_ASM_X86_64
    if constexpr (n == 4) {
        if (x86_64_kernels::shifted_quotient_4(q, a, d))
            return;
    }
#endif
    uint u[2 * n];
    uint * r = u + n;
    words::fill(u, n, 0);
    const uint below = fixed::sub<n>(r, a, d, 0);
    q[n] = 1 - below;
    const uint keep_a = 0 - below; // r = a when a < d, else a - d (a select, not a branch)
    for (std::size_t i = 0; i < n; ++i)
        r[i] ^= (r[i] ^ a[i]) & keep_a;
    const uint d1 = d[n - 1], d0 = d[n - 2];
    const uint v = reciprocal::of_pair(d1, d0);
    if constexpr (n <= fixed::unrolled_max_words) {
        // unrolled: every word of u at a fixed place, which the compiler keeps in registers
        shifted_steps_unrolled<n, n - 1>(q, u, d, d1, d0, v);
    } else {
        for (std::size_t j = n; j-- > 0;)
            q[j] = shifted_step<n>(u + j, d, d1, d0, v);
    }
}

} // namespace quotient
} // namespace ttmath

#endif
