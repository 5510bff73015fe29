// The common case of Add for Big<1, 4> (one exponent word, four mantissa words) in
// x86-64 assembly, from the exponents to the stored result: for a 256-bit sum the
// bookkeeping around the mantissa arithmetic is most of the cost, and here everything
// stays in registers, with no branch that depends on the data. Same rules as
// Big::AddNormalised (big_add.h), whose C++ serves every other size and the portable
// back end with identical results.
//
// Both functions take pointers to the exponent word of the two values; the mantissa
// words follow it and then the flag byte (Big's layout, checked by the caller). Both
// values must be normalised and carry no flag but the sign. They return false, having
// written nothing, when the case is not theirs: the exponents differ by a word or more
// or their difference does not fit a word, or a difference cancels the whole top
// word. Otherwise they store the result in the first value (the NaN flag set when the
// exponent left its range) and return true.
#ifndef TTMATH_BIG_ADD_X86_64_H
#define TTMATH_BIG_ADD_X86_64_H

#include "types.h"

namespace ttmath {
namespace x86_64_add {

// Byte offsets from the exponent word.
const int mantissa_offset = 8;
const int info_offset = 40;

// rcx = e1 - e2 (leaves when it does not fit a word).
#define TTMATH_ADD_EXPONENT_DIFFERENCE                                                      \
    "movq (%[a]), %%rcx\n\t"                                                                \
    "subq (%[b]), %%rcx\n\t"                                                                \
    "jo %l[other]\n\t"

// With the flags of a test of the selector: l = the first value when it is not
// negative, else the second; b = the other one.
#define TTMATH_ADD_SELECT(selector)                                                         \
    "movq %[a], %[l]\n\t"                                                                   \
    "testq " selector ", " selector "\n\t"                                                  \
    "cmovsq %[b], %[l]\n\t"                                                                 \
    "cmovsq %[a], %[b]\n\t"

// rcx = |rcx|, leaving unless it is below 64 (the minimum stays itself and
// leaves too).
#define TTMATH_ADD_DISTANCE                                                                 \
    "movq %%rcx, %[t0]\n\t"                                                                 \
    "negq %[t0]\n\t"                                                                        \
    "cmovnsq %[t0], %%rcx\n\t"                                                              \
    "cmpq $63, %%rcx\n\t"                                                                   \
    "ja %l[other]\n\t"

// s3:s2:s1:s0 = b's mantissa >> cl, lost = the bits shifted out, from the top down.
#define TTMATH_ADD_LOAD_SHIFTED                                                             \
    "movq %c[m0](%[b]), %[s0]\n\t"                                                          \
    "movq %c[m1](%[b]), %[s1]\n\t"                                                          \
    "movq %c[m2](%[b]), %[s2]\n\t"                                                          \
    "movq %c[m3](%[b]), %[s3]\n\t"                                                          \
    "xorl %k[lost], %k[lost]\n\t"                                                           \
    "shrdq %%cl, %[s0], %[lost]\n\t"                                                        \
    "shrdq %%cl, %[s1], %[s0]\n\t"                                                          \
    "shrdq %%cl, %[s2], %[s1]\n\t"                                                          \
    "shrdq %%cl, %[s3], %[s2]\n\t"                                                          \
    "shrq %%cl, %[s3]\n\t"

// CF = the half-to-even rounding step of the kept part whose lowest word is `low` on
// the lost bits: the carry out of lost + (2^63 - 1) + (lowest kept bit), which is set
// exactly when the lost bits exceed half a unit or equal it with the kept part odd.
#define TTMATH_ADD_ROUNDING_CARRY(low, t, u)                                                \
    "movabsq $0x7fffffffffffffff, %[" #u "]\n\t"                                            \
    "movq %[" #low "], %[" #t "]\n\t"                                                       \
    "andl $1, %k[" #t "]\n\t"                                                               \
    "addq %[" #u "], %[" #t "]\n\t"                                                         \
    "addq %[lost], %[" #t "]\n\t"

// The operands of both statements. "memory" covers both values, read and written
// through the pointers.
#define TTMATH_ADD_OUTPUTS                                                                  \
    [l] "=&r"(l), [count] "=&c"(count), [s0] "=&r"(s0), [s1] "=&r"(s1), [s2] "=&r"(s2),     \
        [s3] "=&r"(s3), [lost] "=&r"(lost), [t0] "=&r"(t0), [t1] "=&r"(t1), [b] "+&r"(b)
#define TTMATH_ADD_INPUTS_CLOBBERS_LABELS                                                   \
    : [a] "r"(a), [m0] "i"(mantissa_offset), [m1] "i"(mantissa_offset + 8),                 \
      [m2] "i"(mantissa_offset + 16), [m3] "i"(mantissa_offset + 24), [inf] "i"(info_offset), \
      [nan] "i"(TTMATH_BIG_NAN), [round] "i"(round ? 1 : 0)                                 \
    : "cc", "memory"                                                                        \
    : other

// Operands of the same sign: the sum of the mantissas, halved when it carries out of
// four words (a select, not a branch), then rounded; the exponent is the larger one
// plus the halvings, and the sign is the first value's.
template<bool round>
inline bool sum(uint * a, const uint * second)
{
    const uint * b = second;
    const uint * l;
    uint count, s0, s1, s2, s3, lost, t0, t1, h;
    __asm__ volatile goto(TTMATH_ADD_EXPONENT_DIFFERENCE
                 TTMATH_ADD_SELECT("%%rcx")
                 TTMATH_ADD_DISTANCE
                 // from here on the case is ours: the exponent is stored now and adjusted
                 "movq (%[l]), %[t0]\n\t"
                 "movq %[t0], (%[a])\n\t"
                 TTMATH_ADD_LOAD_SHIFTED
                 "addq %c[m0](%[l]), %[s0]\n\t"
                 "adcq %c[m1](%[l]), %[s1]\n\t"
                 "adcq %c[m2](%[l]), %[s2]\n\t"
                 "adcq %c[m3](%[l]), %[s3]\n\t"
                 "sbbq %[h], %[h]\n\t" // minus the carry out
                 // the sum halved, the carry becoming its top bit, chosen when it carried
                 "movq %[lost], %[t0]\n\t"
                 "shrdq $1, %[s0], %[t0]\n\t"
                 "movq %[s0], %[t1]\n\t"
                 "shrdq $1, %[s1], %[t1]\n\t"
                 "movq %[s1], %[b]\n\t"
                 "shrdq $1, %[s2], %[b]\n\t"
                 "movq %[s2], %%rcx\n\t"
                 "shrdq $1, %[s3], %%rcx\n\t"
                 "movq %[s3], %[l]\n\t"
                 "shrdq $1, %[h], %[l]\n\t"
                 "testq %[h], %[h]\n\t"
                 "cmovnzq %[t0], %[lost]\n\t"
                 "cmovnzq %[t1], %[s0]\n\t"
                 "cmovnzq %[b], %[s1]\n\t"
                 "cmovnzq %%rcx, %[s2]\n\t"
                 "cmovnzq %[l], %[s3]\n\t"
                 ".if %c[round]\n\t"
                 TTMATH_ADD_ROUNDING_CARRY(s0, t0, t1)
                 "adcq $0, %[s0]\n\t"
                 "adcq $0, %[s1]\n\t"
                 "adcq $0, %[s2]\n\t"
                 "adcq $0, %[s3]\n\t"
                 "jc 7f\n" // the mantissa was all ones (rare)
                 "6:\n\t"
                 ".endif\n\t"
                 "subq %[h], (%[a])\n\t" // the halvings
                 "jo 5f\n" // that passed the top (rare)
                 "4:\n\t"
                 "movq %[s0], %c[m0](%[a])\n\t"
                 "movq %[s1], %c[m1](%[a])\n\t"
                 "movq %[s2], %c[m2](%[a])\n\t"
                 "movq %[s3], %c[m3](%[a])\n\t"
                 "jmp 3f\n"
                 "5:\n\t"
                 "orb %[nan], %c[inf](%[a])\n\t"
                 "jmp 4b\n"
                 ".if %c[round]\n"
                 // a rounding that carried out: all words are zero, only the top bit is
                 // left, and the exponent gains one more
                 "7:\n\t"
                 "btsq $63, %[s3]\n\t"
                 "subq $1, %[h]\n\t"
                 "jmp 6b\n"
                 ".endif\n"
                 "3:\n\t"
                 : TTMATH_ADD_OUTPUTS, [h] "=&r"(h)
                 TTMATH_ADD_INPUTS_CLOBBERS_LABELS);
    return true;
other:
    return false;
}

// Operands of different signs: the larger magnitude's mantissa minus the other one
// shifted, rounded toward zero on the bits shifted out, then normalised; the exponent
// is the larger one minus the normalising shift, and the sign is the larger's.
template<bool round>
inline bool difference(uint * a, const uint * second)
{
    const uint * b = second;
    const uint * l;
    uint count, s0, s1, s2, s3, lost, t0, t1;
    __asm__ volatile goto(TTMATH_ADD_EXPONENT_DIFFERENCE
                 // the selector: e1 - e2, or for equal exponents minus (first mantissa <
                 // second)
                 "movq %%rcx, %[t1]\n\t"
                 "jnz 1f\n\t"
                 "movq %c[m0](%[a]), %[t0]\n\t"
                 "subq %c[m0](%[b]), %[t0]\n\t"
                 "movq %c[m1](%[a]), %[t0]\n\t"
                 "sbbq %c[m1](%[b]), %[t0]\n\t"
                 "movq %c[m2](%[a]), %[t0]\n\t"
                 "sbbq %c[m2](%[b]), %[t0]\n\t"
                 "movq %c[m3](%[a]), %[t0]\n\t"
                 "sbbq %c[m3](%[b]), %[t0]\n\t"
                 "sbbq %[t1], %[t1]\n"
                 "1:\n\t"
                 TTMATH_ADD_SELECT("%[t1]")
                 TTMATH_ADD_DISTANCE
                 TTMATH_ADD_LOAD_SHIFTED
                 // x = l's mantissa - s, into t0, s0, s1, s2
                 "movq %c[m0](%[l]), %[t0]\n\t"
                 "subq %[s0], %[t0]\n\t"
                 "movq %c[m1](%[l]), %[s0]\n\t"
                 "sbbq %[s1], %[s0]\n\t"
                 "movq %c[m2](%[l]), %[s1]\n\t"
                 "sbbq %[s2], %[s1]\n\t"
                 "movq %c[m3](%[l]), %[s2]\n\t"
                 "sbbq %[s3], %[s2]\n\t"
                 ".if %c[round]\n\t"
                 TTMATH_ADD_ROUNDING_CARRY(t0, s3, t1)
                 "sbbq $0, %[t0]\n\t"
                 "sbbq $0, %[s0]\n\t"
                 "sbbq $0, %[s1]\n\t"
                 "sbbq $0, %[s2]\n\t"
                 ".endif\n\t"
                 // normalising shift by the leading zeros of the top word, which must not
                 // be zero
                 "bsrq %[s2], %%rcx\n\t"
                 "jz %l[other]\n\t"
                 "xorl $63, %%ecx\n\t"
                 "shldq %%cl, %[s1], %[s2]\n\t"
                 "shldq %%cl, %[s0], %[s1]\n\t"
                 "shldq %%cl, %[t0], %[s0]\n\t"
                 "shlq %%cl, %[t0]\n\t"
                 // the second value's (opposite) sign when it was the larger
                 "cmpq %[a], %[l]\n\t"
                 "setne %b[b]\n\t"
                 "shlb $7, %b[b]\n\t"
                 "xorb %b[b], %c[inf](%[a])\n\t"
                 "movq (%[l]), %[t1]\n\t"
                 "subq %%rcx, %[t1]\n\t"
                 "jo 5f\n" // that passed the bottom (rare)
                 "4:\n\t"
                 "movq %[t1], (%[a])\n\t"
                 "movq %[t0], %c[m0](%[a])\n\t"
                 "movq %[s0], %c[m1](%[a])\n\t"
                 "movq %[s1], %c[m2](%[a])\n\t"
                 "movq %[s2], %c[m3](%[a])\n\t"
                 "jmp 3f\n"
                 "5:\n\t"
                 "orb %[nan], %c[inf](%[a])\n\t"
                 "jmp 4b\n"
                 "3:\n\t"
                 : TTMATH_ADD_OUTPUTS
                 TTMATH_ADD_INPUTS_CLOBBERS_LABELS);
    return true;
other:
    return false;
}

#undef TTMATH_ADD_EXPONENT_DIFFERENCE
#undef TTMATH_ADD_SELECT
#undef TTMATH_ADD_DISTANCE
#undef TTMATH_ADD_LOAD_SHIFTED
#undef TTMATH_ADD_ROUNDING_CARRY
#undef TTMATH_ADD_OUTPUTS
#undef TTMATH_ADD_INPUTS_CLOBBERS_LABELS

} // namespace x86_64_add
} // namespace ttmath

#endif
