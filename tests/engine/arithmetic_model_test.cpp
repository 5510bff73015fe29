// Mul, Div and Add of normalised values at many widths (the vectors cover only two)
// against GMP: the exact double-width product or floor quotient, normalised and rounded
// half to even on the discarded half; and same-sign sums, which the arithmetic rounds
// correctly. Also: the one-word-exponent fast path of Add against the general algorithm.
#include <gtest/gtest.h>

#include <cstdint>

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
    static_assert(ttmath::short_product::min_words == 8, "the sizes below straddle the short product");
    ForEachKernelChoice([] {
        CheckMulDiv<ttmath::Big<1, 1>>(2000);
        CheckMulDiv<ttmath::Big<1, 2>>(2000);
        CheckMulDiv<ttmath::Big<1, 3>>(2000);
        CheckMulDiv<ttmath::Big<1, 4>>(2000);
        CheckMulDiv<ttmath::Big<2, 4>>(1000);
        CheckMulDiv<ttmath::Big<2, 5>>(1000);
        CheckMulDiv<ttmath::Big<1, 7>>(1000);
        CheckMulDiv<ttmath::Big<1, 8>>(1000);
        CheckMulDiv<ttmath::Big<1, 24>>(300);
        CheckMulDiv<ttmath::Big<3, 25>>(300);
        CheckMulDiv<ttmath::Big<8, 32>>(300);
        CheckMulDiv<ttmath::Big<1, 48>>(100);
    });
}

// The fast paths at the ends of the exponent range, where each exponent step of the
// general algorithm is checked on its own (values from the arithmetic's description),
// and a sum that rounds an all-ones mantissa up.
typedef ttmath::Big<1, 4> Big256;
const Word h = TTMATH_UINT_HIGHEST_BIT, f = ~Word(0);
const ttmath::sint emax = INT64_MAX, emin = INT64_MIN;

Big256 Value(unsigned char info, ttmath::sint e, Word w3, Word w2 = 0, Word w1 = 0, Word w0 = 0)
{
    Big256 x;
    x.info = info;
    x.exponent = ttmath::Int<1>(e);
    x.mantissa.table[3] = w3, x.mantissa.table[2] = w2, x.mantissa.table[1] = w1, x.mantissa.table[0] = w0;
    return x;
}

struct RangeCase {
    char op;
    Big256 a, b, result;
    Word rc;
};

TEST(ArithmeticModel, FastPathsAtTheEndsOfTheExponentRange)
{
    const Big256 max = Value(0, emax, f, f, f, f), one = Value(0, -255, h), two = Value(0, -254, h),
                 half = Value(0, -256, h), smallest = Value(0, emin, h);
    const RangeCase cases[] = {
        {'*', max, two, Value(0x40, emin, f, f, f, f), 1},
        {'*', max, one, Value(0x40, emax, f, f, f, f), 1},
        {'*', max, half, Value(0x40, emax - 1, f, f, f, f), 1},
        {'*', half, max, Value(0, emax - 1, f, f, f, f), 0},
        {'*', smallest, half, Value(0x40, emax, h), 1},
        {'*', smallest, smallest, Value(0x40, 255, h), 1},
        {'*', smallest, two, Value(0, emin + 1, h), 0},
        {'/', max, half, Value(0x40, emin, f, f, f, f), 1},
        {'/', max, one, Value(0, emax, f, f, f, f), 0},
        {'/', smallest, one, Value(0x40, emin, h), 1},
        {'/', smallest, two, Value(0x40, emax, h), 1},
        {'/', Value(0, emin + 255, h), one, Value(0, emin + 255, h), 0},
        {'/', Value(0, emin + 254, h), one, Value(0x40, emin + 254, h), 1}, // wrapped out and back
        {'/', one, max, Value(0x40, 9223372036854775298, h), 1},
        {'+', max, max, Value(0x40, emin, f, f, f, f), 1},
        {'-', Value(0x80, emax, f, f, f, f), max, Value(0xc0, emin, f, f, f, f), 1},
        // the kept part rounds up from all ones: 2^255 and one more in the exponent
        {'+', Value(0, 0, ~(h >> 1), f, f, f), Value(0, -1, h, 0, 0, 1), Value(0, 1, h), 0},
        {'+', Value(0, emax, ~(h >> 1), f, f, f), Value(0, emax - 1, h, 0, 0, 1), Value(0x40, emin, h), 1},
    };
    ForEachKernelChoice([&] {
        for (const RangeCase & c : cases) {
            Big256 r(c.a);
            Word rc = c.op == '*' ? r.Mul(c.b) : c.op == '/' ? r.Div(c.b) : c.op == '+' ? r.Add(c.b) : r.Sub(c.b);
            EXPECT_EQ(rc, c.rc) << c.op;
            EXPECT_EQ(r.info, c.result.info) << c.op;
            EXPECT_EQ(r.exponent.ToInt(), c.result.exponent.ToInt()) << c.op;
            EXPECT_TRUE(r.mantissa == c.result.mantissa) << c.op;
        }
    });
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
// including cancellation, ties and rounding off. Four words have the assembly fast path
// on x86-64, other sizes its C++.
template<std::size_t words>
void CheckAddFastPath(int rounds)
{
    typedef ttmath::Big<1, words> Fast;
    typedef ttmath::Big<2, words> General;
    Random rng(77 + words);
    for (int round = 0; round < rounds; ++round) {
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
        ASSERT_EQ(std::vector<Word>(fast.mantissa.table, fast.mantissa.table + words),
                  std::vector<Word>(general.mantissa.table, general.mantissa.table + words))
            << words << " words, round " << round;
        ASSERT_EQ(fast.exponent.ToInt(), general.exponent.ToInt());
    }
}

TEST(ArithmeticModel, AddFastPathAgreesWithGeneralAlgorithm)
{
    CheckAddFastPath<4>(200000);
    CheckAddFastPath<1>(20000);
    CheckAddFastPath<3>(20000);
    CheckAddFastPath<8>(20000);
}

} // namespace
