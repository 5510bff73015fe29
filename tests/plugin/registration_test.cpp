// Registration: the four classes in their order, their records as the host version
// shapes them, and both number classes' tables made from the one list of rows.
#include <cstring>
#include <memory>
#include <sstream>

#include "host/framework/framework.h"
#include "host/runtime/entries.h"
#include "host/runtime/types.h"
#include "numbers/class_traits.h"
#include "numbers/number_class.h"
#include "plugin_test_support.h"
#include "sdk/flags.h"

extern "C" void REALPluginMain(REALresolver resolver);

namespace plugin_test {
namespace {

using hostsim::ClassInfo;
using hostsim::Host;
using hostsim::HostSettings;
using Big = zqt::NumberObject<zqt::BigNumberTraits>;
using Bigger = zqt::NumberObject<zqt::BiggerNumberTraits>;

const std::vector<std::string> kClassOrder = {"BigNumberZQT", "BiggerNumberZQT", "BigNumberConversionZQT",
                                              "BigNumberErrorExceptionZQT"};
const char * const kLastSharedMethod = "NumberWithUInteger";

std::unique_ptr<Host> LoadedAt(double hostVersion, std::string & error)
{
    HostSettings settings;
    settings.version = hostVersion;
    auto host = std::make_unique<Host>(settings);
    if (!host->LoadPlugin(PLUGIN_FILE, error, hostsim::LoadOptions{true}))
        return nullptr;
    return host;
}

void ExpectNoLeaks(const Host & host)
{
    std::ostringstream report;
    EXPECT_TRUE(host.ReportAccounting(report)) << report.str();
}

size_t Served(const std::vector<zqt::ListedMethod> & list)
{
    size_t n = 0;
    for (const auto & s : list)
        n += s.function != nullptr;
    return n;
}

class Registration : public PluginHost {};

TEST_F(Registration, FourClassesInTheirOrderWithTheirRecords)
{
    LoadOrFail();
    std::vector<std::string> names;
    for (const ClassInfo * c : host.PluginClasses())
        names.push_back(c->name);
    EXPECT_EQ(names, kClassOrder);

    const size_t roundedSizes[] = {16, 16, 96, 0};
    for (size_t i = 0; i < kClassOrder.size(); ++i) {
        const ClassInfo & c = *host.FindClass(kClassOrder[i]);
        EXPECT_EQ(c.dataSize, roundedSizes[i]) << c.name;
        EXPECT_EQ(c.flags, REALTargetAll) << c.name;
    }
    EXPECT_EQ(host.FindClass("BigNumberErrorExceptionZQT")->super, host.FindClass("RuntimeException"));
    EXPECT_EQ(host.FindClass("BigNumberZQT")->super, nullptr);
    EXPECT_NE(host.FindClass("BigNumberZQT")->finalizer, nullptr);

    // One `Debugging` row serves both number classes; it is hidden and public.
    const ClassInfo & big = *host.FindClass("BigNumberZQT");
    const ClassInfo & bigger = *host.FindClass("BiggerNumberZQT");
    EXPECT_EQ(big.record->sharedProperties, bigger.record->sharedProperties);
    for (const ClassInfo * c : {&big, &bigger}) {
        ASSERT_EQ(c->sharedProperties.size(), 1u);
        const hostsim::PropertyInfo & debugging = c->sharedProperties[0];
        EXPECT_EQ(debugging.name, "Debugging");
        EXPECT_EQ(debugging.type.Name(), "Boolean");
        EXPECT_EQ(debugging.flags, REALTargetAll | REALTargetRuntimeOnly | REALScopePublic);
        ASSERT_EQ(debugging.attributes.size(), 1u);
        EXPECT_EQ(debugging.attributes[0].name, "Hidden");
        EXPECT_EQ(debugging.attributes[0].value, "");
    }
}

// Compares what the host registered for one class with the list of rows.
template <class N>
void ExpectRowForRow(const ClassInfo & c)
{
    SCOPED_TRACE(c.name);
    for (bool shared : {false, true}) {
        std::vector<zqt::ListedMethod> list = shared ? zqt::NumberSharedMethods<N>() : zqt::NumberMethods<N>();
        const std::vector<hostsim::MethodInfo> & rows = shared ? c.sharedMethods : c.methods;
        std::vector<const zqt::ListedMethod *> served;
        for (const auto & s : list)
            if (s.function)
                served.push_back(&s);
        ASSERT_EQ(rows.size(), served.size());
        for (size_t i = 0; i < rows.size(); ++i) {
            EXPECT_EQ(rows[i].declaration, zqt::WithClassName(served[i]->declaration, N::kName));
            EXPECT_EQ(rows[i].flags, REALTargetAll) << rows[i].declaration;
            EXPECT_EQ(rows[i].attributes.size(), served[i]->hidden ? 1u : 0u) << rows[i].declaration;
            // Rows that share a handler in the list share it in the host, and only they.
            for (size_t j = 0; j < i; ++j)
                EXPECT_EQ(rows[i].function == rows[j].function, served[i]->function == served[j]->function)
                    << rows[i].declaration << " / " << rows[j].declaration;
        }
    }
    std::vector<zqt::ListedProperty> properties = zqt::NumberProperties<N>();
    size_t p = 0;
    for (const auto & listed : properties) {
        if (!listed.getter)
            continue;
        ASSERT_LT(p, c.properties.size());
        const hostsim::PropertyInfo & row = c.properties[p++];
        EXPECT_EQ(row.name, listed.name);
        hostsim::TypeRef declared;
        ASSERT_TRUE(hostsim::ParseTypeName(listed.type, declared)) << listed.type;
        EXPECT_EQ(row.type.Name(), declared.Name());
        EXPECT_EQ(row.flags, REALTargetAll | REALTargetRuntimeOnly);
        EXPECT_EQ(row.setter == nullptr, listed.setter == nullptr) << row.name;
        EXPECT_TRUE(row.attributes.empty());
    }
    EXPECT_EQ(p, c.properties.size());
}

TEST_F(Registration, BothNumberClassesRegisterTheOneListRowForRow)
{
    LoadOrFail();
    const ClassInfo & big = *host.FindClass("BigNumberZQT");
    const ClassInfo & bigger = *host.FindClass("BiggerNumberZQT");
    ExpectRowForRow<Big>(big);
    ExpectRowForRow<Bigger>(bigger);

    // The whole list: 55 methods, 55 shared methods, 14 properties, LibTypeStr first
    // and hidden, NumberWithUInteger last.
    EXPECT_EQ(zqt::NumberMethods<Big>().size(), 55u);
    EXPECT_EQ(zqt::NumberSharedMethods<Big>().size(), 55u);
    EXPECT_EQ(zqt::NumberProperties<Big>().size(), 14u);
    EXPECT_EQ(big.sharedMethods.front().declaration, "LibTypeStr as String");
    EXPECT_EQ(big.sharedMethods.front().attributes.at(0).name, "Hidden");
    EXPECT_EQ(big.sharedMethods.back().signature.name, kLastSharedMethod);
    for (size_t i = 0; i < big.methods.size(); ++i) {
        std::string renamed = big.methods[i].declaration;
        for (size_t at; (at = renamed.find("BigNumberZQT")) != std::string::npos;)
            renamed.replace(at, std::strlen("BigNumberZQT"), "BiggerNumberZQT");
        EXPECT_EQ(bigger.methods[i].declaration, renamed);
    }
}

TEST(RegistrationByVersion, RecordsCarryTheControlVersionOfTheHost)
{
    struct Case {
        double host;
        uint32_t control;
    };
    for (Case c : {Case{2013.04, 13}, Case{2021.0, 13}, Case{2013.039, 12}, Case{2013.03, 12}, Case{2013.0, 11},
                   Case{2012.5, 10}, Case{2012.0, 10}}) {
        SCOPED_TRACE(c.host);
        std::string error;
        std::unique_ptr<Host> host = LoadedAt(c.host, error);
        ASSERT_TRUE(host) << error;
        EXPECT_EQ(host->PluginVersion(), static_cast<int>(c.control));
        ASSERT_EQ(host->PluginClasses().size(), kClassOrder.size());
        for (const ClassInfo * cls : host->PluginClasses())
            EXPECT_EQ(cls->version, c.control) << cls->name;
        ExpectNoLeaks(*host);
    }
}

TEST(RegistrationByVersion, HostsBeforeUIntegerGetEverySharedMethodButTheLast)
{
    const size_t served = Served(zqt::NumberSharedMethods<Big>());
    for (double version : {2014.99, 2015.0}) {
        SCOPED_TRACE(version);
        std::string error;
        std::unique_ptr<Host> host = LoadedAt(version, error);
        ASSERT_TRUE(host) << error;
        bool knowsUInteger = version >= 2015.0;
        for (const char * name : {"BigNumberZQT", "BiggerNumberZQT"}) {
            const ClassInfo & c = *host->FindClass(name);
            EXPECT_EQ(c.sharedMethods.size(), knowsUInteger ? served : served - 1);
            EXPECT_EQ(c.FindMethods(kLastSharedMethod, true).empty(), !knowsUInteger);
        }
        ExpectNoLeaks(*host);
    }
}

// What a host would be handed: a snapshot of every record the plugin registers, taken
// by a resolver that forwards every other name to the simulated host.
struct Attempt {
    std::string name;
    uint32_t version;
    size_t sharedMethodCount;
    std::string lastSharedMethod;
};
std::vector<Attempt> gAttempts;

RBInteger RecordRegistration(REALclassDefinition * d)
{
    Attempt a{d->name, d->version, d->sharedMethodCount, ""};
    if (d->sharedMethodCount > 0)
        a.lastSharedMethod = d->sharedMethods[d->sharedMethodCount - 1].declaration;
    gAttempts.push_back(a);
    return 1;
}

void * RecordingResolver(const char * name)
{
    if (std::strcmp(name, "PluginRegisterClass") == 0)
        return reinterpret_cast<void *>(&RecordRegistration);
    return hostsim::ResolveEntry(name);
}

// Hosts before 2012 read version-9 records: rows without attribute fields, 32 bytes
// apart. The plugin claims that version there while its rows keep the newer layout,
// which such a host would misread, so these hosts are checked on the records the
// plugin hands over rather than on a registration the simulated host would accept.
TEST(RegistrationByVersion, HostsBefore2012AreHandedVersion9Records)
{
    const size_t served = Served(zqt::NumberSharedMethods<Big>());
    for (bool versionHidden : {false, true}) {
        SCOPED_TRACE(versionHidden ? "no REALGetRBVersion" : "host 2011.04");
        HostSettings settings;
        settings.version = 2011.04;
        Host host(settings);
        if (versionHidden)
            host.HideEntry("REALGetRBVersion");
        PluginImage image;
        std::string error;
        ASSERT_TRUE(image.Open(error)) << error;
        gAttempts.clear();
        image.Start(&RecordingResolver);
        EXPECT_EQ(host.PluginVersion(), 9);
        ASSERT_EQ(gAttempts.size(), kClassOrder.size());
        for (size_t i = 0; i < gAttempts.size(); ++i) {
            EXPECT_EQ(gAttempts[i].name, kClassOrder[i]);
            EXPECT_EQ(gAttempts[i].version, 9u);
        }
        for (size_t i : {0, 1}) {
            EXPECT_EQ(gAttempts[i].sharedMethodCount, served - 1);
            EXPECT_EQ(gAttempts[i].lastSharedMethod.find(kLastSharedMethod), std::string::npos);
        }
        ExpectNoLeaks(host);
    }
}

TEST(RegistrationByVersion, AHostReadingVersion9RowsRefusesTheNumberClasses)
{
    std::string error;
    EXPECT_FALSE(LoadedAt(2011.04, error));
    EXPECT_NE(error.find("class BigNumberZQT: method row"), std::string::npos) << error;
    EXPECT_NE(error.find("class BiggerNumberZQT: method row"), std::string::npos) << error;
}

TEST(RegistrationByVersion, MissingEntriesAtStartGiveNeutralResults)
{
    std::string error;
    {
        Host host;
        host.HideEntry("RegisterPluginVersion");
        ASSERT_TRUE(host.LoadPlugin(PLUGIN_FILE, error, hostsim::LoadOptions{true})) << error;
        EXPECT_FALSE(host.PluginVersion().has_value());
        EXPECT_EQ(host.PluginClasses().size(), kClassOrder.size());
        ExpectNoLeaks(host);
    }
    Host host;
    host.HideEntry("PluginRegisterClass");
    ASSERT_TRUE(host.LoadPlugin(PLUGIN_FILE, error, hostsim::LoadOptions{true})) << error;
    EXPECT_TRUE(host.PluginClasses().empty());
    ExpectNoLeaks(host);
}

TEST(FlagFixing, TargetBitsAndThePrivateMarkerFollowTheHostVersion)
{
    struct Case {
        uint32_t flags;
        double host;
        uint32_t fixed;
    };
    const Case cases[] = {
        {0x4030C, 2019.0, 0x4},   {0x4030C, 2021.0, 0x30C}, {0x4030C, 2009.0, 0x4},
        {0x40000, 2019.0, 0x4},   {0x40000, 2009.0, 0x0},   {0x308, 2020.01, 0x4},
        {0x308, 2020.02, 0x308},  {0x708, 2019.0, 0x708},   {0x40000, 2010.029, 0x4},
        {0x4, 2009.0, 0x4},       {0x6, 2009.0, 0x6},       {0x26, 2009.0, 0x26},
    };
    for (const Case & c : cases)
        EXPECT_EQ(zqt::FixedFlags(c.flags, c.host), c.fixed) << std::hex << c.flags << " on " << c.host;
}

TEST(FlagFixing, ListsAreRewrittenInPlaceUpToTheirCount)
{
    zqt::rbversion_rbversion = 2019.0;
    REALmethodDefinition methods[3] = {};
    methods[0].mFlags = 0x4030C;
    methods[1].mFlags = 0x40000;
    methods[2].mFlags = 0x40000;
    zqt::FixFlags(methods, 2, "Test");
    EXPECT_EQ(methods[0].mFlags, 0x4u);
    EXPECT_EQ(methods[1].mFlags, 0x4u);
    EXPECT_EQ(methods[2].mFlags, 0x40000u);
    REALproperty properties[1] = {};
    properties[0].flags = 0x40006;
    zqt::FixFlags(properties, 0, "Test");
    EXPECT_EQ(properties[0].flags, 0x40006u);
    zqt::FixFlags(properties, 1, "Test");
    EXPECT_EQ(properties[0].flags, 0x6u);
    zqt::FixFlags(static_cast<REALproperty *>(nullptr), 5, "Test");
}

TEST(ControlVersion, WithoutAResolverOnlyTheVersionIsSet)
{
    zqt::rbversion_rbversion = 0.0;
    zqt::CurrentREALControlVersion = 15;
    REALPluginMain(nullptr);
    EXPECT_EQ(zqt::CurrentREALControlVersion, 9u);
    EXPECT_EQ(zqt::gResolver, nullptr);
}

} // namespace
} // namespace plugin_test
