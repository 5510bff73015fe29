// Sine and cosine of a reduced argument |r| <= pi/4 (a little more is fine): the
// kernel computes t = 1 - cos r, which keeps its relative accuracy for tiny r. r is
// halved s times, the Taylor series of 1 - cos is summed in u = r^2, and
// 1 - cos 2a = 2 t (2 - t) undoes the halvings. Then cos r = 1 - t and
// sin r = sqrt(t (2 - t)) with the sign of r.
#ifndef TTMATH_TRIG_KERNELS_H
#define TTMATH_TRIG_KERNELS_H

#include "exp_log_kernels.h"
#include "series_evaluation.h"

namespace ttmath {
namespace wide {

// t = 1 - cos r for |r| < 1 at n words; returns the error bound in ulps of t.
template<std::size_t C>
uint OneMinusCos(WideFloat<C> & t, const WideFloat<C> & r, std::size_t n)
{
    if (r.zero) {
        t.SetZero(n);
        return 0;
    }
    const sint bits = static_cast<sint>(n * word_bits);
    // halve until r < 2^-h: each series term gains 2h bits, each halving costs a product
    const sint h = IntegerSqrt(bits / 2) / 2;
    sint s = r.e + h;
    if (s < 0)
        s = 0;
    WideFloat<C> x(r), u, sum, v;
    x.Resize(n);
    x.neg = false;
    x.Shift(-s);
    Mul(u, x, x, n);
    // terms: the first neglected one, relative to u/2, lies below 2^-(bits + margin)
    const sint k = -u.e; // u < 2^-k
    sint terms = 1;
    double log2_ratio = std::log2(12.0); // (2T+2)! / 2 for T = 1
    while (static_cast<double>(terms * k) + log2_ratio < static_cast<double>(bits + series_margin_bits)) {
        ++terms;
        log2_ratio += std::log2(static_cast<double>((2 * terms + 1) * (2 * terms + 2)));
    }
    // t = (u/2) (1 - u/(3 4) (1 - u/(5 6) (1 - ...)))
    SumSeries(sum, u, terms, CosRatio, n);
    Mul(t, sum, u, n);
    t.Shift(-1);
    // 1 - cos 2a = 2 t (2 - t)
    WideFloat<C> two;
    two.SetPowerOfTwo(1, n);
    for (sint i = 0; i < s; ++i) {
        Sub(v, two, t, n);
        Mul(t, t, v, n);
        t.Shift(1);
    }
    return static_cast<uint>(4 * s + 2 * terms + 24);
}

// sin r and cos r of a reduced argument at n words; the error bound (ulps) of each.
template<std::size_t C>
struct SinCos {
    WideFloat<C> sin, cos;
    uint sin_err = 0, cos_err = 0;

    SinCos(const WideFloat<C> & r, std::size_t n, bool want_sin, bool want_cos)
    {
        WideFloat<C> t, one, v;
        uint et = OneMinusCos(t, r, n);
        if (want_cos) {
            one.SetOne(n);
            Sub(cos, one, t, n);
            // t <= 0.3: its error shrinks relative to 1 - t
            cos_err = et + 2;
        }
        if (want_sin) {
            if (t.zero) {
                sin = r;
                sin.Resize(n);
                sin_err = 2;
            } else {
                WideFloat<C> two;
                two.SetPowerOfTwo(1, n);
                Sub(v, two, t, n);
                Mul(v, v, t, n);
                Sqrt(sin, v, n);
                sin.neg = r.neg;
                sin_err = et + 24;
            }
        }
    }
};

} // namespace wide
} // namespace ttmath

#endif
