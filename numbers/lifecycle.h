// Constructors and the destructor of a number class. Every constructor builds the new
// value first and then replaces the receiver's; the old value is released only after
// the new one exists.
#pragma once

#include "numbers/currency.h"
#include "numbers/operation_error.h"
#include "plugin/handler_guard.h"
#include "plugin/host_strings.h"

namespace zqt {

inline const char * const kConstructorOperation = "Constructor";

template <class N>
struct Lifecycle {
    using Value = typename N::Value;

    static void ConstructorEmpty(REALobject me)
    {
        Trace("ConstructorEmpty");
        Guarded([&] {
            Value value;
            value.SetZero();
            N::SetRef(me, value);
        });
    }

    // Parsed as decimal text with the library's default settings. A text the library
    // cannot read is reported, and the receiver still takes what the parse left.
    static void ConstructorString(REALobject me, REALstring text)
    {
        Trace("ConstructorString");
        Guarded([&] {
            rbText utf8(text);
            Value value = N::ZeroWithNan();
            if (value.FromString(utf8.GetUTF8(), ttmath::Conv()))
                RaiseOverflowException(kConstructorOperation, N::Ref(me));
            N::SetRef(me, value);
        });
    }

    static void ConstructorInt32(REALobject me, int32_t v) { FromSigned(me, v, "ConstructorInt32"); }
    static void ConstructorInt64(REALobject me, RBInt64 v) { FromSigned(me, v, "ConstructorInt64"); }
    static void ConstructorUInt32(REALobject me, uint32_t v) { FromUnsigned(me, v, "ConstructorUInt32"); }
    static void ConstructorUInt64(REALobject me, RBUInt64 v) { FromUnsigned(me, v, "ConstructorUInt64"); }
    static void ConstructorDouble(REALobject me, double v) { FromDouble(me, v, "ConstructorDouble"); }
    static void ConstructorSingle(REALobject me, float v) { FromDouble(me, v, "ConstructorSingle"); }

    static void ConstructorCurrency(REALobject me, REALcurrency count)
    {
        Trace("ConstructorCurrency");
        Guarded([&] { N::SetRef(me, CurrencyToNumber<Value>(count)); });
    }

    // A nil `other` copies the static zero, so the copy is both zero and NaN.
    static void ConstructorCopy(REALobject me, REALobject other)
    {
        Trace("ConstructorCopy");
        Guarded([&] { N::SetRef(me, N::ValueOf(other)); });
    }

    static void Destructor(REALobject me)
    {
        Trace("Destructor");
        Guarded([&] { N::ReleaseRef(me); });
    }

private:
    static void FromSigned(REALobject me, RBInt64 v, const char * name)
    {
        Trace(name);
        Guarded([&] {
            Value value;
            value.FromInt(v);
            N::SetRef(me, value);
        });
    }

    static void FromUnsigned(REALobject me, RBUInt64 v, const char * name)
    {
        Trace(name);
        Guarded([&] {
            Value value;
            value.FromUInt(v);
            N::SetRef(me, value);
        });
    }

    // Exact for every finite double; NaN and infinities give a NaN value, silently.
    static void FromDouble(REALobject me, double v, const char * name)
    {
        Trace(name);
        Guarded([&] {
            Value value = N::ZeroWithNan();
            value.FromDouble(v);
            N::SetRef(me, value);
        });
    }
};

} // namespace zqt
