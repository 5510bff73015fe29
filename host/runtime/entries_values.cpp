// Value entries: properties read and written by name, variants, memory blocks.
#include <cstring>

#include "host/framework/framework.h"
#include "host/runtime/conversions.h"
#include "host/runtime/dispatcher.h"
#include "host/runtime/entry_support.h"
#include "sdk/host_entries.h"

namespace hostsim {

namespace {

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

// Reading a variant as one type, as its value properties do.
#define FROM_VARIANT(Function, Entry, CType, Kind, member)                                          \
    CType Function(REALobject v)                                                                   \
    {                                                                                              \
        const char * entry = Entry;                                                                \
        return Guarded<CType>(entry, CType(), [&](Runtime & rt) -> CType {                         \
            if (!v || !rt.ValidObject(v, entry))                                                   \
                return CType();                                                                    \
            return static_cast<CType>(ReadVariantAs(v, TypeKind::Kind).member);                     \
        });                                                                                        \
    }

FROM_VARIANT(VariantToInt32, "VariantToInt32", int32_t, Int32, i32)
FROM_VARIANT(VariantToUInt32, "VariantToUInt32", uint32_t, UInt32, u32)
FROM_VARIANT(VariantToInt64, "VariantToInt64", RBInt64, Int64, i64)
FROM_VARIANT(VariantToUInt64, "VariantToUInt64", RBUInt64, UInt64, u64)
FROM_VARIANT(VariantToSingle, "VariantToSingle", float, Single, f)
FROM_VARIANT(VariantToDouble, "VariantToDouble", double, Double, d)
FROM_VARIANT(VariantToString, "VariantToString", REALstring, String, p)
#undef FROM_VARIANT

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

const EntryRow kRows[] = {
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
    {"VariantToInt32", Address<VariantToInt32Proc>(&VariantToInt32)},
    {"VariantToUInt32", Address<VariantToUInt32Proc>(&VariantToUInt32)},
    {"VariantToInt64", Address<VariantToInt64Proc>(&VariantToInt64)},
    {"VariantToUInt64", Address<VariantToUInt64Proc>(&VariantToUInt64)},
    {"VariantToSingle", Address<VariantToSingleProc>(&VariantToSingle)},
    {"VariantToDouble", Address<VariantToDoubleProc>(&VariantToDouble)},
    {"VariantToString", Address<VariantToStringProc>(&VariantToString)},
    {"memoryBlockGetPtr", Address<memoryBlockGetPtrProc>(&MemoryBlockGetPtr)},
    {"memoryBlockGetSize", Address<memoryBlockGetSizeProc>(&MemoryBlockGetSize)},
    {"newMemoryBlock", Address<newMemoryBlockProc>(&NewMemoryBlock)},
};

} // namespace

ENTRY_GROUP(kValueEntries, kRows);

} // namespace hostsim
