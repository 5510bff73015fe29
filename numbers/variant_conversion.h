// A number and the host's Variant: the VariantValue property and the shared method
// NumberWithVariant. The getter always hands out the number's text; the setter and the
// factory read the variant by its type code. The two read floating-point variants
// differently on purpose: the setter through the double reader, NumberWithVariant
// through the single-precision one (a Double 0.1 becomes the Single 0.1).
#pragma once

#include <ttmath/ttmath.h>

#include "numbers/currency.h"
#include "numbers/native_properties.h"
#include "plugin/exceptions.h"
#include "plugin/handler_guard.h"
#include "plugin/variants.h"
#include "text/text_methods.h"

namespace zqt {

inline const char * const kConversionNotSupported = "Conversion not supported.";
inline const char * const kCurrencyValueProperty = "CurrencyValue";
inline const char * const kTotalSecondsProperty = "TotalSeconds";
inline const char * const kSecondsFrom1970Property = "SecondsFrom1970";
inline const char * const kDateSecondsLog = "GetDateTotalSeconds";
inline const char * const kNoSecondsFrom1970Log = "Failed to read SecondsFrom1970 property.";

template <class N>
struct VariantConversion {
    using Value = typename N::Value;
    using Native = NativeProperties<N>;
    using Text = TextMethods<N>;

    // Integral values in range would become integer variants, but each pair of bounds
    // is made crosswise (the lower from the largest value, the upper from the smallest),
    // so no value passes and every number is handed out as its StringValue text. That is
    // the established behaviour of the property and is kept.
    static REALobject GetVariantValue(REALobject me, RBInteger)
    {
        Trace("GetVariantValue");
        return Guarded([&]() -> REALobject {
            const Value & v = N::ValueOf(me);
            if (v.IsZero() || v.IsInteger()) {
                static const Value MinInt32 = Signed(INT32_MAX);
                static const Value MaxInt32 = Signed(INT32_MIN);
                if (!(v < MinInt32) && !(v > MaxInt32))
                    return REALNewVariantInt32(static_cast<int32_t>(Whole(v)));
                static const Value MinInt64 = Signed(INT64_MAX);
                static const Value MaxInt64 = Signed(INT64_MIN);
                if (!(v < MinInt64) && !(v > MaxInt64))
                    return REALNewVariantInt64(Whole(v));
                static const Value MinUInt64 = Signed(0);
                static const Value MaxUInt64 = Signed(-1);
                if (!(v < MinUInt64) && !(v > MaxUInt64) && !v.IsSign())
                    return REALNewVariantUInt64(static_cast<RBUInt64>(Whole(v)));
            }
            OwnedString text(Text::GetStringValue(me, 0));
            return REALNewVariantString(text.get());
        });
    }

    static void SetVariantValue(REALobject me, RBInteger, REALobject variant)
    {
        Trace("SetVariantValue");
        Guarded([&] {
            if (!variant) {
                N::SetRef(me, Zero());
                return;
            }
            switch (GetVariantType(variant)) {
            case kVariantTypeNil:
                N::SetRef(me, Zero());
                return;
            case kVariantTypeInt32:
            case kVariantTypeBoolean:
                N::SetRef(me, Signed(GetVariantInt32(variant)));
                return;
            case kVariantTypeInt64:
                N::SetRef(me, Signed(GetVariantInt64(variant)));
                return;
            case kVariantTypeSingle:
            case kVariantTypeDouble:
                Native::SetDoubleValue(me, 0, GetVariantDouble(variant));
                return;
            case kVariantTypeCurrency:
                Native::SetCurrencyValue(me, 0, CurrencyOf(variant));
                return;
            case kVariantTypeDate:
                Native::SetDoubleValue(me, 0, DateSeconds(variant));
                return;
            case kVariantTypeString:
            case kVariantTypeCString:
            case kVariantTypeWString:
            case kVariantTypePString:
            case kVariantTypeCFStringRef:
            case kVariantTypeOSType:
            case kVariantTypeText: {
                OwnedString text(GetVariantString(variant));
                Text::SetStringValue(me, 0, text.get());
                return;
            }
            case kVariantTypeObject:
                if (!IsOwnClass(variant))
                    break;
                N::SetRef(me, N::ValueOf(variant));
                return;
            case kVariantTypeColor:
            case kVariantTypeUInt32:
                N::SetRef(me, Unsigned(GetVariantUInt32(variant)));
                return;
            case kVariantTypeDateTime:
                Native::SetDoubleValue(me, 0, SecondsFrom1970(variant));
                return;
            case kVariantTypeUInt64:
                N::SetRef(me, Unsigned(GetVariantUInt64(variant)));
                return;
            default:
                break;
            }
            RaiseException(kUnsupportedOperationExceptionClass, kConversionNotSupported);
        });
    }

