// The number classes through the simulated host, where a script cannot look: hosts that
// lack services, objects without a value, the exact order of the trace, the encoding
// of LibTypeStr, and hosts that construct the objects the plugin asks for.
#include "host/runtime/class_info.h"
#include "plugin_test_support.h"
#include "sdk/encodings.h"

namespace plugin_test {
namespace {

using hostsim::ClassInfo;
using hostsim::Runtime;

const char * const kRaiseScript = R"(Var a As New BigNumberZQT(2)
Try
  Var c As BigNumberZQT = a / New BigNumberZQT
  Print c Is Nil
Catch e As BigNumberErrorExceptionZQT
  Print "[" + e.Message + "]"
End Try
)";

const char * const kBlockScript = R"(Var a As New BigNumberZQT(1)
Try
  Print a.DataMantissa.Byte(31)
Catch e As OutOfMemoryException
  Print e.Message
End Try
Try
  a.DataExponent = New MemoryBlock(8)
  Print "set"
Catch e As OutOfBoundsException
  Print e.Message
End Try
)";

const char * const kTextScript = "Print New BigNumberZQT(\"2.5\").DoubleValue\n"
                                 "Print New BigNumberZQT(\"2\xC3\xA9\").IsZero\n";

class HiddenService : public HiddenEntryHost {};

TEST_P(HiddenService, GivesANeutralResult)
{
    EXPECT_EQ(OutputWithEntryHidden(), GetParam().output);
}

#define TOO_SMALL_BLOCK \
    "The parameter MemoryBlock.Size to method DataMantissa is too small. Range is 8 to 8, but value is 0.\n"
#define NO_BLOCK "Failed to allocate a memoryblock with 32 bytes in size.\n"

INSTANTIATE_TEST_SUITE_P(
    Plugin, HiddenService,
    ::testing::Values(
        HiddenCase{"PluginNewInstance", "Var a As New BigNumberZQT(2)\nPrint (a + a) Is Nil\n"
                                        "Print BigNumberZQT.NumberWithInteger(1) Is Nil\n", "True\nTrue\n"},
        HiddenCase{"PluginNewInstance", kRaiseScript, "True\n"},
        HiddenCase{"RuntimeRaiseException", kRaiseScript, "True\n"},
        HiddenCase{"RuntimeAddString", kRaiseScript, "[]\n"},
        HiddenCase{"REALSetPropValueString", kRaiseScript, "[]\n"},
        HiddenCase{"REALBuildStringWithEncoding", kRaiseScript, "[]\n"},
        HiddenCase{"memoryBlockGetSize", kBlockScript, NO_BLOCK TOO_SMALL_BLOCK},
        HiddenCase{"memoryBlockGetPtr", kBlockScript, "0\n" TOO_SMALL_BLOCK},
        HiddenCase{"PluginCallFunctionWithExceptionHandler", kBlockScript, "128\nset\n"},
        HiddenCase{"REALLoadObjectMethod", kBlockScript, NO_BLOCK "set\n"},
        HiddenCase{"StringGetCString", kTextScript, "0\nTrue\n"}, // no bytes: the text is empty
        HiddenCase{"REALLoadGlobalMethod", kTextScript, "2.5\nFalse\n"},
        HiddenCase{"PluginGetStringData", kTextScript, "2.5\nTrue\n"}));

class NumberObjects : public PluginHost {
protected:
    const ClassInfo & Class(const char * name) { return *host.FindClass(name); }
    template <class Proc>
    Proc Getter(const ClassInfo & c, const char * property)
    {
        return reinterpret_cast<Proc>(c.FindProperty(property, false)->getter);
    }
    template <class Proc>
    Proc Setter(const ClassInfo & c, const char * property)
    {
        return reinterpret_cast<Proc>(c.FindProperty(property, false)->setter);
    }
    template <class Proc>
    Proc Method(const ClassInfo & c, const char * name, bool shared)
    {
        return reinterpret_cast<Proc>(c.FindMethods(name, shared).front()->function);
    }
    void SetDebugging(bool on)
    {
        using SetProc = void (*)(int8_t);
        reinterpret_cast<SetProc>(Class("BigNumberZQT").sharedProperties[0].setter)(on ? 1 : 0);
    }
};

