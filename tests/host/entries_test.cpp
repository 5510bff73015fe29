// Host entries called the way a plugin calls them, without a plugin in between.
#include <gtest/gtest.h>

#include <cstring>

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

REALstring Utf8(const char * text)
{
    return Entry<REALBuildStringWithEncodingProc>("REALBuildStringWithEncoding")(
        text, static_cast<int>(std::strlen(text)), kREALTextEncodingUTF8);
}

void Release(REALstring s)
{
    Entry<REALUnlockStringProc>("REALUnlockString")(s);
}

void Release(REALobject o)
{
    Entry<REALUnlockObjectProc>("REALUnlockObject")(o);
}

TEST(Entries, StringDataFollowsTheHostSettings)
{
    for (bool terminate : {true, false}) {
        HostSettings settings;
        settings.terminateStringData = terminate;
        Host host(settings);
        REALstring s = Utf8("h\xC3\xA9");
        REALstringData data;
        ASSERT_TRUE(Entry<PluginGetStringDataProc>("PluginGetStringData")(s, kREALTextEncodingLatin1, &data));
        ASSERT_EQ(data.length, 2u);
        EXPECT_EQ(std::string(static_cast<const char *>(data.data), 2), "h\xE9");
        EXPECT_EQ(static_cast<const char *>(data.data)[2] == '\0', terminate);
        Entry<PluginDisposeStringDataProc>("PluginDisposeStringData")(&data);
        EXPECT_FALSE(Entry<PluginGetStringDataProc>("PluginGetStringData")(s, kREALTextEncodingASCII, &data));
        Release(s);
        EXPECT_TRUE(host.Leaks().empty());
    }
}

TEST(Entries, NullStringsAreEmptyExceptForOldHostsStringData)
{
    for (double version : {2014.01, 2014.02}) {
        HostSettings settings;
        settings.version = version;
        Host host(settings);
        REALstringData data;
        EXPECT_EQ(Entry<PluginGetStringDataProc>("PluginGetStringData")(nullptr, kREALTextEncodingUTF8, &data) != 0,
                  version >= 2014.02);
        if (data.private1)
            Entry<PluginDisposeStringDataProc>("PluginDisposeStringData")(&data);
        auto lenB = reinterpret_cast<LenBProc>(
            Entry<REALLoadGlobalMethodProc>("REALLoadGlobalMethod")(nullptr, "LenB( s as string ) as integer"));
        ASSERT_NE(lenB, nullptr);
        EXPECT_EQ(lenB(nullptr), 0);
        Entry<REALUnlockStringProc>("REALUnlockString")(nullptr);
        EXPECT_TRUE(host.Faults().empty());
    }
}

TEST(Entries, VariantAccessorsConvertAsVariantsDo)
{
    Host host;
    REALstring digits = Utf8("12345");
    REALobject text = Entry<StringToVariantProc>("StringToVariant")(digits);
    REALobject negative = Entry<Int32ToVariantProc>("Int32ToVariant")(-1);
    REALobject cash = Entry<CurrencyToVariantProc>("CurrencyToVariant")(80000000);
    int32_t i32 = 0;
    uint32_t u32 = 0;
    RBInt64 i64 = 0;
    REALcurrency scaled = 0;
    RBInteger type = 0;
    EXPECT_TRUE(Entry<REALGetPropValueIntProc>("REALGetPropValueInt")(text, "Int32Value", &i32));
    EXPECT_EQ(i32, 12345);
    EXPECT_TRUE(Entry<REALGetPropValueUInt32Proc>("REALGetPropValueUInt32")(negative, "UInt32Value", &u32));
    EXPECT_EQ(u32, 0xFFFFFFFFu);
    EXPECT_TRUE(Entry<REALGetPropValueInt64Proc>("REALGetPropValueInt64")(cash, "Int64Value", &i64));
    EXPECT_EQ(i64, 8000);
    EXPECT_TRUE(Entry<REALGetPropValueCurrencyProc>("REALGetPropValueCurrency")(cash, "CurrencyValue", &scaled));
    EXPECT_EQ(scaled, 80000000);
    // Type is a method of variants, not a property.
    EXPECT_FALSE(Entry<REALGetPropValueIntegerProc>("REALGetPropValueInteger")(cash, "Type", &type));
    auto varType = reinterpret_cast<VarTypeProc>(
        Entry<REALLoadGlobalMethodProc>("REALLoadGlobalMethod")(nullptr, "VarType(value As Variant) As Integer"));
    EXPECT_EQ(varType(cash), 6);
    EXPECT_EQ(Entry<REALLoadGlobalMethodProc>("REALLoadGlobalMethod")(nullptr, "VarType(value As Integer) As Integer"), nullptr);
    for (REALobject o : {text, negative, cash})
        Release(o);
    Release(digits);
    EXPECT_TRUE(host.Leaks().empty());
}

