// The class constants: each a new number holding what the library's setter of the same
// meaning gives at the class's precision. They write no trace line.
#pragma once

#include "plugin/handler_guard.h"

namespace zqt {

template <class N>
struct Constants {
    using Value = typename N::Value;

    // The most negative finite value, not the smallest positive one.
    static REALobject GetMin() { return Set(&Value::SetMin); }
    static REALobject GetMax() { return Set(&Value::SetMax); }
    static REALobject GetZero() { return Set(&Value::SetZero); }
    static REALobject GetOne() { return Set(&Value::SetOne); }
    // Both the NaN and the zero flag.
    static REALobject GetNan() { return Set(&Value::SetZeroNan); }
    static REALobject GetPi() { return Set(&Value::SetPi); }
    static REALobject GetHalfPi() { return Set(&Value::Set05Pi); }
    static REALobject Get2Pi() { return Set(&Value::Set2Pi); }
    static REALobject GetE() { return Set(&Value::SetE); }
    static REALobject GetLn2() { return Set(&Value::SetLn2); }
    static REALobject GetLn10() { return Set(&Value::SetLn10); }

private:
    static REALobject Set(void (Value::*setter)())
    {
        return Guarded([&] {
            Value value;
            (value.*setter)();
            return N::NewBigNumberZQT(value);
        });
    }
};

} // namespace zqt
