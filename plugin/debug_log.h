// The debug trace: when the hidden shared property `Debugging` is on, every handler
// writes "ZQT Debug: " and its own name, and the bridge writes a line for each fault it
// mends or reports. With the switch off nothing is formatted or written.
#pragma once

#include <cstdint>

namespace zqt {

// One switch for the whole plugin, shared by both number classes.
inline unsigned char DebuggingEnabled = 0;

// Put in front of every message.
inline const char * const kLogPrefix = "ZQT Debug: ";

// Accessors of the shared property `Debugging`.
int8_t getDebugging();
void setDebugging(int8_t value);

// Formats one message (cut at the size of its line buffer) and writes it as one line.
void LogMessageX(const char * format, ...)
#if defined(__GNUC__)
    __attribute__((format(printf, 1, 2)))
#endif
    ;

// Writes the prefix and `name` when the trace is on.
inline void Trace(const char * name)
{
    if (DebuggingEnabled)
        LogMessageX("%s%s", kLogPrefix, name);
}

} // namespace zqt
