// The counting of strings and objects, seen from the runtime: handles the host never
// gave out, handles already released, and what is left at the end.
#include <gtest/gtest.h>

#include "host/host.h"
#include "host/runtime/entries.h"
#include "sdk/encodings.h"
#include "sdk/host_entries.h"

namespace hostsim {
namespace {

template <class Proc>
Proc Entry(const char * name)
{
    return reinterpret_cast<Proc>(ResolveEntry(name));
}

bool Mentions(const std::vector<std::string> & lines, const std::string & words)
{
    for (const std::string & line : lines)
        if (line.find(words) != std::string::npos)
            return true;
    return false;
}

TEST(Accounting, ForeignAndReleasedHandlesAreFaultsNotCrashes)
{
    Host host;
    REALstring s = Entry<REALBuildStringProc>("REALBuildString")("abc", 3);
    Entry<REALUnlockStringProc>("REALUnlockString")(s);
    Entry<REALUnlockStringProc>("REALUnlockString")(s);
    alignas(16) char notAnObject[64] = {};
    Entry<REALLockObjectProc>("REALLockObject")(reinterpret_cast<REALobject>(notAnObject));
    EXPECT_EQ(Entry<memoryBlockGetSizeProc>("memoryBlockGetSize")(reinterpret_cast<REALobject>(notAnObject)), 0);
    REALstringData data{};
    EXPECT_FALSE(Entry<PluginGetStringDataProc>("PluginGetStringData")(s, kREALTextEncodingUTF8, &data));

    const auto & faults = host.Faults();
    ASSERT_EQ(faults.size(), 4u);
    EXPECT_NE(faults[0].find("REALUnlockString on string #"), std::string::npos) << faults[0];
    EXPECT_NE(faults[0].find("\"abc\""), std::string::npos);
    EXPECT_NE(faults[1].find("REALLockObject was given"), std::string::npos) << faults[1];
    EXPECT_NE(faults[1].find("which is not an object of this host"), std::string::npos);
    EXPECT_TRUE(host.Leaks().empty());
}

TEST(Accounting, ObjectsAreFinalizedOnceWhenTheLastReferenceGoes)
{
    Host host;
    std::string error;
    ASSERT_TRUE(host.LoadPlugin(TEST_PLUGIN, error, LoadOptions{true})) << error;
    auto newInstance = Entry<PluginNewInstanceProc>("PluginNewInstance");
    REALobject p = newInstance("ProbeChild");
    Entry<REALLockObjectProc>("REALLockObject")(p);
    EXPECT_EQ(host.runtime().accounting.LiveCount(ResourceKind::Object), 1u);
    Entry<REALUnlockObjectProc>("REALUnlockObject")(p);
    EXPECT_EQ(host.runtime().accounting.LiveCount(ResourceKind::Object), 1u);
    Entry<REALUnlockObjectProc>("REALUnlockObject")(p);
    EXPECT_EQ(host.runtime().accounting.LiveCount(ResourceKind::Object), 0u);
    std::ostringstream out, err;
    EXPECT_EQ(host.Run("Print Probe.InitCount\nPrint Probe.FinalCount", out, err), kExitSuccess) << err.str();
    EXPECT_EQ(out.str(), "1\n1\n");
    EXPECT_EQ(newInstance("NoSuchClass"), nullptr);
}

TEST(Accounting, RaisingSomethingThatIsNotAnExceptionIsRefused)
{
    Host host;
    REALobject block = Entry<PluginNewInstanceProc>("PluginNewInstance")("MemoryBlock");
    Entry<RuntimeRaiseExceptionProc>("RuntimeRaiseException")(block);
    Entry<RuntimeRaiseExceptionProc>("RuntimeRaiseException")(nullptr);
    EXPECT_FALSE(host.runtime().HasPending());
    EXPECT_TRUE(Mentions(host.Faults(), "not a RuntimeException"));
    EXPECT_TRUE(Mentions(host.Leaks(), "object #1 of class MemoryBlock"));
    Entry<REALUnlockObjectProc>("REALUnlockObject")(block);
    EXPECT_TRUE(host.Leaks().empty());
}

} // namespace
} // namespace hostsim
