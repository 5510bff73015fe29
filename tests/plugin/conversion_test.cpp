// The settings built from a conversion object, called directly with the simulated host
// as the resolver: every field lands in its own setting of the library's record, and
// separators are read as ASCII and sign-extended (bytes no script can make).
#include <ttmath/ttmath.h>

#include "host/runtime/entries.h"
#include "numbers/classes.h"
#include "plugin/host_version.h"
#include "plugin/owned.h"
#include "plugin/registration.h"
#include "plugin_test_support.h"
#include "sdk/encodings.h"
#include "sdk/flags.h"
#include "text/conversion_class.h"
#include "text/conversion_settings.h"

namespace plugin_test {
namespace {

class ConversionSettings : public ::testing::Test {
protected:
    void SetUp() override
    {
        zqt::gResolver = &hostsim::ResolveEntry;
        zqt::rbversion_rbversion = host.Settings().version;
        zqt::CurrentREALControlVersion = kControlVersionModuleNesting;
        ASSERT_TRUE(zqt::MyREALRegisterClass(&zqt::ConversionRecord()));
        const hostsim::ClassInfo & cls = *host.FindClass(zqt::kConversionClass);
        conversion = host.runtime().NewObject(cls);
        using Constructor = void (*)(REALobject);
        reinterpret_cast<Constructor>(cls.FindMethods("Constructor", false).front()->function)(conversion);
    }
    void TearDown() override
    {
        host.runtime().UnlockObject(conversion, "test");
        std::ostringstream report;
        EXPECT_TRUE(host.ReportAccounting(report)) << report.str();
    }

    // Replaces a string setting the way the host's own setter does.
    void Set(REALstring & slot, const char * bytes, uint32_t encoding)
    {
        REALstring old = slot;
        slot = host.runtime().NewString(bytes, encoding);
        host.runtime().UnlockString(old, "test");
    }

    hostsim::Host host;
    REALobject conversion = nullptr;
};

TEST_F(ConversionSettings, EachFieldLandsInItsOwnSetting)
{
    zqt::ConversionData & d = zqt::ConversionOf(conversion);
    d.base = 7;
    d.scientific.value = 2; // any non-zero byte is true
    d.scientificFrom = -4;
    d.baseRound.value = 0;
    d.round = 1000000000;
    d.trimZeroes.value = 0;
    Set(d.comma, ",.", kREALTextEncodingUTF8);
    Set(d.comma2, ";", kREALTextEncodingUTF8);
    Set(d.group1, " ", kREALTextEncodingUTF8);
    Set(d.group2, "'", kREALTextEncodingUTF8);
    d.groupDigits = -1;

    ttmath::Conv c;
    c.group_exp = 9;
    ASSERT_TRUE(zqt::GetConv(conversion, c, "GetStringValue"));
    EXPECT_EQ(c.base, 7u);
    EXPECT_TRUE(c.scient);
    EXPECT_EQ(c.scient_from, -4);
    EXPECT_FALSE(c.base_round);
    EXPECT_EQ(c.round, 1000000000);
    EXPECT_FALSE(c.trim_zeroes);
    EXPECT_EQ(c.comma, ttmath::uint(','));
    EXPECT_EQ(c.comma2, ttmath::uint(';'));
    EXPECT_EQ(c.group, ttmath::uint(' '));
    EXPECT_EQ(c.group2, ttmath::uint('\''));
    EXPECT_EQ(c.group_digits, ~ttmath::uint(0));
    EXPECT_EQ(c.group_exp, 9u); // the twelfth setting is left alone
}

TEST_F(ConversionSettings, SeparatorsAreTheirFirstAsciiByteSignExtended)
{
    // Bytes the host calls ASCII come through as they are; the top one is sign-extended.
    zqt::OwnedString tagged(host.runtime().NewString("\xE9x", kREALTextEncodingASCII));
    const ttmath::uint signExtendedE9 = 0xFFFFFFFFFFFFFFE9u;
    EXPECT_EQ(zqt::SeparatorChar(tagged.get()), signExtendedE9);
    // A character ASCII cannot hold reads as nothing, like an empty string and nil.
    zqt::OwnedString latin(host.runtime().NewString("\xE9", kREALTextEncodingLatin1));
    zqt::OwnedString empty(host.runtime().NewString("", kREALTextEncodingUTF8));
    EXPECT_EQ(zqt::SeparatorChar(latin.get()), 0u);
    EXPECT_EQ(zqt::SeparatorChar(empty.get()), 0u);
    EXPECT_EQ(zqt::SeparatorChar(nullptr), 0u);

    // Such a byte is written into the text as the low byte of the setting.
    zqt::ConversionData & d = zqt::ConversionOf(conversion);
    Set(d.group1, "\xE9", kREALTextEncodingASCII);
    ttmath::Conv c;
    ASSERT_TRUE(zqt::GetConv(conversion, c, "GetStringValue"));
    const char * grouped = "1\xE9" "234\xE9" "567";
    using Number = ttmath::Big<1, 4>;
    EXPECT_EQ(Number(1234567).ToString(c), grouped);
}

} // namespace
} // namespace plugin_test
