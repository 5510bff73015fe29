// Sums of power series whose coefficients are ratios of small integers, by rectangular
// splitting: F = sum_{i < T} c_i x^i with c_{i+1} = c_i / q(i + 1) for integers q.
// With the powers x, ..., x^m at hand, each block of m terms is an integer combination
// of them (cheap word products), and the blocks are joined by Horner's rule in x^m with
// one full product and one division by a word each. That takes about m + T/m full
// products instead of T.
#ifndef TTMATH_SERIES_EVALUATION_H
#define TTMATH_SERIES_EVALUATION_H

#include "wide_float.h"
#include "series_fixed_point.h"
#include "truncated_product.h"
#include "work_meter.h"

namespace ttmath {
namespace wide {

// The largest block length tried; powers beyond it cost more than they save.
const std::size_t max_block_terms = 12;

// q(i) as a signed word: for e^x - 1, q(i) = i + 1; for 1 - cos, q(i) = -(2i + 1)(2i + 2).
typedef sint (*SeriesRatio)(sint i);

inline sint ExpRatio(sint i)
{
    return i + 1;
}

inline sint CosRatio(sint i)
{
    return -(2 * i + 1) * (2 * i + 2);
}

// |q(a) q(a+1) ... q(b)| and its sign; false when it would not fit 63 bits.
inline bool RatioProduct(SeriesRatio q, sint a, sint b, uint & magnitude, bool & negative)
{
    magnitude = 1;
    negative = false;
    for (sint i = a; i <= b; ++i) {
        sint v = q(i);
        uint m = static_cast<uint>(v < 0 ? -v : v);
        if (m != 0 && magnitude > (TTMATH_UINT_MAX_VALUE >> 1) / m)
            return false;
        magnitude *= m;
        negative = negative != (v < 0);
    }
    return true;
}

// F / c_0 = sum_{i < T} x^i / q(1) ... q(i), at n words (T rounded up to whole blocks),
// for |x| < 1. The blocks are summed in fixed point with one word more than n below
// the point: each |F'_j| is below 2^64 and at least about its first term, so the
// fixed point keeps its relative precision, and a term costs one multiply-accumulate.
template<std::size_t C>
void SumSeries(WideFloat<C> & f, const WideFloat<C> & x, sint terms, SeriesRatio q, std::size_t n)
{
    // block length: about sqrt(T), as long as a block's ratios fit a word
    std::size_t m = 1;
    while ((m + 1) * (m + 1) <= static_cast<std::size_t>(terms) + 1 && m + 1 <= max_block_terms) {
        uint mag;
        bool neg;
        if (!RatioProduct(q, terms + 1, terms + 1 + static_cast<sint>(m), mag, neg))
            break;
        ++m;
    }
    const sint blocks = (terms + static_cast<sint>(m) - 1) / static_cast<sint>(m);
    Meter().Series(static_cast<std::size_t>(blocks) * m);
    // powers[k] = x^k, k = 1 .. m, and fixed[k] their magnitudes in fixed point
    const std::size_t frac = n + 1;
    WideFloat<C> powers[max_block_terms + 1];
    uint fixed[max_block_terms + 1][C + 2];
    powers[1] = x;
    powers[1].Resize(n);
    for (std::size_t k = 2; k <= m; ++k) {
        if (k % 2 == 0)
            MulTruncated(powers[k], powers[k / 2], powers[k / 2], n);
        else
            MulTruncated(powers[k], powers[k - 1], powers[1], n);
    }
    for (std::size_t k = 1; k < m; ++k)
        ToFixed(fixed[k], powers[k], frac, frac);
    uint acc[C + 4];
    words::fill(acc, frac + 2, 0);
    WideFloat<C> t;
    const sint ms = static_cast<sint>(m);
    bool started = false;
    for (sint j = blocks - 1; j >= 0; --j) {
        // F'_j = H_j + x^m F'_{j+1} / Q(jm + m, jm + 2m - 1), H_j = sum_k x^k Q(jm + k + 1, jm + m - 1)
        if (started) {
            uint mag;
            bool neg;
            RatioProduct(q, j * ms + ms, j * ms + 2 * ms - 1, mag, neg);
            FromFixed(t, acc, frac, n);
            MulTruncated(t, t, powers[m], n);
            DivWord(t, t, mag, n);
            ToFixed(acc, t, frac, frac + 2);
            if (t.neg != neg)
                NegateWords(acc, frac + 2);
        }
        started = true;
        for (sint k = ms - 1; k >= 0; --k) {
            uint mag;
            bool neg;
            RatioProduct(q, j * ms + k + 1, j * ms + ms - 1, mag, neg);
            if (k == 0)
                AccumulateInteger(acc, frac, mag, neg);
            else
                AccumulateTerm(acc, fixed[k], frac, mag, neg != powers[k].neg);
        }
    }
    // F / c_0 = F'_0 / Q(1, m - 1)
    uint mag;
    bool neg;
    RatioProduct(q, 1, ms - 1, mag, neg);
    FromFixed(f, acc, frac, n);
    DivWord(f, f, mag, n);
    if (neg)
        f.Negate();
}

} // namespace wide
} // namespace ttmath

#endif
