// The hyperbolic functions and their inverses: shared methods of both number classes.
// Every value, domain check and error code is the library's; a failure, whether a
// domain error or an overflow, shows the argument.
#pragma once

#include "numbers/checked_call.h"

namespace zqt {

template <class N>
struct Hyperbolic {
    using Value = typename N::Value;

    static REALobject Sinh(REALobject x) { return CallShowingArgument<N>("Sinh", x, &ttmath::Sinh<Value>); }
    static REALobject Cosh(REALobject x) { return CallShowingArgument<N>("Cosh", x, &ttmath::Cosh<Value>); }
    static REALobject Tanh(REALobject x) { return CallShowingArgument<N>("Tanh", x, &ttmath::Tanh<Value>); }
    static REALobject Coth(REALobject x) { return CallShowingArgument<N>("Coth", x, &ttmath::Coth<Value>); }
    static REALobject ASinh(REALobject x) { return CallShowingArgument<N>("ASinh", x, &ttmath::ASinh<Value>); }
    static REALobject ACosh(REALobject x) { return CallShowingArgument<N>("ACosh", x, &ttmath::ACosh<Value>); }
    static REALobject ATanh(REALobject x) { return CallShowingArgument<N>("ATanh", x, &ttmath::ATanh<Value>); }
    static REALobject ACoth(REALobject x) { return CallShowingArgument<N>("ACoth", x, &ttmath::ACoth<Value>); }
};

} // namespace zqt
