// Shared methods that make a new number from a native host value: the class-level twins
// of the typed constructors, giving the same values. They never raise: every input has
// a value (NaN for a double NaN or infinity).
#pragma once

#include <cstring>

#include "numbers/currency.h"
#include "plugin/handler_guard.h"
#include "plugin/host_strings.h"

namespace zqt {

template <class N>
struct Factories {
    using Value = typename N::Value;

    static REALobject NumberWithInteger(RBInteger v) { return FromSigned(v, "NumberWithInteger"); }
    static REALobject NumberWithInt64(RBInt64 v) { return FromSigned(v, "NumberWithInt64"); }
    static REALobject NumberWithInt32(int32_t v) { return FromSigned(v, "NumberWithInt32"); }
    static REALobject NumberWithUInt64(RBUInt64 v) { return FromUnsigned(v, "NumberWithUInt64"); }
    static REALobject NumberWithUInt32(uint32_t v) { return FromUnsigned(v, "NumberWithUInt32"); }
    static REALobject NumberWithUInteger(RBUInteger v) { return FromUnsigned(v, "NumberWithUInteger"); }
    static REALobject NumberWithSingle(float v) { return FromDouble(v, "NumberWithSingle"); }
    static REALobject NumberWithDouble(double v) { return FromDouble(v, "NumberWithDouble"); }

    static REALobject NumberWithCurrency(REALcurrency count)
    {
        Trace("NumberWithCurrency");
        return Guarded([&] { return N::NewBigNumberZQT(CurrencyValue<Value>(count)); });
    }

    // Which arithmetic back end the library was built with, as ASCII text.
    static REALstring rbLibTypeStr()
    {
        return Guarded([] {
            const char * type = Value::LibTypeStr();
            return REALBuildUnicodeString(type, static_cast<int64_t>(std::strlen(type)), kREALTextEncodingASCII);
        });
    }

private:
    static REALobject FromSigned(RBInt64 v, const char * name)
    {
        Trace(name);
        return Guarded([&] {
            Value value;
            value.FromInt(v);
            return N::NewBigNumberZQT(value);
        });
    }

    static REALobject FromUnsigned(RBUInt64 v, const char * name)
    {
        Trace(name);
        return Guarded([&] {
            Value value;
            value.FromUInt(v);
            return N::NewBigNumberZQT(value);
        });
    }

    static REALobject FromDouble(double v, const char * name)
    {
        Trace(name);
        return Guarded([&] {
            Value value = N::ZeroWithNan();
            value.FromDouble(v);
            return N::NewBigNumberZQT(value);
        });
    }
};

} // namespace zqt
