// String entries: building, reading in an encoding, counting references, converting.
#include <cstring>
#include <string>

#include "host/lang/lexer.h"
#include "host/runtime/encodings.h"
#include "host/runtime/entry_support.h"
#include "sdk/encodings.h"
#include "sdk/host_entries.h"

namespace hostsim {

namespace {

// Hosts before this version answered false for a NULL string in PluginGetStringData.
const double kNullStringDataVersion = 2014.02;
// Put after the bytes of string data when the host is set not to terminate them.
const char kUnterminatedGuard = '#';
const int32_t kStringDataMark = 0x5A51;

REALstring BuildString(const char * bytes, int count)
{
    return Guarded<REALstring>("REALBuildString", nullptr, [&](Runtime & rt) -> REALstring {
        if (count < 0 || (!bytes && count > 0))
            return nullptr;
        return rt.NewString(std::string(bytes ? bytes : "", static_cast<size_t>(count)), kREALTextEncodingUnknown);
    });
}

REALstring BuildStringWithEncoding(const char * bytes, int count, uint32_t encoding)
{
    return Guarded<REALstring>("REALBuildStringWithEncoding", nullptr, [&](Runtime & rt) -> REALstring {
        if (count < 0 || (!bytes && count > 0))
            return nullptr;
        return rt.NewString(std::string(bytes ? bytes : "", static_cast<size_t>(count)), encoding);
    });
}

void * StringGetCString(REALstring s)
{
    return Guarded<void *>("StringGetCString", nullptr, [&](Runtime & rt) -> void * {
        static char empty[1] = {0};
        if (!s || !rt.ValidString(s, "StringGetCString"))
            return empty;
        return s->bytes.data();
    });
}

void DestroyStringData(void * p)
{
    delete static_cast<std::string *>(p);
}

RBBoolean GetStringData(REALstring s, uint32_t encoding, REALstringData * out)
{
    return Guarded<RBBoolean>("PluginGetStringData", 0, [&](Runtime & rt) -> RBBoolean {
        if (!out || !rt.ValidString(s, "PluginGetStringData"))
            return 0;
        std::memset(out, 0, sizeof *out);
        if (!s && rt.settings.version < kNullStringDataVersion)
            return 0;
        std::string converted;
        if (!ConvertText(Runtime::Bytes(s), Runtime::EncodingOf(s), encoding, false, converted))
            return 0;
        size_t length = converted.size();
        auto * held = new std::string(std::move(converted));
        if (!rt.settings.terminateStringData)
            held->push_back(kUnterminatedGuard);
        rt.accounting.Born(held, ResourceKind::StringData, &DestroyStringData);
        out->data = held->data();
        out->length = length;
        out->encoding = encoding;
        out->private1 = held;
        out->private2 = kStringDataMark;
        return 1;
    });
}

void DisposeStringData(REALstringData * data)
{
    GuardedVoid("PluginDisposeStringData", [&](Runtime & rt) {
        if (!data)
            return;
        if (!data->private1 && data->private2 == 0)
            return; // a record that was never filled
        if (rt.accounting.CheckAlive(data->private1, ResourceKind::StringData, "PluginDisposeStringData"))
            rt.accounting.Died(const_cast<void *>(data->private1));
        std::memset(data, 0, sizeof *data);
    });
}

void LockString(REALstring s)
{
    GuardedVoid("REALLockString", [&](Runtime & rt) { rt.LockString(s, "REALLockString"); });
}

void UnlockString(REALstring s)
{
    GuardedVoid("REALUnlockString", [&](Runtime & rt) {
        rt.accounting.NotePluginRelease(s);
        rt.UnlockString(s, "REALUnlockString");
    });
}

std::string AsUtf8(REALstring s)
{
    std::string out;
    if (ConvertText(Runtime::Bytes(s), Runtime::EncodingOf(s), kREALTextEncodingUTF8, true, out))
        return out;
    return Runtime::Bytes(s);
}

REALstring AddString(REALstring a, REALstring b)
{
    return Guarded<REALstring>("RuntimeAddString", nullptr, [&](Runtime & rt) -> REALstring {
        if (!rt.ValidString(a, "RuntimeAddString") || !rt.ValidString(b, "RuntimeAddString"))
            return nullptr;
        if (Runtime::EncodingOf(a) == Runtime::EncodingOf(b) || !b || !a)
            return rt.NewString(Runtime::Bytes(a) + Runtime::Bytes(b), a ? Runtime::EncodingOf(a) : Runtime::EncodingOf(b));
        return rt.NewString(AsUtf8(a) + AsUtf8(b), kREALTextEncodingUTF8);
    });
}

uint32_t GetStringEncoding(REALstring s)
{
    return Guarded<uint32_t>("REALGetStringEncoding", kREALTextEncodingUnknown, [&](Runtime & rt) {
        return rt.ValidString(s, "REALGetStringEncoding") ? Runtime::EncodingOf(s) : kREALTextEncodingUnknown;
    });
}

REALstring ConvertString(REALstring s, uint32_t encoding)
{
    return Guarded<REALstring>("REALConvertString", nullptr, [&](Runtime & rt) -> REALstring {
        std::string converted;
        if (!rt.ValidString(s, "REALConvertString") ||
            !ConvertText(Runtime::Bytes(s), Runtime::EncodingOf(s), encoding, true, converted))
            return nullptr;
        return rt.NewString(std::move(converted), encoding);
    });
}

void SetStringEncoding(REALstring s, uint32_t encoding)
{
    GuardedVoid("REALSetStringEncoding", [&](Runtime & rt) {
        if (s && rt.ValidString(s, "REALSetStringEncoding"))
            s->encoding = encoding;
    });
}

RBInteger StringCompare(REALstring a, REALstring b)
{
    return Guarded<RBInteger>("RuntimeStringCompare", 0, [&](Runtime & rt) -> RBInteger {
        if (!rt.ValidString(a, "RuntimeStringCompare") || !rt.ValidString(b, "RuntimeStringCompare"))
            return 0;
        int c = LowerCase(AsUtf8(a)).compare(LowerCase(AsUtf8(b)));
        return c < 0 ? -1 : c > 0 ? 1 : 0;
    });
}

uint32_t GetSystemTextEncoding()
{
    return kREALTextEncodingUTF8;
}

const EntryRow kRows[] = {
    {"REALBuildString", Address<REALBuildStringProc>(&BuildString)},
    {"REALBuildStringWithEncoding", Address<REALBuildStringWithEncodingProc>(&BuildStringWithEncoding)},
    {"StringGetCString", Address<StringGetCStringProc>(&StringGetCString)},
    {"PluginGetStringData", Address<PluginGetStringDataProc>(&GetStringData)},
    {"PluginDisposeStringData", Address<PluginDisposeStringDataProc>(&DisposeStringData)},
    {"REALLockString", Address<REALLockStringProc>(&LockString)},
    {"REALUnlockString", Address<REALUnlockStringProc>(&UnlockString)},
    {"RuntimeAddString", Address<RuntimeAddStringProc>(&AddString)},
    {"REALGetStringEncoding", Address<REALGetStringEncodingProc>(&GetStringEncoding)},
    {"REALConvertString", Address<REALConvertStringProc>(&ConvertString)},
    {"REALSetStringEncoding", Address<REALSetStringEncodingProc>(&SetStringEncoding)},
    {"RuntimeStringCompare", Address<RuntimeStringCompareProc>(&StringCompare)},
    {"REALGetSystemTextEncoding", Address<REALGetSystemTextEncodingProc>(&GetSystemTextEncoding)},
};

} // namespace

ENTRY_GROUP(kStringEntries, kRows);

} // namespace hostsim
