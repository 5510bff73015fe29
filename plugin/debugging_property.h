// The hidden shared property `Debugging` that both number classes carry, and the
// "Hidden" attribute it shares with the shared method `LibTypeStr`.
#pragma once

#include "sdk/records.h"

namespace zqt {

// One attribute record: "Hidden" with an empty value.
extern REALattribute DebuggingHiddenAttributes[1];
// One shared property row, referenced by both number classes' records.
extern REALproperty DebuggingSharedProperties[1];

} // namespace zqt
