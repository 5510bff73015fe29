// The host's value types: their names, the C type a handler sees for each, and the
// code VarType reports for a variant holding one.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace hostsim {

// C types of arguments and results at the native call boundary.
enum class CType : uint8_t { Void, Int8, UInt8, Int16, UInt16, Int32, UInt32, Int64, UInt64, Float, Double, Pointer };

enum class TypeKind : uint8_t {
    Boolean, Int8, UInt8, Int16, UInt16, Int32, UInt32, Int64, UInt64,
    Single, Double, Currency, Color, Ptr, WindowPtr, OSType,
    String, CString, WString, PString, CFStringRef, Text,
    Variant,
    Object, // any class; TypeRef::className names it ("Object" for the root)
};

struct TypeInfo {
    TypeKind kind;
    const char * name;
    CType ctype;
    int32_t variantCode;
    bool inDeclarations; // may appear in a registered declaration
};

// A declared type: a built-in kind, or a class by name.
struct TypeRef {
    TypeKind kind = TypeKind::Object;
    std::string className; // for Object only

    static TypeRef Of(TypeKind k) { return TypeRef{k, {}}; }
    static TypeRef OfClass(std::string name) { return TypeRef{TypeKind::Object, std::move(name)}; }
    bool operator==(const TypeRef & other) const;
    bool operator!=(const TypeRef & other) const { return !(*this == other); }
    std::string Name() const;
};

const TypeInfo & InfoOf(TypeKind kind);
// Looks a type name up ignoring letter case, with the aliases Integer, UInteger and
// Byte; any other identifier is taken as a class name. Returns false for a name that
// is not an identifier.
bool ParseTypeName(std::string_view name, TypeRef & out);
CType CTypeOf(const TypeRef & type);

bool IsIntegerKind(TypeKind k);  // Int8 .. UInt64, Color, Ptr, WindowPtr, OSType
bool IsUnsignedKind(TypeKind k);
bool IsFloatKind(TypeKind k);    // Single, Double
bool IsNumberKind(TypeKind k);   // integers, floats and Currency
bool IsStringKind(TypeKind k);   // String and its relatives
bool IsReferenceKind(TypeKind k); // strings, Variant and objects: counted references
int BitsOf(TypeKind k);          // width of integer kinds
size_t SizeOfCType(CType c);

bool IsIdentifier(std::string_view text);

} // namespace hostsim
