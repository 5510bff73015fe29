// Truncated products of working numbers from the upper columns only: an n-word result
// keeps the top n of the 2n product words, so the word products a_i * b_j with
// i + j < n - wide_guard_words are left out. Their sum stays below
// n * 2^(64 (n - wide_guard_words + 1)), less than 2^-100 of the result's last place,
// so MulTop and SqrTop are off by less than one ulp plus that sliver: every kernel's
// error bound has whole ulps to spare, which absorbs it. For long mantissas this
// saves almost half of the word products of Mul, and SqrTop computes each cross
// product once (a quarter of Mul's work).
#ifndef TTMATH_WIDE_PRODUCTS_H
#define TTMATH_WIDE_PRODUCTS_H

#include "wide_float.h"

namespace ttmath {
namespace wide {

// Columns computed below the result's lowest word.
const std::size_t wide_guard_words = 3;

// The first column of the product of two n-word mantissas that is computed.
inline std::size_t FirstColumn(std::size_t n)
{
    return n > wide_guard_words ? n - wide_guard_words : 0;
}

// r = the top n words of the 2n-word p (its leading bit one of the top two), with the
// exponent e of the product's leading position 128 n.
template<std::size_t C>
void LoadTopHalf(WideFloat<C> & r, const uint * p, std::size_t n, sint e, bool negative)
{
    const unsigned shift = static_cast<unsigned>(~p[2 * n - 1] >> (word_bits - 1));
    for (std::size_t k = 0; k < n; ++k)
        r.w[k] = words::shl_pair(p[n + k], p[n + k - 1], shift);
    r.n = n;
    r.e = e - static_cast<sint>(shift);
    r.neg = negative;
    r.zero = false;
}

// r = a * b at precision n from the upper columns. r may be a or b.
template<std::size_t C>
void MulTop(WideFloat<C> & r, const WideFloat<C> & a, const WideFloat<C> & b, std::size_t n)
{
    if (a.zero || b.zero) {
        r.SetZero(n);
        return;
    }
    uint x[C], y[C], p[2 * C];
    TopWords(x, a, n);
    TopWords(y, b, n);
    const std::size_t low = FirstColumn(n);
    words::fill(p + low, 2 * n - low, 0);
    for (std::size_t j = 0; j < n; ++j) {
        const std::size_t i0 = j >= low ? 0 : low - j;
        p[j + n] = kernel::addmul_1(p + j + i0, x + i0, n - i0, y[j]);
    }
    LoadTopHalf(r, p, n, a.e + b.e, a.neg != b.neg);
}

// r = a^2 at precision n from the upper columns: the cross products once, doubled,
// and the squares of the words added. r may be a.
template<std::size_t C>
void SqrTop(WideFloat<C> & r, const WideFloat<C> & a, std::size_t n)
{
    if (a.zero) {
        r.SetZero(n);
        return;
    }
    uint x[C], p[2 * C], d[2 * C];
    TopWords(x, a, n);
    const std::size_t low = FirstColumn(n);
    words::fill(p + low, 2 * n - low, 0);
    // cross products x_i x_j, i < j, i + j >= low: row i covers columns up to i + n - 1
    for (std::size_t i = 0; i + 1 < n; ++i) {
        std::size_t j0 = i + 1;
        if (i + j0 < low)
            j0 = low - i;
        if (j0 >= n)
            continue;
        p[i + n] = kernel::addmul_1(p + i + j0, x + j0, n - j0, x[i]);
    }
    // doubled: the cross products sum to less than half the square, so the top bit is free
    words::shl_bits(p + low, p + low, 2 * n - low, 1);
    for (std::size_t i = 0; i < n; ++i)
        kernel::mul_ww(x[i], x[i], d[2 * i + 1], d[2 * i]);
    kernel::add_n(p + low, p + low, d + low, 2 * n - low, 0);
    LoadTopHalf(r, p, n, 2 * a.e, false);
}

} // namespace wide
} // namespace ttmath

#endif
