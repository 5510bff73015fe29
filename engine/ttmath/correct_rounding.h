// Correct rounding of the elementary functions (round to nearest, ties to even) by
// Ziv's strategy: a kernel evaluates the function at a working precision with a bound
// on its error; when both ends of the error interval round to the same P-bit number,
// that number is the correctly rounded result (rounding is monotonic). Otherwise the
// kernel runs again with more words. The number of rounds and the widest precision
// are fixed per type, so no argument can make a call run long.
#ifndef TTMATH_CORRECT_ROUNDING_H
#define TTMATH_CORRECT_ROUNDING_H

#include "big.h"
#include "wide_float.h"
#include "work_meter.h"

namespace ttmath {
namespace wide {

// Working types and the precision schedule of Big<exp, man>.
template<uint exp, uint man>
struct Work {
    // The first round has one guard word; each further round adds as many words as
    // the mantissa has, plus one.
    static constexpr std::size_t first_words = man + 1;
    static constexpr std::size_t step_words = man + 1;
    static constexpr std::size_t rounds = 3;
    // Extra words some kernels need on top: an argument's integer bits (up to the
    // exponent's width), a guard word and one for alignment.
    static constexpr std::size_t extra_words = exp + 3;
    static constexpr std::size_t capacity = first_words + (rounds - 1) * step_words + extra_words + 2;

    typedef WideFloat<capacity> Float;
    // Result exponents beyond the working number's: one word wider than the type's.
    typedef Int<exp + 1> Offset;

    static std::size_t Words(std::size_t round) { return first_words + round * step_words; }
};

// A kernel's answer: the value times 2^offset, off by at most `err` units in the last
// place of v.
template<uint exp, uint man>
struct Approximation {
    typename Work<exp, man>::Float v;
    typename Work<exp, man>::Offset offset;
    uint err = 0;

    Approximation() { offset.SetZero(); }
};

// A P-bit mantissa rounded from a longer one, and the exponent of its leading bit.
template<uint man>
struct Rounded {
    uint m[man];
    sint lead;

    bool operator==(const Rounded & o) const { return lead == o.lead && words::compare(m, o.m, man) == 0; }
};

// Rounds the len-word x (top bit set, len > man) whose leading bit has exponent
// `lead` to man words, to nearest with ties to even.
template<uint man>
Rounded<man> RoundNearest(const uint * x, std::size_t len, sint lead)
{
    Rounded<man> r;
    words::copy(r.m, x + (len - man), man);
    r.lead = lead;
    const uint below = x[len - man - 1];
    const bool half = (below & TTMATH_UINT_HIGHEST_BIT) != 0;
    const bool rest = (below & ~TTMATH_UINT_HIGHEST_BIT) != 0 || !words::is_zero(x, len - man - 1);
    if (half && (rest || (r.m[0] & 1))) {
        if (UInt<man>::AddOneTo(r.m)) {
            r.m[man - 1] = TTMATH_UINT_HIGHEST_BIT;
            ++r.lead;
        }
    }
    return r;
}

// The rounding test: true when every value within err ulps of v rounds to the same
// P-bit number, which is then stored in `out`.
template<uint man, std::size_t C>
bool RoundingIsDecided(const WideFloat<C> & v, uint err, Rounded<man> & out)
{
    const std::size_t n = v.n;
    if (n <= man)
        return false;
    uint lo[C + 1], hi[C + 2];
    // hi = W + err, one word more for the carry
    words::copy(hi, v.w, n);
    hi[n] = 0;
    {
        uint c = err;
        for (std::size_t i = 0; i <= n && c; ++i) {
            uint old = hi[i];
            hi[i] = old + c;
            c = hi[i] < old ? 1 : 0;
        }
    }
    Rounded<man> up;
    if (hi[n])
        up = RoundNearest<man>(hi, n + 1, v.e + 1);
    else
        up = RoundNearest<man>(hi, n, v.e);

    // lo = W - err, normalised again if it fell below the binade
    words::copy(lo, v.w, n);
    {
        uint b = err;
        for (std::size_t i = 0; i < n && b; ++i) {
            uint old = lo[i];
            lo[i] = old - b;
            b = old < b ? 1 : 0;
        }
    }
    sint lead = v.e;
    uint lz = words::leading_zeros(lo, n);
    if (lz) {
        words::shl(lo, n, lz);
        lead -= static_cast<sint>(lz);
    }
    Rounded<man> down = RoundNearest<man>(lo, n, lead);
    if (!(up == down))
        return false;
    out = up;
    return true;
}

// Stores the rounded value times 2^offset with the sign; returns 1 (leaving the NaN
// flag set) when the exponent leaves the type's range.
template<uint exp, uint man>
uint StoreRounded(Big<exp, man> & result, const Rounded<man> & r, bool negative,
                  const typename Work<exp, man>::Offset & offset)
{
    typedef typename Work<exp, man>::Offset Offset;
    Offset x(offset);
    uint c = x.Add(Offset(r.lead - static_cast<sint>(Big<exp, man>::mantissa_bits)));
    // x must fit the type's exponent: the top word is the sign extension of the rest
    const uint fill = x.table[exp - 1] & TTMATH_UINT_HIGHEST_BIT ? TTMATH_UINT_MAX_VALUE : 0;
    if (c || x.table[exp] != fill) {
        result.SetNan();
        return 1;
    }
    result.info = negative ? TTMATH_BIG_SIGN : 0;
    words::copy(result.mantissa.table, r.m, man);
    words::copy(result.exponent.table, x.table, exp);
    return 0;
}

// Runs `eval(words, approximation)` at the rising precisions of the schedule until the
// rounding is decided and stores the result. eval returns 0 when it produced an
// approximation, or a failure code that is returned as it is. After the last round the
// nearest rounding of the last approximation is taken (counted as undecided).
template<uint exp, uint man, class Eval>
uint RoundCorrectly(Big<exp, man> & result, Eval eval)
{
    typedef Work<exp, man> W;
    Approximation<exp, man> a;
    Rounded<man> r;
    for (std::size_t round = 0; round < W::rounds; ++round) {
        const std::size_t n = W::Words(round);
        Meter().rounds++;
        Meter().Precision(n);
        uint status = eval(n, a);
        if (status) {
            result.SetNan();
            return status;
        }
        if (a.v.zero) {
            result.SetZero();
            return 0;
        }
        if (RoundingIsDecided<man>(a.v, a.err, r))
            return StoreRounded(result, r, a.v.neg, a.offset);
    }
    Meter().undecided++;
    r = RoundNearest<man>(a.v.w, a.v.n, a.v.e);
    return StoreRounded(result, r, a.v.neg, a.offset);
}

} // namespace wide
} // namespace ttmath

#endif
