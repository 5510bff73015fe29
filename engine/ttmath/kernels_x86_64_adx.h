// Multiply-accumulate kernels for x86-64 processors with BMI2 and ADX (MULX, ADCX,
// ADOX), chosen at run time by use_mulx_adx (cpu_x86_64.h); the base kernels of
// kernels_x86_64.h give identical results on every x86-64 processor.
//
// MULX multiplies without touching the flags, ADCX carries through CF only and ADOX
// through OF only, so the low halves of the word products and the high halves ride two
// independent carry chains. The loops index from a negative count up to zero with LEA
// and JRCXZ, which leave the flags alone: n mod 4 words one at a time, then groups of
// four.
#ifndef TTMATH_KERNELS_X86_64_ADX_H
#define TTMATH_KERNELS_X86_64_ADX_H

#include <cstddef>
#include "types.h"

namespace ttmath {
namespace x86_64_kernels {

const std::size_t adx_unroll = 4;

// One word of each kernel at byte offset `off` from the current index: h_in is the
// high half of the previous product, h_out receives this one's.
#define TTMATH_ADX_MUL_WORD(off, h_in, h_out)                                               \
    "mulxq " #off "(%[a],%%rcx,8), %[lo], %[" #h_out "]\n\t"                                \
    "adcxq %[" #h_in "], %[lo]\n\t"                                                         \
    "movq %[lo], " #off "(%[r],%%rcx,8)\n\t"
#define TTMATH_ADX_ADDMUL_WORD(off, h_in, h_out)                                            \
    "mulxq " #off "(%[a],%%rcx,8), %[lo], %[" #h_out "]\n\t"                                \
    "adoxq %[" #h_in "], %[lo]\n\t"                                                         \
    "adcxq " #off "(%[r],%%rcx,8), %[lo]\n\t"                                               \
    "movq %[lo], " #off "(%[r],%%rcx,8)\n\t"
// r - t as r + ~t + 1: the subtraction rides the CF chain as an addition (started
// with CF set for the + 1), and its carry out is 1 - borrow.
#define TTMATH_ADX_SUBMUL_WORD(off, h_in, h_out)                                            \
    "mulxq " #off "(%[a],%%rcx,8), %[lo], %[" #h_out "]\n\t"                                \
    "adoxq %[" #h_in "], %[lo]\n\t"                                                         \
    "notq %[lo]\n\t"                                                                        \
    "adcxq " #off "(%[r],%%rcx,8), %[lo]\n\t"                                               \
    "movq %[lo], " #off "(%[r],%%rcx,8)\n\t"

// The loop around a word macro, after carry_in (which may set CF). The head's words index back from a + head and r + head,
// the body's from a + n and r + n. Leaves the high half of the last product in h0 with
// CF and OF still pending.
#define TTMATH_ADX_LOOPS(word, carry_in)                                                    \
    "movq %[head_count], %%rcx\n\t"                                                         \
    "xorl %k[h0], %k[h0]\n\t" /* also clears CF and OF */                                   \
    carry_in                                                                                \
    "jmp 2f\n"                                                                              \
    "1:\n\t"                                                                                \
    word(0, h0, h1)                                                                         \
    "movq %[h1], %[h0]\n\t"                                                                 \
    "leaq 1(%%rcx), %%rcx\n"                                                                \
    "2:\n\t"                                                                                \
    "jrcxz 3f\n\t"                                                                          \
    "jmp 1b\n"                                                                              \
    "3:\n\t"                                                                                \
    "movq %[body_count], %%rcx\n\t"                                                         \
    "leaq (%[a],%[body_bytes]), %[a]\n\t"                                                   \
    "leaq (%[r],%[body_bytes]), %[r]\n\t"                                                   \
    "jmp 5f\n"                                                                              \
    "4:\n\t"                                                                                \
    word(0, h0, h1) word(8, h1, h0) word(16, h0, h1) word(24, h1, h0)                       \
    "leaq 4(%%rcx), %%rcx\n"                                                                \
    "5:\n\t"                                                                                \
    "jrcxz 6f\n\t"                                                                          \
    "jmp 4b\n"                                                                              \
    "6:\n\t"

// Operands shared by the three kernels: a and r start at a + head and r + head.
#define TTMATH_ADX_OPERANDS                                                                 \
    [h0] "=&r"(h0), [h1] "=&r"(h1), [lo] "=&r"(lo), [count] "=&c"(count), [a] "+&r"(a_at),  \
        [r] "+&r"(r_at)                                                                     \
    : "d"(b), [head_count] "rm"(0 - head), [body_count] "rm"(0 - (n - head)),               \
      [body_bytes] "r"((n - head) * sizeof(uint))                                           \
    : "cc", "memory"

// r = a * b over n words; returns the high word. r may alias a.
inline uint mul_1_adx(uint * r, const uint * a, std::size_t n, uint b)
{
    const std::size_t head = n % adx_unroll;
    const uint * a_at = a + head;
    uint * r_at = r + head;
    uint h0, h1, lo, count;
    __asm__ volatile(TTMATH_ADX_LOOPS(TTMATH_ADX_MUL_WORD, "")
                     "movl $0, %k[lo]\n\t"
                     "adcxq %[lo], %[h0]\n\t"
                     : TTMATH_ADX_OPERANDS);
    return h0;
}

// r += a * b over n words; returns the word carried out of the top.
inline uint addmul_1_adx(uint * r, const uint * a, std::size_t n, uint b)
{
    const std::size_t head = n % adx_unroll;
    const uint * a_at = a + head;
    uint * r_at = r + head;
    uint h0, h1, lo, count;
    __asm__ volatile(TTMATH_ADX_LOOPS(TTMATH_ADX_ADDMUL_WORD, "")
                     "movl $0, %k[lo]\n\t"
                     "adoxq %[lo], %[h0]\n\t"
                     "adcxq %[lo], %[h0]\n\t"
                     : TTMATH_ADX_OPERANDS);
    return h0;
}

// r -= a * b over n words; returns the word borrowed from above the top.
inline uint submul_1_adx(uint * r, const uint * a, std::size_t n, uint b)
{
    const std::size_t head = n % adx_unroll;
    const uint * a_at = a + head;
    uint * r_at = r + head;
    uint h0, h1, lo, count;
    __asm__ volatile(TTMATH_ADX_LOOPS(TTMATH_ADX_SUBMUL_WORD, "stc\n\t")
                     "movl $0, %k[lo]\n\t"
                     "adoxq %[lo], %[h0]\n\t"
                     "cmc\n\t" // the borrow
                     "adcxq %[lo], %[h0]\n\t"
                     : TTMATH_ADX_OPERANDS);
    return h0;
}

#undef TTMATH_ADX_MUL_WORD
#undef TTMATH_ADX_ADDMUL_WORD
#undef TTMATH_ADX_SUBMUL_WORD
#undef TTMATH_ADX_LOOPS
#undef TTMATH_ADX_OPERANDS

// r[0 .. 8) = a[0 .. 4) * b[0 .. 4) with MULX, ADCX and ADOX (BMI2 and ADX): row by
// row, the low halves of a row's products travel on the CF chain and the high halves
// on the OF chain, so that the two chains run side by side. r must not overlap a or b.
inline void mul_4x4_adx(uint * r, const uint * a, const uint * b)
{
    uint r0, r1, r2, r3, r4, r5, r6, r7, lo, hi, bj;
    __asm__ volatile(
        // row 0: r[0 .. 5) = a * b0
        "movq 0(%[b]), %%rdx\n\t"
        "mulxq 0(%[a]), %[r0], %[r1]\n\t"
        "mulxq 8(%[a]), %[lo], %[r2]\n\t"
        "addq %[lo], %[r1]\n\t"
        "mulxq 16(%[a]), %[lo], %[r3]\n\t"
        "adcq %[lo], %[r2]\n\t"
        "mulxq 24(%[a]), %[lo], %[r4]\n\t"
        "adcq %[lo], %[r3]\n\t"
        "adcq $0, %[r4]\n\t"
        "movq %[r0], 0(%[r])\n\t"
        // rows 1 .. 3: r[j .. j + 5) += a * bj
        "movq 8(%[b]), %%rdx\n\t"
        "xorl %k[r5], %k[r5]\n\t" // clears CF and OF
        "mulxq 0(%[a]), %[lo], %[hi]\n\t"
        "adcxq %[lo], %[r1]\n\t"
        "adoxq %[hi], %[r2]\n\t"
        "mulxq 8(%[a]), %[lo], %[hi]\n\t"
        "adcxq %[lo], %[r2]\n\t"
        "adoxq %[hi], %[r3]\n\t"
        "mulxq 16(%[a]), %[lo], %[hi]\n\t"
        "adcxq %[lo], %[r3]\n\t"
        "adoxq %[hi], %[r4]\n\t"
        "mulxq 24(%[a]), %[lo], %[hi]\n\t"
        "adcxq %[lo], %[r4]\n\t"
        "adoxq %[r5], %[hi]\n\t" // r5 is zero
        "adcxq %[hi], %[r5]\n\t"
        "movq %[r1], 8(%[r])\n\t"
        "movq 16(%[b]), %%rdx\n\t"
        "xorl %k[r6], %k[r6]\n\t"
        "mulxq 0(%[a]), %[lo], %[hi]\n\t"
        "adcxq %[lo], %[r2]\n\t"
        "adoxq %[hi], %[r3]\n\t"
        "mulxq 8(%[a]), %[lo], %[hi]\n\t"
        "adcxq %[lo], %[r3]\n\t"
        "adoxq %[hi], %[r4]\n\t"
        "mulxq 16(%[a]), %[lo], %[hi]\n\t"
        "adcxq %[lo], %[r4]\n\t"
        "adoxq %[hi], %[r5]\n\t"
        "mulxq 24(%[a]), %[lo], %[hi]\n\t"
        "adcxq %[lo], %[r5]\n\t"
        "adoxq %[r6], %[hi]\n\t"
        "adcxq %[hi], %[r6]\n\t"
        "movq %[r2], 16(%[r])\n\t"
        "movq 24(%[b]), %%rdx\n\t"
        "xorl %k[r7], %k[r7]\n\t"
        "mulxq 0(%[a]), %[lo], %[hi]\n\t"
        "adcxq %[lo], %[r3]\n\t"
        "adoxq %[hi], %[r4]\n\t"
        "mulxq 8(%[a]), %[lo], %[hi]\n\t"
        "adcxq %[lo], %[r4]\n\t"
        "adoxq %[hi], %[r5]\n\t"
        "mulxq 16(%[a]), %[lo], %[hi]\n\t"
        "adcxq %[lo], %[r5]\n\t"
        "adoxq %[hi], %[r6]\n\t"
        "mulxq 24(%[a]), %[lo], %[hi]\n\t"
        "adcxq %[lo], %[r6]\n\t"
        "adoxq %[r7], %[hi]\n\t"
        "adcxq %[hi], %[r7]\n\t"
        "movq %[r3], 24(%[r])\n\t"
        "movq %[r4], 32(%[r])\n\t"
        "movq %[r5], 40(%[r])\n\t"
        "movq %[r6], 48(%[r])\n\t"
        "movq %[r7], 56(%[r])\n\t"
        : [r0] "=&r"(r0), [r1] "=&r"(r1), [r2] "=&r"(r2), [r3] "=&r"(r3), [r4] "=&r"(r4), [r5] "=&r"(r5),
          [r6] "=&r"(r6), [r7] "=&r"(r7), [lo] "=&r"(lo), [hi] "=&r"(hi), "=&d"(bj)
        : [a] "r"(a), [b] "r"(b), [r] "r"(r)
        : "cc", "memory");
}

} // namespace x86_64_kernels
} // namespace ttmath

#endif