TEST_F(NumberObjects, AnObjectWithoutAValueReportsItAndReadsAsNilElsewhere)
{
    LoadOrFail();
    for (const char * name : {"BigNumberZQT", "BiggerNumberZQT"}) {
        SCOPED_TRACE(name);
        const ClassInfo & c = Class(name);
        REALobject empty = host.runtime().NewObject(c);
        SetDebugging(true);
        std::string trace = CapturedStandardError([&] {
            EXPECT_EQ(Getter<RBInteger (*)(REALobject, RBInteger)>(c, "DataFlags")(empty, 0), 0);
        });
        SetDebugging(false);
        EXPECT_EQ(trace, "ZQT Debug: me->ref is nil\n");
        Raised r = TakeRaised(host);
        EXPECT_EQ(r.className, "NilObjectException");
        EXPECT_EQ(r.message, "Not initialized");

        EXPECT_EQ(Getter<REALobject (*)(REALobject, RBInteger)>(c, "DataMantissa")(empty, 0), nullptr);
        EXPECT_EQ(TakeRaised(host).message, "Not initialized");
        Setter<void (*)(REALobject, RBInteger, RBInteger)>(c, "DataFlags")(empty, 0, 64);
        EXPECT_EQ(TakeRaised(host).message, "Not initialized");

        // Elsewhere the missing value stands for nil, like a nil argument.
        using Binary = REALobject (*)(REALobject, REALobject, RBBoolean);
        EXPECT_EQ(Method<Binary>(c, "Add", false)(empty, empty, 1), nullptr);
        EXPECT_EQ(TakeRaised(host).message, "Add operation failed with numbers nil and nil.");
        EXPECT_TRUE(Getter<RBBoolean (*)(REALobject, RBInteger)>(c, "IsNan")(empty, 0));
        host.runtime().UnlockObject(empty, "test");
    }
}

TEST_F(NumberObjects, TheTraceFollowsTheCallsInOrderAndStaysSilentWhenOff)
{
    LoadOrFail();
    std::string trace = CapturedStandardError([&] {
        Output("BigNumberZQT.Debugging = True\n"
               "Var a As New BigNumberZQT(1)\n"
               "Var b As BiggerNumberZQT = BiggerNumberZQT.NumberWithDouble(2.5)\n"
               "Print a.Divide(a, False).IsNegative\n"
               "BiggerNumberZQT.Debugging = False\n");
    });
    EXPECT_EQ(trace, "ZQT Debug: ConstructorInt64\n"
                     "ZQT Debug: NumberWithDouble\n"
                     "ZQT Debug: Div\n"
                     "ZQT Debug: IsSign\n"
                     "ZQT Debug: Destructor\n");
    std::string silent = CapturedStandardError([&] {
        Output("Var a As New BigNumberZQT(1)\n"
               "Try\n  Print a / Nil\nCatch e As RuntimeException\n  Print e.Message\nEnd Try\n");
    });
    EXPECT_EQ(silent, "");
}

TEST_F(NumberObjects, LibTypeStrNamesTheBackEndTheBuildChoseInAscii)
{
    LoadOrFail();
    for (const char * name : {"BigNumberZQT", "BiggerNumberZQT"}) {
        REALstring s = Method<REALstring (*)()>(Class(name), "LibTypeStr", true)();
        EXPECT_EQ(Runtime::Bytes(s), PLUGIN_BACK_END) << name;
        EXPECT_EQ(Runtime::EncodingOf(s), kREALTextEncodingASCII) << name;
        host.runtime().UnlockString(s, "test");
    }
}

// A text whose exponent leaves the range raises the constructor's failure, and the
// object is handed back all the same with what the parse left in it (a script never
// sees it: the host drops the result of a call that raised).
TEST_F(NumberObjects, NumberWithStringBeyondTheRangeRaisesAndStillHandsBackTheObject)
{
    LoadOrFail();
    for (const char * name : {"BigNumberZQT", "BiggerNumberZQT"}) {
        SCOPED_TRACE(name);
        const ClassInfo & c = Class(name);
        const std::string beyond_both_ranges = "1e" + std::string(200, '9');
        REALstring text = host.runtime().NewString(beyond_both_ranges, kREALTextEncodingUTF8);
        REALobject made = Method<REALobject (*)(REALstring)>(c, "NumberWithString", true)(text);
        host.runtime().UnlockString(text, "test");
        Raised raised = TakeRaised(host);
        EXPECT_EQ(raised.className, "BigNumberErrorExceptionZQT");
        EXPECT_EQ(raised.message, "Constructor operation failed.");
        ASSERT_NE(made, nullptr);
        EXPECT_EQ(Getter<RBInteger (*)(REALobject, RBInteger)>(c, "DataFlags")(made, 0) & 0x40, 0x40);
        host.runtime().UnlockObject(made, "test");
    }
}

TEST_F(NumberObjects, AHostThatConstructsNewObjectsLeavesNothingBehind)
{
    host.Settings().newInstanceRunsConstructor = true;
    LoadOrFail();
    EXPECT_EQ(Output("Var a As New BigNumberZQT(6)\n"
                     "Print (a * a - a / New BigNumberZQT(2)).Int64Value\n"
                     "Print BiggerNumberZQT.NumberWithInt32(-3).Int64Value\n"),
              "33\n-3\n");
}

} // namespace
} // namespace plugin_test
