// Exact products and quotients of word arrays against GMP, around the boundaries of the
// algorithm choices (column-wise, schoolbook rows, Karatsuba's split) and on the
// divisions that need the estimate corrected.
#include <gtest/gtest.h>

#include <ttmath/ttmath.h>

#include "test_support.h"

namespace {

using namespace testing_support;

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

template<std::size_t n>
void CheckShiftedQuotient(Random & rng)
{
    for (int round = 0; round < 500; ++round) {
        Word a[n], v[n], q[n + 1];
        for (std::size_t i = 0; i < n; ++i) {
            a[i] = rng.NextWord();
            v[i] = rng.NextWord();
        }
        v[n - 1] |= TTMATH_UINT_HIGHEST_BIT;
        if (round % 5 == 0)
            std::copy(v, v + n, a); // quotient exactly 2^(64n)
        ttmath::quotient::shifted_by_normalized<n>(q, a, v);
        Mpz za, zv, zq;
        WordsToMpz(za.z, a, n);
        WordsToMpz(zv.z, v, n);
        mpz_mul_2exp(za.z, za.z, 64 * n);
        mpz_fdiv_q(zq.z, za.z, zv.z);
        ASSERT_EQ(std::vector<Word>(q, q + n + 1), MpzToWords(zq.z, n + 1)) << "n=" << n;
    }
}

TEST(Quotient, ShiftedByNormalisedDivisor)
{
    Random rng;
    CheckShiftedQuotient<2>(rng);
    CheckShiftedQuotient<4>(rng);
    CheckShiftedQuotient<32>(rng);
}

} // namespace
