// Mul, Div and Add of normalised values at many widths (the vectors cover only two)
// against GMP: the exact double-width product or floor quotient, normalised and rounded
// half to even on the discarded half; and same-sign sums, which the arithmetic rounds
// correctly. Also: the one-word-exponent fast path of Add against the general algorithm.
#include <gtest/gtest.h>

#include <ttmath/ttmath.h>

#include "test_support.h"

namespace {

using namespace testing_support;

// The expected mantissa and exponent adjustment of a double-width result `wide`
// (2N bits) kept to N bits: normalised, then rounded half to even on the low half.
struct Rounded {
    std::vector<Word> words;
    long shift; // leading zeros removed, minus one if rounding carried out
};

Rounded RoundHalfEven(const mpz_t wide, std::size_t words, bool round)
{
    const long n_bits = static_cast<long>(64 * words);
    Mpz v, hi, lo, half;
    mpz_set(v.z, wide);
    long zeros = 2 * n_bits - static_cast<long>(mpz_sizeinbase(v.z, 2));
    mpz_mul_2exp(v.z, v.z, static_cast<mp_bitcnt_t>(zeros));
    mpz_fdiv_q_2exp(hi.z, v.z, static_cast<mp_bitcnt_t>(n_bits));
    mpz_fdiv_r_2exp(lo.z, v.z, static_cast<mp_bitcnt_t>(n_bits));
    mpz_setbit(half.z, static_cast<mp_bitcnt_t>(n_bits - 1));
    int cmp = mpz_cmp(lo.z, half.z);
    if (round && (cmp > 0 || (cmp == 0 && mpz_odd_p(hi.z))))
        mpz_add_ui(hi.z, hi.z, 1);
    if (mpz_sizeinbase(hi.z, 2) > static_cast<std::size_t>(n_bits)) {
        mpz_fdiv_q_2exp(hi.z, hi.z, 1);
        --zeros;
    }
    return {MpzToWords(hi.z, words), zeros};
}

template<class Big>
long Exponent(const Big & x)
{
    return static_cast<long>(x.exponent.ToInt());
}

template<class Big>
void CheckMulDiv(int rounds)
{
    const std::size_t words = Big::mantissa_bits / 64;
    const long n_bits = static_cast<long>(Big::mantissa_bits);
    Random rng(words * 7919 + 1);
    for (int round = 0; round < rounds; ++round) {
        bool r = round % 3 != 0;
        Big a = RandomNormal<Big>(rng, -100, 100, rng.Next() & 1);
        Big b = RandomNormal<Big>(rng, -100, 100, rng.Next() & 1);
        Mpz ma, mb, wide;
        WordsToMpz(ma.z, a.mantissa.table, words);
        WordsToMpz(mb.z, b.mantissa.table, words);

        Big p(a);
        ASSERT_EQ(p.Mul(b, r), 0u);
        mpz_mul(wide.z, ma.z, mb.z);
        Rounded want = RoundHalfEven(wide.z, words, r);
        ASSERT_EQ(std::vector<Word>(p.mantissa.table, p.mantissa.table + words), want.words)
            << "product, " << words << " words, round " << round;
        EXPECT_EQ(Exponent(p), Exponent(a) + Exponent(b) + n_bits - want.shift);
        EXPECT_EQ(p.IsSign(), a.IsSign() != b.IsSign());

        Big q(a);
        ASSERT_EQ(q.Div(b, r), 0u);
        mpz_mul_2exp(wide.z, ma.z, static_cast<mp_bitcnt_t>(n_bits));
        mpz_fdiv_q(wide.z, wide.z, mb.z);
        want = RoundHalfEven(wide.z, words, r);
        ASSERT_EQ(std::vector<Word>(q.mantissa.table, q.mantissa.table + words), want.words)
            << "quotient, " << words << " words, round " << round;
        EXPECT_EQ(Exponent(q), Exponent(a) - Exponent(b) - want.shift);
    }
}

TEST(ArithmeticModel, ProductsAndQuotientsAtManyWidths)
{
    CheckMulDiv<ttmath::Big<1, 1>>(2000);
    CheckMulDiv<ttmath::Big<1, 2>>(2000);
    CheckMulDiv<ttmath::Big<1, 3>>(2000);
    CheckMulDiv<ttmath::Big<1, 4>>(2000);
    CheckMulDiv<ttmath::Big<2, 5>>(1000);
    CheckMulDiv<ttmath::Big<1, 24>>(300);
    CheckMulDiv<ttmath::Big<3, 25>>(300);
    CheckMulDiv<ttmath::Big<8, 32>>(300);
    CheckMulDiv<ttmath::Big<1, 48>>(100);
}

// Same-sign sums are correctly rounded (ties to even), or truncated without rounding.
template<class Big>
void CheckSums(int rounds)
{
    const std::size_t words = Big::mantissa_bits / 64;
    Random rng(words * 104729 + 3);
    for (int round = 0; round < rounds; ++round) {
        bool r = round % 4 != 0;
        // exponent gaps from 0 to beyond the mantissa, including ties at the gap N
        Big a = RandomNormal<Big>(rng, 0, 0);
        Big b = RandomNormal<Big>(rng, -static_cast<int>(Big::mantissa_bits) - 3, 0);
        Big s(a);
        ASSERT_EQ(s.Add(b, r), 0u);

        // exact sum in units of 2^(eb), then kept to N bits
        long ea = Exponent(a), eb = Exponent(b);
        Mpz ma, mb, exact, kept, lost, half;
        WordsToMpz(ma.z, a.mantissa.table, words);
        WordsToMpz(mb.z, b.mantissa.table, words);
        mpz_mul_2exp(ma.z, ma.z, static_cast<mp_bitcnt_t>(ea - eb));
        mpz_add(exact.z, ma.z, mb.z);
        long drop = static_cast<long>(mpz_sizeinbase(exact.z, 2)) - static_cast<long>(Big::mantissa_bits);
        mpz_fdiv_q_2exp(kept.z, exact.z, static_cast<mp_bitcnt_t>(drop));
        mpz_fdiv_r_2exp(lost.z, exact.z, static_cast<mp_bitcnt_t>(drop));
        if (r && drop > 0) {
            mpz_setbit(half.z, static_cast<mp_bitcnt_t>(drop - 1));
            int cmp = mpz_cmp(lost.z, half.z);
            if (cmp > 0 || (cmp == 0 && mpz_odd_p(kept.z)))
                mpz_add_ui(kept.z, kept.z, 1);
            if (mpz_sizeinbase(kept.z, 2) > Big::mantissa_bits) {
                mpz_fdiv_q_2exp(kept.z, kept.z, 1);
                ++drop;
            }
        }
        ASSERT_EQ(std::vector<Word>(s.mantissa.table, s.mantissa.table + words), MpzToWords(kept.z, words))
            << words << " words, round " << round;
        EXPECT_EQ(Exponent(s), eb + drop);
    }
}

TEST(ArithmeticModel, SameSignSumsAreCorrectlyRounded)
{
    CheckSums<ttmath::Big<1, 1>>(3000);
    CheckSums<ttmath::Big<1, 2>>(3000);
    CheckSums<ttmath::Big<1, 4>>(3000);
    CheckSums<ttmath::Big<2, 7>>(1000);
    CheckSums<ttmath::Big<8, 32>>(500);
}

// The fast path of Add serves a one-word exponent; a two-word exponent always takes the
// general algorithm. Both must agree word for word on values where the exponents fit,
// including cancellation, ties and rounding off.
TEST(ArithmeticModel, AddFastPathAgreesWithGeneralAlgorithm)
{
    typedef ttmath::Big<1, 4> Fast;
    typedef ttmath::Big<2, 4> General;
    Random rng(77);
    for (int round = 0; round < 200000; ++round) {
        Fast a = RandomNormal<Fast>(rng, 0, 0, rng.Next() & 1);
        Fast b = RandomNormal<Fast>(rng, -70, 1, rng.Next() & 1);
        if (round % 8 == 0) // nearly equal magnitudes: deep cancellation
            b.mantissa = a.mantissa, b.mantissa.table[0] ^= rng.Next() & 0xff, b.exponent = a.exponent;
        bool r = (round % 5) != 0;
        bool adding = round % 2 == 0;

        Fast fast(a);
        General general(a), other(b);
        Word fc = adding ? fast.Add(b, r) : fast.Sub(b, r);
        Word gc = adding ? general.Add(other, r) : general.Sub(other, r);
        ASSERT_EQ(fc, gc);
        ASSERT_EQ(fast.info, general.info) << "round " << round;
        ASSERT_EQ(std::vector<Word>(fast.mantissa.table, fast.mantissa.table + 4),
                  std::vector<Word>(general.mantissa.table, general.mantissa.table + 4))
            << "round " << round;
        ASSERT_EQ(fast.exponent.ToInt(), general.exponent.ToInt());
    }
}

} // namespace
