// The frame of a handler whose library call reports failure through an error code: the
// trace line, the guard, the call, and then either a new object with the result or the
// operation's error raised and nil. The partial result of a failed call is dropped.
#pragma once

#include <ttmath/ttmath.h>

#include "numbers/operation_error.h"
#include "plugin/handler_guard.h"

namespace zqt {

// `compute(&code)` gives the result; a code other than ok makes `report()` raise.
template <class N, class Compute, class Report>
REALobject CallChecked(const char * traceName, Compute compute, Report report)
{
    Trace(traceName);
    return Guarded([&]() -> REALobject {
        ttmath::ErrorCode code = ttmath::err_ok;
        typename N::Value result = compute(&code);
        if (code != ttmath::err_ok) {
            report();
            return nullptr;
        }
        return N::NewBigNumberZQT(result);
    });
}

// `function(value, &code)` of one number; a failure shows that number ("nil" for a nil
// object). `name` is both the trace's and the failure's.
template <class N, class Function>
REALobject CallShowingArgument(const char * name, REALobject x, Function function)
{
    return CallChecked<N>(
        name, [&](ttmath::ErrorCode * code) { return function(N::ValueOf(x), code); },
        [&] { RaiseOverflowException(name, N::Ref(x)); });
}

// `function(value)` of one number, which cannot fail.
template <class N, class Function>
REALobject CallUnchecked(const char * name, REALobject x, Function function)
{
    Trace(name);
    return Guarded([&] { return N::NewBigNumberZQT(function(N::ValueOf(x))); });
}

} // namespace zqt
