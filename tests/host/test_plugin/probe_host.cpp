// ProbeHost: shared methods that go through the host's services (strings, encodings,
// memory blocks, variants, classes, exception handling) and that make reference
// faults on purpose, so that tests can see the host report them.
#include <cstdio>
#include <cstring>
#include <string>

#include "host_calls.h"
#include "probe.h"
#include "sdk/flags.h"

namespace {

const uint32_t kUtf16Unit = 2;

double Version()
{
    return HostEntry<REALGetRBVersionProc>("REALGetRBVersion")();
}

RBBoolean InRuntime()
{
    return HostEntry<REALinRuntimeProc>("REALinRuntime")();
}

RBInteger EncodingOf(REALstring s)
{
    return HostEntry<REALGetStringEncodingProc>("REALGetStringEncoding")(s);
}

REALstring ConvertTo(REALstring s, RBInteger encoding)
{
    return HostEntry<REALConvertStringProc>("REALConvertString")(s, static_cast<uint32_t>(encoding));
}

RBInteger Utf16Units(REALstring s)
{
    REALstringData data;
    if (!HostEntry<PluginGetStringDataProc>("PluginGetStringData")(s, kREALTextEncodingUTF16, &data))
        return -1;
    RBInteger units = static_cast<RBInteger>(data.length / kUtf16Unit);
    HostEntry<PluginDisposeStringDataProc>("PluginDisposeStringData")(&data);
    return units;
}

RBInteger ByteLength(REALstring s)
{
    auto lenB = reinterpret_cast<LenBProc>(
        HostEntry<REALLoadGlobalMethodProc>("REALLoadGlobalMethod")(nullptr, "LenB( s as string ) as integer"));
    return lenB ? lenB(s) : -1;
}

REALstring CString(REALstring s)
{
    const char * bytes = static_cast<const char *>(HostEntry<StringGetCStringProc>("StringGetCString")(s));
    return NewString(std::string("[") + bytes + "]");
}

// The bytes of a memory block as a string tagged with `encoding`.
REALstring Build(REALobject block, RBInteger encoding)
{
    void * bytes = HostEntry<memoryBlockGetPtrProc>("memoryBlockGetPtr")(block);
    RBInteger size = HostEntry<memoryBlockGetSizeProc>("memoryBlockGetSize")(block);
    return HostEntry<REALBuildStringWithEncodingProc>("REALBuildStringWithEncoding")(
        static_cast<const char *>(bytes), static_cast<int>(size), static_cast<uint32_t>(encoding));
}

// A new memory block holding the UTF-8 bytes of `s`, made the way plugins must:
// a bare instance, then its constructor found by declaration.
REALobject BytesOf(REALstring s)
{
    std::string utf8 = Utf8Of(s);
    REALobject block = HostEntry<PluginNewInstanceProc>("PluginNewInstance")("MemoryBlock");
    auto construct = reinterpret_cast<MemoryBlockConstructorProc>(
        HostEntry<REALLoadObjectMethodProc>("REALLoadObjectMethod")(block, "Constructor(bytes as Integer)"));
    construct(block, static_cast<RBInteger>(utf8.size()));
    std::memcpy(HostEntry<memoryBlockGetPtrProc>("memoryBlockGetPtr")(block), utf8.data(), utf8.size());
    return block;
}

RBInteger VariantKind(REALobject v)
{
    auto varType = reinterpret_cast<VarTypeProc>(
        HostEntry<REALLoadGlobalMethodProc>("REALLoadGlobalMethod")(nullptr, "VarType(value As Variant) As Integer"));
    return varType(v);
}

REALstring VariantText(REALobject v)
{
    REALstring s = nullptr;
    if (!HostEntry<REALGetPropValueStringProc>("REALGetPropValueString")(v, "StringValue", &s))
        return NewString("<no StringValue>");
    return s;
}

RBInt64 VariantInt64(REALobject v)
{
    RBInt64 out = 0;
    HostEntry<REALGetPropValueInt64Proc>("REALGetPropValueInt64")(v, "Int64Value", &out);
    return out;
}

// -1 when the host lacks the entry.
REALcurrency VariantCurrency(REALobject v)
{
    auto read = HostEntry<REALGetPropValueCurrencyProc>("REALGetPropValueCurrency");
    REALcurrency out = -1;
    if (read)
        read(v, "CurrencyValue", &out);
    return out;
}

// Variants built by the plugin, one per kind of value the host offers.
REALobject MakeVariant(RBInteger which)
{
    const RBInt64 kLarge = 9000000000LL;
    const RBUInt64 kHuge = 18446744073709551615ULL;
    switch (which) {
    case 0: return HostEntry<Int32ToVariantProc>("Int32ToVariant")(-7);
    case 1: return HostEntry<Int64ToVariantProc>("Int64ToVariant")(kLarge);
    case 2: return HostEntry<UInt64ToVariantProc>("UInt64ToVariant")(kHuge);
    case 3: return HostEntry<DoubleToVariantProc>("DoubleToVariant")(0.25);
    case 4: {
        REALstring s = NewString("12345");
        REALobject v = HostEntry<StringToVariantProc>("StringToVariant")(s);
        Unlock(s);
        return v;
    }
    default: return nullptr;
    }
}

RBBoolean IsUnsignedVariant(REALobject v)
{
    REALclassRef c = HostEntry<pluginObjectTypeProc>("pluginObjectType")("_VariantUInt64");
    return c ? HostEntry<RuntimeObjectIsaProc>("RuntimeObjectIsa")(v, c) : 0;
}

RBBoolean IsProbe(REALobject o)
{
    REALclassRef c = HostEntry<pluginObjectTypeProc>("pluginObjectType")("Probe");
    return HostEntry<RuntimeObjectIsaProc>("RuntimeObjectIsa")(o, c);
}

void RaiseInside(void * message)
{
    Raise("ProbeError", static_cast<const char *>(message), 1);
}

// Runs code that raises under the host's handler and reports what it caught.
REALstring Guarded(REALstring message)
{
    std::string text = Utf8Of(message);
    REALobject caught = HostEntry<PluginCallFunctionWithExceptionHandlerProc>("PluginCallFunctionWithExceptionHandler")(
        &RaiseInside, const_cast<char *>(text.c_str()));
    if (!caught)
        return NewString("nothing caught");
    REALstring got = nullptr;
    HostEntry<REALGetPropValueStringProc>("REALGetPropValueString")(caught, "Message", &got);
    std::string result = "caught: " + Utf8Of(got);
    Unlock(got);
    Unlock(caught);
    return NewString(result);
}

RBInteger DataOffset()
{
    return gProbeClass.forSystemUse;
}

// --- faults made on purpose

void LeakString()
{
    NewString("never released");
}

void LeakObject()
{
    HostEntry<PluginNewInstanceProc>("PluginNewInstance")("Probe");
}

void OverRelease(REALstring borrowed)
{
    Unlock(borrowed);
}

void ReleaseTwice()
{
    REALstring s = NewString("released twice");
    Unlock(s);
    Unlock(s);
}

void DisposeTwice(REALstring s)
{
    REALstringData data;
    HostEntry<PluginGetStringDataProc>("PluginGetStringData")(s, kREALTextEncodingUTF8, &data);
    REALstringData copy = data;
    HostEntry<PluginDisposeStringDataProc>("PluginDisposeStringData")(&data);
    HostEntry<PluginDisposeStringDataProc>("PluginDisposeStringData")(&copy);
}

// Two exceptions before returning: the host keeps the first.
void RaiseTwice()
{
    Raise("ProbeError", "first", 1);
    Raise("OutOfBoundsException", "second", 2);
}

// A plugin's own trace goes to standard error.
void Trace(REALstring text)
{
    std::fprintf(stderr, "probe trace: %s\n", Utf8Of(text).c_str());
}

// Hands the host a pointer that is not one of its strings.
REALstring ReturnForeign()
{
    static char notAString[sizeof(void *) * 4] = "not a host string";
    return reinterpret_cast<REALstring>(notAString);
}

template <class T>
REALproc Proc(T f)
{
    return reinterpret_cast<REALproc>(f);
}

#define ROW(function, declaration) {Proc(function), nullptr, declaration, REALTargetAll, 0, nullptr}

REALmethodDefinition gMethods[] = {
    ROW(&Version, "Version() As Double"),
    ROW(&InRuntime, "InRuntime() As Boolean"),
    ROW(&EncodingOf, "EncodingOf(s As String) As Integer"),
    ROW(&ConvertTo, "ConvertTo(s As String, encoding As Integer) As String"),
    ROW(&Utf16Units, "Utf16Units(s As String) As Integer"),
    ROW(&ByteLength, "ByteLength(s As String) As Integer"),
    ROW(&CString, "CString(s As String) As String"),
    ROW(&Build, "Build(bytes As MemoryBlock, encoding As Integer) As String"),
    ROW(&BytesOf, "BytesOf(s As String) As MemoryBlock"),
    ROW(&VariantKind, "VariantKind(v As Variant) As Integer"),
    ROW(&VariantText, "VariantText(v As Variant) As String"),
    ROW(&VariantInt64, "VariantInt64(v As Variant) As Int64"),
    ROW(&VariantCurrency, "VariantCurrency(v As Variant) As Currency"),
    ROW(&MakeVariant, "MakeVariant(which As Integer) As Variant"),
    ROW(&IsUnsignedVariant, "IsUnsignedVariant(v As Variant) As Boolean"),
    ROW(&IsProbe, "IsProbe(o As Object) As Boolean"),
    ROW(&Guarded, "Guarded(message As String) As String"),
    ROW(&DataOffset, "DataOffset() As Integer"),
    ROW(&LeakString, "LeakString()"),
    ROW(&LeakObject, "LeakObject()"),
    ROW(&OverRelease, "OverRelease(s As String)"),
    ROW(&ReleaseTwice, "ReleaseTwice()"),
    ROW(&DisposeTwice, "DisposeTwice(s As String)"),
    ROW(&ReturnForeign, "ReturnForeign() As String"),
    ROW(&RaiseTwice, "RaiseTwice()"),
    ROW(&Trace, "Trace(text As String)"),
};

} // namespace

REALclassDefinition gProbeHostClass = [] {
    REALclassDefinition d{};
    d.version = kControlVersionModuleNesting;
    d.name = "ProbeHost";
    d.sharedMethods = gMethods;
    d.sharedMethodCount = sizeof gMethods / sizeof gMethods[0];
    d.mFlags = REALTargetAll;
    return d;
}();
