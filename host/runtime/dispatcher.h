// Calls registered handlers with the C shapes of their declarations: methods (object
// first unless shared), the assignment form of a method row, and property accessors,
// including properties the host reads and writes itself in the object's data.
//
// Arguments must already have the parameter types. A ByRef argument is the caller's
// variable: the handler gets its address and the variable takes what the handler left.
// A result is taken over only when the handler raised nothing during the call.
#pragma once

#include <vector>

#include "host/runtime/class_info.h"
#include "host/runtime/runtime.h"
#include "host/runtime/value.h"

namespace hostsim {

NativeSlot ToSlot(const Value & v);
// Wraps a slot of C type CTypeOf(type); `adopt` takes over a reference it holds.
Value FromSlot(const TypeRef & type, const NativeSlot & slot, bool adopt);

Value CallMethod(Runtime & rt, const MethodInfo & method, REALobject self, const std::vector<Value *> & args);
// `obj.Name(args) = value` through the row's setter handler.
void CallMethodSetter(Runtime & rt, const MethodInfo & method, REALobject self, const std::vector<Value *> & args,
                      const Value & assigned);
Value GetProperty(Runtime & rt, const PropertyInfo & property, REALobject self);
void SetProperty(Runtime & rt, const PropertyInfo & property, REALobject self, const Value & value);

} // namespace hostsim
