#include "host/runtime/dispatcher.h"

#include <cstring>

namespace hostsim {

namespace {

const char * const kDirectField = "a property stored in object data";
// What a fault names when plugin code hands the host something that is not a live value.
const char * const kHandedBack = "a value handed to the host";

NativeSignature SignatureOf(const Signature & sig, bool withObject, bool withAssigned)
{
    NativeSignature out;
    if (withObject)
        out.parameters.push_back(CType::Pointer);
    for (const Parameter & p : sig.parameters)
        out.parameters.push_back(p.byRef ? CType::Pointer : CTypeOf(p.type));
    if (withAssigned)
        out.parameters.push_back(CTypeOf(*sig.result));
    else if (sig.result)
        out.result = CTypeOf(*sig.result);
    return out;
}

// Storage for ByRef arguments while the handler runs.
struct ByRefSlots {
    std::vector<NativeSlot> slots;
    std::vector<size_t> argIndex;
};

std::vector<NativeSlot> Marshal(const Signature & sig, REALobject self, bool withObject,
                                const std::vector<Value *> & args, ByRefSlots & byRef)
{
    std::vector<NativeSlot> out;
    if (withObject) {
        NativeSlot s{};
        s.p = self;
        out.push_back(s);
    }
    byRef.slots.reserve(args.size());
    for (size_t i = 0; i < sig.parameters.size(); ++i) {
        if (sig.parameters[i].byRef) {
            NativeSlot held{};
            if (IsReferenceKind(args[i]->kind()))
                held.p = args[i]->ReleaseReference(); // the variable's reference moves into the slot
            else
                held = ToSlot(*args[i]);
            byRef.slots.push_back(held);
            byRef.argIndex.push_back(i);
            NativeSlot address{};
            address.p = &byRef.slots.back();
            out.push_back(address);
        } else {
            out.push_back(ToSlot(*args[i]));
        }
    }
    return out;
}

void WriteBack(const Signature & sig, const std::vector<Value *> & args, const ByRefSlots & byRef)
{
    for (size_t k = 0; k < byRef.argIndex.size(); ++k) {
        size_t i = byRef.argIndex[k];
        *args[i] = FromSlot(sig.parameters[i].type, byRef.slots[k], true);
    }
}

Value Invoke(Runtime & rt, const MethodInfo & method, REALproc handler, REALobject self,
             const std::vector<Value *> & args, const Value * assigned)
{
    const Signature & sig = method.signature;
    bool withObject = !method.shared;
    ByRefSlots byRef;
    std::vector<NativeSlot> natives = Marshal(sig, self, withObject, args, byRef);
    if (assigned)
        natives.push_back(ToSlot(*assigned));
    NativeSlot result{};
    REALobject pendingBefore = rt.Pending();
    // What the handler hands back is checked in its name.
    Accounting::Scope scope(rt.accounting, method.QualifiedName());
    rt.native().Call(handler, SignatureOf(sig, withObject, assigned != nullptr), natives, result);
    WriteBack(sig, args, byRef);
    if (assigned || !sig.result)
        return Value();
    // The caller owns what a handler hands back. After a raise it is discarded, and
    // dropping it releases that reference.
    Value handedBack = FromSlot(*sig.result, result, true);
    if (rt.Pending() != pendingBefore)
        return Value();
    return handedBack;
}

// Direct fields: the host reads and writes class data + param itself.
void * FieldAddress(const PropertyInfo & p, REALobject self)
{
    return static_cast<char *>(Runtime::ClassData(self, *p.owner)) + p.param;
}

} // namespace

NativeSlot ToSlot(const Value & v)
{
    NativeSlot s{};
    switch (CTypeOf(v.type())) {
    case CType::Void: break;
    case CType::Int8: s.i8 = static_cast<int8_t>(v.AsSigned()); break;
    case CType::UInt8: s.u8 = static_cast<uint8_t>(v.AsUnsigned()); break;
    case CType::Int16: s.i16 = static_cast<int16_t>(v.AsSigned()); break;
    case CType::UInt16: s.u16 = static_cast<uint16_t>(v.AsUnsigned()); break;
    case CType::Int32: s.i32 = static_cast<int32_t>(v.AsSigned()); break;
    case CType::UInt32: s.u32 = static_cast<uint32_t>(v.AsUnsigned()); break;
    case CType::Int64: s.i64 = v.AsSigned(); break;
    case CType::UInt64: s.u64 = v.AsUnsigned(); break;
    case CType::Float: s.f = static_cast<float>(v.AsReal()); break;
    case CType::Double: s.d = v.AsReal(); break;
    case CType::Pointer:
        if (IsReferenceKind(v.kind()))
            s.p = IsStringKind(v.kind()) ? static_cast<void *>(v.string()) : static_cast<void *>(v.object());
        else
            s.u64 = v.AsUnsigned();
        break;
    }
    return s;
}

Value FromSlot(const TypeRef & type, const NativeSlot & s, bool adopt)
{
    TypeKind k = type.kind;
    Runtime * rt = Runtime::Current();
    if (IsStringKind(k)) {
        auto str = static_cast<REALstring>(s.p);
        if (!rt->ValidString(str, kHandedBack))
            return Value::AdoptString(k, nullptr);
        return adopt ? Value::AdoptString(k, str) : Value::BorrowString(k, str);
    }
    if (k == TypeKind::Object || k == TypeKind::Variant) {
        auto object = static_cast<REALobject>(s.p);
        if (!rt->ValidObject(object, kHandedBack))
            return Value::AdoptObject(type, nullptr);
        return adopt ? Value::AdoptObject(type, object) : Value::BorrowObject(type, object);
    }
    switch (CTypeOf(type)) {
    case CType::Int8: return k == TypeKind::Boolean ? Value::Boolean(s.i8 != 0) : Value::Signed(k, s.i8);
    case CType::UInt8: return Value::Unsigned(k, s.u8);
    case CType::Int16: return Value::Signed(k, s.i16);
    case CType::UInt16: return Value::Unsigned(k, s.u16);
    case CType::Int32: return Value::Signed(k, s.i32);
    case CType::UInt32: return Value::Unsigned(k, s.u32);
    case CType::Int64: return k == TypeKind::Currency ? Value::Currency(s.i64) : Value::Signed(k, s.i64);
    case CType::UInt64: return Value::Unsigned(k, s.u64);
    case CType::Float: return Value::Real(k, s.f);
    case CType::Double: return Value::Real(k, s.d);
    case CType::Pointer: return Value::Unsigned(k, s.u64);
    case CType::Void: break;
    }
    return Value();
}

Value CallMethod(Runtime & rt, const MethodInfo & method, REALobject self, const std::vector<Value *> & args)
{
    return Invoke(rt, method, method.function, self, args, nullptr);
}

void CallMethodSetter(Runtime & rt, const MethodInfo & method, REALobject self, const std::vector<Value *> & args,
                      const Value & assigned)
{
    Invoke(rt, method, method.setter, self, args, &assigned);
}

Value GetProperty(Runtime & rt, const PropertyInfo & p, REALobject self)
{
    if (p.StandardGetter()) {
        NativeSlot s{};
        std::memcpy(&s, FieldAddress(p, self), SizeOfCType(CTypeOf(p.type)));
        if (IsReferenceKind(p.type.kind)) { // the caller gets its own reference
            Accounting::Scope scope(rt.accounting, p.QualifiedName());
            return FromSlot(p.type, s, false);
        }
        return FromSlot(p.type, s, true);
    }
    NativeSignature sig;
    sig.result = CTypeOf(p.type);
    std::vector<NativeSlot> args;
    if (!p.shared) {
        NativeSlot object{}, param{};
        object.p = self;
        param.i64 = p.param;
        args = {object, param};
        sig.parameters = {CType::Pointer, CType::Int64};
    }
    NativeSlot result{};
    REALobject pendingBefore = rt.Pending();
    Accounting::Scope scope(rt.accounting, p.QualifiedName() + " getter");
    rt.native().Call(p.getter, sig, args, result);
    Value handedBack = FromSlot(p.type, result, true);
    if (rt.Pending() != pendingBefore)
        return Value(); // discarded after a raise, and so released
    return handedBack;
}

void SetProperty(Runtime & rt, const PropertyInfo & p, REALobject self, const Value & value)
{
    NativeSlot incoming = ToSlot(value);
    if (p.StandardSetter()) {
        void * field = FieldAddress(p, self);
        if (IsReferenceKind(p.type.kind)) {
            void * old;
            std::memcpy(&old, field, sizeof old);
            if (IsStringKind(p.type.kind)) {
                rt.LockString(static_cast<REALstring>(incoming.p), kDirectField);
                rt.UnlockString(static_cast<REALstring>(old), kDirectField);
            } else {
                rt.LockObject(static_cast<REALobject>(incoming.p), kDirectField);
                rt.UnlockObject(static_cast<REALobject>(old), kDirectField);
            }
        }
        std::memcpy(field, &incoming, SizeOfCType(CTypeOf(p.type)));
        return;
    }
    NativeSignature sig;
    std::vector<NativeSlot> args;
    if (!p.shared) {
        NativeSlot object{}, param{};
        object.p = self;
        param.i64 = p.param;
        args = {object, param};
        sig.parameters = {CType::Pointer, CType::Int64};
    }
    args.push_back(incoming);
    sig.parameters.push_back(CTypeOf(p.type));
    NativeSlot ignored{};
    Accounting::Scope scope(rt.accounting, p.QualifiedName() + " setter");
    rt.native().Call(p.setter, sig, args, ignored);
}

} // namespace hostsim
