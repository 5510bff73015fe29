// Conversions to and from doubles on whole ranges: every double converts exactly and
// back, and ToDouble truncates like MPFR's round-toward-zero, down to the subnormals.
#include <gtest/gtest.h>
#include <mpfr.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <cmath>

#include <ttmath/ttmath.h>

#include "test_support.h"

namespace {

using namespace testing_support;

double RandomDouble(Random & rng)
{
    std::uint64_t bits = rng.Next();
    if ((bits >> 52 & 0x7ff) == 0x7ff) // no infinities or NaNs here
        bits &= ~(std::uint64_t(1) << 62);
    double d;
    std::memcpy(&d, &bits, sizeof d);
    return d;
}

template<class Big>
void CheckRoundTrips()
{
    Random rng;
    for (int i = 0; i < 100000; ++i) {
        double d = RandomDouble(rng);
        Big x;
        ASSERT_EQ(x.FromDouble(d), 0u);
        double back;
        ASSERT_EQ(x.ToDouble(back), 0u);
        if (d == 0)
            EXPECT_EQ(back, 0.0);
        else
            ASSERT_EQ(std::memcmp(&back, &d, sizeof d), 0) << d;
    }
}

TEST(Conversion, EveryDoubleRoundTrips)
{
    CheckRoundTrips<ttmath::Big<1, 4>>();
    CheckRoundTrips<ttmath::Big<8, 32>>();
}

template<class Big>
void CheckTruncation()
{
    const std::size_t words = Big::mantissa_bits / 64;
    Random rng(5);
    mpfr_t m;
    mpfr_init2(m, Big::mantissa_bits);
    for (int i = 0; i < 20000; ++i) {
        // leading-bit exponents across the double range, its subnormals and beyond
        Big x = RandomNormal<Big>(rng, -1090, 1030, rng.Next() & 1);
        Mpz z;
        WordsToMpz(z.z, x.mantissa.table, words);
        mpfr_set_z_2exp(m, z.z, x.exponent.ToInt(), MPFR_RNDN);
        if (x.IsSign())
            mpfr_neg(m, m, MPFR_RNDN);
        double expect = mpfr_get_d(m, MPFR_RNDZ);
        const long leading = static_cast<long>(x.exponent.ToInt()) + static_cast<long>(Big::mantissa_bits) - 1;
        const long first_beyond_double = 1024, below_smallest_subnormal = -1075;
        double got;
        ttmath::uint c = x.ToDouble(got);
        if (leading >= first_beyond_double) {
            EXPECT_EQ(c, 1u);
            EXPECT_EQ(got, x.IsSign() ? -std::numeric_limits<double>::infinity()
                                      : std::numeric_limits<double>::infinity());
            continue;
        }
        if (leading <= below_smallest_subnormal) {
            EXPECT_EQ(c, 1u);
            EXPECT_EQ(std::signbit(got), false);
            EXPECT_EQ(got, 0.0);
            continue;
        }
        ASSERT_EQ(c, 0u);
        ASSERT_EQ(got, expect) << "exponent " << x.exponent.ToInt();
    }
    mpfr_clear(m);
}

TEST(Conversion, ToDoubleTruncatesLikeRoundTowardZero)
{
    CheckTruncation<ttmath::Big<1, 4>>();
    CheckTruncation<ttmath::Big<8, 32>>();
}

TEST(Conversion, FloatIsTheDoubleRoundedAgain)
{
    Random rng(9);
    for (int i = 0; i < 20000; ++i) {
        ttmath::Big<1, 4> x = RandomNormal<ttmath::Big<1, 4>>(rng, -160, 140, rng.Next() & 1);
        double d;
        ttmath::uint dc = x.ToDouble(d);
        float f;
        ttmath::uint fc = x.ToFloat(f);
        float expect = static_cast<float>(d);
        if (expect == 0)
            expect = 0.0f;
        ASSERT_EQ(std::memcmp(&f, &expect, sizeof f), 0);
        bool overflow = std::isinf(expect), underflow = expect == 0 && d != 0;
        EXPECT_EQ(fc, (dc || overflow || underflow) ? 1u : 0u);
    }
}

} // namespace
