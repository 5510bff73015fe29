#include "host/runtime/value.h"

#include <utility>

#include "host/runtime/runtime.h"

namespace hostsim {

namespace {

const char * const kValueAction = "a host value";

void Lock(const TypeRef & type, void * p)
{
    Runtime * rt = Runtime::Current();
    if (!p || !rt)
        return;
    if (IsStringKind(type.kind))
        rt->LockString(static_cast<REALstring>(p), kValueAction);
    else
        rt->LockObject(static_cast<REALobject>(p), kValueAction);
}

void Unlock(const TypeRef & type, void * p)
{
    Runtime * rt = Runtime::Current();
    if (!p || !rt)
        return;
    if (IsStringKind(type.kind))
        rt->UnlockString(static_cast<REALstring>(p), kValueAction);
    else
        rt->UnlockObject(static_cast<REALobject>(p), kValueAction);
}

} // namespace

Value::Value(const Value & other) : type_(other.type_), bits_(other.bits_)
{
    if (IsReferenceKind(type_.kind))
        Lock(type_, bits_.p);
}

Value::Value(Value && other) noexcept : type_(std::move(other.type_)), bits_(other.bits_)
{
    other.bits_.p = nullptr;
    other.type_.kind = TypeKind::Object;
}

Value & Value::operator=(Value other) noexcept
{
    std::swap(type_, other.type_);
    std::swap(bits_, other.bits_);
    return *this;
}

Value::~Value()
{
    if (IsReferenceKind(type_.kind))
        Unlock(type_, bits_.p);
}

void * Value::ReleaseReference()
{
    void * p = bits_.p;
    bits_.p = nullptr;
    return p;
}

Value Value::Signed(TypeKind kind, int64_t v)
{
    return Unsigned(kind, static_cast<uint64_t>(v));
}

Value Value::Unsigned(TypeKind kind, uint64_t v)
{
    Value out;
    out.type_ = TypeRef::Of(kind);
    int bits = BitsOf(kind);
    const int kFullWidth = 64;
    if (bits < kFullWidth) {
        uint64_t mask = (uint64_t(1) << bits) - 1;
        v &= mask;
        if (!IsUnsignedKind(kind) && (v >> (bits - 1)) != 0)
            v |= ~mask; // sign-extend
    }
    out.bits_.u = v;
    return out;
}

Value Value::Real(TypeKind kind, double v)
{
    Value out;
    out.type_ = TypeRef::Of(kind);
    out.bits_.d = kind == TypeKind::Single ? static_cast<double>(static_cast<float>(v)) : v;
    return out;
}

Value Value::Boolean(bool v)
{
    Value out;
    out.type_ = TypeRef::Of(TypeKind::Boolean);
    out.bits_.i = v ? 1 : 0;
    return out;
}

Value Value::Currency(int64_t scaled)
{
    Value out;
    out.type_ = TypeRef::Of(TypeKind::Currency);
    out.bits_.i = scaled;
    return out;
}

Value Value::AdoptString(TypeKind kind, REALstring s)
{
    Value out;
    out.type_ = TypeRef::Of(kind);
    out.bits_.p = s;
    return out;
}

Value Value::BorrowString(TypeKind kind, REALstring s)
{
    Lock(TypeRef::Of(kind), s);
    return AdoptString(kind, s);
}

Value Value::AdoptObject(const TypeRef & type, REALobject o)
{
    Value out;
    out.type_ = type;
    out.bits_.p = o;
    return out;
}

Value Value::BorrowObject(const TypeRef & type, REALobject o)
{
    Lock(type, o);
    return AdoptObject(type, o);
}

} // namespace hostsim
