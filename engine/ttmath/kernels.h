// Selects the word kernels of the back end this build uses: `ttmath::kernel` names
// either the x86-64 assembly kernels or the portable ones. Both offer the same
// functions with the same results:
//   mul_ww, div_ww          one word times one word, two words divided by one
//   add_n, sub_n            carry chains over n words
//   mul_1, addmul_1, submul_1   n words times one word (stored, added, subtracted)
//   mask_at_least           a comparison as a mask, never as a branch
//   lib_type_str, lib_type  the back end's name and code
// and `ttmath::fixed` has carry chains and a multiply-subtract for sizes known at
// compile time.
#ifndef TTMATH_KERNELS_H
#define TTMATH_KERNELS_H

#include "types.h"

#include <cstddef>
#include "kernels_portable.h"

#ifdef TTMATH_ASM_X86_64
#include "kernels_x86_64.h"
namespace ttmath {
namespace kernel = x86_64_kernels;
}
#else
namespace ttmath {
namespace kernel = portable_kernels;
}
#endif

namespace ttmath {
namespace fixed {

// Carry chains over a size known at compile time. One- and two-word numbers (the
// exponents) use plain C++, which the compiler keeps in registers; four words (the
// 256-bit mantissa) have unrolled kernels.
template<std::size_t n>
inline uint add(uint * r, const uint * a, const uint * b, uint c)
{
#ifdef TTMATH_ASM_X86_64
    if constexpr (n == 4)
        return x86_64_kernels::add_4(r, a, b, c);
    if constexpr (n <= 2)
        return portable_kernels::add_n(r, a, b, n, c);
#endif
    return kernel::add_n(r, a, b, n, c);
}

template<std::size_t n>
inline uint sub(uint * r, const uint * a, const uint * b, uint c)
{
#ifdef TTMATH_ASM_X86_64
    if constexpr (n == 4)
        return x86_64_kernels::sub_4(r, a, b, c);
    if constexpr (n <= 2)
        return portable_kernels::sub_n(r, a, b, n, c);
#endif
    return kernel::sub_n(r, a, b, n, c);
}

// Sizes up to this are handled by C++ that the compiler unrolls and keeps in registers
// (without branches on the data); longer ones go to the back end's loops.
const std::size_t unrolled_max_words = 4;

// r += c and r -= c (c is 0 or 1) over a size known at compile time, without the
// branches of an early exit; return the carry or borrow out.
template<std::size_t n>
inline uint add_carry(uint * r, uint c)
{
#ifdef TTMATH_ASM_X86_64
    if constexpr (n == 4)
        return x86_64_kernels::add_carry_4(r, c);
#endif
    for (std::size_t i = 0; i < n; ++i) {
        r[i] += c;
        c = r[i] < c;
        if constexpr (n > unrolled_max_words) {
            if (c == 0) // long numbers: stop where the carry ends
                break;
        }
    }
    return c;
}

template<std::size_t n>
inline uint sub_carry(uint * r, uint c)
{
#ifdef TTMATH_ASM_X86_64
    if constexpr (n == 4)
        return x86_64_kernels::sub_carry_4(r, c);
#endif
    for (std::size_t i = 0; i < n; ++i) {
        uint before = r[i];
        r[i] = before - c;
        c = before < c;
    }
    return c;
}

// r -= a * b over n words known at compile time; returns the word borrowed from above.
template<std::size_t n>
inline uint submul_1(uint * r, const uint * a, uint b)
{
    if constexpr (n <= unrolled_max_words) {
        uint carry = 0;
        for (std::size_t i = 0; i < n; ++i) {
            uint hi, lo;
            kernel::mul_ww(a[i], b, hi, lo);
            lo += carry;
            hi += lo < carry;
            const uint t = r[i];
            r[i] = t - lo;
            hi += t < lo;
            carry = hi;
        }
        return carry;
    } else {
        return kernel::submul_1(r, a, n, b);
    }
}

} // namespace fixed
} // namespace ttmath

#endif
