// BigNumberConversionZQT: a record of settings for writing numbers as text and reading
// them back, one slot per setting of the library's text settings, in the same order.
#pragma once

#include <cstdint>

#include "sdk/rb_types.h"

namespace zqt {

struct ConversionData {
    RBInteger base;
    RBInteger scientific;      // a Boolean in the first byte
    RBInteger scientificFrom;
    RBInteger baseRound;       // a Boolean in the first byte
    RBInteger round;
    RBInteger trimZeroes;      // a Boolean in the first byte
    REALstring comma;
    REALstring comma2;
    REALstring group1;
    REALstring group2;
    RBInteger groupDigits;
};

} // namespace zqt
