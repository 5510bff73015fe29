// atan t for 0 < t <= 1, by Newton-like steps on the sine and cosine: from an
// approximation y, w = (t cos y - sin y) / (cos y + t sin y) is tan(atan t - y), so
// y + atan w is exact; w is tiny, and three terms of atan w multiply the correct bits
// by seven. The start comes from the double atan, the steps' precision rises with the
// correct bits, and the last one runs at the full precision.
#ifndef TTMATH_ATAN_KERNEL_H
#define TTMATH_ATAN_KERNEL_H

#include "trig_kernels.h"

namespace ttmath {
namespace wide {

// Terms of atan w = w - w^3/3 + w^5/5 - ... used by each step.
const sint atan_step_terms = 3;

// y = atan t for 0 < t <= 1 at n words; returns the error bound in ulps of y.
template<std::size_t C>
uint ATanUnit(WideFloat<C> & y, const WideFloat<C> & t, std::size_t n)
{
    const sint target = static_cast<sint>(n * word_bits) + 16;
    if (-t.e > target / 2) {
        // atan t = t (1 - t^2/3 + ...): t is right to far below an ulp
        y = t;
        y.Resize(n);
        return 2;
    }
    const double td = t.ToDouble();
    const double ratio = std::fabs(td) < 1e-300 ? 1.0 : std::atan(td) / td;
    WideFloat<C> g, w, w2, num, den, a, b, sum, one;
    g.FromDouble(ratio, 2);
    Mul(y, t, g, 2);
    sint acc = 48;
    uint err = 0;
    std::size_t steps = 0;
    while (acc < target) {
        sint next = acc * (2 * atan_step_terms + 1) - 8;
        if (next > target)
            next = target;
        std::size_t wp = static_cast<std::size_t>(next / static_cast<sint>(word_bits)) + 2;
        if (wp > n)
            wp = n;
        y.Resize(wp);
        SinCos<C> sc(y, wp, true, true);
        // w = (t c - s) / (c + t s)
        Mul(a, t, sc.cos, wp);
        Sub(num, a, sc.sin, wp);
        Mul(b, t, sc.sin, wp);
        Add(den, sc.cos, b, wp);
        Div(w, num, den, wp);
        // atan w = w (1 - w^2 (1/3 - w^2 (1/5 - ...)))
        Mul(w2, w, w, wp);
        one.SetOne(wp);
        sum.SetZero(wp);
        for (sint i = atan_step_terms - 1; i >= 0; --i) {
            WideFloat<C> inv;
            DivWord(inv, one, static_cast<uint>(2 * i + 1), wp);
            Mul(a, w2, sum, wp);
            Sub(sum, inv, a, wp);
        }
        Mul(a, w, sum, wp);
        Add(y, y, a, wp);
        acc = next;
        err = sc.sin_err + sc.cos_err;
        ++steps;
    }
    Meter().Series(steps);
    y.Resize(n);
    // the last step's sine and cosine errors enter w, and so y, once (w's size is
    // below an ulp of y); the additions and divisions add a few ulps
    return 4 * err + 16;
}

} // namespace wide
} // namespace ttmath

#endif
