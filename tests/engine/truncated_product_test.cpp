// The truncated product of working numbers against the exact product from GMP: never
// above it, below it by less than the documented units, for every pair of operand
// lengths around the result's and for mantissas of all ones (the dropped columns carry
// the most); exact at the bottom of the binade (a power of two times anything); and the
// same when the result is an operand, squares included.
#include <gtest/gtest.h>

#include <algorithm>

#include <ttmath/ttmath.h>
#include <ttmath/truncated_product.h>

#include "test_support.h"

namespace {

using namespace testing_support;

typedef ttmath::wide::WideFloat<40> Wide;

const std::size_t longest = 36;

Wide RandomWide(Random & rng, std::size_t words, bool all_ones)
{
    Wide a;
    a.SetZero(words);
    for (std::size_t i = 0; i < words; ++i)
        a.w[i] = all_ones ? ~Word(0) : rng.NextWord();
    a.w[words - 1] |= TTMATH_UINT_HIGHEST_BIT;
    a.zero = false;
    a.e = rng.Between(-100, 100);
    return a;
}

Wide PowerOfTwo(Random & rng, std::size_t words)
{
    Wide a = RandomWide(rng, words, false);
    std::fill(a.w, a.w + words, Word(0));
    a.w[words - 1] = TTMATH_UINT_HIGHEST_BIT;
    return a;
}

// ours <= exact < ours + units, for ours = R 2^(er - 64 n) and exact = P 2^shift.
void ExpectBelowByLessThan(const Word * r, std::size_t n, long er, const mpz_t p, long shift, unsigned long units)
{
    Mpz exact, ours, bound;
    mpz_set(exact.z, p);
    WordsToMpz(ours.z, r, n);
    const long shift_ours = er - 64 * static_cast<long>(n);
    const long unit = shift < shift_ours ? shift : shift_ours;
    mpz_mul_2exp(exact.z, exact.z, static_cast<unsigned long>(shift - unit));
    mpz_mul_2exp(ours.z, ours.z, static_cast<unsigned long>(shift_ours - unit));
    mpz_set_ui(bound.z, units);
    mpz_mul_2exp(bound.z, bound.z, static_cast<unsigned long>(shift_ours - unit));
    EXPECT_LE(mpz_cmp(ours.z, exact.z), 0);
    mpz_add(ours.z, ours.z, bound.z);
    EXPECT_GT(mpz_cmp(ours.z, exact.z), 0);
}

bool SameNumber(const Wide & a, const Wide & b)
{
    return a.n == b.n && a.e == b.e && a.neg == b.neg && a.zero == b.zero && std::equal(a.w, a.w + a.n, b.w);
}

// Below the exact product and square by less than two units of the last place (two
// more for each operand longer than the result, cut to its top words), with the
// leading bit set and the sign of the product.
TEST(TruncatedProduct, IsBelowTheExactProductByLessThanTwoUnits)
{
    ForEachKernelChoice([] {
        Random rng(0x3c6ef372fe94f82bull);
        std::size_t lengths[22];
        for (std::size_t n = 1; n <= 20; ++n)
            lengths[n - 1] = n;
        lengths[20] = 33;
        lengths[21] = longest;
        for (std::size_t n : lengths) {
            for (std::size_t na = 1; na <= longest; na += 5) {
                for (int round = 0; round < 4; ++round) {
                    Wide a = RandomWide(rng, na, round == 0), r;
                    Mpz za, zp;
                    WordsToMpz(za.z, a.w, na);
                    const unsigned long cut = na > n ? 1 : 0;
                    for (std::size_t nb = 1; nb <= longest; nb += 7) {
                        Wide b = RandomWide(rng, nb, round == 0);
                        b.neg = round % 2 == 1;
                        ttmath::wide::MulTruncated(r, a, b, n);
                        ASSERT_EQ(r.n, n);
                        ASSERT_NE(r.w[n - 1] & TTMATH_UINT_HIGHEST_BIT, 0u);
                        ASSERT_EQ(r.neg, b.neg);
                        Mpz zb;
                        WordsToMpz(zb.z, b.w, nb);
                        mpz_mul(zp.z, za.z, zb.z);
                        SCOPED_TRACE(testing::Message() << "n=" << n << " na=" << na << " nb=" << nb);
                        ExpectBelowByLessThan(r.w, n, r.e, zp.z, a.e + b.e - 64 * static_cast<long>(na + nb),
                                              2 + 2 * (cut + (nb > n ? 1 : 0)));
                    }
                    a.neg = round % 2 == 1;
                    ttmath::wide::MulTruncated(r, a, a, n);
                    ASSERT_NE(r.w[n - 1] & TTMATH_UINT_HIGHEST_BIT, 0u);
                    ASSERT_FALSE(r.neg);
                    mpz_mul(zp.z, za.z, za.z);
                    SCOPED_TRACE(testing::Message() << "square n=" << n << " na=" << na);
                    ExpectBelowByLessThan(r.w, n, r.e, zp.z, 2 * a.e - 128 * static_cast<long>(na), 2 + 4 * cut);
                }
            }
        }
    });
}

// A power of two times b is b one binade lower, exactly: the one-bit normalising shift
// at the bottom of the binade, and no column left out may lose anything.
TEST(TruncatedProduct, PowerOfTwoFactorsAreExact)
{
    Random rng(0x9e3779b97f4a7c15ull);
    for (std::size_t n : {1, 2, 3, 5, 8, 9, 17, 33}) {
        Wide two = PowerOfTwo(rng, n), b = RandomWide(rng, n, false), r;
        ttmath::wide::MulTruncated(r, two, b, n);
        ASSERT_TRUE(std::equal(r.w, r.w + n, b.w)) << "n " << n;
        ASSERT_EQ(r.e, two.e + b.e - 1);
        ttmath::wide::MulTruncated(r, two, two, n);
        ASSERT_TRUE(std::equal(r.w, r.w + n, two.w)) << "square n " << n;
        ASSERT_EQ(r.e, 2 * two.e - 1);
    }
}

// The result may be either operand (a square in place too), and a zero operand gives
// zero at the requested length.
TEST(TruncatedProduct, ResultMayBeAnOperand)
{
    Random rng(77);
    for (std::size_t n : {2, 7, 9, 20}) {
        const Wide a = RandomWide(rng, n + 2, false), b = RandomWide(rng, n, false);
        Wide expect, s = a;
        ttmath::wide::MulTruncated(expect, a, b, n);
        ttmath::wide::MulTruncated(s, s, b, n);
        EXPECT_TRUE(SameNumber(s, expect)) << "n " << n;
        s = b;
        ttmath::wide::MulTruncated(s, a, s, n);
        EXPECT_TRUE(SameNumber(s, expect)) << "n " << n;
        ttmath::wide::MulTruncated(expect, a, a, n);
        s = a;
        ttmath::wide::MulTruncated(s, s, s, n);
        EXPECT_TRUE(SameNumber(s, expect)) << "square n " << n;
        Wide zero;
        zero.SetZero(3);
        ttmath::wide::MulTruncated(s, a, zero, n);
        EXPECT_TRUE(s.zero);
        EXPECT_EQ(s.n, n);
    }
}

} // namespace
