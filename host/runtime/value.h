// A typed host value as scripts and the call dispatcher handle it. Strings, variants
// and objects are counted references: a Value owns one and releases it when it goes.
#pragma once

#include <cstdint>

#include "host/runtime/types.h"
#include "sdk/rb_types.h"

namespace hostsim {

class Value {
public:
    Value() = default; // Nil, of type Object
    Value(const Value & other);
    Value(Value && other) noexcept;
    Value & operator=(Value other) noexcept;
    ~Value();

    static Value Signed(TypeKind kind, int64_t v);     // any integer kind, wrapped to its width
    static Value Unsigned(TypeKind kind, uint64_t v);
    static Value Real(TypeKind kind, double v);        // Single or Double
    static Value Boolean(bool v);
    static Value Currency(int64_t scaled);
    // References: Adopt takes over the caller's reference, Borrow adds one.
    static Value AdoptString(TypeKind kind, REALstring s);
    static Value BorrowString(TypeKind kind, REALstring s);
    static Value AdoptObject(const TypeRef & type, REALobject o); // Object or Variant type
    static Value BorrowObject(const TypeRef & type, REALobject o);
    static Value Nil() { return Value(); }

    const TypeRef & type() const { return type_; }
    TypeKind kind() const { return type_.kind; }
    int64_t AsSigned() const { return bits_.i; }
    uint64_t AsUnsigned() const { return bits_.u; }
    double AsReal() const { return bits_.d; }
    bool AsBoolean() const { return bits_.i != 0; }
    REALstring string() const { return static_cast<REALstring>(bits_.p); }
    REALobject object() const { return static_cast<REALobject>(bits_.p); }
    bool IsNil() const { return IsReferenceKind(type_.kind) && !IsStringKind(type_.kind) && !bits_.p; }
    // Gives up the owned reference without releasing it.
    void * ReleaseReference();
    // Changes the static type without touching the content (an object seen as its superclass).
    void Retype(const TypeRef & type) { type_ = type; }

private:
    TypeRef type_;
    union {
        int64_t i;
        uint64_t u;
        double d;
        void * p;
    } bits_{};
};

} // namespace hostsim
