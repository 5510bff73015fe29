#include "plugin/debug_log.h"

#include <cstdarg>
#include <cstdio>

#include "plugin/platform/trace_output.h"

namespace zqt {

namespace {

// Longer messages are cut to one byte less than this.
const size_t kLogLineSize = 4096;

} // namespace

int8_t getDebugging()
{
    return static_cast<int8_t>(DebuggingEnabled);
}

void setDebugging(int8_t value)
{
    DebuggingEnabled = value != 0 ? 1 : 0;
}

void LogMessageX(const char * format, ...)
{
    char line[kLogLineSize] = {};
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);
    WriteTraceLine(line);
}

} // namespace zqt
