// Products of working numbers truncated to n words, the one product the function
// kernels (exp, ln, the series, roots) use: the operands' top words are read in place,
// only the columns that reach the kept words are summed, and the normalising shift is
// one bit at most (the product of two mantissas in [1/2, 1) lies in [1/4, 1)). Passing
// the same object as both operands squares it, forming each product of two different
// words once (square_columns.h).
//
// The columns left out lie more than guard_columns words below the result's last word;
// with their carries they add less than (number of columns) * 2^-64 units of it. The
// result is never above the exact product in magnitude and below it by less than
// 1 + 2^-50 units of its last place; an operand longer than n words is cut to its top
// n words first, which adds less than two units more. A shorter operand is used as it
// is (no padding words), and a product that fits n words is exact.
#ifndef TTMATH_TRUNCATED_PRODUCT_H
#define TTMATH_TRUNCATED_PRODUCT_H

#include <cstddef>

#include "kernels.h"
#include "square_columns.h"
#include "wide_float.h"
#include "words.h"

namespace ttmath {
namespace wide {

// Words of columns summed below the last word the result keeps.
const std::size_t guard_columns = 2;

// r = a * b truncated to n words; r may be a or b.
template<std::size_t C>
void MulTruncated(WideFloat<C> & r, const WideFloat<C> & a, const WideFloat<C> & b, std::size_t n)
{
    if (a.zero || b.zero) {
        r.SetZero(n);
        return;
    }
    // the longer operand runs along the rows
    const bool a_longer = a.n >= b.n;
    const WideFloat<C> & u = a_longer ? a : b;
    const WideFloat<C> & v = a_longer ? b : a;
    const std::size_t nu = u.n < n ? u.n : n, nv = v.n < n ? v.n : n;
    const uint * x = u.w + (u.n - nu);
    const uint * y = v.w + (v.n - nv);
    const std::size_t len = nu + nv;
    const std::size_t low = len > n + guard_columns ? len - n - guard_columns : 0;
    uint p[2 * C];
    if (&a == &b) {
        square::upper_columns(p, x, nu, low);
    } else {
        // row j from column max(j, low); the first row (low < nu, as nv <= n) sets the
        // words the others add to, and no word below column low is read
        p[nu] = kernel::mul_1(p + low, x + low, nu - low, y[0]);
        for (std::size_t j = 1; j < nv; ++j) {
            const std::size_t i0 = j >= low ? 0 : low - j;
            if (i0 < nu)
                p[j + nu] = kernel::addmul_1(p + j + i0, x + i0, nu - i0, y[j]);
        }
    }
    sint e = a.e + b.e;
    const bool negative = a.neg != b.neg;
    r.n = n;
    r.neg = negative;
    r.zero = false;
    if (len <= n) {
        // exact: the product fills the top len words
        words::fill(r.w, n - len, 0);
        words::copy(r.w + (n - len), p, len);
        if (!(p[len - 1] & TTMATH_UINT_HIGHEST_BIT)) {
            words::shl_bits(r.w, r.w, n, 1);
            --e;
        }
        r.e = e;
        return;
    }
    // the top n words moved left by s (0 or 1) bits, the word below supplying the bit,
    // in one pass ((w >> 1) >> (63 - s) is w >> (64 - s), and 0 for s = 0)
    const uint * top = p + (len - n);
    const unsigned shift = (p[len - 1] & TTMATH_UINT_HIGHEST_BIT) ? 0 : 1;
    const uint * below = top - 1;
    for (std::size_t i = n; i-- > 0;)
        r.w[i] = (top[i] << shift) | ((below[i] >> 1) >> (words::bits_per_word - 1 - shift));
    r.e = e - static_cast<sint>(shift);
}

} // namespace wide
} // namespace ttmath

#endif
