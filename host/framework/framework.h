// The framework classes and functions the host provides itself. They are declared with
// the same records a plugin uses and are called the same way.
#pragma once

#include <string>

#include "host/native/native_call.h"
#include "host/runtime/runtime.h"
#include "host/runtime/value.h"

namespace hostsim {

// Names of framework classes the host itself relies on.
extern const char * const kObjectClassName;
extern const char * const kRuntimeExceptionClassName;
extern const char * const kMessagePropertyName;
extern const char * const kNilObjectExceptionClassName;
extern const char * const kOutOfBoundsExceptionClassName;
extern const char * const kTypeMismatchExceptionClassName;
extern const char * const kUnsupportedOperationExceptionClassName;
extern const char * const kMemoryBlockClassName;
extern const char * const kVariantClassName;
// The origin of the classes the host provides itself.
extern const char * const kFrameworkOrigin;
// The module whose shared methods are the framework functions (LenB, VarType, ...).
extern const char * const kFrameworkModuleName;

void RegisterFrameworkClasses(Runtime & rt);
void RegisterExceptionClasses(Runtime & rt);
void RegisterMemoryBlockClass(Runtime & rt);
void RegisterVariantClasses(Runtime & rt);
void RegisterDateClasses(Runtime & rt);
void RegisterFrameworkFunctions(Runtime & rt);

// A new exception of `className` with `message`, raised as pending.
void RaiseHostException(Runtime & rt, const char * className, const std::string & message);
// Message of an exception object.
std::string ExceptionMessage(REALobject exception);

// Variants: a non-variant value boxed in a new variant (+1); an object is its own
// variant; Nil is null.
REALobject BoxInVariant(Runtime & rt, const Value & v);
// What a variant holds: the boxed value, or the object itself.
Value VariantContent(REALobject variant);
// The code VarType reports.
int32_t VariantTypeCode(REALobject variant);
// What a variant holds, read as `kind` the way its value properties read it (numbers
// from text, text from numbers); a string or object comes with a reference for the caller.
NativeSlot ReadVariantAs(REALobject variant, TypeKind kind);

// Memory blocks.
bool IsMemoryBlock(Runtime & rt, REALobject o);
void * MemoryBlockBytes(REALobject block);
RBInteger MemoryBlockSize(REALobject block);

} // namespace hostsim
