// BigNumberConversionZQT: a record of settings for writing numbers as text and reading
// them back, one slot per setting of the library's text settings, in the same order.
// The host reads and writes every slot itself; the class only sets the defaults and
// releases its strings.
#pragma once

#include <cstdint>

#include "sdk/records.h"

namespace zqt {

inline const char * const kConversionClass = "BigNumberConversionZQT";

// A Boolean setting: the host reads and writes the first byte of a word-sized slot.
struct BooleanSlot {
    RBBoolean value;
    uint8_t unused[7];
};

struct ConversionData {
    RBInteger base;
    BooleanSlot scientific;
    RBInteger scientificFrom;
    BooleanSlot baseRound;
    RBInteger round;
    BooleanSlot trimZeroes;
    REALstring comma;   // each string slot owns one reference, or is nil
    REALstring comma2;
    REALstring group1;  // integer part
    REALstring group2;  // fraction part
    RBInteger groupDigits;
};

// Eleven word-sized slots, one for each setting.
inline const size_t kConversionSlots = 11;
static_assert(sizeof(ConversionData) == kConversionSlots * sizeof(RBInteger), "one word per setting");

// The settings held by a conversion object.
ConversionData & ConversionOf(REALobject conversion);

} // namespace zqt