TEST(Entries, VariantReadersConvertLikeTheValuePropertiesAndHidingAFunctionHidesItFromLookups)
{
    Host host;
    REALstring digits = Utf8("-12.75");
    REALobject text = Entry<StringToVariantProc>("StringToVariant")(digits);
    REALobject big = Entry<UInt64ToVariantProc>("UInt64ToVariant")(0xFFFFFFFFFFFFFFFFu);
    EXPECT_EQ(Entry<VariantToInt32Proc>("VariantToInt32")(text), -12);
    EXPECT_EQ(Entry<VariantToDoubleProc>("VariantToDouble")(text), -12.75);
    EXPECT_EQ(Entry<VariantToSingleProc>("VariantToSingle")(text), -12.75f);
    EXPECT_EQ(Entry<VariantToUInt64Proc>("VariantToUInt64")(big), 0xFFFFFFFFFFFFFFFFu);
    EXPECT_EQ(Entry<VariantToInt64Proc>("VariantToInt64")(big), -1);
    EXPECT_EQ(Entry<VariantToUInt32Proc>("VariantToUInt32")(big), 0xFFFFFFFFu);
    REALstring back = Entry<VariantToStringProc>("VariantToString")(big);
    EXPECT_EQ(Runtime::Bytes(back), "18446744073709551615");
    EXPECT_EQ(Entry<VariantToInt32Proc>("VariantToInt32")(nullptr), 0);

    const char * varType = "VarType(value As Variant) As Integer";
    auto load = Entry<REALLoadGlobalMethodProc>("REALLoadGlobalMethod");
    EXPECT_NE(load(nullptr, varType), nullptr);
    host.HideEntry("VarType");
    EXPECT_EQ(load(nullptr, varType), nullptr);
    EXPECT_NE(load(nullptr, "LenB( s as string ) as integer"), nullptr);

    Release(back);
    Release(text);
    Release(big);
    Release(digits);
    EXPECT_TRUE(host.Leaks().empty());
}

REALobject NewException(const char * className, const char * message)
{
    REALobject e = Entry<PluginNewInstanceProc>("PluginNewInstance")(className);
    REALstring text = Utf8(message);
    Entry<REALSetPropValueStringProc>("REALSetPropValueString")(e, "Message", text);
    Release(text);
    return e;
}

void RaiseInner(void *)
{
    REALobject e = NewException("OutOfBoundsException", "inner");
    Entry<RuntimeRaiseExceptionProc>("RuntimeRaiseException")(e);
    Release(e);
}

TEST(Entries, AnExceptionHandlerCatchesOnlyWhatItsCallbackRaised)
{
    Host host;
    REALobject outer = NewException("RuntimeException", "outer");
    Entry<RuntimeRaiseExceptionProc>("RuntimeRaiseException")(outer);
    Release(outer);
    REALobject caught = Entry<PluginCallFunctionWithExceptionHandlerProc>("PluginCallFunctionWithExceptionHandler")(
        &RaiseInner, nullptr);
    ASSERT_NE(caught, nullptr);
    REALstring message = nullptr;
    EXPECT_TRUE(Entry<REALGetPropValueStringProc>("REALGetPropValueString")(caught, "Message", &message));
    EXPECT_EQ(Runtime::Bytes(message), "inner");
    Release(message);
    Release(caught);
    REALobject pending = host.runtime().TakePending();
    ASSERT_NE(pending, nullptr);
    EXPECT_EQ(pending->cls->name, "RuntimeException");
    Release(pending);
    EXPECT_TRUE(host.Leaks().empty());
}

} // namespace
} // namespace hostsim
