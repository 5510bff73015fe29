#include "plugin/debugging_property.h"

#include "plugin/debug_log.h"

namespace zqt {

namespace {

// All targets, run-time only, public.
const uint32_t kDebuggingFlags = 0x26;

} // namespace

REALattribute DebuggingHiddenAttributes[1] = {{"Hidden", ""}};

REALproperty DebuggingSharedProperties[1] = {{
    nullptr, "Debugging", "Boolean", kDebuggingFlags,
    reinterpret_cast<REALproc>(&getDebugging), reinterpret_cast<REALproc>(&setDebugging),
    0, nullptr, 0, nullptr, 1, DebuggingHiddenAttributes,
}};

} // namespace zqt
