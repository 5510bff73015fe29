// Integer powers: results of the reference arithmetic at its documented cases (no vector
// file covers them; text conversion depends on them), exact powers against GMP, and
// exponents too large to loop over bit by bit.
#include <gtest/gtest.h>

#include <ttmath/ttmath.h>

#include "test_support.h"

namespace {

using namespace testing_support;
typedef ttmath::Big<1, 4> B;
const Word H = TTMATH_UINT_HIGHEST_BIT;

B Value(unsigned char info, ttmath::sint exponent, Word w3, Word w2 = 0, Word w1 = 0, Word w0 = 0)
{
    B x;
    x.info = info;
    x.exponent = ttmath::Int<1>(exponent);
    x.mantissa.table[3] = w3;
    x.mantissa.table[2] = w2;
    x.mantissa.table[1] = w1;
    x.mantissa.table[0] = w0;
    return x;
}

B Int(ttmath::sint v)
{
    return B(v);
}

// 2^k as a value
B PowerOfTwo(ttmath::sint k)
{
    return Value(0, k - 255, H);
}

void ExpectSame(const B & got, const B & want, const char * what)
{
    EXPECT_EQ(got.info, want.info) << what;
    EXPECT_EQ(got.exponent.ToInt(), want.exponent.ToInt()) << what;
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(got.mantissa.table[i], want.mantissa.table[i]) << what << " word " << i;
}

TEST(Power, DocumentedResults)
{
    struct Case {
        const char * what;
        B base;
        int kind; // 0 PowUInt, 1 PowInt
        B power;
        B want;
        Word rc;
    };
    const Word c = 0xccccccccccccccccull;
    B nan_one = Int(1);
    nan_one.SetNan();
    B minus_zero = Value(0xa0, 0, 0);
    const Case cases[] = {
        {"2^10", Int(2), 0, Int(10), Value(0, -245, H), 0},
        {"2^2.9 uses the integer part", Int(2), 0, B(2.9), Value(0, -253, H), 0},
        {"2^|-3|", Int(2), 0, Int(-3), Value(0, -252, H), 0},
        {"(-2)^3", Int(-2), 0, Int(3), Value(0x80, -252, H), 0},
        {"2^-2", Int(2), 1, Int(-2), Value(0, -257, H), 0},
        {"10^-1 truncates", Int(10), 1, Int(-1), Value(0, -259, c, c, c, c), 0},
        {"3^-2", Int(3), 1, Int(-2),
         Value(0, -259, 0xe38e38e38e38e38eull, 0x38e38e38e38e38e3ull, 0x8e38e38e38e38e38ull, 0xe38e38e38e38e38eull), 0},
        {"(-3)^-3", Int(-3), 1, Int(-3),
         Value(0x80, -260, 0x97b425ed097b425eull, 0xd097b425ed097b42ull, 0x5ed097b425ed097bull, 0x425ed097b425ed09ull), 0},
        {"0^0", Int(0), 0, Int(0), Value(0x60, 0, 0), 2},
        {"0^-1", Int(0), 1, Int(-1), Value(0x60, 0, 0), 2},
        {"(-0)^2 keeps the zero", minus_zero, 0, Int(2), minus_zero, 0},
        {"2^(2^70) overflows; the partial product stays", Int(2), 0, PowerOfTwo(70), Value(0x40, -255, H), 1},
        {"0.5^(2^70) underflows", B(0.5), 0, PowerOfTwo(70), Value(0x40, -255, H), 1},
        {"(-1)^(2^70)", Int(-1), 0, PowerOfTwo(70), Value(0, -255, H), 0},
        {"NaN^2", nan_one, 0, Int(2), nan_one, 1},
        {"3^NaN", Int(3), 0, nan_one, Value(0x40, -254, 0xc000000000000000ull), 1},
    };
    for (const Case & k : cases) {
        B x = k.base;
        Word rc = k.kind == 0 ? x.PowUInt(k.power) : x.PowInt(k.power);
        EXPECT_EQ(rc, k.rc) << k.what;
        ExpectSame(x, k.want, k.what);
    }
}

TEST(Power, WordExponents)
{
    B x(1.5);
    EXPECT_EQ(x.Pow(ttmath::UInt<1>(7)), 0u);
    ExpectSame(x, Value(0, -251, 0x88b0000000000000ull), "1.5^7");
    x = B(1.5);
    EXPECT_EQ(x.Pow(ttmath::UInt<1>(0)), 0u);
    ExpectSame(x, Value(0, -255, H), "1.5^0");

    x = Int(2);
    EXPECT_EQ(x.Pow(ttmath::Int<1>(-3)), 0u);
    ExpectSame(x, Value(0, -258, H), "2^-3");
    x = Int(1);
    ttmath::Int<1> most_negative;
    most_negative.SetMin();
    EXPECT_EQ(x.Pow(most_negative), 1u);
    ExpectSame(x, Value(0x40, -255, H), "1^(-2^63) cannot negate the exponent");
}

TEST(Power, ExactPowersAgreeWithGmp)
{
    // 3^k is exact while it fits the mantissa (3^161 < 2^256)
    Mpz z;
    mpz_set_ui(z.z, 1);
    for (int k = 1; k <= 161; ++k) {
        B x = Int(3);
        ASSERT_EQ(x.PowUInt(Int(k)), 0u);
        mpz_mul_ui(z.z, z.z, 3);
        std::size_t bits = mpz_sizeinbase(z.z, 2);
        Mpz shifted;
        mpz_mul_2exp(shifted.z, z.z, 256 - bits);
        std::vector<Word> w = MpzToWords(shifted.z, 4);
        ASSERT_EQ(std::vector<Word>(x.mantissa.table, x.mantissa.table + 4), w) << "3^" << k;
        ASSERT_EQ(x.exponent.ToInt(), static_cast<ttmath::sint>(bits) - 256) << "3^" << k;
    }
}

TEST(Power, HugeExponentsFinish)
{
    // +-1 raised to an exponent of 2^(2^62): one bit per round would never end
    B huge = Value(0, (ttmath::sint(1) << 62), H);
    B one = Int(1), minus_one = Int(-1);
    EXPECT_EQ(one.PowUInt(huge), 0u);
    ExpectSame(one, Int(1), "1^huge");
    EXPECT_EQ(minus_one.PowUInt(huge), 0u);
    ExpectSame(minus_one, Int(1), "(-1)^huge is even");
    B odd = Value(0, -55, H, 0, 0, Word(1) << 55); // 2^200 + 1
    B m1 = Int(-1);
    EXPECT_EQ(m1.PowUInt(odd), 0u);
    ExpectSame(m1, Int(-1), "(-1)^odd");
    // any other base leaves the range after a few hundred squarings
    B near_one = Value(0, -255, H, 0, 0, 1);
    EXPECT_EQ(near_one.PowUInt(huge), 1u);
    EXPECT_TRUE(near_one.IsNan());
}

TEST(Power, UnitsBit)
{
    EXPECT_EQ(Int(7).Mod2(), 1u);
    EXPECT_EQ(Int(6).Mod2(), 0u);
    EXPECT_EQ(B(2.5).Mod2(), 0u);
    EXPECT_EQ(B(3.5).Mod2(), 1u);
    EXPECT_EQ(B(0.75).Mod2(), 0u);
    EXPECT_EQ(Value(0, 0, H, 0, 0, 1).Mod2(), 1u); // exponent 0: the lowest mantissa bit
    EXPECT_EQ(PowerOfTwo(300).Mod2(), 0u);
}

} // namespace
