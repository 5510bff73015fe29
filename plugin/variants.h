// Host variants, read through the host: the type code of what a variant holds and its
// value as one type. Each reader prefers the host's direct entry and falls back to the
// variant's value property; a host with neither gives 0 (or no string).
#pragma once

#include <cstdint>

#include "sdk/records.h"
#include "sdk/variant_types.h"

namespace zqt {

// The codes the plugin gives unsigned variants, which the host reports as signed.
enum : RBInteger {
    kVariantTypeUInt32 = 102,
    kVariantTypeUInt64 = 103,
};

// The host's type code, with kVariantTypeUInt32 / kVariantTypeUInt64 for unsigned integers.
RBInteger GetVariantType(REALobject variant);

int32_t GetVariantInt32(REALobject variant);
uint32_t GetVariantUInt32(REALobject variant);
RBInt64 GetVariantInt64(REALobject variant);
RBUInt64 GetVariantUInt64(REALobject variant);
float GetVariantSingle(REALobject variant);
double GetVariantDouble(REALobject variant);
// A new reference (or null) that the caller releases.
REALstring GetVariantString(REALobject variant);

} // namespace zqt
