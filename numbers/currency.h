// Currency: the host's fixed-point type, a signed 64-bit count of ten-thousandths.
#pragma once

#include "plugin/debug_log.h"
#include "sdk/rb_types.h"

namespace zqt {

inline const RBInteger kCurrencyScale = 10000;
inline const char * const kCurrencyToNumberLog = "CurrencyToNumber";

// The count divided by the scale, rounded to the value's precision.
template <class Value>
Value CurrencyValue(REALcurrency count)
{
    Value value;
    value.FromInt(count);
    Value scale;
    scale.FromInt(kCurrencyScale);
    value.Div(scale, true);
    return value;
}

// CurrencyValue with the trace of the conversion.
template <class Value>
Value CurrencyToNumber(REALcurrency count)
{
    if (DebuggingEnabled)
        LogMessageX("%s%s %lld", kLogPrefix, kCurrencyToNumberLog, static_cast<long long>(count));
    Value value = CurrencyValue<Value>(count);
    if (DebuggingEnabled)
        LogMessageX("%s%s %f", kLogPrefix, kCurrencyToNumberLog, value.ToDouble());
    return value;
}

} // namespace zqt
