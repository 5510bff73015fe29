// ToString where the vectors say nothing: separate group separators for the two parts
// of a number, a radix point of 0, separators above 0x7F, the limit on plain-form zeros,
// and round trips through FromString in every base.
#include <gtest/gtest.h>

#include <ttmath/ttmath.h>

#include "text_test_support.h"

namespace {

using namespace testing_support;
using ttmath::uint;
typedef ttmath::Big<1, 4> B;
typedef ttmath::Big<8, 32> BB;

template<class Big>
Big Parse(const char * text)
{
    Big x;
    EXPECT_EQ(x.FromString(text), 0u) << text;
    return x;
}

TEST(TextFormat, GroupSeparatorsOfTheTwoPartsAreIndependent)
{
    const B x = Parse<B>("1234567.7654321");
    struct Case {
        uint group, group2, digits;
        bool scient;
        const char * want;
    };
    const Case cases[] = {
        {' ', '_', 3, false, "1 234 567.765_432_1"},
        {' ', 0, 3, false, "1 234 567.7654321"},
        {0, '_', 3, false, "1234567.765_432_1"},
        {0, '_', 2, false, "1234567.76_54_32_1"},
        {' ', '_', 0, false, "1 2 3 4 5 6 7.7_6_5_4_3_2_1"},
        {' ', '_', 99, false, "1234567.7654321"},
        {'\'', 0, 3, true, "1.2345677654321e+6"},
        {0, '\'', 3, true, "1.234'567'765'432'1e+6"},
    };
    for (const Case & c : cases) {
        ttmath::Conv conv;
        conv.group = c.group;
        conv.group2 = c.group2;
        conv.group_digits = c.digits;
        conv.scient = c.scient;
        std::string text;
        EXPECT_EQ(x.ToString(text, conv), 0u);
        EXPECT_EQ(text, c.want);
    }
    ttmath::Conv only_fraction;
    only_fraction.group2 = ' ';
    EXPECT_EQ(Parse<B>("-123456").ToString(only_fraction), "-123456");
}

TEST(TextFormat, RadixPointOfZeroAndSeparatorsAboveAscii)
{
    ttmath::Conv conv;
    conv.comma = 0;
    EXPECT_EQ(Parse<B>("-1234567.125").ToString(conv), std::string("-1234567\0" "125", 12));

    // a separator byte above 0x7F, stored sign-extended or not, is written as that byte
    for (uint group : {uint(0xc2), ~uint(0) - 0x3d}) {
        ttmath::Conv grouped;
        grouped.group = group;
        grouped.group2 = 0xe9;
        EXPECT_EQ(Parse<BB>("1234.5678").ToString(grouped), "1\xc2" "234.567\xe9" "8");
    }
}

TEST(TextFormat, PlainFormPadsUpToALimit)
{
    ttmath::Conv plain;
    plain.scient_from = INT64_MAX;
    ttmath::Conv scientific;
    scientific.scient = true;

    // 2^400000: the plain text is the scientific mantissa's digits and zeros
    B big;
    big.SetOne();
    big.exponent.AddInt(400000);
    std::string text, sci;
    EXPECT_EQ(big.ToString(text, plain), 0u);
    EXPECT_EQ(big.ToString(sci, scientific), 0u);
    const std::size_t e = sci.find('e');
    const std::string mantissa_digits = sci.substr(0, 1) + sci.substr(2, e - 2);
    EXPECT_EQ(sci.substr(e), "e+120411");
    EXPECT_EQ(text.size(), 120412u);
    EXPECT_EQ(text.substr(0, mantissa_digits.size()), mantissa_digits);
    EXPECT_EQ(text.find_first_not_of('0', mantissa_digits.size()), std::string::npos);

    // beyond 2^24 zeros, on either side of the radix point, the text is refused
    for (ttmath::sint shift : {ttmath::sint(1) << 26, -(ttmath::sint(1) << 26)}) {
        B x;
        x.SetOne();
        x.exponent.Add(ttmath::Int<1>(shift));
        EXPECT_EQ(x.ToString(text, plain), 1u);
        EXPECT_EQ(text, "overflow");
        EXPECT_EQ(x.ToString(text, scientific), 0u);
    }
}

// Values with binary exponents in [-range, range] through text in every base and back:
// exact in the bases of whole bits, within the last few digits in the others. Bases
// other than 10 have no exponent syntax, so their texts are plain.
template<class Big>
void ExpectRoundTrips(Random & rng, int per_base, int range)
{
    for (uint base = 2; base <= 16; ++base) {
        ttmath::Conv conv;
        conv.base = base;
        conv.scient_from = base == 10 ? 15 : 100000;
        const bool exact = (base & (base - 1)) == 0;
        for (int i = 0; i < per_base; ++i) {
            const Big x = RandomNormal<Big>(rng, -range, range, rng.Next() & 1);
            const std::string text = x.ToString(conv);
            Big y;
            const char * end = nullptr;
            ASSERT_EQ(y.FromString(text, conv, &end), 0u) << text;
            ASSERT_EQ(end, text.c_str() + text.size()) << text;
            if (exact)
                ASSERT_TRUE(SameValue(x, y)) << text;
            else
                ASSERT_TRUE(RelativelyClose(y, x, static_cast<long>(Big::mantissa_bits) - 20)) << "base " << base << ": " << text;
        }
    }
}

TEST(TextFormat, RandomValuesRoundTripInEveryBase)
{
    Random rng;
    ExpectRoundTrips<B>(rng, 60, 300);
    ExpectRoundTrips<BB>(rng, 6, 300);
    // decimal scientific texts across a wide exponent range
    ttmath::Conv conv;
    for (int i = 0; i < 200; ++i) {
        const B x = RandomNormal<B>(rng, -(1 << 24), 1 << 24, rng.Next() & 1);
        B y;
        ASSERT_EQ(y.FromString(x.ToString(conv), conv), 0u);
        ASSERT_TRUE(RelativelyClose(y, x, static_cast<long>(B::mantissa_bits) - 20)) << x.ToString(conv);
    }
}

} // namespace
