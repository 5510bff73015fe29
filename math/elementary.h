// Abs, Sgn, Root, Log, Ln and Exp: shared methods of both number classes. Each takes
// numbers of its own class (a nil one reads as the static zero) and returns a new one;
// the arguments are never changed.
#pragma once

#include "numbers/checked_call.h"

namespace zqt {

template <class N>
struct Elementary {
    using Value = typename N::Value;

    // The sign flag cleared; every other flag kept, so a NaN stays a NaN.
    static REALobject Abs(REALobject x)
    {
        return CallUnchecked<N>("Abs", x, [](Value v) {
            v.Abs();
            return v;
        });
    }

    // -1, 0 or 1; a NaN comes back as it is.
    static REALobject Sgn(REALobject x)
    {
        return CallUnchecked<N>("Sgn", x, [](Value v) {
            v.Sgn();
            return v;
        });
    }

    // Every failure (a NaN, a negative or fractional index, the 0th root of zero, an even
    // root of a negative number, overflow) raises the one message without numbers.
    static REALobject Root(REALobject x, REALobject index)
    {
        const char * const name = "Root";
        return CallChecked<N>(
            name, [&](ttmath::ErrorCode * code) { return ttmath::Root(N::ValueOf(x), N::ValueOf(index), code); },
            [&] { RaiseOverflowException(name); });
    }

    // A failure shows both the value and the base.
    static REALobject Log(REALobject x, REALobject base)
    {
        const char * const name = "Log";
        return CallChecked<N>(
            name, [&](ttmath::ErrorCode * code) { return ttmath::Log(N::ValueOf(x), N::ValueOf(base), code); },
            [&] { RaiseOverflowException(name, N::Ref(x), N::Ref(base)); });
    }

    static REALobject Ln(REALobject x) { return CallShowingArgument<N>("Ln", x, &ttmath::Ln<Value>); }
    static REALobject Exp(REALobject x) { return CallShowingArgument<N>("Exp", x, &ttmath::Exp<Value>); }
};

} // namespace zqt