    // NumberWithVariant(value as variant): nil for a nil variant or one that holds nothing.
    static REALobject NumberWithVariant(REALobject variant)
    {
        Trace("NumberWithVariant");
        return Guarded([&]() -> REALobject {
            if (!variant)
                return nullptr;
            switch (GetVariantType(variant)) {
            case kVariantTypeNil:
                return nullptr;
            case kVariantTypeInt32:
            case kVariantTypeBoolean:
                return N::NewBigNumberZQT(Signed(GetVariantInt32(variant)));
            case kVariantTypeInt64:
                return N::NewBigNumberZQT(Signed(GetVariantInt64(variant)));
            case kVariantTypeSingle:
                Trace("NumberWithSingle");
                return N::NewBigNumberZQT(Floating(GetVariantSingle(variant)));
            case kVariantTypeDouble:
                Trace("NumberWithDouble");
                return N::NewBigNumberZQT(Floating(GetVariantSingle(variant))); // single precision on purpose
            case kVariantTypeCurrency:
                return N::NewBigNumberZQT(CurrencyValue<Value>(CurrencyOf(variant)));
            case kVariantTypeDate: {
                double seconds = DateSeconds(variant);
                Trace("NumberWithDouble");
                return N::NewBigNumberZQT(Floating(seconds));
            }
            case kVariantTypeString:
            case kVariantTypeCString:
            case kVariantTypeWString:
            case kVariantTypePString:
            case kVariantTypeCFStringRef:
            case kVariantTypeOSType:
            case kVariantTypeText: {
                OwnedString text(GetVariantString(variant));
                rbText utf8(text.get());
                return Text::NumberFromText(utf8);
            }
            case kVariantTypeObject:
                if (!IsOwnClass(variant))
                    break;
                return N::NewBigNumberZQT(N::ValueOf(variant));
            case kVariantTypeColor:
            case kVariantTypeUInt32:
                return N::NewBigNumberZQT(Unsigned(GetVariantUInt32(variant)));
            case kVariantTypeDateTime: {
                double seconds = SecondsFrom1970(variant);
                Trace("NumberWithDouble");
                return N::NewBigNumberZQT(Floating(seconds));
            }
            case kVariantTypeUInt64:
                return N::NewBigNumberZQT(Unsigned(GetVariantUInt64(variant)));
            default:
                break;
            }
            RaiseException(kUnsupportedOperationExceptionClass, kConversionNotSupported);
            return nullptr;
        });
    }

private:
    static Value Zero()
    {
        Value v;
        v.SetZero();
        return v;
    }
    static Value Signed(RBInt64 x)
    {
        Value v;
        v.FromInt(x);
        return v;
    }
    static Value Unsigned(RBUInt64 x)
    {
        Value v;
        v.FromUInt(x);
        return v;
    }
    // NaN and infinities give NaN.
    static Value Floating(double x)
    {
        Value v = N::ZeroWithNan();
        v.FromDouble(x);
        return v;
    }

    // The integer part of a value known to fit.
    static RBInt64 Whole(const Value & v)
    {
        ttmath::sint result = 0;
        v.ToInt(result);
        return result;
    }

    static REALcurrency CurrencyOf(REALobject variant)
    {
        REALcurrency count = 0;
        REALGetPropValueCurrency(variant, kCurrencyValueProperty, &count);
        return count;
    }

    static double DateSeconds(REALobject variant)
    {
        double seconds = 0.0;
        REALGetPropValueDouble(variant, kTotalSecondsProperty, &seconds);
        if (DebuggingEnabled)
            LogMessageX("%s%s %f", kLogPrefix, kDateSecondsLog, seconds);
        return seconds;
    }

    // 0 when the property cannot be read.
    static double SecondsFrom1970(REALobject variant)
    {
        double seconds = 0.0;
        if (!REALGetPropValueDouble(variant, kSecondsFrom1970Property, &seconds) && DebuggingEnabled)
            LogMessageX("%s%s", kLogPrefix, kNoSecondsFrom1970Log);
        return seconds;
    }

    // Whether the object in the variant is of this very class (not the other number class).
    static bool IsOwnClass(REALobject object)
    {
        REALclassRef own = REALGetClassRef(N::kName);
        return own && REALObjectIsA(object, own);
    }
};

} // namespace zqt
