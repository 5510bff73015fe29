// The text methods of a number class: its value written as a host string and a host
// string read into its value, with the library's default settings, a base, loose
// arguments or a conversion object. Text goes to the library as UTF-8 and comes back
// as UTF-8; separators are taken as ASCII.
//
// A failed conversion is reported as the failure of the operation the method is known
// by (the six-argument GetStringValue reports as "DoubleValue", as it always has). A
// failed parse still stores what the library read.
#pragma once

#include <cstring>
#include <string>

#include <ttmath/ttmath.h>

#include "numbers/lifecycle.h"
#include "numbers/operation_error.h"
#include "plugin/handler_guard.h"
#include "plugin/host_strings.h"
#include "text/conversion_settings.h"

namespace zqt {

// The names failures are reported under.
inline const char * const kStringValueOperation = "StringValue";
inline const char * const kLooseFormatOperation = "DoubleValue";
inline const char * const kGetStringValueOperation = "GetStringValue";
inline const char * const kSetStringValueOperation = "SetStringValue";

inline const char kDefaultRadixPoint = '.';
inline const char * const kNumberWithStringLog = "NumberWithString";

// A new UTF-8 host string of the NUL-terminated `text`; null for an empty text.
inline REALstring Utf8String(const char * text)
{
    return REALBuildUnicodeString(text, static_cast<int64_t>(std::strlen(text)), kREALTextEncodingUTF8);
}

template <class N>
struct TextMethods {
    using Value = typename N::Value;

    // The StringValue property; Operator_Convert as String comes here too.
    static REALstring GetStringValue(REALobject me, RBInteger)
    {
        Trace("GetStringValue");
        return Guarded([&] { return Format(me, ttmath::Conv(), kStringValueOperation); });
    }

    static REALstring Operator_ConvertString(REALobject me) { return GetStringValue(me, 0); }

    // StringValue(Base as Integer) as String
    static REALstring GetStringValueBase(REALobject me, RBInteger base)
    {
        Trace("GetStringValueBase");
        return Guarded([&] { return Format(me, WithBase(base), kStringValueOperation); });
    }

    // GetStringValue(Base, scientific, scientificFrom, round, TrimZeros, comma): the radix
    // point is the first byte of `comma`, or "." when it has none.
    static REALstring GetStringValueExt(REALobject me, RBInteger base, RBBoolean scientific,
                                        RBInteger scientificFrom, RBInteger round, RBBoolean trimZeros,
                                        REALstring comma)
    {
        Trace("GetStringValueExt");
        return Guarded([&]() -> REALstring {
            ttmath::Conv conv = WithBase(base);
            conv.scient = scientific != 0;
            conv.scient_from = scientificFrom;
            conv.round = round;
            conv.trim_zeroes = trimZeros != 0;
            ttmath::uint radixPoint = SeparatorChar(comma);
            conv.comma = radixPoint ? radixPoint : kDefaultRadixPoint;
            return Format(me, conv, kLooseFormatOperation);
        });
    }

    // GetStringValue(Conversion as BigNumberConversionZQT)
    static REALstring GetStringValueConv(REALobject me, REALobject conversion)
    {
        Trace("GetStringValueConv");
        return Guarded([&]() -> REALstring {
            ttmath::Conv conv;
            if (!GetConv(conversion, conv, kGetStringValueOperation))
                return nullptr;
            return Format(me, conv, kGetStringValueOperation);
        });
    }

    // The StringValue property's setter.
    static void SetStringValue(REALobject me, RBInteger, REALstring text)
    {
        Trace("SetStringValue");
        Guarded([&] { Parse(me, text, ttmath::Conv(), kStringValueOperation); });
    }

    // StringValue(Base as Integer) = text
    static void SetStringValueBase(REALobject me, RBInteger base, REALstring text)
    {
        Trace("SetStringValueBase");
        Guarded([&] { Parse(me, text, WithBase(base), kStringValueOperation); });
    }

