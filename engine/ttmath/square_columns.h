// Squares of word arrays from half of the word products: each product x_i x_j with
// i < j is formed once and the sum doubled, then the squares x_i^2 are added. Products
// in columns below a given one can be left out (for a truncated result); the words
// formed are then a lower bound of the square, short of it by at most the products
// left out.
#ifndef TTMATH_SQUARE_COLUMNS_H
#define TTMATH_SQUARE_COLUMNS_H

#include <cstddef>

#include "kernels.h"
#include "product.h"
#include "words.h"

namespace ttmath {
namespace square {

// Below this many words the whole product (all n^2 word products, no second pass) is
// faster.
const std::size_t min_words = 8;
// Squares on the diagonal added in one carry chain.
const std::size_t diagonal_block = 16;

// p[0 .. 2n) = x^2 for the n-word x, leaving out the products x_i x_j (i != j) with
// i + j < low (short squares keep them all); low = 0 gives the exact square. p must
// not overlap x.
inline void upper_columns(uint * p, const uint * x, std::size_t n, std::size_t low)
{
    if (n < min_words) {
        product::schoolbook(p, x, n, x, n);
        return;
    }
    words::fill(p, 2 * n, 0);
    // the products above the diagonal, row i from column max(2 i + 1, low)
    for (std::size_t i = 0; i + 1 < n; ++i) {
        const std::size_t j0 = low > 2 * i + 1 ? low - i : i + 1;
        if (j0 < n)
            p[i + n] = kernel::addmul_1(p + i + j0, x + j0, n - j0, x[i]);
    }
    // twice those (their sum is below x^2 / 2, so no bit leaves the top); no product
    // reaches a column below low, so the doubling starts there
    const std::size_t first = low < 2 * n ? low : 2 * n;
    if (first < 2 * n)
        words::shl_bits(p + first, p + first, 2 * n - first, 1);
    // plus the squares on the diagonal, a block of them at a time
    uint diagonal[2 * diagonal_block];
    uint carry = 0;
    for (std::size_t i0 = 0; i0 < n; i0 += diagonal_block) {
        const std::size_t count = n - i0 < diagonal_block ? n - i0 : diagonal_block;
        for (std::size_t i = 0; i < count; ++i)
            kernel::mul_ww(x[i0 + i], x[i0 + i], diagonal[2 * i + 1], diagonal[2 * i]);
        carry = kernel::add_n(p + 2 * i0, p + 2 * i0, diagonal, 2 * count, carry);
    }
}

} // namespace square
} // namespace ttmath

#endif
