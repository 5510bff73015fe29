// The exact integer square root against GMP at every size of the recursion's splits,
// on radicands that put the remainder and the quotient at their limits (also the root
// with only the rounding decision, which settles most of them from the top columns of
// a square), and the square roots built on it against MPFR at both widths.
#include <gtest/gtest.h>

#include <ttmath/ttmath.h>

#include "mpfr_bridge.h"
#include "test_support.h"

namespace {

using namespace testing_support;

// Radicands of n root words: random, squares and their neighbours (remainder 0, and the
// largest remainder 2s), the smallest and largest normalised values.
std::vector<Word> Radicand(Random & rng, std::size_t n, int kind)
{
    std::vector<Word> a(2 * n);
    for (Word & w : a)
        w = rng.NextWord();
    a[2 * n - 1] |= ttmath::integer_sqrt::min_top_word;
    if (kind == 1 || kind == 2 || kind == 3) {
        // s^2, s^2 - 1 (remainder 2s - 2 of s - 1) or (s + 1)^2 - 1 = s^2 + 2s
        std::vector<Word> s(n);
        for (Word & w : s)
            w = rng.NextWord();
        s[n - 1] |= TTMATH_UINT_HIGHEST_BIT;
        s[0] |= 1; // s^2 - 1 stays normalised
        Mpz z;
        WordsToMpz(z.z, s.data(), n);
        mpz_mul(z.z, z.z, z.z);
        if (kind == 2)
            mpz_sub_ui(z.z, z.z, 1);
        if (kind == 3) {
            Mpz t;
            WordsToMpz(t.z, s.data(), n);
            mpz_addmul_ui(z.z, t.z, 2);
        }
        a = MpzToWords(z.z, 2 * n);
    }
    if (kind == 4) {
        std::fill(a.begin(), a.end(), 0);
        a[2 * n - 1] = ttmath::integer_sqrt::min_top_word;
    }
    if (kind == 5)
        std::fill(a.begin(), a.end(), ~Word(0));
    return a;
}

TEST(IntegerSqrt, RootAndRemainderMatchGmpAtEverySize)
{
    ForEachKernelChoice([] {
        Random rng;
        const std::size_t max_words = 40;
        for (std::size_t n = 1; n <= max_words; ++n) {
            std::vector<Word> scratch(ttmath::integer_sqrt::scratch_words(n) + 1);
            for (int round = 0; round < 60; ++round) {
                const int kind = round % 6;
                const std::vector<Word> a = Radicand(rng, n, kind);
                std::vector<Word> s(n), r(n + 1);
                ttmath::integer_sqrt::sqrt_rem(s.data(), r.data(), a.data(), n, scratch.data());
                Mpz za, zs, zr;
                WordsToMpz(za.z, a.data(), 2 * n);
                mpz_sqrtrem(zs.z, zr.z, za.z);
                ASSERT_EQ(s, MpzToWords(zs.z, n)) << "n=" << n << " kind " << kind;
                ASSERT_EQ(r, MpzToWords(zr.z, n + 1)) << "n=" << n << " kind " << kind;
                // the root alone, and whether the remainder exceeds it
                std::vector<Word> s2(n), round_scratch(ttmath::integer_sqrt::rounding_scratch_words(n));
                const bool up = ttmath::integer_sqrt::sqrt_rounds_up(s2.data(), a.data(), n, round_scratch.data());
                ASSERT_EQ(s2, s) << "n=" << n << " kind " << kind;
                ASSERT_EQ(up, mpz_cmp(zr.z, zs.z) > 0) << "n=" << n << " kind " << kind;
            }
        }
    });
}

// Arguments of sqrt: random, exact squares of P/2-bit values, and squares of P-bit
// values plus or minus a little, whose roots lie just off the midpoint between two
// neighbours or just off a representable value.
template<class B>
B SqrtArgument(Random & rng, int round)
{
    const int p = static_cast<int>(B::mantissa_bits);
    B x = RandomNormal<B>(rng, -2000, 2000);
    const int kind = round % 4;
    if (kind == 1) {
        B s = RandomNormal<B>(rng, -900, 900);
        for (std::size_t i = 0; i < s.mantissa.Size() / 2; ++i)
            s.mantissa.table[i] = 0;
        x = s * s;
    } else if (kind >= 2) {
        // (m + 1/2)^2 ulp^2 for an integer m: a midpoint's square, moved by one unit
        // of the last place of x up or down
        Mpfr m(p);
        B s = RandomNormal<B>(rng, -900, 900);
        ToMpfr(s, m.m);
        mpfr_nextabove(m.m);
        Mpfr mid(2 * p + 2);
        ToMpfr(s, mid.m);
        mpfr_add(mid.m, mid.m, m.m, MPFR_RNDN);
        mpfr_div_2ui(mid.m, mid.m, 1, MPFR_RNDN);
        mpfr_sqr(mid.m, mid.m, MPFR_RNDN);
        Mpfr xr(p);
        mpfr_set(xr.m, mid.m, kind == 2 ? MPFR_RNDU : MPFR_RNDD);
        x = FromMpfr<B>(xr.m);
    }
    return x;
}

template<class B>
class SquareRoot : public ::testing::Test {};
typedef ::testing::Types<ttmath::Big<1, 4>, ttmath::Big<8, 32>> Widths;
TYPED_TEST_SUITE(SquareRoot, Widths);

TYPED_TEST(SquareRoot, IsCorrectlyRoundedOnSquaresMidpointsAndRandomArguments)
{
    typedef TypeParam B;
    const mpfr_prec_t p = B::mantissa_bits;
    Random rng(0x9e3779b97f4a7c15ull);
    int exact = 0;
    for (int round = 0; round < 2000; ++round) {
        const B x = SqrtArgument<B>(rng, round);
        B ours(x);
        ASSERT_EQ(ours.Sqrt(), 0u);
        Mpfr a(p), r(p);
        ToMpfr(x, a.m);
        exact += mpfr_sqrt(r.m, a.m, MPFR_RNDN) == 0;
        ASSERT_EQ(ours, FromMpfr<B>(r.m)) << "round " << round;
    }
    EXPECT_GT(exact, 0); // the squares are among the arguments
}

// The working-precision root (truncated, used inside other functions) is below the
// exact root by less than one unit in its last place.
TYPED_TEST(SquareRoot, WorkingRootIsTruncatedToItsPrecision)
{
    typedef TypeParam B;
    typedef ttmath::wide::Work<sizeof(B().exponent) / 8, sizeof(B().mantissa) / 8> W;
    Random rng(0x51ed270b27f6bd3bull);
    for (std::size_t n = 1; n <= 2 * (B::mantissa_bits / 64); ++n) {
        for (int round = 0; round < 50; ++round) {
            const B x = RandomNormal<B>(rng, -300, 300);
            typename W::Float a, s;
            ttmath::wide::Argument<sizeof(B().exponent) / 8, sizeof(B().mantissa) / 8> arg(x);
            arg.ToWide(a, B::mantissa_bits / 64);
            ttmath::wide::Sqrt(s, a, n);
            ASSERT_EQ(s.n, n);
            // exact: s <= sqrt(x) < s + ulp, so s^2 <= x < (s + ulp)^2
            const mpfr_prec_t bits = static_cast<mpfr_prec_t>(4 * 64 * n + 2 * B::mantissa_bits);
            const long unit = static_cast<long>(s.e - static_cast<ttmath::sint>(64 * n));
            Mpfr lo(bits), hi(bits), xm(bits);
            Mpz z;
            WordsToMpz(z.z, s.w, n);
            mpfr_set_z_2exp(lo.m, z.z, unit, MPFR_RNDN);
            mpz_add_ui(z.z, z.z, 1);
            mpfr_set_z_2exp(hi.m, z.z, unit, MPFR_RNDN);
            mpfr_sqr(lo.m, lo.m, MPFR_RNDN);
            mpfr_sqr(hi.m, hi.m, MPFR_RNDN);
            ToMpfr(x, xm.m);
            ASSERT_LE(mpfr_cmp(lo.m, xm.m), 0) << "n=" << n << " round " << round;
            ASSERT_GT(mpfr_cmp(hi.m, xm.m), 0) << "n=" << n << " round " << round;
        }
    }
}

} // namespace
