// Exact floor quotients of word arrays (schoolbook division, Knuth's algorithm D).
#ifndef TTMATH_QUOTIENT_H
#define TTMATH_QUOTIENT_H

#include <cstddef>
#include "kernels.h"
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

// q[0 .. n] = floor(a * 2^(64n) / v) for n-word a and v with v's top bit set (the
// quotient then has at most 64n + 1 bits). This is algorithm D for a dividend whose low
// half is zero and a divisor that needs no normalising shift; the top quotient word,
// 0 or 1, comes from a comparison instead of a division step.
template<std::size_t n>
inline void shifted_by_normalized(uint * q, const uint * a, const uint * v)
{
    static_assert(n >= 2, "two divisor words are needed for the estimate");
    uint u[2 * n + 1];
    words::fill(u, n, 0);
    words::copy(u + n, a, n);
    u[2 * n] = 0;
    q[n] = words::compare(a, v, n) >= 0 ? 1 : 0;
    if (q[n])
        kernel::sub_n(u + n, u + n, v, n, 0);
    normalized_steps(q, u, n, v, n);
}

} // namespace quotient
} // namespace ttmath

#endif
