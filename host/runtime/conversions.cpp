#include "host/runtime/conversions.h"

#include <cmath>

#include "host/framework/framework.h"
#include "host/lang/lexer.h"
#include "host/runtime/encodings.h"
#include "host/runtime/formatting.h"
#include "sdk/encodings.h"

namespace hostsim {

namespace {

const int64_t kCurrencyScale = 10000;
const char * const kNilTypeName = "Nil";

// Costs of implicit conversions, lowest preferred.
enum Cost {
    kSame = 0,
    kSubclass = 1,      // plus one for each step up the hierarchy
    kWidening = 1,
    kRetagString = 1,
    kNarrowing = 2,
    kIntegerToReal = 3,
    kRealToInteger = 4,
    kToVariant = 6,
    kFromVariant = 7,
};

bool IsArithmetic(TypeKind k)
{
    return (k >= TypeKind::Int8 && k <= TypeKind::UInt64) || IsFloatKind(k) || k == TypeKind::Currency;
}

bool IsPlainInteger(TypeKind k)
{
    return k >= TypeKind::Int8 && k <= TypeKind::UInt64;
}

// Addresses and four-character codes: integers the host keeps apart from numbers,
// but that integers may be assigned to and from.
bool IsIntegerLike(TypeKind k)
{
    return k == TypeKind::Ptr || k == TypeKind::WindowPtr || k == TypeKind::OSType;
}

const ClassInfo * ClassOf(const Runtime & rt, const TypeRef & t)
{
    if (t.className.empty() || EqualsIgnoringCase(t.className, kObjectClassName))
        return nullptr; // the root: every class
    return rt.FindClass(t.className);
}

int ObjectCost(const Runtime & rt, const TypeRef & from, const TypeRef & to)
{
    const ClassInfo * target = ClassOf(rt, to);
    const ClassInfo * source = ClassOf(rt, from);
    if (!target) {
        int depth = 0;
        for (const ClassInfo * c = source; c; c = c->super)
            ++depth;
        return kSubclass + depth;
    }
    int steps = 0;
    for (const ClassInfo * c = source; c; c = c->super, ++steps)
        if (c == target)
            return kSubclass + steps;
    return kCannotConvert;
}

Value CastNumber(const Value & v, TypeKind to)
{
    TypeKind from = v.kind();
    bool fromReal = IsFloatKind(from);
    bool fromCurrency = from == TypeKind::Currency;
    if (IsFloatKind(to)) {
        double d = fromReal ? v.AsReal()
                 : fromCurrency ? static_cast<double>(v.AsSigned()) / kCurrencyScale
                 : IsUnsignedKind(from) ? static_cast<double>(v.AsUnsigned())
                 : static_cast<double>(v.AsSigned());
        return Value::Real(to, d);
    }
    if (to == TypeKind::Currency) {
        if (fromReal)
            return Value::Currency(static_cast<int64_t>(std::llround(v.AsReal() * kCurrencyScale)));
        if (fromCurrency)
            return v;
        return Value::Currency(static_cast<int64_t>(static_cast<uint64_t>(v.AsSigned()) * kCurrencyScale));
    }
    if (fromReal) {
        double d = std::trunc(v.AsReal());
        const double kTwoTo63 = 9223372036854775808.0;
        if (std::isnan(d))
            return Value::Signed(to, 0);
        if (d >= kTwoTo63 || d < -kTwoTo63)
            return IsUnsignedKind(to) && d > 0 && d < 2 * kTwoTo63 ? Value::Unsigned(to, static_cast<uint64_t>(d))
                                                                  : Value::Signed(to, d < 0 ? INT64_MIN : INT64_MAX);
        return Value::Signed(to, static_cast<int64_t>(d));
    }
    if (fromCurrency)
        return Value::Signed(to, v.AsSigned() / kCurrencyScale);
    if (from == TypeKind::Boolean)
        return Value::Signed(to, v.AsBoolean() ? 1 : 0);
    return Value::Unsigned(to, v.AsUnsigned());
}

Value RetagString(const Value & v, TypeKind to)
{
    return Value::BorrowString(to, v.string());
}

Value StringValue(Runtime & rt, TypeKind kind, const std::string & text)
{
    return Value::AdoptString(kind, rt.NewString(text, kREALTextEncodingUTF8));
}

} // namespace

TypeRef NilType()
{
    return TypeRef::OfClass(kNilTypeName);
}

bool IsNilType(const TypeRef & t)
{
    return t.kind == TypeKind::Object && t.className == kNilTypeName;
}

int ConversionCost(const Runtime & rt, const TypeRef & from, const TypeRef & to)
{
    if (from == to)
        return kSame;
    if (IsNilType(from))
        return to.kind == TypeKind::Object || to.kind == TypeKind::Variant ? kSame : kCannotConvert;
    if (to.kind == TypeKind::Variant)
        return kToVariant;
    if (from.kind == TypeKind::Variant)
        return kFromVariant;
    if (from.kind == TypeKind::Object && to.kind == TypeKind::Object)
        return ObjectCost(rt, from, to);
    if (IsStringKind(from.kind) && IsStringKind(to.kind))
        return kRetagString;
    if ((IsIntegerLike(from.kind) && IsPlainInteger(to.kind)) || (IsPlainInteger(from.kind) && IsIntegerLike(to.kind)))
        return kNarrowing;
    if (!IsArithmetic(from.kind) || !IsArithmetic(to.kind))
        return kCannotConvert;
    if (IsPlainInteger(from.kind) && IsPlainInteger(to.kind)) {
        bool widening = BitsOf(to.kind) > BitsOf(from.kind) ||
                        (BitsOf(to.kind) == BitsOf(from.kind) && IsUnsignedKind(to.kind) == IsUnsignedKind(from.kind));
        if (widening && (IsUnsignedKind(to.kind) == IsUnsignedKind(from.kind) || !IsUnsignedKind(to.kind)))
            return kWidening;
        return kNarrowing;
    }
    if (IsFloatKind(from.kind) && IsFloatKind(to.kind))
        return to.kind == TypeKind::Double ? kWidening : kNarrowing;
    if (IsFloatKind(from.kind) && IsPlainInteger(to.kind))
        return kRealToInteger;
    return kIntegerToReal; // integers to reals, and everything to and from Currency
}

Value Convert(Runtime & rt, const Value & v, const TypeRef & to)
{
    const TypeRef & from = v.type();
    if (from == to)
        return v;
    if (IsNilType(from) && (to.kind == TypeKind::Object || to.kind == TypeKind::Variant))
        return Value::AdoptObject(to, nullptr);
    if (to.kind == TypeKind::Variant)
        return Value::AdoptObject(to, BoxInVariant(rt, v));
    if (from.kind == TypeKind::Variant) {
        Value content = VariantContent(v.object());
        if (to.kind == TypeKind::Object) {
            if (content.IsNil())
                return Value::AdoptObject(to, nullptr);
            if (content.kind() == TypeKind::Object) {
                const ClassInfo * target = ClassOf(rt, to);
                if (!target || content.object()->cls->IsA(target))
                    return Value::BorrowObject(to, content.object());
            }
            throw ConversionError("the variant holds " + content.type().Name() + ", not " + to.Name());
        }
        return ConvertLoosely(rt, content, to.kind);
    }
    if (ConversionCost(rt, from, to) == kCannotConvert)
        throw ConversionError("cannot convert " + from.Name() + " to " + to.Name());
    if (to.kind == TypeKind::Object) {
        Value out = v;
        out.Retype(to);
        return out;
    }
    if (IsStringKind(to.kind))
        return RetagString(v, to.kind);
    return CastNumber(v, to.kind);
}

Value ConvertLoosely(Runtime & rt, const Value & v, TypeKind to)
{
    TypeKind from = v.kind();
    if (to == TypeKind::Variant)
        return Value::AdoptObject(TypeRef::Of(to), BoxInVariant(rt, v));
    if (to == TypeKind::Object)
        return from == TypeKind::Object ? v : Value::AdoptObject(TypeRef::Of(to), nullptr);
    if (IsStringKind(to)) {
        if (IsStringKind(from))
            return RetagString(v, to);
        if (from == TypeKind::Object)
            return StringValue(rt, to, "");
        return StringValue(rt, to, TextOf(v));
    }
    if (to == TypeKind::Boolean) {
        if (IsStringKind(from))
            return Value::Boolean(EqualsIgnoringCase(Runtime::Bytes(v.string()), "true"));
        if (from == TypeKind::Boolean)
            return v;
        if (IsNumberKind(from))
            return Value::Boolean(IsFloatKind(from) ? v.AsReal() != 0 : v.AsSigned() != 0);
        return Value::Boolean(false);
    }
    if (IsStringKind(from)) {
        const std::string & text = Runtime::Bytes(v.string());
        if (IsFloatKind(to))
            return Value::Real(to, ParseReal(text));
        if (to == TypeKind::Currency)
            return Value::Currency(static_cast<int64_t>(std::llround(ParseReal(text) * kCurrencyScale)));
        return IsUnsignedKind(to) ? Value::Unsigned(to, ParseUnsigned(text)) : Value::Signed(to, ParseInteger(text));
    }
    if (from == TypeKind::Object)
        return CastNumber(Value::Signed(TypeKind::Int64, 0), to);
    return CastNumber(v, to);
}

std::string TextOf(const Value & v)
{
    TypeKind k = v.kind();
    if (IsStringKind(k)) {
        const std::string & bytes = Runtime::Bytes(v.string());
        uint32_t encoding = Runtime::EncodingOf(v.string());
        std::string utf8;
        if (encoding != kREALTextEncodingUTF8 && ConvertText(bytes, encoding, kREALTextEncodingUTF8, true, utf8))
            return utf8;
        return bytes;
    }
    if (k == TypeKind::Boolean)
        return v.AsBoolean() ? "True" : "False";
    if (IsFloatKind(k))
        return FormatReal(v.AsReal());
    if (k == TypeKind::Currency)
        return FormatCurrency(v.AsSigned());
    if (IsIntegerKind(k))
        return IsUnsignedKind(k) ? std::to_string(v.AsUnsigned()) : std::to_string(v.AsSigned());
    if (v.IsNil())
        return "Nil";
    return v.object()->cls->name;
}

} // namespace hostsim
