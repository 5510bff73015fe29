// Conversions between host values: the implicit ones the host applies to arguments and
// assignments (with a cost that ranks overloads), and the looser ones of variants.
#pragma once

#include <stdexcept>

#include "host/runtime/runtime.h"
#include "host/runtime/value.h"

namespace hostsim {

class ConversionError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The static type of the literal Nil.
TypeRef NilType();
bool IsNilType(const TypeRef & t);

const int kCannotConvert = -1;
// 0 for the same type, more for conversions the host prefers less, kCannotConvert
// where there is no implicit conversion.
int ConversionCost(const Runtime & rt, const TypeRef & from, const TypeRef & to);
// Throws ConversionError where ConversionCost says there is none.
Value Convert(Runtime & rt, const Value & v, const TypeRef & to);
// Reads a value as a variant accessor does: numbers from text, text from numbers.
Value ConvertLoosely(Runtime & rt, const Value & v, TypeKind to);
// The text of a value of a built-in type as Str writes it.
std::string TextOf(const Value & v);

} // namespace hostsim