    // SetStringValue(Text, Base, byref AfterText, byref ValueRead)
    static void SetStringValueExt(REALobject me, REALstring text, RBInteger base, REALstring * afterText,
                                  RBBoolean * valueRead)
    {
        Trace("SetStringValueExt");
        Guarded([&] {
            rbText utf8(text); // holds the text: AfterText may be the same string
            ClearResults(afterText, valueRead);
            Parse(me, utf8, WithBase(base), kSetStringValueOperation, afterText, valueRead);
        });
    }

    // SetStringValue(Text, Conversion, byref AfterText, byref ValueRead)
    static void SetStringValueConv(REALobject me, REALstring text, REALobject conversion, REALstring * afterText,
                                   RBBoolean * valueRead)
    {
        Trace("SetStringValueConv");
        Guarded([&] {
            rbText utf8(text);
            ClearResults(afterText, valueRead);
            ttmath::Conv conv;
            if (GetConv(conversion, conv, kSetStringValueOperation))
                Parse(me, utf8, conv, kSetStringValueOperation, afterText, valueRead);
        });
    }

    // SetStringValue(Text, Conversion)
    static void SetStringValueConv2(REALobject me, REALstring text, REALobject conversion)
    {
        Trace("SetStringValueConv2");
        Guarded([&] {
            ttmath::Conv conv;
            if (GetConv(conversion, conv, kSetStringValueOperation))
                Parse(me, text, conv, kSetStringValueOperation);
        });
    }

    // A new number read from decimal text. A value beyond the exponent range is reported
    // as the constructor's failure, and the object is still handed back with what the
    // parse left in it; a host that sees the exception drops it.
    static REALobject NumberWithString(REALstring text)
    {
        return Guarded([&]() -> REALobject {
            rbText utf8(text);
            if (DebuggingEnabled)
                LogMessageX("%s%s %p: %s", kLogPrefix, kNumberWithStringLog, static_cast<void *>(text),
                            utf8.GetUTF8());
            return NumberFromText(utf8);
        });
    }

    // The number that decimal text stands for, as NumberWithString makes it.
    static REALobject NumberFromText(rbText & utf8)
    {
        Value value = N::ZeroWithNan();
        if (value.FromString(utf8.GetUTF8(), ttmath::Conv()))
            RaiseOverflowException(kConstructorOperation);
        return N::NewBigNumberZQT(value);
    }

private:
    static ttmath::Conv WithBase(RBInteger base)
    {
        ttmath::Conv conv;
        conv.base = static_cast<ttmath::uint>(base);
        return conv;
    }

    // The receiver's value as text; a nil receiver writes the static zero.
    static REALstring Format(REALobject me, const ttmath::Conv & conv, const char * operation)
    {
        std::string text;
        if (N::ValueOf(me).ToString(text, conv)) {
            RaiseOverflowException(operation, N::Ref(me));
            return nullptr;
        }
        return Utf8String(text.c_str());
    }

    // Out-parameters start as "nothing read".
    static void ClearResults(REALstring * afterText, RBBoolean * valueRead)
    {
        if (afterText && *afterText) {
            REALUnlockString(*afterText);
            *afterText = nullptr;
        }
        if (valueRead)
            *valueRead = 0;
    }

    static void Parse(REALobject me, REALstring text, const ttmath::Conv & conv, const char * operation)
    {
        rbText utf8(text);
        Parse(me, utf8, conv, operation, nullptr, nullptr);
    }

    // Reads the text into a new value; the out-parameters, when given, receive whether a
    // digit was read and the text after the last character read. A failure is reported
    // with the receiver's value before the parse, which is then replaced all the same.
    static void Parse(REALobject me, rbText & utf8, const ttmath::Conv & conv, const char * operation,
                      REALstring * afterText, RBBoolean * valueRead)
    {
        Value value = N::ZeroWithNan();
        const char * after = nullptr;
        bool read = false;
        ttmath::uint failed = value.FromString(utf8.GetUTF8(), conv, afterText ? &after : nullptr,
                                               valueRead ? &read : nullptr);
        if (valueRead)
            *valueRead = read ? 1 : 0;
        if (afterText && after)
            *afterText = Utf8String(after);
        if (failed)
            RaiseOverflowException(operation, N::Ref(me));
        N::SetRef(me, value);
    }
};

} // namespace zqt
