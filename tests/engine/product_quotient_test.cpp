// Exact products and quotients of word arrays against GMP, around the boundaries of the
// algorithm choices (column-wise, schoolbook rows, Karatsuba's split) and on the
// divisions that need the estimate corrected.
#include <gtest/gtest.h>

#include <ttmath/ttmath.h>

#include "test_support.h"

namespace {

using namespace testing_support;
typedef unsigned __int128 u128;

template<std::size_t n>
void CheckProducts(Random & rng, int rounds)
{
    for (int round = 0; round < rounds; ++round) {
        Word a[n], b[n], r[2 * n];
        for (std::size_t i = 0; i < n; ++i) {
            a[i] = round == 0 ? ~Word(0) : rng.NextWord();
            b[i] = round == 0 ? ~Word(0) : rng.NextWord();
        }
        ttmath::product::full<n>(r, a, b);
        Mpz za, zb, zp;
        WordsToMpz(za.z, a, n);
        WordsToMpz(zb.z, b, n);
        mpz_mul(zp.z, za.z, zb.z);
        ASSERT_EQ(std::vector<Word>(r, r + 2 * n), MpzToWords(zp.z, 2 * n)) << "n=" << n << " round " << round;
    }
}

TEST(Product, EverySizeAroundTheAlgorithmSwitches)
{
    static_assert(ttmath::product::column_max_words == 4, "the sizes below straddle the switch to rows");
    static_assert(ttmath::product::karatsuba_min_words == 24, "the sizes below straddle Karatsuba's threshold");
    ForEachKernelChoice([] {
    Random rng;
    CheckProducts<1>(rng, 200);
    CheckProducts<3>(rng, 200);
    CheckProducts<4>(rng, 200);
    CheckProducts<5>(rng, 200);
    CheckProducts<23>(rng, 50);
    CheckProducts<24>(rng, 50);
    CheckProducts<25>(rng, 50); // odd: no split
    CheckProducts<26>(rng, 50); // halves below the threshold
    CheckProducts<32>(rng, 50);
    CheckProducts<48>(rng, 50); // two levels of splitting
    CheckProducts<64>(rng, 20);
    });
}

// Mantissas whose low words are all zero or all ones put the top word of the product's
// low half on the rounding boundaries, where the short product must give up; random
// ones almost never do. Whenever it decides, it decides as the whole product does.
template<std::size_t n>
void CheckShortProduct(Random & rng, int rounds)
{
    static_assert(n >= ttmath::short_product::min_words, "a size that uses the short product");
    int decided = 0, undecided = 0;
    for (int round = 0; round < rounds; ++round) {
        Word a[n], b[n], p[2 * n], m[n], m2[n];
        const int pattern = round % 4;
        for (std::size_t i = 0; i < n; ++i) {
            const bool low = i + 2 < n;
            a[i] = low && pattern == 1 ? 0 : low && pattern == 2 ? ~Word(0) : rng.NextWord();
            b[i] = low && pattern == 1 ? 0 : rng.NextWord();
        }
        if (pattern == 3) // one: the product is b, its low half b's low bit at the top
            std::fill(a, a + n, 0);
        a[n - 1] |= TTMATH_UINT_HIGHEST_BIT;
        b[n - 1] |= TTMATH_UINT_HIGHEST_BIT;
        const bool r = round % 3 != 0;
        unsigned shift;
        Word carry, carry2;
        const bool ok = ttmath::short_product::rounded_high_half<n>(m, a, b, r, shift, carry);
        ttmath::product::full<n>(p, a, b);
        const unsigned shift2 = ttmath::high_half::rounded<n>(m2, p, r, carry2);
        (ok ? decided : undecided) += 1;
        if (ok) {
            ASSERT_EQ(std::vector<Word>(m, m + n), std::vector<Word>(m2, m2 + n)) << "n=" << n << " round " << round;
            ASSERT_EQ(shift, shift2);
            ASSERT_EQ(carry, carry2);
        }
    }
    EXPECT_GT(decided, rounds / 4) << "n=" << n;
    EXPECT_GT(undecided, 0) << "n=" << n;
}

TEST(Product, ShortProductDecidesOnlyWhatTheWholeOneWould)
{
    ForEachKernelChoice([] {
        Random rng;
        CheckShortProduct<ttmath::short_product::min_words>(rng, 2000);
        CheckShortProduct<32>(rng, 1000);
    });
}

TEST(Quotient, FloorQuotientAgainstGmp)
{
    Random rng;
    for (int round = 0; round < 3000; ++round) {
        std::size_t un = static_cast<std::size_t>(rng.Between(1, 40));
        std::size_t vn = static_cast<std::size_t>(rng.Between(1, static_cast<int>(un)));
        std::vector<Word> u(un), v(vn);
        for (Word & w : u)
            w = rng.NextWord();
        for (Word & w : v)
            w = rng.NextWord();
        if (v[vn - 1] == 0)
            v[vn - 1] = 1 + (rng.Next() >> 1);
        if (round % 4 == 0 && vn >= 2) {
            // top words equal: the estimate starts at the largest word and is corrected
            u[un - 1] = v[vn - 1];
            if (un > vn)
                u[un - 2] = v[vn - 2];
        }
        std::vector<Word> q(un - vn + 1), rem(vn), scratch(ttmath::quotient::scratch_words(un, vn));
        ttmath::quotient::floor_quotient(q.data(), u.data(), un, v.data(), vn, scratch.data(), rem.data());

        Mpz zu, zv, zq, zr;
        WordsToMpz(zu.z, u.data(), un);
        WordsToMpz(zv.z, v.data(), vn);
        mpz_fdiv_qr(zq.z, zr.z, zu.z, zv.z);
        ASSERT_EQ(q, MpzToWords(zq.z, q.size())) << "un=" << un << " vn=" << vn;
        ASSERT_EQ(rem, MpzToWords(zr.z, vn));
    }
}

// floor(a * 2^(64n) / v) against GMP.
template<std::size_t n>
void ExpectShiftedQuotient(const Word * a, const Word * v, const char * what)
{
    Word q[n + 1];
    ttmath::quotient::shifted_by_normalized<n>(q, a, v);
    Mpz za, zv, zq;
    WordsToMpz(za.z, a, n);
    WordsToMpz(zv.z, v, n);
    mpz_mul_2exp(za.z, za.z, 64 * n);
    mpz_fdiv_q(zq.z, za.z, zv.z);
    ASSERT_EQ(std::vector<Word>(q, q + n + 1), MpzToWords(zq.z, n + 1)) << what << ", n=" << n;
}

template<std::size_t n>
void CheckShiftedQuotient(Random & rng)
{
    for (int round = 0; round < 500; ++round) {
        Word a[n], v[n];
        for (std::size_t i = 0; i < n; ++i) {
            a[i] = rng.NextWord();
            v[i] = rng.NextWord();
        }
        v[n - 1] |= TTMATH_UINT_HIGHEST_BIT;
        if (round % 5 == 0)
            std::copy(v, v + n, a); // quotient exactly 2^(64n)
        if (round % 5 == 1) { // top words equal, a below v: the first estimate would not fit
            a[n - 1] = v[n - 1];
            a[n - 2] = v[n - 2];
        }
        ExpectShiftedQuotient<n>(a, v, "random");
    }
}

// Divisions that reach the estimate's corrections: the three-by-two step's rare final
// increment (operands found by search) and the add-back after the multiply-subtract
// (top words of a an exact multiple of v's top two, v's low words all ones).
template<std::size_t n>
void CheckEstimateCorrections(Random & rng)
{
    const Word d1 = 0x8001000000000000ull, d0 = 0x01215091858a58b6ull;
    const Word u2 = 0x4117093642e1e6c8ull, u1 = ~Word(0), u0 = 0x1000000ull;
    Word a[n], v[n];
    for (std::size_t i = 0; i < n; ++i) {
        a[i] = rng.NextWord();
        v[i] = rng.NextWord();
    }
    a[n - 1] = u2, a[n - 2] = u1, a[n - 3] = u0;
    v[n - 1] = d1, v[n - 2] = d0;
    ExpectShiftedQuotient<n>(a, v, "final increment");

    for (int round = 0; round < 50; ++round) {
        std::fill(v, v + n, ~Word(0));
        v[n - 1] = rng.Next() | TTMATH_UINT_HIGHEST_BIT;
        v[n - 2] = rng.NextWord();
        const Word q = rng.Next() >> (round % 64);
        const u128 low = static_cast<u128>(q) * v[n - 2];
        const u128 high = static_cast<u128>(q) * v[n - 1] + static_cast<Word>(low >> 64);
        std::fill(a, a + n, 0);
        a[n - 3] = static_cast<Word>(low);
        a[n - 2] = static_cast<Word>(high);
        a[n - 1] = static_cast<Word>(high >> 64);
        ExpectShiftedQuotient<n>(a, v, "add-back");
    }
}

TEST(Quotient, ShiftedByNormalisedDivisor)
{
    ForEachKernelChoice([] {
        Random rng;
        CheckShiftedQuotient<2>(rng);
        CheckShiftedQuotient<3>(rng);
        CheckShiftedQuotient<4>(rng);
        CheckShiftedQuotient<5>(rng);
        CheckShiftedQuotient<32>(rng);
        CheckEstimateCorrections<3>(rng);
        CheckEstimateCorrections<4>(rng);
        CheckEstimateCorrections<32>(rng);
    });
}

TEST(Quotient, ThreeByTwoDivisionAndReciprocal)
{
    Random rng;
    for (int round = 0; round < 20000; ++round) {
        const Word d1 = rng.NextWord() | TTMATH_UINT_HIGHEST_BIT, d0 = rng.NextWord();
        const Word v = ttmath::reciprocal::of_pair(d1, d0);
        Mpz num, den, q, r;
        mpz_set_ui(num.z, 1);
        mpz_mul_2exp(num.z, num.z, 192);
        mpz_sub_ui(num.z, num.z, 1);
        const Word dw[2] = {d0, d1};
        WordsToMpz(den.z, dw, 2);
        mpz_fdiv_q(q.z, num.z, den.z);
        ASSERT_EQ(MpzToWords(q.z, 2), std::vector<Word>({v, 1})) << std::hex << d1 << " " << d0;

        Word u[3] = {rng.NextWord(), rng.NextWord(), rng.NextWord()};
        if (u[2] > d1 || (u[2] == d1 && u[1] >= d0))
            u[2] = d1 - 1; // (u2, u1) < (d1, d0)
        Word r1, r0;
        const Word quotient = ttmath::reciprocal::div_3by2(u[2], u[1], u[0], d1, d0, v, r1, r0);
        WordsToMpz(num.z, u, 3);
        mpz_fdiv_qr(q.z, r.z, num.z, den.z);
        ASSERT_EQ(MpzToWords(q.z, 2), std::vector<Word>({quotient, 0}));
        ASSERT_EQ(MpzToWords(r.z, 2), std::vector<Word>({r0, r1}));
    }
}

} // namespace
