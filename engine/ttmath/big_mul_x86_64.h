// The common case of Mul for Big<1, 4> (one exponent word, four mantissa words) in
// x86-64 assembly with MULX, ADCX and ADOX (BMI2 and ADX), from the mantissas to the
// stored result: the product in registers, normalised by a computed shift of 0 or 1,
// rounded, and the exponent formed in the steps of the general algorithm, each checked.
// Same rules as Big::MulNormalised (big_mul_div.h), whose C++ serves processors
// without these instructions, every other size and the portable back end, with
// identical results.
//
// It takes pointers to the exponent word of the two values (the mantissa words follow
// it, then the flag byte: Big's layout, checked by the caller); both values must be
// normalised and carry no flag but the sign. The result goes to the first value, with
// the NaN flag set when an exponent step left the range. The two may be one value.
#ifndef TTMATH_BIG_MUL_X86_64_H
#define TTMATH_BIG_MUL_X86_64_H

#include "types.h"

namespace ttmath {
namespace x86_64_mul {

// Byte offsets from the exponent word.
const int mantissa_offset = 8;
const int info_offset = 40;
// The exponent's first step adds the mantissa width less the normalising shift.
const int mantissa_bits = 256;

// r[j .. j + 5) += a * rdx (r[j + 4] starts as `top`, which must be zeroed by the xor
// that also clears CF and OF): the low halves on the CF chain, the high halves on OF.
#define TTMATH_MUL_ROW(rj0, rj1, rj2, rj3, top)                                             \
    "xorl %k[" #top "], %k[" #top "]\n\t"                                                   \
    "mulxq %c[m0](%[a]), %[lo], %[hi]\n\t"                                                  \
    "adcxq %[lo], %[" #rj0 "]\n\t"                                                          \
    "adoxq %[hi], %[" #rj1 "]\n\t"                                                          \
    "mulxq %c[m1](%[a]), %[lo], %[hi]\n\t"                                                  \
    "adcxq %[lo], %[" #rj1 "]\n\t"                                                          \
    "adoxq %[hi], %[" #rj2 "]\n\t"                                                          \
    "mulxq %c[m2](%[a]), %[lo], %[hi]\n\t"                                                  \
    "adcxq %[lo], %[" #rj2 "]\n\t"                                                          \
    "adoxq %[hi], %[" #rj3 "]\n\t"                                                          \
    "mulxq %c[m3](%[a]), %[lo], %[hi]\n\t"                                                  \
    "adcxq %[lo], %[" #rj3 "]\n\t"                                                          \
    "adoxq %[" #top "], %[hi]\n\t"                                                          \
    "adcxq %[hi], %[" #top "]\n\t"

template<bool round>
inline void product(uint * a, const uint * b)
{
    uint r0, r1, r2, r3, r4, r5, r6, r7, lo, hi, multiplier;
    __asm__ volatile(
        // row 0: r[0 .. 5) = a * b0
        "movq %c[m0](%[b]), %%rdx\n\t"
        "mulxq %c[m0](%[a]), %[r0], %[r1]\n\t"
        "mulxq %c[m1](%[a]), %[lo], %[r2]\n\t"
        "addq %[lo], %[r1]\n\t"
        "mulxq %c[m2](%[a]), %[lo], %[r3]\n\t"
        "adcq %[lo], %[r2]\n\t"
        "mulxq %c[m3](%[a]), %[lo], %[r4]\n\t"
        "adcq %[lo], %[r3]\n\t"
        "adcq $0, %[r4]\n\t"
        "movq %c[m1](%[b]), %%rdx\n\t"
        TTMATH_MUL_ROW(r1, r2, r3, r4, r5)
        // r0 and r1 are final and only count as non-zero bits below the rounding bit
        "orq %[r1], %[r0]\n\t"
        "movq %c[m2](%[b]), %%rdx\n\t"
        TTMATH_MUL_ROW(r2, r3, r4, r5, r6)
        "movq %c[m3](%[b]), %%rdx\n\t"
        TTMATH_MUL_ROW(r3, r4, r5, r6, r7)
        // normalise: shift left by 1 unless the top bit is set (rcx = 0 then, else all
        // ones), as selects between the words and the words shifted by a constant
        "movq %[r7], %%rcx\n\t"
        "sarq $63, %%rcx\n\t"
        "movq %[r7], %[r1]\n\t"
        "shldq $1, %[r6], %[r1]\n\t"
        "movq %[r6], %[lo]\n\t"
        "shldq $1, %[r5], %[lo]\n\t"
        "movq %[r5], %%rdx\n\t"
        "shldq $1, %[r4], %%rdx\n\t"
        "testq %%rcx, %%rcx\n\t"
        "cmovzq %[r1], %[r7]\n\t"
        "cmovzq %[lo], %[r6]\n\t"
        "cmovzq %%rdx, %[r5]\n\t"
        "movq %[r4], %[r1]\n\t"
        "shldq $1, %[r3], %[r1]\n\t"
        "movq %[r3], %[lo]\n\t"
        "shldq $1, %[r2], %[lo]\n\t"
        "leaq (%[r2],%[r2]), %%rdx\n\t"
        "testq %%rcx, %%rcx\n\t"
        "cmovzq %[r1], %[r4]\n\t"
        "cmovzq %[lo], %[r3]\n\t"
        "cmovzq %%rdx, %[r2]\n\t"
        // the exponent: + (256 - shift) = 255 - rcx, then + the second exponent, each
        // checked
        "movl %[bits_less_one], %k[lo]\n\t"
        "subq %%rcx, %[lo]\n\t"
        "movq (%[a]), %[hi]\n\t"
        "addq %[lo], %[hi]\n\t"
        "jo 5f\n"
        "4:\n\t"
        "addq (%[b]), %[hi]\n\t"
        "jo 3f\n"
        "2:\n\t"
        ".if %c[round]\n\t"
        // round half to even on r3 (the word below the kept ones) and the bits under
        // it: up when r3 + (2^63 - 1) + (anything under it or the kept part odd) carries
        "orq %[r2], %[r0]\n\t"
        "movq %[r4], %[lo]\n\t"
        "andl $1, %k[lo]\n\t"
        "orq %[lo], %[r0]\n\t"
        "negq %[r0]\n\t"
        "movabsq $0x7fffffffffffffff, %[lo]\n\t"
        "adcq %[lo], %[r3]\n\t"
        "adcq $0, %[r4]\n\t"
        "adcq $0, %[r5]\n\t"
        "adcq $0, %[r6]\n\t"
        "adcq $0, %[r7]\n\t"
        "jc 7f\n"
        "6:\n\t"
        ".endif\n\t"
        "movq %[hi], (%[a])\n\t"
        "movq %[r4], %c[m0](%[a])\n\t"
        "movq %[r5], %c[m1](%[a])\n\t"
        "movq %[r6], %c[m2](%[a])\n\t"
        "movq %[r7], %c[m3](%[a])\n\t"
        // the sign: the flags hold only the signs, whose exclusive or it is
        "movzbl %c[inf](%[b]), %k[lo]\n\t"
        "andl %[sign], %k[lo]\n\t" // (the two may be one value, its NaN flag just set)
        "xorb %b[lo], %c[inf](%[a])\n\t"
        "jmp 1f\n"
        // rare side exits: an exponent step that left the range sets the NaN flag
        "5:\n\t"
        "orb %[nan], %c[inf](%[a])\n\t"
        "jmp 4b\n"
        "3:\n\t"
        "orb %[nan], %c[inf](%[a])\n\t"
        "jmp 2b\n"
        ".if %c[round]\n"
        // a rounding that carried out: only the top bit is left, and the exponent
        // gains one, checked as well
        "7:\n\t"
        "btsq $63, %[r7]\n\t"
        "addq $1, %[hi]\n\t"
        "jno 6b\n\t"
        "orb %[nan], %c[inf](%[a])\n\t"
        "jmp 6b\n"
        ".endif\n"
        "1:\n\t"
        : [r0] "=&r"(r0), [r1] "=&r"(r1), [r2] "=&r"(r2), [r3] "=&r"(r3), [r4] "=&r"(r4), [r5] "=&r"(r5),
          [r6] "=&r"(r6), [r7] "=&r"(r7), [lo] "=&r"(lo), [hi] "=&c"(hi), "=&d"(multiplier)
        : [a] "r"(a), [b] "r"(b), [m0] "i"(mantissa_offset), [m1] "i"(mantissa_offset + 8),
          [m2] "i"(mantissa_offset + 16), [m3] "i"(mantissa_offset + 24), [inf] "i"(info_offset),
          [nan] "i"(TTMATH_BIG_NAN), [sign] "i"(TTMATH_BIG_SIGN), [bits_less_one] "i"(mantissa_bits - 1), [round] "i"(round ? 1 : 0)
        : "cc", "memory");
}

#undef TTMATH_MUL_ROW

} // namespace x86_64_mul
} // namespace ttmath

#endif
