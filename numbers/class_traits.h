// What tells the two number classes apart: the value type and the name the host knows
// the class by. Everything else is one design, built for both.
#pragma once

#include <ttmath/ttmath.h>

namespace zqt {

// 64-bit exponent, 256-bit mantissa.
struct BigNumberTraits {
    using Value = ttmath::Big<1, 4>;
    static constexpr const char * kName = "BigNumberZQT";
};

// 512-bit exponent, 2048-bit mantissa.
struct BiggerNumberTraits {
    using Value = ttmath::Big<8, 32>;
    static constexpr const char * kName = "BiggerNumberZQT";
};

} // namespace zqt
