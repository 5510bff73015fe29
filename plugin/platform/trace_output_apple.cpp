// The system log through Foundation's NSLog, which adds its own time stamp and process name.
#include "plugin/platform/trace_output.h"

#include <CoreFoundation/CoreFoundation.h>

// NSLog takes an NSString format; a constant CFString is the same object.
extern "C" void NSLog(CFStringRef format, ...);

namespace zqt {

void WriteTraceLine(const char * text)
{
    NSLog(CFSTR("%s\n"), text);
}

} // namespace zqt
