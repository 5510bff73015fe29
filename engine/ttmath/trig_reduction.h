// Argument reduction of sin, cos, tan and cot: x = k pi/2 + r with |r| <= pi/4, exact
// for every argument below 2^trig_reduction_limit_bits in magnitude; beyond, the
// functions fail with err_overflow.
#ifndef TTMATH_TRIG_REDUCTION_H
#define TTMATH_TRIG_REDUCTION_H

#include "types.h"

namespace ttmath {
namespace wide {

const uint trig_reduction_limit_bits = 65536;

} // namespace wide
} // namespace ttmath

#endif
