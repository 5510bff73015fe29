#include "host/runtime/types.h"

#include <cctype>

#include "host/lang/lexer.h"
#include "sdk/variant_types.h"

namespace hostsim {

namespace {

const TypeInfo kTypes[] = {
    {TypeKind::Boolean, "Boolean", CType::Int8, kVariantTypeBoolean, true},
    {TypeKind::Int8, "Int8", CType::Int8, kVariantTypeInt32, true},
    {TypeKind::UInt8, "UInt8", CType::UInt8, kVariantTypeInt32, true},
    {TypeKind::Int16, "Int16", CType::Int16, kVariantTypeInt32, true},
    {TypeKind::UInt16, "UInt16", CType::UInt16, kVariantTypeInt32, true},
    {TypeKind::Int32, "Int32", CType::Int32, kVariantTypeInt32, true},
    {TypeKind::UInt32, "UInt32", CType::UInt32, kVariantTypeInt32, true},
    {TypeKind::Int64, "Int64", CType::Int64, kVariantTypeInt64, true},
    {TypeKind::UInt64, "UInt64", CType::UInt64, kVariantTypeInt64, true},
    {TypeKind::Single, "Single", CType::Float, kVariantTypeSingle, true},
    {TypeKind::Double, "Double", CType::Double, kVariantTypeDouble, true},
    {TypeKind::Currency, "Currency", CType::Int64, kVariantTypeCurrency, true},
    {TypeKind::Color, "Color", CType::UInt32, kVariantTypeColor, true},
    {TypeKind::Ptr, "Ptr", CType::Pointer, kVariantTypePtr, true},
    {TypeKind::WindowPtr, "WindowPtr", CType::Pointer, kVariantTypeWindowPtr, false},
    {TypeKind::OSType, "OSType", CType::UInt32, kVariantTypeOSType, false},
    {TypeKind::String, "String", CType::Pointer, kVariantTypeString, true},
    {TypeKind::CString, "CString", CType::Pointer, kVariantTypeCString, false},
    {TypeKind::WString, "WString", CType::Pointer, kVariantTypeWString, false},
    {TypeKind::PString, "PString", CType::Pointer, kVariantTypePString, false},
    {TypeKind::CFStringRef, "CFStringRef", CType::Pointer, kVariantTypeCFStringRef, false},
    {TypeKind::Text, "Text", CType::Pointer, kVariantTypeText, false},
    {TypeKind::Variant, "Variant", CType::Pointer, kVariantTypeNil, true},
    {TypeKind::Object, "Object", CType::Pointer, kVariantTypeObject, true},
};

struct Alias {
    const char * name;
    TypeKind kind;
};
const Alias kAliases[] = {{"Integer", TypeKind::Int64}, {"UInteger", TypeKind::UInt64}, {"Byte", TypeKind::UInt8}};

} // namespace

bool TypeRef::operator==(const TypeRef & other) const
{
    return kind == other.kind && (kind != TypeKind::Object || EqualsIgnoringCase(className, other.className));
}

std::string TypeRef::Name() const
{
    if (kind == TypeKind::Object)
        return className.empty() ? "Object" : className;
    return InfoOf(kind).name;
}

const TypeInfo & InfoOf(TypeKind kind)
{
    return kTypes[static_cast<size_t>(kind)];
}

bool IsIdentifier(std::string_view text)
{
    if (text.empty() || !(std::isalpha(static_cast<unsigned char>(text[0])) || text[0] == '_'))
        return false;
    for (char c : text)
        if (!std::isalnum(static_cast<unsigned char>(c)) && c != '_')
            return false;
    return true;
}

bool ParseTypeName(std::string_view name, TypeRef & out)
{
    for (const Alias & a : kAliases) {
        if (EqualsIgnoringCase(name, a.name)) {
            out = TypeRef::Of(a.kind);
            return true;
        }
    }
    for (const TypeInfo & t : kTypes) {
        if (t.kind != TypeKind::Object && EqualsIgnoringCase(name, t.name)) {
            out = TypeRef::Of(t.kind);
            return true;
        }
    }
    if (!IsIdentifier(name))
        return false;
    out = TypeRef::OfClass(std::string(name));
    return true;
}

CType CTypeOf(const TypeRef & type)
{
    return InfoOf(type.kind).ctype;
}

bool IsIntegerKind(TypeKind k)
{
    return (k >= TypeKind::Int8 && k <= TypeKind::UInt64) || k == TypeKind::Color || k == TypeKind::Ptr ||
           k == TypeKind::WindowPtr || k == TypeKind::OSType;
}

bool IsUnsignedKind(TypeKind k)
{
    switch (k) {
    case TypeKind::UInt8: case TypeKind::UInt16: case TypeKind::UInt32: case TypeKind::UInt64:
    case TypeKind::Color: case TypeKind::Ptr: case TypeKind::WindowPtr: case TypeKind::OSType:
        return true;
    default:
        return false;
    }
}

bool IsFloatKind(TypeKind k)
{
    return k == TypeKind::Single || k == TypeKind::Double;
}

bool IsNumberKind(TypeKind k)
{
    return IsIntegerKind(k) || IsFloatKind(k) || k == TypeKind::Currency;
}

bool IsStringKind(TypeKind k)
{
    return k >= TypeKind::String && k <= TypeKind::Text;
}

bool IsReferenceKind(TypeKind k)
{
    return IsStringKind(k) || k == TypeKind::Variant || k == TypeKind::Object;
}

size_t SizeOfCType(CType c)
{
    switch (c) {
    case CType::Void: return 0;
    case CType::Int8: case CType::UInt8: return 1;
    case CType::Int16: case CType::UInt16: return 2;
    case CType::Int32: case CType::UInt32: case CType::Float: return 4;
    default: return 8;
    }
}

int BitsOf(TypeKind k)
{
    const int kBitsPerByte = 8;
    return static_cast<int>(SizeOfCType(InfoOf(k).ctype)) * kBitsPerByte;
}

} // namespace hostsim
