// Kernels of the exponential and the logarithm on working numbers, each returning a
// bound on its error in units of the last place of its result:
//
//   ExpM1     e^r - 1 for |r| < 1: r is halved s times, the Taylor series of e^(r/2^s) - 1
//             is summed, and a -> a (a + 2) undoes the halvings (this form keeps the
//             relative error of e^r - 1 small even for tiny r);
//   ExpSplit  e^x = 2^k (1 + a) with k the integer nearest x / ln 2;
//   Log1p     ln(1 + u) for u in [-0.3, 0.42] by Newton's iteration on e^y = 1 + u, each
//             step correcting with several terms of ln(1 + c), so one step multiplies the
//             correct bits by seven;
//   LnSplit   ln(m 2^E) = ln m + E ln 2 for m in [1, 2) and an integer E of any size.
#ifndef TTMATH_EXP_LOG_KERNELS_H
#define TTMATH_EXP_LOG_KERNELS_H

#include <cmath>

#include "correct_rounding.h"
#include "series_constants.h"
#include "series_evaluation.h"
#include "truncated_product.h"

namespace ttmath {
namespace wide {

inline sint IntegerSqrt(sint v)
{
    sint r = static_cast<sint>(std::sqrt(static_cast<double>(v)));
    while (r * r > v)
        --r;
    while ((r + 1) * (r + 1) <= v)
        ++r;
    return r;
}

// Bits beyond the working precision that a series' truncation error stays below.
const sint series_margin_bits = 8;

// a = e^r - 1 for |r| < 1 at n words; returns the error bound in ulps of a.
template<std::size_t C>
uint ExpM1(WideFloat<C> & a, const WideFloat<C> & r, std::size_t n)
{
    if (r.zero) {
        a.SetZero(n);
        return 0;
    }
    const sint bits = static_cast<sint>(n * word_bits);
    // Halve until r < 2^-h: with the series summed by rectangular splitting, about
    // sqrt(bits)/2 balances its products against the squarings.
    const sint h = IntegerSqrt(bits) / 2;
    sint s = r.e + h;
    if (s < 0)
        s = 0;
    WideFloat<C> x(r), t;
    x.Resize(n);
    x.Shift(-s);
    // terms: the first neglected term x^(T+1)/(T+1)! lies below 2^-(bits + margin) |x|
    const sint k = -x.e; // |x| < 2^-k
    sint terms = 1;
    double log2_factorial = 1.0;
    while (static_cast<double>(terms * k) + log2_factorial < static_cast<double>(bits + series_margin_bits)) {
        ++terms;
        log2_factorial += std::log2(static_cast<double>(terms + 1));
    }
    // a = x (1 + x/2! + x^2/3! + ...)
    WideFloat<C> sum;
    SumSeries(sum, x, terms, ExpRatio, n);
    MulTruncated(a, sum, x, n);
    // e^(2y) - 1 = a (a + 2)
    for (sint i = 0; i < s; ++i) {
        MulTruncated(t, a, a, n);
        a.Shift(1);
        Add(a, a, t, n);
    }
    // Series and Horner: a few ulps; each doubling adds two and scales by at most
    // 1 + |a| / 2 (their product stays below e).
    return static_cast<uint>(8 * s + 2 * terms + 32);
}

// The integer nearest q, as words of |round(q)| (count words); q must be below
// 2^(64 count - 1) in magnitude.
template<std::size_t C>
void NearestInteger(const WideFloat<C> & q, uint * out, std::size_t count)
{
    words::fill(out, count, 0);
    if (q.zero || q.e < 0)
        return;
    // integer part: the top q.e bits of the mantissa; the next bit rounds
    const std::size_t total = q.n * word_bits;
    const std::size_t frac_bits = static_cast<std::size_t>(q.e) < total ? total - static_cast<std::size_t>(q.e) : 0;
    const bool half = frac_bits > 0 && ((q.w[(frac_bits - 1) / word_bits] >> ((frac_bits - 1) % word_bits)) & 1);
    if (frac_bits < total) {
        uint tmp[C];
        words::copy(tmp, q.w, q.n);
        if (frac_bits > 0)
            words::shr(tmp, q.n, frac_bits);
        std::size_t used = q.n < count ? q.n : count;
        words::copy(out, tmp, used);
    }
    if (half)
        for (std::size_t i = 0; i < count; ++i)
            if (++out[i] != 0)
                break;
}

// e^x = 2^k (1 + a): v = 1 + a at n words, offset = k. Needs |x| < 2^(64 exp + 2)
// (beyond, every result leaves the range).
template<uint exp, uint man>
uint ExpSplit(Approximation<exp, man> & out, const typename Work<exp, man>::Float & x, std::size_t n)
{
    typedef typename Work<exp, man>::Float Float;
    typedef typename Work<exp, man>::Offset Offset;
    Float r, a, one;
    out.offset.SetZero();
    if (x.zero || x.e < 0) {
        r = x;
        r.Resize(n);
    } else {
        const std::size_t kwords = static_cast<std::size_t>(x.e + 1) / word_bits + 1;
        Float ln2, q, kf, p;
        LoadConstant(ln2, Short().ln2, kwords + 2);
        Div(q, x, ln2, kwords + 1);
        uint k[exp + 2];
        NearestInteger(q, k, exp + 1);
        kf.SetWords(k, exp + 1, 0, kwords + 1);
        const std::size_t m = n + kwords + 2;
        LoadConstant(ln2, Short().ln2, m);
        Mul(p, kf, ln2, m);
        p.neg = x.neg && !p.zero;
        Float xm(x);
        Sub(r, xm, p, m);
        r.Resize(n);
        Offset ko;
        words::copy(ko.table, k, exp + 1);
        if (x.neg)
            ko.ChangeSign();
        out.offset = ko;
    }
    uint err = ExpM1(a, r, n);
    one.SetOne(n);
    Add(out.v, one, a, n);
    out.err = err + 4;
    return 0;
}

// The most terms of ln(1 + c) one Newton step of Log1p sums.
const sint log1p_max_terms = 16;
// Terms of the last step when the target takes more than one: its e^-y at the full
// precision dominates, so the steps before it only reach a fraction of the target
// (1 / (terms + 1)), at a precision whose e^-y costs little.
const sint log1p_last_terms = 4;

// The least common multiple of 1 .. k for k <= log1p_max_terms (fits a word).
inline uint LcmUpTo(sint k)
{
    uint l = 1;
    for (sint i = 2; i <= k; ++i) {
        uint a = l, b = static_cast<uint>(i);
        while (b) {
            uint r = a % b;
            a = b;
            b = r;
        }
        l = l / a * static_cast<uint>(i);
    }
    return l;
}

// y = ln(1 + c) = c (1 - c/2 + c^2/3 - ...) to the c^terms term at wp words, as
// c S / L with L = lcm(1 .. terms) and S = L - c (L/2 - c (L/3 - ...)): integer
// coefficients, one product and one subtraction a term, one division at the end.
template<std::size_t C>
void Log1pTerms(WideFloat<C> & y, const WideFloat<C> & c, sint terms, std::size_t wp)
{
    const uint l = LcmUpTo(terms);
    WideFloat<C> sum, t, k;
    sum.SetWord(l / static_cast<uint>(terms), wp);
    for (sint i = terms - 1; i >= 1; --i) {
        // sum = L/i - c sum
        MulTruncated(t, c, sum, wp);
        k.SetWord(l / static_cast<uint>(i), wp);
        Sub(sum, k, t, wp);
    }
    MulTruncated(t, c, sum, wp);
    DivWord(y, t, l, wp);
}

// ln(1 + u) for u in [-0.3, 0.42] at n words; returns the error bound in ulps.
template<std::size_t C>
uint Log1p(WideFloat<C> & y, const WideFloat<C> & u, std::size_t n)
{
    if (u.zero) {
        y.SetZero(n);
        return 0;
    }
    const sint target = static_cast<sint>(n * word_bits) + 16;
    if (-u.e > target) {
        // ln(1 + u) = u (1 - u/2 + ...): u is right to far below an ulp
        y = u;
        y.Resize(n);
        return 2;
    }
    // start: u times ln(1 + u)/u in double precision, about 48 correct bits
    const double ud = u.ToDouble();
    const double ratio = ud == 0.0 || std::fabs(ud) < 1e-300 ? 1.0 : std::log1p(ud) / ud;
    WideFloat<C> g, a, c, t, l;
    g.FromDouble(ratio, 2);
    Mul(y, u, g, 2);
    sint acc = 48;
    // each step: c = (1 + u) e^-y - 1, y += ln(1 + c) to the c^terms term (a step with
    // `terms` terms turns acc correct bits into about acc (terms + 1))
    const sint before_last = (target + 8 + log1p_last_terms) / (log1p_last_terms + 1);
    std::size_t steps = 0;
    while (acc < target) {
        // the whole target in one step when few enough terms do it, else the bits the
        // last step needs
        const bool one_step = (target + 8 + acc - 1) / acc - 1 <= log1p_max_terms;
        const sint goal = one_step || acc >= before_last ? target : before_last;
        sint terms = (goal + 8 + acc - 1) / acc - 1;
        if (terms > log1p_max_terms)
            terms = log1p_max_terms;
        sint next = acc * (terms + 1) - 8;
        if (next > goal)
            next = goal;
        std::size_t wp = static_cast<std::size_t>(next / static_cast<sint>(word_bits)) + 2;
        if (wp > n)
            wp = n;
        WideFloat<C> my(y);
        my.Resize(wp);
        my.Negate();
        ExpM1(a, my, wp);
        // c = u + a + u a
        MulTruncated(t, u, a, wp);
        Add(c, u, a, wp);
        Add(c, c, t, wp);
        Log1pTerms(l, c, terms, wp);
        y.Resize(wp);
        Add(y, y, l, wp);
        acc = next;
        ++steps;
    }
    Meter().Series(steps);
    y.Resize(n);
    // the last e^-y - 1 (its bound, below 2^12 ulps) enters c, and so y, once; the
    // additions and the short series add a few ulps
    return 2 * 4096 + 32;
}

// The nearest working number to sqrt(2) from above, as the top word of a mantissa:
// mantissas in [1, 2) at or above it are halved before the logarithm.
const uint sqrt2_top_word = 0xb504f333f9de6485ull;

// ln(m 2^E) for m in [1, 2) at n words (E a signed integer of Offset's size); returns
// the error bound in ulps.
template<uint exp, uint man>
uint LnSplit(typename Work<exp, man>::Float & y, const typename Work<exp, man>::Float & m_in,
             const typename Work<exp, man>::Offset & e_in, std::size_t n)
{
    typedef typename Work<exp, man>::Float Float;
    typedef typename Work<exp, man>::Offset Offset;
    Float m(m_in), u, one, l;
    Offset e(e_in);
    m.Resize(n);
    if (m.w[n - 1] >= sqrt2_top_word) {
        m.Shift(-1);
        e.AddOne();
    }
    one.SetOne(n);
    Sub(u, m, one, n);
    uint err = Log1p(l, u, n);
    if (e.IsZero()) {
        y = l;
        return err;
    }
    const std::size_t ew = exp + 1;
    Float ef, ln2, p;
    IntegerToWide(ef, e.table, ew, ew);
    LoadConstant(ln2, Short().ln2, n + ew + 1);
    Mul(p, ef, ln2, n + 1);
    Add(y, p, l, n);
    return 2 * err + 8;
}

} // namespace wide
} // namespace ttmath

#endif
