// The quotient of the 256-bit type's division in x86-64 assembly: q[0 .. 4] =
// floor(a * β^4 / d) for four-word a and d with d's top bit set, β = 2^64. Same method
// and results as quotient::shifted_by_normalized (quotient.h): the top word is whether
// a >= d, then each word from a three-by-two division by d's top two words through
// their reciprocal, and a multiply-subtract of d's low two words. Everything stays in
// registers; the choices that follow the data are selects, and only the rare ones
// (a corrected estimate, an add-back) branch.
#ifndef TTMATH_KERNELS_X86_64_QUOTIENT_H
#define TTMATH_KERNELS_X86_64_QUOTIENT_H

#include "types.h"

namespace ttmath {
namespace x86_64_kernels {

// One quotient word j of (R3 R2 R1 R0 0) / d, leaving the remainder in R2 R1 R0 R3 (top
// first). With v the reciprocal of (d3, d2): the estimate q of (R3 R2 R1) / (d3 d2) and
// its two-word remainder, corrected by a select (and rarely by 1<j>0f), then q times
// d's low two words subtracted from (remainder, R0, 0), adding d back when that goes
// negative (1<j>1f, rare). (R3, R2) == (d3, d2), where the estimate would not fit a
// word, leaves for the general code.
#define TTMATH_QUOTIENT_STEP(j, R3, R2, R1, R0)                                             \
    "cmpq 24(%[d]), %[" #R3 "]\n\t"                                                         \
    "jne 1" #j "2f\n\t"                                                                     \
    "cmpq 16(%[d]), %[" #R2 "]\n\t"                                                         \
    "je %l[general]\n"                                                                      \
    "1" #j "2:\n\t"                                                                         \
    "movq %[v], %%rax\n\t"                                                                  \
    "mulq %[" #R3 "]\n\t"                                                                   \
    "addq %[" #R2 "], %%rax\n\t"                                                            \
    "adcq %[" #R3 "], %%rdx\n\t" /* q1:q0 = v * R3 + (R3:R2) */                             \
    "movq %%rax, %[" #R3 "]\n\t" /* R3 = q0 */                                              \
    "movq %%rdx, %[x]\n\t"       /* x = q1 */                                               \
    "imulq 24(%[d]), %%rdx\n\t"                                                             \
    "subq %%rdx, %[" #R2 "]\n\t" /* R2 = R2 - q1 d3 */                                      \
    "movq 16(%[d]), %%rax\n\t"                                                              \
    "mulq %[x]\n\t"              /* t1:t0 = d2 q1 */                                        \
    "subq %%rax, %[" #R1 "]\n\t"                                                            \
    "sbbq %%rdx, %[" #R2 "]\n\t"                                                            \
    "subq 16(%[d]), %[" #R1 "]\n\t"                                                         \
    "sbbq 24(%[d]), %[" #R2 "]\n\t" /* R2:R1 = remainder for q1 + 1 */                      \
    "leaq 1(%[x]), %[x]\n\t"                                                                \
    "cmpq %[" #R3 "], %[" #R2 "]\n\t"                                                       \
    "sbbq %%rax, %%rax\n\t"                                                                 \
    "notq %%rax\n\t"             /* all ones when R2 >= q0: one too large */                \
    "addq %%rax, %[x]\n\t"                                                                  \
    "movq 16(%[d]), %%rdx\n\t"                                                              \
    "andq %%rax, %%rdx\n\t"                                                                 \
    "andq 24(%[d]), %%rax\n\t"                                                              \
    "addq %%rdx, %[" #R1 "]\n\t"                                                            \
    "adcq %%rax, %[" #R2 "]\n\t"                                                            \
    "cmpq 24(%[d]), %[" #R2 "]\n\t"                                                         \
    "jae 1" #j "0f\n"            /* the remainder may still reach (d3, d2) */               \
    "1" #j "3:\n\t"                                                                         \
    "movq 0(%[d]), %%rax\n\t"                                                               \
    "mulq %[x]\n\t"                                                                         \
    "movq %%rax, %[" #R3 "]\n\t"                                                            \
    "movq %%rdx, %[y]\n\t"                                                                  \
    "movq 8(%[d]), %%rax\n\t"                                                               \
    "mulq %[x]\n\t"                                                                         \
    "addq %[y], %%rax\n\t"                                                                  \
    "adcq $0, %%rdx\n\t"         /* q (d1:d0) = rdx:rax:R3 */                               \
    "negq %[" #R3 "]\n\t"                                                                   \
    "sbbq %%rax, %[" #R0 "]\n\t"                                                            \
    "sbbq %%rdx, %[" #R1 "]\n\t"                                                            \
    "sbbq $0, %[" #R2 "]\n\t"                                                               \
    "jc 1" #j "1f\n"                                                                        \
    "1" #j "4:\n\t"                                                                         \
    "movq %[x], " #j "*8(%[q])\n\t"

// The rare continuations of step j, out of the main line.
#define TTMATH_QUOTIENT_STEP_RARE(j, R3, R2, R1, R0)                                        \
    "1" #j "0:\n\t"                                                                         \
    "ja 1" #j "5f\n\t"                                                                      \
    "cmpq 16(%[d]), %[" #R1 "]\n\t"                                                         \
    "jb 1" #j "3b\n"                                                                        \
    "1" #j "5:\n\t"                                                                         \
    "leaq 1(%[x]), %[x]\n\t"                                                                \
    "subq 16(%[d]), %[" #R1 "]\n\t"                                                         \
    "sbbq 24(%[d]), %[" #R2 "]\n\t"                                                         \
    "jmp 1" #j "3b\n"                                                                       \
    "1" #j "1:\n\t"                                                                         \
    "leaq -1(%[x]), %[x]\n\t"                                                               \
    "addq 0(%[d]), %[" #R3 "]\n\t"                                                          \
    "adcq 8(%[d]), %[" #R0 "]\n\t"                                                          \
    "adcq 16(%[d]), %[" #R1 "]\n\t"                                                         \
    "adcq 24(%[d]), %[" #R2 "]\n\t"                                                         \
    "jmp 1" #j "4b\n"

// The whole quotient: q[0 .. 4] for the dividend at a and the divisor at d, the
// remainder left in r0 .. r3. Ends at label 19; leaves for `general` as above.
#define TTMATH_QUOTIENT_4                                                             \
        "movq 0(%[a]), %[r0]\n\t"                                                     \
        "movq 8(%[a]), %[r1]\n\t"                                                     \
        "movq 16(%[a]), %[r2]\n\t"                                                    \
        "movq 24(%[a]), %[r3]\n\t"                                                    \
        /* q4 = (a >= d), and then the remainder a - d, selected */                    \
        "movq %[r0], %[x]\n\t"                                                        \
        "subq 0(%[d]), %[x]\n\t"                                                      \
        "movq %[r1], %[y]\n\t"                                                        \
        "sbbq 8(%[d]), %[y]\n\t"                                                      \
        "movq %[r2], %%rax\n\t"                                                       \
        "sbbq 16(%[d]), %%rax\n\t"                                                    \
        "movq %[r3], %%rdx\n\t"                                                       \
        "sbbq 24(%[d]), %%rdx\n\t"                                                    \
        "cmovncq %[x], %[r0]\n\t"                                                     \
        "cmovncq %[y], %[r1]\n\t"                                                     \
        "cmovncq %%rax, %[r2]\n\t"                                                    \
        "cmovncq %%rdx, %[r3]\n\t"                                                    \
        "setnc %b[x]\n\t"                                                             \
        "movzbl %b[x], %k[x]\n\t"                                                     \
        "movq %[x], 32(%[q])\n\t"                                                     \
        /* v = floor((β^3 - 1) / (d3:d2)) - β: the reciprocal of d3, corrected for d2 */ \
        "movq 24(%[d]), %%rdx\n\t"                                                    \
        "notq %%rdx\n\t"                                                              \
        "movq $-1, %%rax\n\t"                                                         \
        "divq 24(%[d])\n\t"                                                           \
        "movq %%rax, %[v]\n\t"                                                        \
        "movq 24(%[d]), %[x]\n\t"                                                     \
        "imulq %[v], %[x]\n\t"                                                        \
        "addq 16(%[d]), %[x]\n\t" /* p = d3 v + d2, CF when it wrapped */              \
        "sbbq %[y], %[y]\n\t"                                                         \
        "cmpq 24(%[d]), %[x]\n\t"                                                     \
        "sbbq %%rax, %%rax\n\t"                                                       \
        "notq %%rax\n\t"                                                              \
        "andq %[y], %%rax\n\t" /* wrapped and p >= d3: twice */                        \
        "addq %[y], %[v]\n\t"                                                         \
        "addq %%rax, %[v]\n\t"                                                        \
        "andq 24(%[d]), %[y]\n\t"                                                     \
        "andq 24(%[d]), %%rax\n\t"                                                    \
        "subq %[y], %[x]\n\t"                                                         \
        "subq %%rax, %[x]\n\t"                                                        \
        "movq %[v], %%rax\n\t"                                                        \
        "mulq 16(%[d])\n\t"                                                           \
        "addq %%rdx, %[x]\n\t" /* p += high(v d2), CF when it wrapped */               \
        "sbbq %[y], %[y]\n\t"                                                         \
        "cmpq 16(%[d]), %%rax\n\t"                                                    \
        "movq %[x], %%rdx\n\t"                                                        \
        "sbbq 24(%[d]), %%rdx\n\t" /* CF: (p : low(v d2)) < (d3 : d2) */               \
        "sbbq %%rax, %%rax\n\t"                                                       \
        "notq %%rax\n\t"                                                              \
        "andq %[y], %%rax\n\t"                                                        \
        "addq %[y], %[v]\n\t"                                                         \
        "addq %%rax, %[v]\n\t"                                                        \
        TTMATH_QUOTIENT_STEP(3, r3, r2, r1, r0)                                       \
        TTMATH_QUOTIENT_STEP(2, r2, r1, r0, r3)                                       \
        TTMATH_QUOTIENT_STEP(1, r1, r0, r3, r2)                                       \
        TTMATH_QUOTIENT_STEP(0, r0, r3, r2, r1)                                       \
        "jmp 19f\n"                                                                   \
        TTMATH_QUOTIENT_STEP_RARE(3, r3, r2, r1, r0)                                  \
        TTMATH_QUOTIENT_STEP_RARE(2, r2, r1, r0, r3)                                  \
        TTMATH_QUOTIENT_STEP_RARE(1, r1, r0, r3, r2)                                  \
        TTMATH_QUOTIENT_STEP_RARE(0, r0, r3, r2, r1)                                  \
        "19:\n\t"

// Returns false when a step met the rare case its estimate cannot serve; q is then
// incomplete and the caller computes it with the general code.
inline bool shifted_quotient_4(uint * q, const uint * a, const uint * d)
{
    uint r0, r1, r2, r3, v, x, y, rax, rdx;
    __asm__ volatile goto(TTMATH_QUOTIENT_4
                          : [r0] "=&r"(r0), [r1] "=&r"(r1), [r2] "=&r"(r2), [r3] "=&r"(r3), [v] "=&r"(v),
                            [x] "=&r"(x), [y] "=&r"(y), "=&a"(rax), "=&d"(rdx)
                          : [q] "r"(q), [a] "r"(a), [d] "r"(d)
                          : "cc", "memory"
                          : general);
    return true;
general:
    return false;
}

// The step macros stay defined for the 256-bit Div (big_div_x86_64.h).

} // namespace x86_64_kernels
} // namespace ttmath

#endif
