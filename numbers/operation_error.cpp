#include "numbers/operation_error.h"

#include <cstring>
#include <initializer_list>

#include "plugin/exceptions.h"
#include "plugin/host_strings.h"
#include "sdk/encodings.h"

namespace zqt {

namespace {

const char * const kRaiseLog = "RaiseOverflowException";
const char * const kNotAsciiLog = "Error: text is not ascii";
const char * const kNil = "nil";
const char * const kFailed = " operation failed.";
const char * const kFailedWithNumber = " operation failed with number ";
const char * const kFailedWithNumbers = " operation failed with numbers ";
const char * const kAnd = " and ";
const char * const kEnd = ".";
const unsigned char kFirstNonAsciiByte = 0x80;

OwnedString Ascii(const char * text, size_t length)
{
    return OwnedString(text ? REALBuildUnicodeString(text, static_cast<int64_t>(length), kREALTextEncodingASCII)
                            : nullptr);
}

OwnedString Ascii(const char * text)
{
    return Ascii(text, text ? std::strlen(text) : 0);
}

// The parts one after the other, through the host's concatenation.
OwnedString Joined(std::initializer_list<REALstring> parts)
{
    OwnedString joined;
    for (REALstring part : parts)
        joined = OwnedString(REALAddStrings(joined.get(), part));
    return joined;
}

} // namespace

void LogRaise()
{
    if (DebuggingEnabled)
        LogMessageX("%s%s", kLogPrefix, kRaiseLog);
}

OwnedString OperandText(const std::string & digits)
{
    if (DebuggingEnabled) {
        for (char c : digits)
            if (static_cast<unsigned char>(c) >= kFirstNonAsciiByte) {
                LogMessageX("%s%s", kLogPrefix, kNotAsciiLog);
                break;
            }
    }
    return Ascii(digits.data(), digits.size());
}

OwnedString NilOperandText()
{
    return Ascii(kNil);
}

void RaiseOperationFailed(const char * operation)
{
    OwnedString failed = Ascii(kFailed);
    OwnedString name = Ascii(operation);
    OwnedString message = Joined({name.get(), failed.get()});
    RaiseException(kErrorExceptionClass, message.get());
}

void RaiseOperationFailed(const char * operation, REALstring value)
{
    OwnedString failed = Ascii(kFailedWithNumber);
    OwnedString end = Ascii(kEnd);
    OwnedString name = Ascii(operation);
    OwnedString message = Joined({name.get(), failed.get(), value, end.get()});
    RaiseException(kErrorExceptionClass, message.get());
}

void RaiseOperationFailed(const char * operation, REALstring left, REALstring right)
{
    OwnedString failed = Ascii(kFailedWithNumbers);
    OwnedString conjunction = Ascii(kAnd);
    OwnedString end = Ascii(kEnd);
    OwnedString name = Ascii(operation);
    OwnedString message = Joined({name.get(), failed.get(), left, conjunction.get(), right, end.get()});
    RaiseException(kErrorExceptionClass, message.get());
}

} // namespace zqt
