// The host's services, each found by name on first use and kept for the life of the
// process. Every other part of the plugin reaches the host only through these wrappers.
// A service the host lacks gives the neutral result of its type (null, 0, false, or
// nothing) and is asked for again at the next call; a service once found is not looked
// up again.
#pragma once

#include <cstddef>
#include <cstdint>

#include "sdk/host_entries.h"

namespace zqt {

// The resolver handed to REALPluginMain; null before that and for a host without one.
inline REALresolver gResolver = nullptr;

// One cache slot: the name the host knows the service by and, once found, its address.
struct HostEntry {
    const char * name;
    void * address;

    void * Find()
    {
        if (!address && gResolver)
            address = gResolver(name);
        return address;
    }
};

// A framework method found by its declaration text rather than by an entry name.
struct FrameworkEntry {
    const char * declaration;
    void * address;

    void * Find();
};

// Calls the service in `slot` with `args`, or gives the neutral result when it is missing.
template <class Proc, class Slot, class... Args>
auto CallHost(Slot & slot, Args... args) -> decltype(static_cast<Proc>(nullptr)(args...))
{
    using Result = decltype(static_cast<Proc>(nullptr)(args...));
    auto entry = reinterpret_cast<Proc>(slot.Find());
    if (!entry)
        return Result();
    return entry(args...);
}

// PluginRegisterClass is declared without a result; hosts that answer leave it in the
// result register, and a host that does not gives an undefined value there.
typedef RBInteger (*RegisterClassAnsweringProc)(REALclassDefinition * definition);

// --- strings

inline bool REALGetStringData(REALstring s, uint32_t encoding, REALstringData * out)
{
    static HostEntry pGetStringData{"PluginGetStringData", nullptr};
    return CallHost<PluginGetStringDataProc>(pGetStringData, s, encoding, out) != 0;
}

inline void REALDisposeStringData(REALstringData * data)
{
    static HostEntry pDisposeStringData{"PluginDisposeStringData", nullptr};
    CallHost<PluginDisposeStringDataProc>(pDisposeStringData, data);
}

inline REALstring REALAddStrings(REALstring a, REALstring b)
{
    static HostEntry pAddStrings{"RuntimeAddString", nullptr};
    return CallHost<RuntimeAddStringProc>(pAddStrings, a, b);
}

inline REALstring originalREALBuildString(const char * bytes, int count)
{
    static HostEntry pBuildString{"REALBuildString", nullptr};
    return CallHost<REALBuildStringProc>(pBuildString, bytes, count);
}

inline REALstring REALBuildStringWithEncoding(const char * bytes, int count, uint32_t encoding)
{
    static HostEntry pBuildString{"REALBuildStringWithEncoding", nullptr};
    return CallHost<REALBuildStringWithEncodingProc>(pBuildString, bytes, count, encoding);
}

inline void * REALLoadFrameworkMethod(const char * declaration)
{
    static HostEntry pLoadGlobalMethod{"REALLoadGlobalMethod", nullptr};
    return CallHost<REALLoadGlobalMethodProc>(pLoadGlobalMethod, static_cast<const char *>(nullptr), declaration);
}

inline void * FrameworkEntry::Find()
{
    if (!address)
        address = REALLoadFrameworkMethod(declaration);
    return address;
}

// The address of the string's own bytes and, in `length`, their count.
inline const char * REALGetStringContents(REALstring s, size_t * length)
{
    static HostEntry pCString{"StringGetCString", nullptr};
    static FrameworkEntry pLenB{"LenB( s as string ) as integer", nullptr};
    // Each service missing gives its own neutral result: no bytes, or a length of 0.
    *length = 0;
    if (auto lenB = reinterpret_cast<LenBProc>(pLenB.Find())) {
        RBInteger count = lenB(s);
        *length = count > 0 ? static_cast<size_t>(count) : 0;
    }
    auto cString = reinterpret_cast<StringGetCStringProc>(pCString.Find());
    return cString ? static_cast<const char *>(cString(s)) : nullptr;
}

inline void REALLockString(REALstring s)
{
    static HostEntry pLockString{"REALLockString", nullptr};
    CallHost<REALLockStringProc>(pLockString, s);
}

inline void REALUnlockString(REALstring s)
{
    static HostEntry pUnlockString{"REALUnlockString", nullptr};
    CallHost<REALUnlockStringProc>(pUnlockString, s);
}

inline uint32_t REALGetStringEncoding(REALstring s)
{
    static HostEntry pGetStringEncoding{"REALGetStringEncoding", nullptr};
    return CallHost<REALGetStringEncodingProc>(pGetStringEncoding, s);
}

inline REALstring REALConvertString(REALstring s, uint32_t encoding)
{
    static HostEntry pConvertString{"REALConvertString", nullptr};
    return CallHost<REALConvertStringProc>(pConvertString, s, encoding);
}

inline void REALSetStringEncoding(REALstring s, uint32_t encoding)
{
    static HostEntry pSetStringEncoding{"REALSetStringEncoding", nullptr};
    CallHost<REALSetStringEncodingProc>(pSetStringEncoding, s, encoding);
}

// --- objects and classes

inline bool REALObjectIsA(REALobject o, REALclassRef c)
{
    static HostEntry pObjectIsA{"RuntimeObjectIsa", nullptr};
    return CallHost<RuntimeObjectIsaProc>(pObjectIsA, o, c) != 0;
}

inline REALobject REALCallFunctionWithExceptionHandler(void (*callback)(void *), void * userData)
{
    static HostEntry pCallFunctionWithExceptionHandler{"PluginCallFunctionWithExceptionHandler", nullptr};
    return CallHost<PluginCallFunctionWithExceptionHandlerProc>(pCallFunctionWithExceptionHandler, callback,
                                                                userData);
}

inline bool REALinRuntime()
{
    static HostEntry pInRuntime{"REALinRuntime", nullptr};
    return CallHost<REALinRuntimeProc>(pInRuntime) != 0;
}

inline RBInteger REALRegisterClass(REALclassDefinition * definition)
{
    static HostEntry pRegisterClass{"PluginRegisterClass", nullptr};
    return CallHost<RegisterClassAnsweringProc>(pRegisterClass, definition);
}

inline void REALLockObject(REALobject o)
{
    static HostEntry pLockObject{"REALLockObject", nullptr};
    CallHost<REALLockObjectProc>(pLockObject, o);
}

inline void REALUnlockObject(REALobject o)
{
    static HostEntry pUnlockObject{"REALUnlockObject", nullptr};
    CallHost<REALUnlockObjectProc>(pUnlockObject, o);
}

inline void REALRaiseException(REALobject exception)
{
    static HostEntry pRaiseException{"RuntimeRaiseException", nullptr};
    CallHost<RuntimeRaiseExceptionProc>(pRaiseException, exception);
}

inline REALclassRef REALGetClassRef(const char * className)
{
    static HostEntry pGetClassRef{"pluginObjectType", nullptr};
    return CallHost<pluginObjectTypeProc>(pGetClassRef, className);
}

inline void * REALLoadObjectMethod(REALobject o, const char * declaration)
{
    static HostEntry pLoadObjectMethod{"REALLoadObjectMethod", nullptr};
    return CallHost<REALLoadObjectMethodProc>(pLoadObjectMethod, o, declaration);
}

inline REALobject REALnewInstance(const char * className)
{
    static HostEntry pNewInstance{"PluginNewInstance", nullptr};
    return CallHost<PluginNewInstanceProc>(pNewInstance, className);
}

// --- properties by name

inline bool REALGetPropValueInt32(REALobject o, const char * name, int32_t * out)
{
    static HostEntry pGetPropValue{"REALGetPropValueInt", nullptr};
    return CallHost<REALGetPropValueIntProc>(pGetPropValue, o, name, out) != 0;
}

inline bool REALGetPropValueString(REALobject o, const char * name, REALstring * out)
{
    static HostEntry pGetPropValue{"REALGetPropValueString", nullptr};
    return CallHost<REALGetPropValueStringProc>(pGetPropValue, o, name, out) != 0;
}

inline bool REALGetPropValueDouble(REALobject o, const char * name, double * out)
{
    static HostEntry pGetPropValue{"REALGetPropValueDouble", nullptr};
    return CallHost<REALGetPropValueDoubleProc>(pGetPropValue, o, name, out) != 0;
}

inline bool REALGetPropValueInt64(REALobject o, const char * name, RBInt64 * out)
{
    static HostEntry pGetPropValue{"REALGetPropValueInt64", nullptr};
    return CallHost<REALGetPropValueInt64Proc>(pGetPropValue, o, name, out) != 0;
}

inline bool REALGetPropValueUInt64(REALobject o, const char * name, RBUInt64 * out)
{
    static HostEntry pGetPropValue{"REALGetPropValueUInt64", nullptr};
    return CallHost<REALGetPropValueUInt64Proc>(pGetPropValue, o, name, out) != 0;
}

inline bool REALGetPropValueUInt32(REALobject o, const char * name, uint32_t * out)
{
    static HostEntry pGetPropValue{"REALGetPropValueUInt32", nullptr};
    return CallHost<REALGetPropValueUInt32Proc>(pGetPropValue, o, name, out) != 0;
}

inline bool REALGetPropValueSingle(REALobject o, const char * name, float * out)
{
    static HostEntry pGetPropValue{"REALGetPropValueSingle", nullptr};
    return CallHost<REALGetPropValueSingleProc>(pGetPropValue, o, name, out) != 0;
}

inline bool REALGetPropValueCurrency(REALobject o, const char * name, REALcurrency * out)
{
    static HostEntry pGetPropValue{"REALGetPropValueCurrency", nullptr};
    return CallHost<REALGetPropValueCurrencyProc>(pGetPropValue, o, name, out) != 0;
}

inline bool REALGetPropValueInteger(REALobject o, const char * name, RBInteger * out)
{
    static HostEntry pGetPropValue{"REALGetPropValueInteger", nullptr};
    return CallHost<REALGetPropValueIntegerProc>(pGetPropValue, o, name, out) != 0;
}

inline bool REALSetPropValueString(REALobject o, const char * name, REALstring value)
{
    static HostEntry pSetPropValue{"REALSetPropValueString", nullptr};
    return CallHost<REALSetPropValueStringProc>(pSetPropValue, o, name, value) != 0;
}

inline bool REALSetPropValueInteger(REALobject o, const char * name, RBInteger value)
{
    static HostEntry pSetPropValue{"REALSetPropValueInteger", nullptr};
    return CallHost<REALSetPropValueIntegerProc>(pSetPropValue, o, name, value) != 0;
}

// --- variants (each result is a new reference)

inline REALobject REALNewVariantString(REALstring s)
{
    static HostEntry pNewVariantString{"StringToVariant", nullptr};
    return CallHost<StringToVariantProc>(pNewVariantString, s);
}

inline REALobject REALNewVariantInt32(int32_t v)
{
    static HostEntry pNewVariantInteger{"Int32ToVariant", nullptr};
    return CallHost<Int32ToVariantProc>(pNewVariantInteger, v);
}

inline REALobject REALNewVariantInt64(RBInt64 v)
{
    static HostEntry pNewVariantInt64{"Int64ToVariant", nullptr};
    return CallHost<Int64ToVariantProc>(pNewVariantInt64, v);
}

inline REALobject REALNewVariantUInt64(RBUInt64 v)
{
    static HostEntry pNewVariantUInt64{"UInt64ToVariant", nullptr};
    return CallHost<UInt64ToVariantProc>(pNewVariantUInt64, v);
}

// --- memory blocks

inline void * REALMemoryBlockGetPtr(REALobject block)
{
    static HostEntry pMemoryBlockGetPtr{"memoryBlockGetPtr", nullptr};
    return CallHost<memoryBlockGetPtrProc>(pMemoryBlockGetPtr, block);
}

inline RBInteger REALMemoryBlockGetSize(REALobject block)
{
    static HostEntry pMemoryBlockGetSize{"memoryBlockGetSize", nullptr};
    return CallHost<memoryBlockGetSizeProc>(pMemoryBlockGetSize, block);
}

} // namespace zqt
