#include "plugin/exceptions.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <stdexcept>

#include "plugin/debug_log.h"
#include "plugin/host_strings.h"
#include "plugin/owned.h"
#include "sdk/encodings.h"

namespace zqt {

namespace {

const RBInteger kErrorNumber = 0;

const char * const kOutOfBoundsFormat =
    "The parameter %s %s%s is too %s. Range is %lld to %lld, but value is %lld.";
const char * const kOutOfBoundsWithoutMemory = "Out of Bounds";
const char * const kUnnamedParameter = "?";
const char * const kBeforeMethodName = "to method ";
const char * const kTooSmall = "small";
const char * const kTooBig = "big";
// Room for the fixed words and the three numbers of the message.
const size_t kOutOfBoundsRoom = 200;

const char * const kUnnamedExceptionLog = "Unnamed C++ Exception.";
const char * const kUnnamedExceptionMessage = "Sorry, but there was an unnamed C++ Exception.";

// How a standard exception is shown to the host; the first row that matches its type wins.
struct StandardMapping {
    bool (*matches)(const std::exception &);
    const char * className;
    const char * messageBase;
};

template <class T>
bool Is(const std::exception & e)
{
    return dynamic_cast<const T *>(&e) != nullptr;
}

bool Any(const std::exception &)
{
    return true;
}

// Both range errors read the same.
const char * const kRangeError = "C++ reports range error";

const StandardMapping kStandardMappings[] = {
    {&Is<std::bad_alloc>, kOutOfMemoryExceptionClass, "Failed to allocate memory"},
    {&Is<std::range_error>, kOutOfBoundsExceptionClass, kRangeError},
    {&Is<std::out_of_range>, kOutOfBoundsExceptionClass, kRangeError},
    {&Is<std::overflow_error>, kOutOfBoundsExceptionClass, "C++ reports overflow error"},
    {&Is<std::underflow_error>, kOutOfBoundsExceptionClass, "C++ reports underflow error"},
    {&Any, kRuntimeExceptionClass, "C++ Exception"},
};
const char * const kBeforeExceptionText = ": ";
const char * const kWithoutExceptionText = ".";

} // namespace

void RaiseException(const char * className, REALstring message)
{
    OwnedObject exception(REALnewInstance(className));
    if (!exception)
        exception.reset(REALnewInstance(kRuntimeExceptionClass));
    if (!exception)
        return;
    REALSetPropValueString(exception.get(), kMessageProperty, message);
    REALSetPropValueInteger(exception.get(), kErrorNumberProperty, kErrorNumber);
    REALRaiseException(exception.get());
}

void RaiseException(const char * className, const char * message)
{
    OwnedString text(message ? REALBuildUnicodeString(message, static_cast<int64_t>(std::strlen(message)),
                                                      kREALTextEncodingUTF8)
                             : nullptr);
    RaiseException(className, text.get());
}

void RaiseOutOfBoundsException(int64_t value, int64_t minimum, int64_t limit, const char * parameterName,
                               const char * methodName)
{
    const char * parameter = parameterName ? parameterName : kUnnamedParameter;
    const char * method = methodName ? methodName : "";
    size_t size = std::strlen(parameter) + std::strlen(method) + kOutOfBoundsRoom;
    FreeLater buffer(std::calloc(size, 1));
    if (!buffer.as<char>()) {
        RaiseException(kOutOfBoundsExceptionClass, kOutOfBoundsWithoutMemory);
        return;
    }
    std::snprintf(buffer.as<char>(), size, kOutOfBoundsFormat, parameter, *method ? kBeforeMethodName : "", method,
                  value < minimum ? kTooSmall : kTooBig, static_cast<long long>(minimum),
                  static_cast<long long>(limit) - 1, static_cast<long long>(value));
    RaiseException(kOutOfBoundsExceptionClass, buffer.as<char>());
}

void RaiseRuntimeException(const std::exception & e)
{
    const StandardMapping * mapping = &kStandardMappings[0];
    while (!mapping->matches(e))
        ++mapping;
    const char * text = e.what();
    if (!text)
        text = "";
    const char * tail = *text ? kBeforeExceptionText : kWithoutExceptionText;
    size_t size = std::strlen(mapping->messageBase) + std::strlen(tail) + std::strlen(text) + 1;
    FreeLater message(std::calloc(size, 1));
    if (!message.as<char>()) {
        RaiseException(mapping->className, mapping->messageBase);
        return;
    }
    std::snprintf(message.as<char>(), size, "%s%s%s", mapping->messageBase, tail, text);
    RaiseException(mapping->className, message.as<char>());
}

void RaiseUnnamedException()
{
    if (DebuggingEnabled)
        LogMessageX("%s%s", kLogPrefix, kUnnamedExceptionLog);
    RaiseException(kRuntimeExceptionClass, kUnnamedExceptionMessage);
}

} // namespace zqt
