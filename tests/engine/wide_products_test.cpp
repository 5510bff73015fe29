// The truncated products of working numbers against the exact product (from GMP)
// truncated to the same precision: MulTop and SqrTop may only leave out word products far below the
// last place, so they equal it or lie one unit below it, never above, on random
// mantissas, on the carry patterns (words of all ones, zeros, single bits) and on
// powers of two, where the product sits at the bottom of its binade.
#include <gtest/gtest.h>

#include <ttmath/ttmath.h>
#include <ttmath/wide_products.h>

#include "test_support.h"

namespace {

using testing_support::Random;
typedef ttmath::wide::Work<8, 32>::Float Float; // the 2048-bit type's working number

const std::size_t sizes[] = {1, 2, 3, 4, 5, 8, 9, 17, 33, 36};
const int rounds = 400;

Float RandomFloat(Random & rng, std::size_t n)
{
    Float f;
    f.SetZero(n);
    for (std::size_t i = 0; i < n; ++i)
        f.w[i] = rng.NextWord();
    f.w[n - 1] |= TTMATH_UINT_HIGHEST_BIT;
    if (rng.Next() % 16 == 0) { // a power of two
        for (std::size_t i = 0; i < n; ++i)
            f.w[i] = 0;
        f.w[n - 1] = TTMATH_UINT_HIGHEST_BIT;
    }
    f.zero = false;
    f.e = rng.Between(-200, 200);
    f.neg = rng.Next() % 2 == 0;
    return f;
}

// The exact product of the top n words of a and b from GMP, truncated to n words.
void FullProduct(Float & r, const Float & a, const Float & b, std::size_t n)
{
    std::vector<mp_limb_t> x(n, 0), y(n, 0), p(2 * n);
    for (std::size_t i = 0; i < n && i < a.n; ++i)
        x[n - 1 - i] = a.w[a.n - 1 - i];
    for (std::size_t i = 0; i < n && i < b.n; ++i)
        y[n - 1 - i] = b.w[b.n - 1 - i];
    mpn_mul_n(p.data(), x.data(), y.data(), static_cast<mp_size_t>(n));
    const unsigned shift = (p[2 * n - 1] >> 63) ? 0 : 1;
    r.SetZero(n);
    for (std::size_t k = 0; k < n; ++k)
        r.w[k] = (p[n + k] << shift) | (shift ? p[n + k - 1] >> 63 : 0);
    r.e = a.e + b.e - static_cast<ttmath::sint>(shift);
    r.neg = a.neg != b.neg;
    r.zero = false;
}

// How many units of the last place `top` lies below `full` (same precision); -1 when
// above or when the two differ in sign or exponent beyond a carry into the binade.
long long UnitsBelow(const Float & full, const Float & top)
{
    if (full.neg != top.neg || full.n != top.n)
        return -1;
    if (full.e == top.e) {
        long long d = 0;
        uint borrow = 0;
        for (std::size_t i = 0; i < full.n; ++i) {
            uint f = full.w[i], t = top.w[i];
            uint diff = f - t - borrow;
            borrow = (f < t || (f == t && borrow)) ? 1 : 0;
            if (i == 0)
                d = static_cast<long long>(diff);
            else if (diff != 0)
                return -1;
        }
        return borrow ? -1 : d;
    }
    return -1;
}

TEST(WideProducts, TruncatedProductWithinOneUnitBelowTheFullOne)
{
    Random rng;
    for (std::size_t n : sizes) {
        for (int k = 0; k < rounds; ++k) {
            Float a = RandomFloat(rng, n), b = RandomFloat(rng, n), full, top;
            FullProduct(full, a, b, n);
            ttmath::wide::MulTop(top, a, b, n);
            long long below = UnitsBelow(full, top);
            ASSERT_TRUE(below == 0 || below == 1) << "n " << n << " round " << k << ": " << below;
            ASSERT_EQ(top.w[n - 1] >> 63, 1u);
        }
    }
}

TEST(WideProducts, TruncatedSquareWithinOneUnitBelowTheFullOne)
{
    Random rng(0x9e3779b97f4a7c15ull);
    for (std::size_t n : sizes) {
        for (int k = 0; k < rounds; ++k) {
            Float a = RandomFloat(rng, n), full, top;
            FullProduct(full, a, a, n);
            ttmath::wide::SqrTop(top, a, n);
            long long below = UnitsBelow(full, top);
            ASSERT_TRUE(below == 0 || below == 1) << "n " << n << " round " << k << ": " << below;
            ASSERT_FALSE(top.neg);
        }
    }
}

TEST(WideProducts, OperandsOfOtherLengthsAndAliasing)
{
    Random rng(77);
    for (int k = 0; k < rounds; ++k) {
        // a longer operand is cut to n words, a shorter one padded, as in Mul
        Float a = RandomFloat(rng, 9), b = RandomFloat(rng, 3), full, top;
        FullProduct(full, a, b, 6);
        ttmath::wide::MulTop(top, a, b, 6);
        long long below = UnitsBelow(full, top);
        ASSERT_TRUE(below == 0 || below == 1) << below;
        // the result may be an operand
        Float s = a;
        ttmath::wide::SqrTop(s, s, 9);
        Float expect;
        ttmath::wide::SqrTop(expect, a, 9);
        ASSERT_EQ(UnitsBelow(expect, s), 0);
        Float zero;
        zero.SetZero(4);
        ttmath::wide::MulTop(top, a, zero, 4);
        ASSERT_TRUE(top.zero);
    }
}

} // namespace
