// Roots with word indexes (Newton's iteration on the reciprocal root and one last step)
// against MPFR at both widths: random arguments over a wide exponent range, exact k-th
// powers, and indexes from 3 up to the largest that takes the iteration, where the
// step's error grows fastest with k.
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

} // namespace
