// An Int of one more word holding the same value: text conversion works on exponents
// in a type one word wider than the number's, where they cannot overflow.
#ifndef TTMATH_INT_WIDEN_H
#define TTMATH_INT_WIDEN_H

#include "int.h"

namespace ttmath {

template<uint n>
Int<n + 1> Widen(const Int<n> & value)
{
    Int<n + 1> wide;
    for (uint i = 0; i < n; ++i)
        wide.table[i] = value.table[i];
    wide.table[n] = value.IsSign() ? TTMATH_UINT_MAX_VALUE : 0;
    return wide;
}

} // namespace ttmath

#endif
