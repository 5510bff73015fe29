// Registering a class: its record is adapted to the host's version (flags words, data
// size, record version) in place and handed to the host.
#pragma once

#include <cstdint>

#include "sdk/records.h"

namespace zqt {

// All targets: the flags of every class record, method row and shared method row.
inline const uint32_t kClassFlags = 0x4;
inline const uint32_t kMemberFlags = 0x4;
// All targets, run-time only: the flags of every instance property row.
inline const uint32_t kPropertyFlags = 0x6;

// A flags word rewritten for a host of version `hostVersion`: target bits an older host
// does not know are folded into the all-targets bit, and the plugin's private marker
// bit is removed.
uint32_t FixedFlags(uint32_t flags, double hostVersion);

// Rewrite the flags word of every row for the host's version. The class name is for
// the reader of a debugger's stack only.
void FixFlags(REALmethodDefinition * entries, int64_t count, const char * className);
void FixFlags(REALproperty * entries, int64_t count, const char * className);

// Class data sizes are whole multiples of this.
inline const size_t kDataSizeGranule = 16;
size_t RoundedDataSize(size_t size);

// Patches `record` for the host and registers it. Returns what the host answers, or 0
// when the host has no registration service.
RBInteger MyREALRegisterClass(REALclassDefinition * record);

} // namespace zqt
