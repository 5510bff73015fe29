#include "host_calls.h"

REALresolver gResolver = nullptr;

REALstring NewString(const std::string & utf8)
{
    return HostEntry<REALBuildStringWithEncodingProc>("REALBuildStringWithEncoding")(
        utf8.data(), static_cast<int>(utf8.size()), kREALTextEncodingUTF8);
}

std::string Utf8Of(REALstring s)
{
    REALstringData data;
    if (!HostEntry<PluginGetStringDataProc>("PluginGetStringData")(s, kREALTextEncodingUTF8, &data))
        return "<no UTF-8>";
    std::string text(static_cast<const char *>(data.data), data.length);
    HostEntry<PluginDisposeStringDataProc>("PluginDisposeStringData")(&data);
    return text;
}

void Unlock(REALstring s)
{
    HostEntry<REALUnlockStringProc>("REALUnlockString")(s);
}

void Unlock(REALobject o)
{
    HostEntry<REALUnlockObjectProc>("REALUnlockObject")(o);
}

REALstring Locked(REALstring s)
{
    HostEntry<REALLockStringProc>("REALLockString")(s);
    return s;
}

REALobject Locked(REALobject o)
{
    HostEntry<REALLockObjectProc>("REALLockObject")(o);
    return o;
}

void Raise(const char * className, const std::string & message, RBInteger number)
{
    REALobject e = HostEntry<PluginNewInstanceProc>("PluginNewInstance")(className);
    REALstring text = NewString(message);
    HostEntry<REALSetPropValueStringProc>("REALSetPropValueString")(e, "Message", text);
    HostEntry<REALSetPropValueIntegerProc>("REALSetPropValueInteger")(e, "ErrorNumber", number);
    HostEntry<RuntimeRaiseExceptionProc>("RuntimeRaiseException")(e);
    Unlock(text);
    Unlock(e);
}
