// Host exceptions: the plugin reports every failure by raising an instance of a host
// exception class, chosen by name, with its Message set and ErrorNumber 0. Raising only
// marks the exception as pending; the caller then returns its neutral value at once.
#pragma once

#include <cstdint>
#include <exception>

#include "sdk/rb_types.h"

namespace zqt {

inline const char * const kRuntimeExceptionClass = "RuntimeException";
inline const char * const kOutOfBoundsExceptionClass = "OutOfBoundsException";
inline const char * const kOutOfMemoryExceptionClass = "OutOfMemoryException";
inline const char * const kNilObjectExceptionClass = "NilObjectException";
inline const char * const kUnsupportedOperationExceptionClass = "UnsupportedOperationException";

// The properties every host exception carries.
inline const char * const kMessageProperty = "Message";
inline const char * const kErrorNumberProperty = "ErrorNumber";

// `message` is NUL-terminated UTF-8, or null for no message.
void RaiseException(const char * className, const char * message);
// `message` is a host string; the caller keeps its reference.
void RaiseException(const char * className, REALstring message);

// An argument outside [minimum, limit): the message shows limit - 1 as the largest value.
void RaiseOutOfBoundsException(int64_t value, int64_t minimum, int64_t limit, const char * parameterName,
                               const char * methodName);

// A standard exception that escaped a handler, as the closest host exception.
void RaiseRuntimeException(const std::exception & e);
// Anything else that escaped a handler.
void RaiseUnnamedException();

} // namespace zqt
