#include <gtest/gtest.h>

#include "host/runtime/encodings.h"
#include "sdk/encodings.h"

namespace hostsim {
namespace {

const std::string kMixed = "A\xC3\xA9\xE2\x82\xAC\xF0\x9D\x84\x9E"; // A é € and a character beyond 16 bits

std::string Converted(const std::string & bytes, uint32_t from, uint32_t to, bool substitute = false)
{
    std::string out;
    if (!ConvertText(bytes, from, to, substitute, out))
        return "<failed>";
    return out;
}

TEST(Encodings, UnicodeFormsRoundTrip)
{
    for (uint32_t form : {kREALTextEncodingUTF16, kREALTextEncodingUTF16BE, kREALTextEncodingUTF16LE,
                          kREALTextEncodingUTF32, kREALTextEncodingUTF32BE, kREALTextEncodingUTF32LE}) {
        std::string there = Converted(kMixed, kREALTextEncodingUTF8, form);
        EXPECT_EQ(Converted(there, form, kREALTextEncodingUTF8), kMixed) << EncodingName(form);
    }
    EXPECT_EQ(Converted("A\xE2\x82\xAC", kREALTextEncodingUTF8, kREALTextEncodingUTF16LE), std::string("A\0\xAC\x20", 4));
    EXPECT_EQ(Converted("A\xE2\x82\xAC", kREALTextEncodingUTF8, kREALTextEncodingUTF16BE), std::string("\0A\x20\xAC", 4));
    EXPECT_EQ(Converted(kMixed, kREALTextEncodingUTF8, kREALTextEncodingUTF16BE).size(), 10u); // a surrogate pair
}

TEST(Encodings, EightBitTablesPlaceCharactersWhereEachEncodingHasThem)
{
    const std::string e_acute = "\xC3\xA9", euro = "\xE2\x82\xAC";
    EXPECT_EQ(Converted(e_acute, kREALTextEncodingUTF8, kREALTextEncodingMacRoman), "\x8E");
    EXPECT_EQ(Converted(e_acute, kREALTextEncodingUTF8, kREALTextEncodingLatin1), "\xE9");
    EXPECT_EQ(Converted(e_acute, kREALTextEncodingUTF8, kREALTextEncodingWindowsLatin1), "\xE9");
    EXPECT_EQ(Converted(euro, kREALTextEncodingUTF8, kREALTextEncodingWindowsLatin1), "\x80");
    EXPECT_EQ(Converted(euro, kREALTextEncodingUTF8, kREALTextEncodingMacRoman), "\xDB");
    EXPECT_EQ(Converted("\x8E\xDB", kREALTextEncodingMacRoman, kREALTextEncodingUTF8), e_acute + euro);
    EXPECT_EQ(Converted(euro, kREALTextEncodingUTF8, kREALTextEncodingLatin1), "<failed>");
    EXPECT_EQ(Converted(euro + "x", kREALTextEncodingUTF8, kREALTextEncodingASCII, true), "?x");
    EXPECT_EQ(Converted("\x81", kREALTextEncodingWindowsLatin1, kREALTextEncodingUTF8), "<failed>");
}

TEST(Encodings, RejectsBytesThatAreNotValidInTheirEncoding)
{
    EXPECT_EQ(Converted("\xC0\xAF", kREALTextEncodingUTF8, kREALTextEncodingUTF16), "<failed>");     // overlong
    EXPECT_EQ(Converted("\xE2\x82", kREALTextEncodingUTF8, kREALTextEncodingUTF16), "<failed>");     // cut short
    EXPECT_EQ(Converted("\xED\xA0\x80", kREALTextEncodingUTF8, kREALTextEncodingUTF16), "<failed>"); // surrogate
    EXPECT_EQ(Converted(std::string("\x00\xD8", 2), kREALTextEncodingUTF16LE, kREALTextEncodingUTF8), "<failed>");
    EXPECT_EQ(Converted("abc", kREALTextEncodingUTF16LE, kREALTextEncodingUTF8), "<failed>");       // odd length
    EXPECT_EQ(Converted("\xE9", kREALTextEncodingASCII, kREALTextEncodingUTF8), "<failed>");
    EXPECT_EQ(Converted("\xE9", kREALTextEncodingUnknown, kREALTextEncodingUTF8), "<failed>");
    EXPECT_EQ(Converted("plain", kREALTextEncodingUnknown, kREALTextEncodingUTF8), "plain");
    EXPECT_EQ(Converted("x", 0x12345, kREALTextEncodingUTF8), "<failed>");
}

} // namespace
} // namespace hostsim
