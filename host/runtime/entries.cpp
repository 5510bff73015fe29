// The host entries a plugin resolves by name. Each has exactly the C shape the plugin
// calls it through, checks every handle it is given, and never lets a C++ exception
// out: a failure is reported and the entry answers its neutral value.
#include "host/runtime/entries.h"

#include <cstdio>
#include <cstring>
#include <string>

#include "host/framework/framework.h"
#include "host/lang/lexer.h"
#include "host/runtime/conversions.h"
#include "host/runtime/dispatcher.h"
#include "host/runtime/encodings.h"
#include "host/runtime/registration.h"
#include "host/runtime/runtime.h"
#include "sdk/encodings.h"
#include "sdk/host_entries.h"

namespace hostsim {

namespace {

// Hosts before this version answered false for a NULL string in PluginGetStringData.
const double kNullStringDataVersion = 2014.02;
// Put after the bytes of string data when the host is set not to terminate them.
const char kUnterminatedGuard = '#';
const int32_t kStringDataMark = 0x5A51;

void NoHost(const char * entry)
{
    std::fprintf(stderr, "hostsim: %s was called with no host running; it does nothing\n", entry);
}

template <class R, class F>
R Guarded(const char * entry, R neutral, F body)
{
    Runtime * rt = Runtime::Current();
    if (!rt) {
        NoHost(entry);
        return neutral;
    }
    try {
        return body(*rt);
    } catch (const std::exception & e) {
        rt->Report(Diagnostic::Level::Error, std::string(entry) + " failed: " + e.what());
        return neutral;
    } catch (...) {
        rt->Report(Diagnostic::Level::Error, std::string(entry) + " failed");
        return neutral;
    }
}

template <class F>
void GuardedVoid(const char * entry, F body)
{
    Guarded<int>(entry, 0, [&](Runtime & rt) {
        body(rt);
        return 0;
    });
}

// --- start-up and registration

void RegisterPluginVersion(int version)
{
    GuardedVoid("RegisterPluginVersion", [&](Runtime & rt) { rt.pluginVersion = version; });
}

double GetRBVersion()
{
    return Guarded("REALGetRBVersion", 0.0, [](Runtime & rt) { return rt.settings.version; });
}

RBBoolean InRuntime()
{
    return Guarded<RBBoolean>("REALinRuntime", 0, [](Runtime & rt) { return rt.settings.inRuntime ? 1 : 0; });
}

// Declared void for plugins; this host also answers 1 for a class it accepted and 0 for
// one it refused, so that a plugin reading the register sees a fixed value.
RBInteger PluginRegisterClass(REALclassDefinition * definition)
{
    return Guarded<RBInteger>("PluginRegisterClass", 0, [&](Runtime & rt) -> RBInteger {
        try {
            RegisterClass(rt, definition, rt.loadingOrigin);
            return 1;
        } catch (const RegistrationError & e) {
            rt.Report(Diagnostic::Level::Error, rt.loadingOrigin + ": " + e.what());
            return 0;
        }
    });
}

// --- strings

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

// --- objects and classes

void LockObject(REALobject o)
{
    GuardedVoid("REALLockObject", [&](Runtime & rt) { rt.LockObject(o, "REALLockObject"); });
}

void UnlockObject(REALobject o)
{
    GuardedVoid("REALUnlockObject", [&](Runtime & rt) {
        rt.accounting.NotePluginRelease(o);
        rt.UnlockObject(o, "REALUnlockObject");
    });
}

REALclassRef ObjectType(const char * name)
{
    return Guarded<REALclassRef>("pluginObjectType", nullptr, [&](Runtime & rt) {
        return name ? ToClassRef(rt.FindClass(name)) : nullptr;
    });
}

RBBoolean ObjectIsa(REALobject o, REALclassRef c)
{
    return Guarded<RBBoolean>("RuntimeObjectIsa", 0, [&](Runtime & rt) -> RBBoolean {
        if (!o || !c || !rt.ValidObject(o, "RuntimeObjectIsa"))
            return 0;
        if (!rt.ValidClassRef(c)) {
            rt.accounting.Fault("RuntimeObjectIsa was given a class reference the host did not hand out, in " +
                                rt.accounting.CurrentContext());
            return 0;
        }
        return o->cls->IsA(FromClassRef(c)) ? 1 : 0;
    });
}

REALobject NewInstance(Runtime & rt, const ClassInfo & cls, bool runConstructor)
{
    REALobject o = rt.NewObject(cls);
    if (!runConstructor)
        return o;
    for (const MethodInfo * m : cls.FindMethods(kConstructorName, false)) {
        if (m->signature.parameters.empty()) {
            CallMethod(rt, *m, o, {});
            break;
        }
    }
    return o;
}

REALobject PluginNewInstance(const char * name)
{
    return Guarded<REALobject>("PluginNewInstance", nullptr, [&](Runtime & rt) -> REALobject {
        const ClassInfo * cls = name ? rt.FindClass(name) : nullptr;
        return cls ? NewInstance(rt, *cls, rt.settings.newInstanceRunsConstructor) : nullptr;
    });
}

REALobject CreateInstance(REALclassRef c)
{
    return Guarded<REALobject>("CreateInstance", nullptr, [&](Runtime & rt) -> REALobject {
        return c && rt.ValidClassRef(c) ? NewInstance(rt, *FromClassRef(c), true) : nullptr;
    });
}

REALobject NewInstanceOfClass(REALclassDefinition * definition)
{
    return Guarded<REALobject>("PluginNewInstanceOfClass", nullptr, [&](Runtime & rt) -> REALobject {
        for (const ClassInfo * cls : rt.Classes())
            if (definition && cls->record == definition)
                return NewInstance(rt, *cls, false);
        return nullptr;
    });
}

void * GetPluginData(REALobject o, REALclassRef c)
{
    return Guarded<void *>("PluginGetPluginData", nullptr, [&](Runtime & rt) -> void * {
        if (!o || !c || !rt.ValidObject(o, "PluginGetPluginData") || !rt.ValidClassRef(c))
            return nullptr;
        const ClassInfo * cls = FromClassRef(c);
        if (cls->origin == kFrameworkOrigin || !o->cls->IsA(cls))
            return nullptr;
        return Runtime::ClassData(o, *cls);
    });
}

// Finds a row by its declaration text among `candidates`.
void * MatchDeclaration(Runtime & rt, const char * entry, const char * prototype,
                        const std::vector<const MethodInfo *> & candidates)
{
    if (!prototype)
        return nullptr;
    Signature wanted;
    try {
        wanted = ParseDeclaration(prototype);
    } catch (const SourceError & e) {
        rt.Report(Diagnostic::Level::Warning, std::string(entry) + " was asked for \"" + prototype +
                  "\", which does not parse: " + e.what());
        return nullptr;
    }
    for (const MethodInfo * m : candidates)
        if (m->signature.SameShape(wanted))
            return reinterpret_cast<void *>(m->function);
    return nullptr;
}

std::vector<const MethodInfo *> AllNamed(const ClassInfo & cls, const char * prototype, bool shared)
{
    try {
        return cls.FindMethods(ParseDeclaration(prototype ? prototype : "").name, shared);
    } catch (const SourceError &) {
        return {};
    }
}

void * LoadGlobalMethod(const char *, const char * prototype)
{
    return Guarded<void *>("REALLoadGlobalMethod", nullptr, [&](Runtime & rt) {
        const ClassInfo & module = rt.Framework(kFrameworkModuleName);
        return MatchDeclaration(rt, "REALLoadGlobalMethod", prototype, AllNamed(module, prototype, true));
    });
}

void * LoadObjectMethod(REALobject o, const char * prototype)
{
    return Guarded<void *>("REALLoadObjectMethod", nullptr, [&](Runtime & rt) -> void * {
        if (!o || !rt.ValidObject(o, "REALLoadObjectMethod"))
            return nullptr;
        return MatchDeclaration(rt, "REALLoadObjectMethod", prototype, AllNamed(*o->cls, prototype, false));
    });
}

void * LoadSharedMethod(REALclassRef c, const char * prototype)
{
    return Guarded<void *>("PluginLoadSharedMethod", nullptr, [&](Runtime & rt) -> void * {
        if (!c || !rt.ValidClassRef(c))
            return nullptr;
        return MatchDeclaration(rt, "PluginLoadSharedMethod", prototype, AllNamed(*FromClassRef(c), prototype, true));
    });
}

// --- exceptions

void RaiseException(REALobject exception)
{
    GuardedVoid("RuntimeRaiseException", [&](Runtime & rt) { rt.Raise(exception); });
}

REALobject CallWithExceptionHandler(void (*callback)(void *), void * userData)
{
    return Guarded<REALobject>("PluginCallFunctionWithExceptionHandler", nullptr, [&](Runtime & rt) -> REALobject {
        if (!callback)
            return nullptr;
        REALobject outer = rt.TakePending();
        {
            Accounting::Scope scope(rt.accounting, "PluginCallFunctionWithExceptionHandler callback");
            callback(userData);
        }
        REALobject raised = rt.TakePending();
        if (outer)
            rt.RestorePending(outer);
        return raised;
    });
}

// --- properties by name. Every accessor answers 0 or 1 in a full register.

bool ReadProperty(Runtime & rt, REALobject o, const char * name, TypeKind wanted, void * out, const char * entry)
{
    if (!o || !name || !out || !rt.ValidObject(o, entry))
        return false;
    const PropertyInfo * p = o->cls->FindProperty(name, false);
    if (!p || !p->getter)
        return false;
    REALobject pendingBefore = rt.Pending();
    Value v = GetProperty(rt, *p, o);
    if (rt.Pending() != pendingBefore)
        return false;
    TypeRef target = TypeRef::Of(wanted);
    bool sameWidth = CTypeOf(p->type) == CTypeOf(target) && IsStringKind(p->type.kind) == IsStringKind(wanted) &&
                     IsReferenceKind(p->type.kind) == IsReferenceKind(wanted);
    if (!sameWidth) {
        if (ConversionCost(rt, p->type, target) == kCannotConvert)
            return false;
        v = Convert(rt, v, target);
    }
    NativeSlot slot = ToSlot(v);
    if (IsReferenceKind(wanted))
        v.ReleaseReference(); // the reference goes to the caller
    std::memcpy(out, &slot, SizeOfCType(CTypeOf(target)));
    return true;
}

bool WriteProperty(Runtime & rt, REALobject o, const char * name, const Value & value, const char * entry)
{
    if (!o || !name || !rt.ValidObject(o, entry))
        return false;
    const PropertyInfo * p = o->cls->FindProperty(name, false);
    if (!p || !p->setter || ConversionCost(rt, value.type(), p->type) == kCannotConvert)
        return false;
    SetProperty(rt, *p, o, Convert(rt, value, p->type));
    return true;
}

#define PROPERTY_READER(Function, Entry, CType, Kind)                                              \
    RBInteger Function(REALobject o, const char * name, CType * out)                              \
    {                                                                                              \
        return Guarded<RBInteger>(Entry, 0, [&](Runtime & rt) -> RBInteger {                       \
            return ReadProperty(rt, o, name, TypeKind::Kind, out, Entry) ? 1 : 0;                  \
        });                                                                                        \
    }

PROPERTY_READER(GetPropInt32, "REALGetPropValueInt", int32_t, Int32)
PROPERTY_READER(GetPropString, "REALGetPropValueString", REALstring, String)
PROPERTY_READER(GetPropDouble, "REALGetPropValueDouble", double, Double)
PROPERTY_READER(GetPropInt64, "REALGetPropValueInt64", RBInt64, Int64)
PROPERTY_READER(GetPropUInt64, "REALGetPropValueUInt64", RBUInt64, UInt64)
PROPERTY_READER(GetPropUInt32, "REALGetPropValueUInt32", uint32_t, UInt32)
PROPERTY_READER(GetPropSingle, "REALGetPropValueSingle", float, Single)
PROPERTY_READER(GetPropCurrency, "REALGetPropValueCurrency", REALcurrency, Currency)
PROPERTY_READER(GetPropInteger, "REALGetPropValueInteger", RBInteger, Int64)
PROPERTY_READER(GetPropBoolean, "REALGetPropValueBoolean", RBBoolean, Boolean)
PROPERTY_READER(GetPropObject, "REALGetPropValueObject", REALobject, Object)
#undef PROPERTY_READER

#define PROPERTY_WRITER(Function, Entry, CType, MakeValue)                                         \
    RBInteger Function(REALobject o, const char * name, CType v)                                  \
    {                                                                                              \
        const char * entry = Entry;                                                                \
        return Guarded<RBInteger>(entry, 0, [&](Runtime & rt) -> RBInteger {                       \
            if (!rt.ValidObject(o, entry))                                                         \
                return 0;                                                                          \
            return WriteProperty(rt, o, name, MakeValue, entry) ? 1 : 0;                           \
        });                                                                                        \
    }

PROPERTY_WRITER(SetPropString, "REALSetPropValueString", REALstring,
                (rt.ValidString(v, entry) ? Value::BorrowString(TypeKind::String, v) : Value::AdoptString(TypeKind::String, nullptr)))
PROPERTY_WRITER(SetPropInteger, "REALSetPropValueInteger", RBInteger, Value::Signed(TypeKind::Int64, v))
PROPERTY_WRITER(SetPropInt32, "REALSetPropValueInt", int32_t, Value::Signed(TypeKind::Int32, v))
PROPERTY_WRITER(SetPropDouble, "REALSetPropValueDouble", double, Value::Real(TypeKind::Double, v))
PROPERTY_WRITER(SetPropBoolean, "REALSetPropValueBoolean", RBBoolean, Value::Boolean(v != 0))
PROPERTY_WRITER(SetPropObject, "REALSetPropValueObject", REALobject,
                (rt.ValidObject(v, entry) ? Value::BorrowObject(TypeRef::OfClass(v ? v->cls->name : kObjectClassName), v) : Value()))
#undef PROPERTY_WRITER

// --- variants

#define TO_VARIANT(Function, Entry, CType, MakeValue)                                              \
    REALobject Function(CType v)                                                                  \
    {                                                                                              \
        const char * entry = Entry;                                                                \
        return Guarded<REALobject>(entry, nullptr, [&](Runtime & rt) { return BoxInVariant(rt, MakeValue); }); \
    }

TO_VARIANT(StringToVariant, "StringToVariant", REALstring,
           (rt.ValidString(v, entry) ? Value::BorrowString(TypeKind::String, v) : Value::AdoptString(TypeKind::String, nullptr)))
TO_VARIANT(Int32ToVariant, "Int32ToVariant", int32_t, Value::Signed(TypeKind::Int32, v))
TO_VARIANT(Int64ToVariant, "Int64ToVariant", RBInt64, Value::Signed(TypeKind::Int64, v))
TO_VARIANT(IntegerToVariant, "IntegerToVariant", RBInteger, Value::Signed(TypeKind::Int64, v))
TO_VARIANT(UInt64ToVariant, "UInt64ToVariant", RBUInt64, Value::Unsigned(TypeKind::UInt64, v))
TO_VARIANT(UInt32ToVariant, "UInt32ToVariant", uint32_t, Value::Unsigned(TypeKind::UInt32, v))
TO_VARIANT(DoubleToVariant, "DoubleToVariant", double, Value::Real(TypeKind::Double, v))
TO_VARIANT(SingleToVariant, "SingleToVariant", float, Value::Real(TypeKind::Single, v))
TO_VARIANT(CurrencyToVariant, "CurrencyToVariant", REALcurrency, Value::Currency(v))
TO_VARIANT(BooleanToVariant, "BooleanToVariant", RBBoolean, Value::Boolean(v != 0))
TO_VARIANT(ColorToVariant, "ColorToVariant", RBColor, Value::Unsigned(TypeKind::Color, v))
#undef TO_VARIANT

// --- memory blocks

void * MemoryBlockGetPtr(REALobject block)
{
    return Guarded<void *>("memoryBlockGetPtr", nullptr, [&](Runtime & rt) -> void * {
        return rt.ValidObject(block, "memoryBlockGetPtr") && IsMemoryBlock(rt, block) ? MemoryBlockBytes(block) : nullptr;
    });
}

RBInteger MemoryBlockGetSize(REALobject block)
{
    return Guarded<RBInteger>("memoryBlockGetSize", 0, [&](Runtime & rt) -> RBInteger {
        return rt.ValidObject(block, "memoryBlockGetSize") && IsMemoryBlock(rt, block) ? MemoryBlockSize(block) : 0;
    });
}

REALobject NewMemoryBlock(int bytes)
{
    return Guarded<REALobject>("newMemoryBlock", nullptr, [&](Runtime & rt) -> REALobject {
        const ClassInfo & cls = rt.Framework(kMemoryBlockClassName);
        REALobject block = rt.NewObject(cls);
        Value size = Value::Signed(TypeKind::Int64, bytes);
        CallMethod(rt, *cls.FindMethods(kConstructorName, false).front(), block, {&size});
        return block;
    });
}

struct EntryRow {
    const char * name;
    void * address;
};

template <class F>
void * Address(F f)
{
    return reinterpret_cast<void *>(f);
}

const EntryRow kEntries[] = {
    {"RegisterPluginVersion", Address<RegisterPluginVersionProc>(&RegisterPluginVersion)},
    {"REALGetRBVersion", Address<REALGetRBVersionProc>(&GetRBVersion)},
    {"REALinRuntime", Address<REALinRuntimeProc>(&InRuntime)},
    {"PluginRegisterClass", Address(&PluginRegisterClass)},
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
    {"REALLockObject", Address<REALLockObjectProc>(&LockObject)},
    {"REALUnlockObject", Address<REALUnlockObjectProc>(&UnlockObject)},
    {"pluginObjectType", Address<pluginObjectTypeProc>(&ObjectType)},
    {"RuntimeObjectIsa", Address<RuntimeObjectIsaProc>(&ObjectIsa)},
    {"PluginNewInstance", Address<PluginNewInstanceProc>(&PluginNewInstance)},
    {"CreateInstance", Address<CreateInstanceProc>(&CreateInstance)},
    {"PluginNewInstanceOfClass", Address<PluginNewInstanceOfClassProc>(&NewInstanceOfClass)},
    {"PluginGetPluginData", Address<PluginGetPluginDataProc>(&GetPluginData)},
    {"REALLoadGlobalMethod", Address<REALLoadGlobalMethodProc>(&LoadGlobalMethod)},
    {"REALLoadObjectMethod", Address<REALLoadObjectMethodProc>(&LoadObjectMethod)},
    {"PluginLoadSharedMethod", Address<PluginLoadSharedMethodProc>(&LoadSharedMethod)},
    {"RuntimeRaiseException", Address<RuntimeRaiseExceptionProc>(&RaiseException)},
    {"PluginCallFunctionWithExceptionHandler", Address<PluginCallFunctionWithExceptionHandlerProc>(&CallWithExceptionHandler)},
    // The accessors answer in a full register; the plugin may read one byte or all of it.
    {"REALGetPropValueInt", Address(&GetPropInt32)},
    {"REALGetPropValueString", Address(&GetPropString)},
    {"REALGetPropValueDouble", Address(&GetPropDouble)},
    {"REALGetPropValueInt64", Address(&GetPropInt64)},
    {"REALGetPropValueUInt64", Address(&GetPropUInt64)},
    {"REALGetPropValueUInt32", Address(&GetPropUInt32)},
    {"REALGetPropValueSingle", Address(&GetPropSingle)},
    {"REALGetPropValueCurrency", Address(&GetPropCurrency)},
    {"REALGetPropValueInteger", Address(&GetPropInteger)},
    {"REALGetPropValueBoolean", Address(&GetPropBoolean)},
    {"REALGetPropValueObject", Address(&GetPropObject)},
    {"REALSetPropValueString", Address(&SetPropString)},
    {"REALSetPropValueInteger", Address(&SetPropInteger)},
    {"REALSetPropValueInt", Address(&SetPropInt32)},
    {"REALSetPropValueDouble", Address(&SetPropDouble)},
    {"REALSetPropValueBoolean", Address(&SetPropBoolean)},
    {"REALSetPropValueObject", Address(&SetPropObject)},
    {"StringToVariant", Address<StringToVariantProc>(&StringToVariant)},
    {"Int32ToVariant", Address<Int32ToVariantProc>(&Int32ToVariant)},
    {"Int64ToVariant", Address<Int64ToVariantProc>(&Int64ToVariant)},
    {"IntegerToVariant", Address<IntegerToVariantProc>(&IntegerToVariant)},
    {"UInt64ToVariant", Address<UInt64ToVariantProc>(&UInt64ToVariant)},
    {"UInt32ToVariant", Address<UInt32ToVariantProc>(&UInt32ToVariant)},
    {"DoubleToVariant", Address<DoubleToVariantProc>(&DoubleToVariant)},
    {"SingleToVariant", Address<SingleToVariantProc>(&SingleToVariant)},
    {"CurrencyToVariant", Address<CurrencyToVariantProc>(&CurrencyToVariant)},
    {"BooleanToVariant", Address<BooleanToVariantProc>(&BooleanToVariant)},
    {"ColorToVariant", Address<ColorToVariantProc>(&ColorToVariant)},
    {"memoryBlockGetPtr", Address<memoryBlockGetPtrProc>(&MemoryBlockGetPtr)},
    {"memoryBlockGetSize", Address<memoryBlockGetSizeProc>(&MemoryBlockGetSize)},
    {"newMemoryBlock", Address<newMemoryBlockProc>(&NewMemoryBlock)},
};

} // namespace

void * FindEntry(const char * name)
{
    for (const EntryRow & e : kEntries)
        if (std::strcmp(e.name, name) == 0)
            return e.address;
    return nullptr;
}

void * ResolveEntry(const char * name)
{
    Runtime * rt = Runtime::Current();
    if (!rt) {
        NoHost("the resolver");
        return nullptr;
    }
    return rt->Resolve(name);
}

} // namespace hostsim
