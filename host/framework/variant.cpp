// Variants. A non-object value is boxed in an instance of Variant (or of _VariantUInt32
// and _VariantUInt64 for unsigned integers, which report the signed codes); an object
// is its own variant. The value accessors (StringValue, Int32Value, ...) convert as
// variant reads do: numbers from text, text from numbers.
#include <cstring>

#include "host/framework/framework.h"
#include "host/runtime/conversions.h"
#include "host/runtime/dispatcher.h"
#include "host/runtime/registration.h"
#include "sdk/flags.h"
#include "sdk/variant_types.h"

namespace hostsim {

const char * const kVariantClassName = "Variant";

namespace {

const char * const kVariantUInt32ClassName = "_VariantUInt32";
const char * const kVariantUInt64ClassName = "_VariantUInt64";
const char * const kDateClassName = "Date";
const char * const kDateTimeClassName = "DateTime";

struct VariantData {
    int32_t code;
    TypeKind kind;
    uint64_t bits;     // integers and Currency as stored by Value, reals as a double
    REALstring text;   // string kinds
};

VariantData & DataOf(REALobject v)
{
    return *static_cast<VariantData *>(Runtime::ClassData(v, Runtime::Current()->Framework(kVariantClassName)));
}

bool IsBox(REALobject o)
{
    return o && o->cls->IsA(&Runtime::Current()->Framework(kVariantClassName));
}

#define VARIANT_GETTER(Name, Kind, CType, member) \
    CType Get##Name(REALobject self, RBInteger) { return static_cast<CType>(ReadVariantAs(self, TypeKind::Kind).member); }

VARIANT_GETTER(String, String, REALstring, p)
VARIANT_GETTER(Integer, Int64, RBInteger, i64)
VARIANT_GETTER(UInt64, UInt64, RBUInt64, u64)
VARIANT_GETTER(Int32, Int32, int32_t, i32)
VARIANT_GETTER(UInt32, UInt32, uint32_t, u32)
VARIANT_GETTER(Int16, Int16, int16_t, i16)
VARIANT_GETTER(UInt16, UInt16, uint16_t, u16)
VARIANT_GETTER(Int8, Int8, int8_t, i8)
VARIANT_GETTER(UInt8, UInt8, uint8_t, u8)
VARIANT_GETTER(Currency, Currency, REALcurrency, i64)
VARIANT_GETTER(Double, Double, double, d)
VARIANT_GETTER(Single, Single, float, f)
VARIANT_GETTER(Boolean, Boolean, RBBoolean, i8)
VARIANT_GETTER(Color, Color, RBColor, u32)
VARIANT_GETTER(Ptr, Ptr, void *, p)
VARIANT_GETTER(Object, Object, REALobject, p)
#undef VARIANT_GETTER

RBInteger TypeOf(REALobject self)
{
    return VariantTypeCode(self);
}

void Finalize(REALobject self)
{
    VariantData & d = DataOf(self);
    Runtime::Current()->UnlockString(d.text, "Variant finalizer");
    d.text = nullptr;
}

#define GETTER_ROW(Name, Type, Function) \
    {nullptr, Name, Type, REALTargetAll, reinterpret_cast<REALproc>(&Function), nullptr, 0, nullptr, 0, nullptr, 0, nullptr}

REALproperty gProperties[] = {
    GETTER_ROW("StringValue", "String", GetString),
    GETTER_ROW("CStringValue", "String", GetString),
    GETTER_ROW("WStringValue", "String", GetString),
    GETTER_ROW("PStringValue", "String", GetString),
    GETTER_ROW("CFStringRefValue", "String", GetString),
    GETTER_ROW("IntegerValue", "Integer", GetInteger),
    GETTER_ROW("Int64Value", "Int64", GetInteger),
    GETTER_ROW("UInt64Value", "UInt64", GetUInt64),
    GETTER_ROW("Int32Value", "Int32", GetInt32),
    GETTER_ROW("UInt32Value", "UInt32", GetUInt32),
    GETTER_ROW("OSTypeValue", "UInt32", GetUInt32),
    GETTER_ROW("Int16Value", "Int16", GetInt16),
    GETTER_ROW("UInt16Value", "UInt16", GetUInt16),
    GETTER_ROW("Int8Value", "Int8", GetInt8),
    GETTER_ROW("UInt8Value", "UInt8", GetUInt8),
    GETTER_ROW("CurrencyValue", "Currency", GetCurrency),
    GETTER_ROW("DoubleValue", "Double", GetDouble),
    GETTER_ROW("SingleValue", "Single", GetSingle),
    GETTER_ROW("BooleanValue", "Boolean", GetBoolean),
    GETTER_ROW("ColorValue", "Color", GetColor),
    GETTER_ROW("PtrValue", "Ptr", GetPtr),
    GETTER_ROW("ObjectValue", "Object", GetObject),
};
#undef GETTER_ROW

REALmethodDefinition gMethods[] = {
    {reinterpret_cast<REALproc>(&TypeOf), nullptr, "Type() As Integer", REALTargetAll, 0, nullptr},
};

REALclassDefinition MakeRecord(const char * name, const char * superName)
{
    REALclassDefinition d{};
    d.version = kControlVersionNewest;
    d.name = name;
    d.superName = superName;
    d.mFlags = REALTargetAll;
    return d;
}

REALclassDefinition gVariant = [] {
    REALclassDefinition d = MakeRecord(kVariantClassName, nullptr);
    d.dataSize = sizeof(VariantData);
    d.destructor = reinterpret_cast<REALproc>(&Finalize);
    d.properties = gProperties;
    d.propertyCount = sizeof gProperties / sizeof gProperties[0];
    d.methods = gMethods;
    d.methodCount = sizeof gMethods / sizeof gMethods[0];
    return d;
}();
REALclassDefinition gVariantUInt32 = MakeRecord(kVariantUInt32ClassName, kVariantClassName);
REALclassDefinition gVariantUInt64 = MakeRecord(kVariantUInt64ClassName, kVariantClassName);

} // namespace

NativeSlot ReadVariantAs(REALobject variant, TypeKind kind)
{
    Runtime & rt = *Runtime::Current();
    Value v = ConvertLoosely(rt, VariantContent(variant), kind);
    NativeSlot s = ToSlot(v);
    if (IsReferenceKind(kind))
        v.ReleaseReference(); // the caller receives this reference
    return s;
}

void RegisterVariantClasses(Runtime & rt)
{
    RegisterClass(rt, &gVariant, kFrameworkOrigin);
    RegisterClass(rt, &gVariantUInt32, kFrameworkOrigin);
    RegisterClass(rt, &gVariantUInt64, kFrameworkOrigin);
}

REALobject BoxInVariant(Runtime & rt, const Value & v)
{
    if (v.kind() == TypeKind::Object || v.kind() == TypeKind::Variant) {
        rt.LockObject(v.object(), "a variant");
        return v.object();
    }
    const char * className = kVariantClassName;
    if (v.kind() == TypeKind::UInt32)
        className = kVariantUInt32ClassName;
    else if (v.kind() == TypeKind::UInt64)
        className = kVariantUInt64ClassName;
    REALobject box = rt.NewObject(rt.Framework(className));
    VariantData & d = DataOf(box);
    d.kind = v.kind();
    d.code = InfoOf(v.kind()).variantCode;
    if (IsStringKind(v.kind())) {
        rt.LockString(v.string(), "a variant");
        d.text = v.string();
    } else if (IsFloatKind(v.kind())) {
        double real = v.AsReal();
        std::memcpy(&d.bits, &real, sizeof real);
    } else {
        d.bits = v.AsUnsigned();
    }
    return box;
}

Value VariantContent(REALobject variant)
{
    if (!variant)
        return Value();
    if (!IsBox(variant))
        return Value::BorrowObject(TypeRef::OfClass(variant->cls->name), variant);
    const VariantData & d = DataOf(variant);
    if (IsStringKind(d.kind))
        return Value::BorrowString(d.kind, d.text);
    if (IsFloatKind(d.kind)) {
        double real;
        std::memcpy(&real, &d.bits, sizeof real);
        return Value::Real(d.kind, real);
    }
    if (d.kind == TypeKind::Boolean)
        return Value::Boolean(d.bits != 0);
    if (d.kind == TypeKind::Currency)
        return Value::Currency(static_cast<int64_t>(d.bits));
    return Value::Unsigned(d.kind, d.bits);
}

int32_t VariantTypeCode(REALobject variant)
{
    if (!variant)
        return kVariantTypeNil;
    if (IsBox(variant))
        return DataOf(variant).code;
    Runtime & rt = *Runtime::Current();
    const ClassInfo * date = rt.FindClass(kDateClassName);
    const ClassInfo * dateTime = rt.FindClass(kDateTimeClassName);
    if (date && variant->cls->IsA(date))
        return kVariantTypeDate;
    if (dateTime && variant->cls->IsA(dateTime))
        return kVariantTypeDateTime;
    return kVariantTypeObject;
}

} // namespace hostsim
