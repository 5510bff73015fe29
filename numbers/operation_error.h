// Reporting a failed number operation: one BigNumberErrorExceptionZQT whose message
// names the operation and shows its operands as decimal text, for example
// "Add operation failed with numbers 5 and nil.".
#pragma once

#include <string>

#include <ttmath/ttmath.h>

#include "plugin/debug_log.h"
#include "plugin/owned.h"

namespace zqt {

inline const char * const kErrorExceptionClass = "BigNumberErrorExceptionZQT";

// The text of an operand inside a message, as an ASCII host string; "nil" for none.
OwnedString OperandText(const std::string & digits);
OwnedString NilOperandText();

// Raise with the message built from the operation's name and the operands' texts.
void RaiseOperationFailed(const char * operation);
void RaiseOperationFailed(const char * operation, REALstring value);
void RaiseOperationFailed(const char * operation, REALstring left, REALstring right);

void LogRaise();

// The value-text of an operand: written with the library's default text settings;
// whatever the conversion produced is used ("NaN", "overflow" included).
template <class Value>
OwnedString GetString(const Value * value)
{
    if (!value)
        return NilOperandText();
    std::string digits;
    value->ToString(digits, ttmath::Conv());
    return OperandText(digits);
}

inline void RaiseOverflowException(const char * operation)
{
    LogRaise();
    RaiseOperationFailed(operation);
}

template <class Value>
void RaiseOverflowException(const char * operation, const Value * value)
{
    LogRaise();
    OwnedString text = GetString(value);
    RaiseOperationFailed(operation, text.get());
}

template <class Value>
void RaiseOverflowException(const char * operation, const Value * left, const Value * right)
{
    LogRaise();
    OwnedString leftText = GetString(left);
    OwnedString rightText = GetString(right);
    RaiseOperationFailed(operation, leftText.get(), rightText.get());
}

} // namespace zqt
