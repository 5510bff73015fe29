// The options of text conversion (ToString and FromString).
#ifndef TTMATH_CONV_H
#define TTMATH_CONV_H

#include "types.h"

namespace ttmath {

struct Conv {
    uint base;          // 2 to 16
    bool scient;        // always scientific form
    sint scient_from;   // scientific form from this many integer digits on
    bool base_round;    // round the last digit in bases other than powers of two
    sint round;         // digits after the radix point, -1 for all
    bool trim_zeroes;   // drop trailing zeros of the fraction
    uint comma;         // radix point; 0 means there is none
    uint comma2;        // second radix point accepted when parsing
    uint group;         // separator of the integer part's digit groups, 0 for none
    uint group2;        // separator of the fraction part's digit groups, 0 for none
    uint group_digits;  // digits in a group
    uint group_exp;     // kept for compatibility; unused

    Conv()
        : base(10), scient(false), scient_from(15), base_round(true), round(-1),
          trim_zeroes(true), comma('.'), comma2(','), group(0), group2(0),
          group_digits(3), group_exp(0)
    {
    }
};

} // namespace ttmath

#endif
