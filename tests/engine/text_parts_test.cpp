// The parts text conversion is built from, against independent references: the digit
// exponent at the exponents where it is hardest to get right, division by an invariant
// word and integer digits against GMP, the one-row Mul and the kept powers against Mul
// and Pow themselves.
#include <gtest/gtest.h>

#include <cctype>
#include <cstdlib>

#include <ttmath/ttmath.h>

#include "text_test_support.h"

namespace {

using namespace testing_support;
using ttmath::uint;
const uint bases_with_log[] = {3, 5, 6, 7, 9, 10, 11, 12, 13, 14, 15};

// ceil(k * log_b(2)) for k = +-magnitude, from MPFR at a precision far beyond the
// distance of k * log_b(2) from an integer.
template<uint e>
void ExpectExactDigitExponents(uint base, const std::vector<std::vector<Word>> & magnitudes)
{
    const mpfr_prec_t prec = 4096;
    mpfr_t log_two, x;
    mpfr_inits2(prec, log_two, x, static_cast<mpfr_ptr>(0));
    mpfr_set_ui(x, base, MPFR_RNDN);
    mpfr_log2(x, x, MPFR_RNDN);
    mpfr_ui_div(log_two, 1, x, MPFR_RNDN);
    Mpz k, want;
    for (const std::vector<Word> & m : magnitudes) {
        for (int sign : {1, -1}) {
            if (sign > 0 && (m[e - 1] & TTMATH_UINT_HIGHEST_BIT))
                continue;
            WordsToMpz(k.z, m.data(), m.size());
            if (sign < 0)
                mpz_neg(k.z, k.z);
            mpfr_mul_z(x, log_two, k.z, MPFR_RNDN);
            mpfr_ceil(x, x);
            mpfr_get_z(want.z, x, MPFR_RNDN);
            ttmath::Int<e + 1> got = ttmath::text::DigitExponent(MpzToInt<e>(k.z), base);
            ASSERT_TRUE(got == MpzToInt<e + 1>(want.z)) << "base " << base << " k " << mpz_get_str(0, 16, k.z);
        }
    }
    mpfr_clears(log_two, x, static_cast<mpfr_ptr>(0));
}

// Denominators of the continued-fraction convergents of log_b(2) below 2^(64e - 1), and
// their neighbours: there k * log_b(2) comes closest to an integer. Random ones too.
template<uint e>
std::vector<std::vector<Word>> HardExponents(uint base, Random & rng)
{
    mpfr_t x, f;
    mpfr_inits2(4096, x, f, static_cast<mpfr_ptr>(0));
    mpfr_set_ui(x, base, MPFR_RNDN);
    mpfr_log2(x, x, MPFR_RNDN);
    mpfr_ui_div(x, 1, x, MPFR_RNDN);
    Mpz q0, q1, a, t;
    mpz_set_ui(q0.z, 0);
    mpz_set_ui(q1.z, 1);
    std::vector<std::vector<Word>> ks;
    while (mpz_sizeinbase(q1.z, 2) < e * 64 - 1) {
        for (int d : {-1, 0, 1}) {
            mpz_set(t.z, q1.z);
            if (d < 0)
                mpz_sub_ui(t.z, t.z, 1);
            if (d > 0)
                mpz_add_ui(t.z, t.z, 1);
            if (mpz_sgn(t.z) > 0)
                ks.push_back(MpzToWords(t.z, e));
        }
        mpfr_frac(f, x, MPFR_RNDN);
        mpfr_ui_div(x, 1, f, MPFR_RNDN); // next partial quotient
        mpfr_get_z(a.z, x, MPFR_RNDD);
        mpz_mul(t.z, a.z, q1.z);
        mpz_add(t.z, t.z, q0.z);
        mpz_swap(q0.z, q1.z);
        mpz_swap(q1.z, t.z);
    }
    for (int i = 0; i < 50; ++i) {
        std::vector<Word> k(e);
        for (Word & w : k)
            w = rng.Next();
        k[e - 1] >>= 1 + rng.Next() % 60;
        ks.push_back(k);
    }
    std::vector<Word> largest(e, ~Word(0)), lowest(e, 0);
    largest[e - 1] >>= 1;
    lowest[e - 1] = TTMATH_UINT_HIGHEST_BIT; // only as a negative exponent
    ks.push_back(largest);
    ks.push_back(lowest);
    mpfr_clears(x, f, static_cast<mpfr_ptr>(0));
    return ks;
}

TEST(TextParts, DigitExponentIsExactWhereItIsHardest)
{
    Random rng;
    for (uint base : bases_with_log) {
        ExpectExactDigitExponents<1>(base, HardExponents<1>(base, rng));
        ExpectExactDigitExponents<8>(base, HardExponents<8>(base, rng));
    }
}

TEST(TextParts, WordDivisionAndDigitsAgreeWithGmp)
{
    Random rng;
    Mpz u, q;
    const Word divisors[] = {1, 3, 10, 10000000000000000000ull, Word(1) << 63, ~Word(0), 0x9e3779b97f4a7c15ull};
    for (int round = 0; round < 200; ++round) {
        const std::size_t n = 1 + rng.Next() % 40;
        std::vector<Word> words(n);
        for (Word & w : words)
            w = rng.NextWord();
        WordsToMpz(u.z, words.data(), n);
        for (Word d : {divisors[round % 7], rng.Next() >> (rng.Next() % 64)}) {
            if (d == 0)
                continue;
            std::vector<Word> quotient(n);
            Word rem = ttmath::WordDivider(d).Divide(quotient.data(), words.data(), n);
            EXPECT_EQ(rem, mpz_fdiv_q_ui(q.z, u.z, d));
            EXPECT_EQ(quotient, MpzToWords(q.z, n));
        }
        for (uint base = 2; base <= 16; ++base) {
            ttmath::UInt<40> value;
            value.SetZero();
            for (std::size_t i = 0; i < n; ++i)
                value.table[i] = words[i];
            std::string got;
            ttmath::text::AppendUIntDigits<40>(got, value.table, base);
            char * want = mpz_get_str(nullptr, static_cast<int>(base), u.z);
            std::string upper(want);
            for (char & c : upper)
                c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
            free(want);
            ASSERT_EQ(got, upper) << "base " << base;
        }
    }
}

template<class B>
void ExpectOneRowProductIsMul(Random & rng)
{
    const int range = 1000;
    for (int i = 0; i < 2000; ++i) {
        B a = RandomNormal<B>(rng, -range, range, rng.Next() & 1);
        B w;
        w.FromUInt(rng.NextWord() >> (rng.Next() % 64));
        if (rng.Next() % 4 == 0)
            w.ChangeSign();
        if (rng.Next() % 16 == 0)
            a.mantissa.table[a.mantissa.Size() - 1] >>= 7; // unnormalised
        const bool round = rng.Next() % 4 != 0;
        B want(a), got(a);
        Word cw = want.Mul(w, round), cg = got.MulOneWord(w, round);
        ASSERT_EQ(cw, cg);
        ASSERT_TRUE(SameValue(got, want));
    }
    // values at the ends of the exponent range carry as Mul carries
    B top = RandomNormal<B>(rng, 0, 0), sixteen(16);
    top.exponent.SetMax();
    B want(top), got(top);
    EXPECT_EQ(want.Mul(sixteen), 1u);
    EXPECT_EQ(got.MulOneWord(sixteen), 1u);
    EXPECT_TRUE(SameValue(got, want));
}

TEST(TextParts, OneRowProductIsMul)
{
    Random rng;
    ExpectOneRowProductIsMul<ttmath::Big<1, 4>>(rng);
    ExpectOneRowProductIsMul<ttmath::Big<8, 32>>(rng);
}

template<class B>
void ExpectKeptPowersArePow(Random & rng, int random_magnitudes)
{
    std::vector<Word> magnitudes = {0, 1, 2, 3, 77, 616, 1000, 65535, Word(1) << 40};
    for (int i = 0; i < random_magnitudes; ++i)
        magnitudes.push_back(rng.Next() >> (rng.Next() % 64));
    for (uint base = 2; base <= 16; ++base) {
        for (Word m : magnitudes) {
            for (bool reciprocal : {false, true}) {
                B want, got;
                want.FromUInt(base);
                Word cw;
                if (reciprocal) {
                    B power(want);
                    cw = power.Pow(ttmath::UInt<1>(m));
                    want.SetOne();
                    cw = want.CheckCarry(cw + want.Div(power));
                } else {
                    cw = want.Pow(ttmath::UInt<1>(m));
                }
                // twice: computed, then remembered
                for (int pass = 0; pass < 2; ++pass) {
                    Word cg = ttmath::text::PowerCache<B>::Power(base, m, reciprocal, got);
                    ASSERT_EQ(cw, cg) << base << "^" << m;
                    ASSERT_TRUE(SameValue(got, want)) << base << "^" << m << (reciprocal ? " reciprocal" : "");
                }
            }
        }
    }
}

TEST(TextParts, KeptPowersArePow)
{
    Random rng;
    ExpectKeptPowersArePow<ttmath::Big<1, 4>>(rng, 40);
    ExpectKeptPowersArePow<ttmath::Big<2, 4>>(rng, 40);
    ExpectKeptPowersArePow<ttmath::Big<8, 32>>(rng, 3);
}

} // namespace
