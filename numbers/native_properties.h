// Properties that show a number as a native host value: four read-only tests and the
// Integer, Int64, UInt64, Double and Currency conversions. A value that does not fit
// its target is reported by name and the getter returns 0; setters never report.
#pragma once

#include <cstring>

#include "numbers/currency.h"
#include "numbers/operation_error.h"
#include "plugin/handler_guard.h"

namespace zqt {

// Labels of the currency conversion's trace.
inline const char * const kNumberToCurrencyLog = "NumberToCurrency";
inline const char * const kScaleLabel = "f";
inline const char * const kProductLabel = "x";
inline const char * const kRoundingLabel = "v";
inline const char * const kFailedLabel = "r";
inline const char * const kCountLabel = "n";

template <class N>
struct NativeProperties {
    using Value = typename N::Value;

    static RBBoolean IsZero(REALobject me, RBInteger)
    {
        Trace("IsZero");
        return N::ValueOf(me).IsZero() ? 1 : 0;
    }
    // Shown to the host as IsNegative.
    static RBBoolean IsSign(REALobject me, RBInteger)
    {
        Trace("IsSign");
        return N::ValueOf(me).IsSign() ? 1 : 0;
    }
    static RBBoolean IsNan(REALobject me, RBInteger)
    {
        Trace("IsNan");
        return N::ValueOf(me).IsNan() ? 1 : 0;
    }
    static RBBoolean IsInteger(REALobject me, RBInteger)
    {
        Trace("IsInteger");
        const Value & v = N::ValueOf(me);
        return v.IsZero() || v.IsInteger() ? 1 : 0;
    }

    static RBInteger GetIntegerValue(REALobject me, RBInteger)
    {
        return SignedValue(me, "GetIntegerValue", "IntegerValue");
    }
    static RBInt64 GetInt64Value(REALobject me, RBInteger) { return SignedValue(me, "GetInt64Value", "Int64Value"); }

    // Any value with the sign bit is refused, also one that would truncate to 0 and a
    // zero that carries the sign.
    static RBUInt64 GetUInt64Value(REALobject me, RBInteger)
    {
        const char * const operation = "UInt64Value";
        Trace("GetUInt64Value");
        return Guarded([&]() -> RBUInt64 {
            const Value & v = N::ValueOf(me);
            if (v.IsZero() && !v.IsSign())
                return 0;
            ttmath::uint result = 0;
            if (v.ToUInt(result)) {
                RaiseOverflowException(operation, N::Ref(me));
                return 0;
            }
            return result;
        });
    }

    // Truncated to 53 bits (toward zero). NaN gives a quiet NaN without a report;
    // magnitudes beyond the double range, or below its smallest subnormal, are reported.
    static double GetDoubleValue(REALobject me, RBInteger)
    {
        const char * const operation = "DoubleValue";
        Trace("GetDoubleValue");
        return Guarded([&]() -> double {
            double result = 0.0;
            if (N::ValueOf(me).ToDouble(result)) {
                RaiseOverflowException(operation, N::Ref(me));
                return 0.0;
            }
            return result;
        });
    }

    // The value times 10000, rounded half away from zero to a whole count.
    static REALcurrency GetCurrencyValue(REALobject me, RBInteger)
    {
        const char * const operation = "CurrencyValue";
        Trace("GetCurrencyValue");
        return Guarded([&]() -> REALcurrency {
            Value x = N::ValueOf(me);
            LogDouble(kNumberToCurrencyLog, x);
            Value scale;
            scale.FromInt(kCurrencyScale);
            LogDouble(kScaleLabel, scale);
            x.Mul(scale, true);
            LogDouble(kProductLabel, x);
            ttmath::uint rounding = x.Round();
            if (DebuggingEnabled)
                LogMessageX("%s%s %lld", kLogPrefix, kRoundingLabel, static_cast<long long>(rounding));
            LogDouble(kProductLabel, x);
            ttmath::sint count = 0;
            ttmath::uint failed = x.ToInt(count);
            if (DebuggingEnabled) {
                LogMessageX("%s%s %llu", kLogPrefix, kFailedLabel, static_cast<unsigned long long>(failed));
                LogMessageX("%s%s %lld", kLogPrefix, kCountLabel, static_cast<long long>(count));
            }
            if (failed) {
                RaiseOverflowException(operation);
                return 0;
            }
            return count;
        });
    }

    static void SetIntegerValue(REALobject me, RBInteger, RBInteger v) { StoreSigned(me, v, "SetIntegerValue"); }
    static void SetInt64Value(REALobject me, RBInteger, RBInt64 v) { StoreSigned(me, v, "SetInt64Value"); }

    static void SetUInt64Value(REALobject me, RBInteger, RBUInt64 v)
    {
        Trace("SetUInt64Value");
        Guarded([&] {
            Value value;
            value.FromUInt(v);
            N::SetRef(me, value);
        });
    }

    // The double's exact binary value; NaN and infinities give NaN.
    static void SetDoubleValue(REALobject me, RBInteger, double v)
    {
        Trace("SetDoubleValue");
        Guarded([&] {
            Value value = N::ZeroWithNan();
            value.FromDouble(v);
            N::SetRef(me, value);
        });
    }

    static void SetCurrencyValue(REALobject me, RBInteger, REALcurrency count)
    {
        Trace("SetCurrencyValue");
        Guarded([&] { N::SetRef(me, CurrencyToNumber<Value>(count)); });
    }

private:
    static ttmath::sint SignedValue(REALobject me, const char * name, const char * operation)
    {
        Trace(name);
        return Guarded([&]() -> ttmath::sint {
            const Value & v = N::ValueOf(me);
            if (v.IsZero())
                return 0;
            ttmath::sint result = 0;
            if (v.ToInt(result)) {
                RaiseOverflowException(operation, N::Ref(me));
                return 0;
            }
            return result;
        });
    }

    static void StoreSigned(REALobject me, RBInt64 v, const char * name)
    {
        Trace(name);
        Guarded([&] {
            Value value;
            value.FromInt(v);
            N::SetRef(me, value);
        });
    }

    static void LogDouble(const char * label, const Value & v)
    {
        if (DebuggingEnabled)
            LogMessageX("%s%s %f", kLogPrefix, label, v.ToDouble());
    }
};

} // namespace zqt
