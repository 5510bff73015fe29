// FromString where the vectors say nothing: texts without digits, group before and
// group2 after the radix point, a radix point of 0 and the end of the text, bytes above
// 0x7F, texts of a million digits, and the word-at-a-time accumulation against the
// digit-by-digit Mul and Add it stands for.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>

#include <ttmath/ttmath.h>

#include "text_test_support.h"

namespace {

using namespace testing_support;
using ttmath::uint;
typedef ttmath::Big<1, 4> B;
typedef ttmath::Big<8, 32> BB;

const std::size_t million = 1000000;

struct Parsed {
    uint code;
    B value;
    std::ptrdiff_t at;
    bool read;
};

Parsed Parse(const char * text, const ttmath::Conv & conv = ttmath::Conv())
{
    Parsed p;
    const char * after = nullptr;
    p.read = true; // must be overwritten
    p.code = p.value.FromString(text, conv, &after, &p.read);
    p.at = after ? after - text : -1;
    return p;
}

B Value(const char * text)
{
    B x;
    x.FromString(text);
    return x;
}

TEST(TextParse, TextsWithoutDigitsReadNothing)
{
    B zero;
    zero.SetZero();
    const struct {
        const char * text;
        std::ptrdiff_t at;
    } cases[] = {{"", 0}, {"-", 1}, {"+", 1}, {" -\t", 3}, {"\xff", 0}, {"\x80\x81", 0}, {"  \xc3\xa9", 2}, {".", 1}};
    for (const auto & c : cases) {
        Parsed p = Parse(c.text);
        EXPECT_EQ(p.code, 0u) << c.text;
        EXPECT_FALSE(p.read) << c.text;
        EXPECT_EQ(p.at, c.at) << c.text;
        EXPECT_TRUE(SameValue(p.value, zero)) << c.text;
    }
    // bytes above 0x7F end a number in every base
    for (int byte = 0x80; byte <= 0xff; ++byte) {
        const char text[] = {'7', static_cast<char>(byte), '1', '\0'};
        ttmath::Conv hex;
        hex.base = 16;
        Parsed p = Parse(text, hex);
        EXPECT_EQ(p.at, 1) << byte;
        EXPECT_TRUE(SameValue(p.value, Value("7"))) << byte;
    }
}

TEST(TextParse, GroupBeforeAndGroup2AfterTheRadixPoint)
{
    ttmath::Conv conv;
    conv.group = ' ';
    conv.group2 = '_';
    const struct {
        const char * text;
        std::ptrdiff_t at;
        const char * same_as;
    } cases[] = {
        {"1 234.5_6", 9, "1234.56"}, {" 1 2 3 ", 7, "123"}, {"1 234.5 6", 7, "1234.5"},
        {"1_234", 1, "1"},          {"1.2__3_", 7, "1.23"},
    };
    for (const auto & c : cases) {
        Parsed p = Parse(c.text, conv);
        EXPECT_EQ(p.at, c.at) << c.text;
        EXPECT_TRUE(SameValue(p.value, Value(c.same_as))) << c.text;
    }
    ttmath::Conv fraction_only;
    fraction_only.group2 = ' ';
    EXPECT_EQ(Parse("12 3", fraction_only).at, 2);
    EXPECT_EQ(Parse("1.2 3", fraction_only).at, 5);
}

// Texts in buffers of exactly their length: reading beyond them is an error the
// address sanitizer reports.
std::unique_ptr<char[]> ExactBuffer(const std::string & text)
{
    std::unique_ptr<char[]> buffer(new char[text.size() + 1]);
    std::copy(text.begin(), text.end(), buffer.get());
    buffer[text.size()] = '\0';
    return buffer;
}

TEST(TextParse, CommaZeroMeansNoRadixPointAndTheEndIsNeverPassed)
{
    ttmath::Conv none;
    none.comma = 0;
    none.comma2 = 0;
    ttmath::Conv low_bytes_zero; // non-zero fields whose character is NUL
    low_bytes_zero.comma = 0x100;
    low_bytes_zero.comma2 = 0x200;
    low_bytes_zero.group = 0x300;
    low_bytes_zero.group2 = 0x400;
    for (const ttmath::Conv & conv : {none, low_bytes_zero}) {
        for (const char * text : {"12", "1 e", "12.", "7e+"}) {
            std::unique_ptr<char[]> buffer = ExactBuffer(text);
            Parsed p = Parse(buffer.get(), conv);
            EXPECT_EQ(p.code, 0u);
            EXPECT_TRUE(p.read);
            EXPECT_LE(p.at, static_cast<std::ptrdiff_t>(std::strlen(text)));
        }
        EXPECT_EQ(Parse("12.5", conv).at, 2);
    }
    none.comma2 = ',';
    EXPECT_TRUE(SameValue(Parse("12,5", none).value, Value("12.5")));
}

TEST(TextParse, SeparatorsAboveAscii)
{
    for (uint group : {uint(0xc2), ~uint(0) - 0x3d}) {
        ttmath::Conv conv;
        conv.group = group;
        conv.comma = 0xb7;
        conv.group2 = 0xe9;
        Parsed p = Parse("1\xc2" "234\xb7" "5\xe9" "6\xc3", conv);
        EXPECT_EQ(p.at, 9);
        EXPECT_TRUE(SameValue(p.value, Value("1234.56")));
    }
}

// `count` random digits of the base, the first one 1.
std::string RandomDigits(Random & rng, std::size_t count, uint base)
{
    std::string s(count, '0');
    for (char & c : s)
        c = ttmath::text::DigitChar(rng.Next() % base);
    s[0] = '1';
    return s;
}

template<class Big>
void ExpectMillionDigitInteger(Random & rng)
{
    const std::string digits = RandomDigits(rng, million, 10);
    Big x;
    const char * after = nullptr;
    ASSERT_EQ(x.FromString(digits, ttmath::Conv(), &after), 0u);
    EXPECT_EQ(after, digits.c_str() + million);
    // every digit rounds once in Mul and once in Add: at most a million ulps apart
    mpfr_t want;
    mpfr_init2(want, static_cast<mpfr_prec_t>(Big::mantissa_bits * 2));
    mpfr_set_str(want, digits.c_str(), 10, MPFR_RNDN);
    EXPECT_TRUE(RelativelyClose(x, want, static_cast<long>(Big::mantissa_bits) - 24));
    mpfr_clear(want);
}

TEST(TextParse, MillionDigitTexts)
{
    Random rng;
    ExpectMillionDigitInteger<B>(rng);
    ExpectMillionDigitInteger<BB>(rng);

    // fraction digits beyond the mantissa's reach are passed over
    const std::string fraction = "0." + RandomDigits(rng, million, 10);
    Parsed all = Parse(fraction.c_str()), head = Parse(fraction.substr(0, 100).c_str());
    EXPECT_EQ(all.at, static_cast<std::ptrdiff_t>(fraction.size()));
    EXPECT_TRUE(SameValue(all.value, head.value));

    // an exponent of a million digits
    const std::string zeros = "1e" + std::string(million, '0') + "5";
    EXPECT_TRUE(SameValue(Parse(zeros.c_str()).value, Value("1e5")));
    const std::string ones = "1e" + std::string(million, '1');
    Parsed huge = Parse(ones.c_str());
    EXPECT_EQ(huge.code, 1u);
    EXPECT_TRUE(huge.value.IsNan());
    EXPECT_EQ(huge.at, static_cast<std::ptrdiff_t>(ones.size()));
}

// The parse of digits as its definition reads: Mul by the base and Add of the digit, one
// digit at a time (the integer part); the fraction part stops at 2^N and divides.
template<class Big>
Big StepByStep(const std::string & digits, uint base, bool fraction)
{
    Big b, v;
    b.FromUInt(base);
    v.SetZero();
    uint count = 0;
    for (char c : digits) {
        if (fraction && v.exponent > decltype(v.exponent)(0))
            break;
        Big d;
        d.FromUInt(ttmath::text::DigitValue(c));
        v.Mul(b);
        v.Add(d);
        ++count;
    }
    if (fraction) {
        Big p(b), sum;
        p.Pow(ttmath::UInt<1>(count));
        v.Div(p);
        sum.SetZero();
        sum.Add(v);
        v = sum;
    }
    return v;
}

template<class Big>
void ExpectStepByStepAccumulation(Random & rng, int per_base)
{
    for (uint base = 2; base <= 16; ++base) {
        ttmath::Conv conv;
        conv.base = base;
        conv.group = ' ';
        conv.group2 = ' ';
        // around the length that reaches 2^N, and some much longer
        const double reach = Big::mantissa_bits / std::log2(static_cast<double>(base));
        for (int i = 0; i < per_base; ++i) {
            std::size_t length = static_cast<std::size_t>(reach) - 30 + rng.Next() % 60;
            if (i % 8 == 0)
                length = 1 + rng.Next() % 3000;
            std::string digits = RandomDigits(rng, length, base);
            if (i % 3 == 0)
                digits.replace(0, rng.Next() % length, rng.Next() % length, '0');
            std::string spaced;
            for (char c : digits)
                spaced += (rng.Next() % 5 == 0 ? " " : "") + std::string(1, c);
            for (bool fraction : {false, true}) {
                const std::string text = (fraction ? "0." : "") + spaced;
                Big x;
                ASSERT_EQ(x.FromString(text, conv), 0u);
                ASSERT_TRUE(SameValue(x, StepByStep<Big>(digits, base, fraction))) << text;
            }
        }
    }
}

TEST(TextParse, AccumulationIsStepByStepMulAndAdd)
{
    Random rng;
    ExpectStepByStepAccumulation<B>(rng, 40);
    ExpectStepByStepAccumulation<BB>(rng, 4);
}

} // namespace
