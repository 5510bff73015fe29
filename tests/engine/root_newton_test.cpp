// Roots with word indexes (Newton's iteration on the reciprocal root and one last step)
// against MPFR at both widths: random arguments over a wide exponent range, exact k-th
// powers, and indexes from 3 up to the largest that takes the iteration, where the
// step's error grows fastest with k. Also the truncated products the iteration uses,
// against exact products.
#include <gtest/gtest.h>

#include <ttmath/ttmath.h>

#include "mpfr_bridge.h"
#include "test_support.h"

namespace {

using namespace testing_support;

template<class B>
class RootNewton : public ::testing::Test {};
typedef ::testing::Types<ttmath::Big<1, 4>, ttmath::Big<8, 32>> Widths;
TYPED_TEST_SUITE(RootNewton, Widths);

const unsigned long largest_newton_index = (1ul << ttmath::wide::root_newton_index_bits) - 1;

// The root of x against MPFR's; counts the exact ones.
template<class B>
void ExpectRootMatches(const B & x, unsigned long k, int & exact)
{
    ttmath::ErrorCode e;
    const B ours = ttmath::Root(x, B(static_cast<ttmath::uint>(k)), &e);
    ASSERT_EQ(e, ttmath::err_ok);
    Mpfr a(B::mantissa_bits), r(B::mantissa_bits);
    ToMpfr(x, a.m);
    exact += mpfr_rootn_ui(r.m, a.m, k, MPFR_RNDN) == 0;
    ASSERT_EQ(ours, FromMpfr<B>(r.m)) << "index " << k;
}

TYPED_TEST(RootNewton, RandomArgumentsAndIndexesMatchMpfr)
{
    typedef TypeParam B;
    Random rng(0x6a09e667f3bcc908ull);
    const unsigned long indexes[] = {3, 4, 5, 7, 10, 31, 64, 65, 1000, 65537, largest_newton_index};
    int exact = 0;
    for (unsigned long k : indexes) {
        for (int round = 0; round < 150; ++round) {
            const bool negative = (k & 1) && round % 2;
            ExpectRootMatches(RandomNormal<B>(rng, -3000, 3000, negative), k, exact);
        }
    }
    EXPECT_EQ(exact, 0); // random full mantissas are never exact powers
}

// y^k for y with few enough bits that the power is exact: the root is y itself.
TYPED_TEST(RootNewton, ExactPowersGiveTheirBase)
{
    typedef TypeParam B;
    Random rng(0xbb67ae8584caa73bull);
    const unsigned long indexes[] = {3, 5, 7, 12};
    int exact = 0;
    for (unsigned long k : indexes) {
        const int base_bits = static_cast<int>(B::mantissa_bits / k);
        for (int round = 0; round < 60; ++round) {
            B y = RandomNormal<B>(rng, -40, 40);
            Mpfr m(base_bits), power(B::mantissa_bits);
            ToMpfr(y, power.m);
            mpfr_set(m.m, power.m, MPFR_RNDN); // y cut to base_bits bits
            ASSERT_EQ(mpfr_pow_ui(power.m, m.m, k, MPFR_RNDN), 0);
            ExpectRootMatches(FromMpfr<B>(power.m), k, exact);
        }
    }
    EXPECT_EQ(exact, 4 * 60);
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

typedef ttmath::wide::WideFloat<24> Wide;

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

// The truncated product and square lie below the exact ones by less than two units of
// their last place (two more for each operand longer than the result, cut to its top
// words), for every pair of operand lengths around the result's (exact, a few columns
// left out, most columns left out) and mantissas of all ones, where the dropped
// columns carry the most.
TEST(TruncatedProduct, IsBelowTheExactProductByLessThanTwoUnits)
{
    ForEachKernelChoice([] {
        Random rng(0x3c6ef372fe94f82bull);
        for (std::size_t n = 1; n <= 20; ++n) {
            for (std::size_t na = 1; na <= 20; na += 3) {
                for (int round = 0; round < 4; ++round) {
                    Wide a = RandomWide(rng, na, round == 0), r;
                    Mpz za, zp;
                    WordsToMpz(za.z, a.w, na);
                    const unsigned long cut = na > n ? 1 : 0;
                    for (std::size_t nb = 1; nb <= 20; nb += 4) {
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
                    ttmath::wide::MulTruncated(r, a, a, n);
                    ASSERT_NE(r.w[n - 1] & TTMATH_UINT_HIGHEST_BIT, 0u);
                    mpz_mul(zp.z, za.z, za.z);
                    SCOPED_TRACE(testing::Message() << "square n=" << n << " na=" << na);
                    ExpectBelowByLessThan(r.w, n, r.e, zp.z, 2 * a.e - 128 * static_cast<long>(na), 2 + 4 * cut);
                }
            }
        }
    });
}

} // namespace
