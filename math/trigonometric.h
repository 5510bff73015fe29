// The circular functions and their inverses, angles in radians: shared methods of both
// number classes. Every value, domain check and error code is the library's; a failure
// shows the argument. ATan and ACot never fail: a NaN argument gives a NaN result.
#pragma once

#include "numbers/checked_call.h"

namespace zqt {

template <class N>
struct Trigonometric {
    using Value = typename N::Value;

    static REALobject Sin(REALobject x) { return CallShowingArgument<N>("Sin", x, &ttmath::Sin<Value>); }
    static REALobject Cos(REALobject x) { return CallShowingArgument<N>("Cos", x, &ttmath::Cos<Value>); }
    static REALobject Tan(REALobject x) { return CallShowingArgument<N>("Tan", x, &ttmath::Tan<Value>); }
    static REALobject Cot(REALobject x) { return CallShowingArgument<N>("Cot", x, &ttmath::Cot<Value>); }
    static REALobject ASin(REALobject x) { return CallShowingArgument<N>("ASin", x, &ttmath::ASin<Value>); }
    static REALobject ACos(REALobject x) { return CallShowingArgument<N>("ACos", x, &ttmath::ACos<Value>); }
    static REALobject ATan(REALobject x) { return CallUnchecked<N>("ATan", x, &ttmath::ATan<Value>); }
    static REALobject ACot(REALobject x) { return CallUnchecked<N>("ACot", x, &ttmath::ACot<Value>); }
};

} // namespace zqt
