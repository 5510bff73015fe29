// Loading plugins: what the host records of a registration, and how it refuses input
// that is not a plugin or not a usable record.
#include <gtest/gtest.h>

#include <sstream>

#include "host/host.h"
#include "sdk/flags.h"

namespace hostsim {
namespace {

const LoadOptions kFresh{true};

std::string Output(Host & host, const std::string & script)
{
    std::ostringstream out, err;
    EXPECT_EQ(host.Run(script, out, err), kExitSuccess) << err.str();
    return out.str();
}

TEST(Loading, RecordsEveryRegistrationAsTheRecordsLayItOut)
{
    Host host;
    std::string error;
    ASSERT_TRUE(host.LoadPlugin(TEST_PLUGIN, error, kFresh)) << error;
    EXPECT_EQ(host.PluginVersion(), 13);
    EXPECT_EQ(host.RequestedEntries().front(), "RegisterPluginVersion");

    std::vector<std::string> names;
    for (const ClassInfo * c : host.PluginClasses())
        names.push_back(c->name);
    EXPECT_EQ(names, (std::vector<std::string>{"Probe", "ProbeChild", "ProbeError", "ProbeHost"}));

    const ClassInfo & probe = *host.FindClass("probe");
    const ClassInfo & child = *host.FindClass("ProbeChild");
    EXPECT_EQ(static_cast<size_t>(probe.record->forSystemUse), probe.dataOffset);
    EXPECT_EQ(probe.dataOffset % 16, 0u);
    EXPECT_EQ(child.dataOffset % 16, 0u);
    EXPECT_GE(child.dataOffset, probe.dataOffset + probe.dataSize);
    EXPECT_EQ(child.super, &probe);
    EXPECT_EQ(host.FindClass("ProbeError")->super, host.FindClass("RuntimeException"));
    EXPECT_EQ(probe.methods.size(), probe.record->methodCount);
    EXPECT_EQ(probe.sharedMethods.size(), 2u);
    EXPECT_EQ(probe.sharedProperties.size(), 3u);

    const MethodInfo * clone = probe.FindMethods("Clone", false).front();
    ASSERT_EQ(clone->attributes.size(), 1u);
    EXPECT_EQ(clone->attributes[0].name, "Hidden");
    const PropertyInfo * tag = probe.FindProperty("Tag", false);
    EXPECT_EQ(tag->param, 7);
    EXPECT_EQ(tag->attributes.size(), 1u);
    EXPECT_EQ(probe.FindProperty("Count", false)->flags, REALTargetAll | REALTargetRuntimeOnly);
    EXPECT_TRUE(probe.FindProperty("Count", false)->StandardGetter());
    ASSERT_EQ(probe.attributes.size(), 1u);
    EXPECT_EQ(probe.attributes[0].value, "a test class");
}

TEST(Loading, HiddenEntriesResolveToNull)
{
    Host host;
    host.HideEntry("REALGetPropValueCurrency");
    EXPECT_EQ(host.runtime().Resolve("REALGetPropValueCurrency"), nullptr);
    EXPECT_NE(host.runtime().Resolve("REALGetPropValueInt64"), nullptr);
    EXPECT_EQ(host.runtime().Resolve("NoSuchEntry"), nullptr);
    EXPECT_EQ(host.RequestedEntries().size(), 3u);
}

TEST(Loading, NewInstanceRunsAParameterlessConstructorOnlyWhenSetTo)
{
    const char * script = "Print \"[\" + Probe.Make(1).Label + \"]\"";
    for (bool runs : {false, true}) {
        HostSettings settings;
        settings.newInstanceRunsConstructor = runs;
        Host host(settings);
        std::string error;
        ASSERT_TRUE(host.LoadPlugin(TEST_PLUGIN, error, kFresh)) << error;
        EXPECT_EQ(Output(host, script), runs ? "[made]\n" : "[]\n");
    }
}

TEST(Loading, OldRecordsAreReadWithTheirShorterRows)
{
    Host host;
    std::string error;
    ASSERT_TRUE(host.LoadPlugin(LEGACY_PLUGIN, error)) << error;
    const ClassInfo & old = *host.FindClass("OldStyle");
    ASSERT_EQ(old.methods.size(), 3u);
    EXPECT_EQ(old.methods[2].declaration, "Three() As Integer");
    EXPECT_EQ(old.properties[1].name, "Second");
    EXPECT_EQ(Output(host, "Var o As New OldStyle\no.Second = 5\nPrint o.Three + o.Second + o.First"), "8\n");
}

TEST(Loading, RefusesWhatIsNotAPluginWithAClearMessage)
{
    struct Case {
        std::string path;
        const char * words;
    };
    const Case cases[] = {
        {"/no/such/plugin.so", "no such file"},
        {NOT_A_LIBRARY, "not a loadable library"},
        {NOT_A_PLUGIN, "not a plugin (it does not export REALPluginMain)"},
    };
    Host host;
    for (const Case & c : cases) {
        std::string error;
        EXPECT_FALSE(host.LoadPlugin(c.path, error));
        EXPECT_NE(error.find(c.words), std::string::npos) << error;
    }
    EXPECT_TRUE(host.PluginClasses().empty());
}

TEST(Loading, RefusesMalformedRecordsOneByOneAndKeepsTheGoodOnes)
{
    Host host;
    std::string error;
    EXPECT_FALSE(host.LoadPlugin(BROKEN_PLUGIN, error));
    const char * reasons[] = {
        "class BadDeclaration: method row 0 \"Broken(x As) As\" does not parse at column 12",
        "class NullHandler: method row 0 \"Nothing()\" has a null handler",
        "class Nonsense: the record is for version 77; this host reads versions 9 to 15",
        "class FieldOutside: property row 0 Far is stored at offset 64, outside the class data of 8 bytes",
        "class MissingList: the method count is 3 but the list is null",
        "the class record is null",
    };
    for (const char * reason : reasons)
        EXPECT_NE(error.find(reason), std::string::npos) << reason << "\nnot in:\n" << error;
    EXPECT_NE(host.FindClass("StillGood"), nullptr);
    EXPECT_EQ(host.FindClass("NullHandler"), nullptr);
}

} // namespace
} // namespace hostsim
