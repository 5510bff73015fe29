// Conversions between degrees, radians and grads (a right angle is 90 degrees, 100
// grads, half pi radians): shared methods of both number classes, all computed by the
// library. A failed one-value conversion shows its argument; a failed conversion of a
// degrees-minutes-seconds triple has no single number to show and names only itself.
#pragma once

#include "numbers/checked_call.h"

namespace zqt {

template <class N>
struct AngleConversions {
    using Value = typename N::Value;
    using Code = ttmath::ErrorCode;

    static REALobject DegToGrad(REALobject x)
    {
        return CallShowingArgument<N>("DegToGrad", x, [](const Value & v, Code * c) { return ttmath::DegToGrad(v, c); });
    }
    static REALobject GradToDeg(REALobject x)
    {
        return CallShowingArgument<N>("GradToDeg", x, [](const Value & v, Code * c) { return ttmath::GradToDeg(v, c); });
    }
    static REALobject GradToRad(REALobject x)
    {
        return CallShowingArgument<N>("GradToRad", x, [](const Value & v, Code * c) { return ttmath::GradToRad(v, c); });
    }
    static REALobject RadToGrad(REALobject x)
    {
        return CallShowingArgument<N>("RadToGrad", x, [](const Value & v, Code * c) { return ttmath::RadToGrad(v, c); });
    }
    static REALobject DegToRad(REALobject x)
    {
        return CallShowingArgument<N>("DegToRad", x, [](const Value & v, Code * c) { return ttmath::DegToRad(v, c); });
    }
    static REALobject RadToDeg(REALobject x)
    {
        return CallShowingArgument<N>("RadToDeg", x, [](const Value & v, Code * c) { return ttmath::RadToDeg(v, c); });
    }

    // d + (60 m + s) / 3600, the fraction taking the sign of d; m and s must not be negative.
    static REALobject DegToDeg3(REALobject d, REALobject m, REALobject s)
    {
        return FromTriple("DegToDeg3", "DegToDeg", d, m, s,
                          [](const Value & dv, const Value & mv, const Value & sv, Code * c) {
                              return ttmath::DegToDeg(dv, mv, sv, c);
                          });
    }
    static REALobject DegToRad3(REALobject d, REALobject m, REALobject s)
    {
        return FromTriple("DegToRad3", "DegToRad", d, m, s,
                          [](const Value & dv, const Value & mv, const Value & sv, Code * c) {
                              return ttmath::DegToRad(dv, mv, sv, c);
                          });
    }
    static REALobject DegToGrad3(REALobject d, REALobject m, REALobject s)
    {
        return FromTriple("DegToGrad3", "DegToGrad", d, m, s,
                          [](const Value & dv, const Value & mv, const Value & sv, Code * c) {
                              return ttmath::DegToGrad(dv, mv, sv, c);
                          });
    }

private:
    template <class Function>
    static REALobject FromTriple(const char * traceName, const char * operation, REALobject d, REALobject m,
                                 REALobject s, Function function)
    {
        return CallChecked<N>(
            traceName,
            [&](Code * code) { return function(N::ValueOf(d), N::ValueOf(m), N::ValueOf(s), code); },
            [&] { RaiseOverflowException(operation); });
    }
};

} // namespace zqt
