// The common case of Div for Big<1, 4> (one exponent word, four mantissa words) in
// x86-64 assembly, from the mantissas to the stored result: the quotient of
// kernels_x86_64_quotient.h, normalised by a select between its words and its words
// shifted by one, rounded, and the exponent formed in the steps of the general
// algorithm, each checked. Same rules as Big::DivNormalised (big_mul_div.h), whose C++
// serves every other size, the rare quotients the assembly leaves to it, and the
// portable back end, with identical results.
//
// It takes pointers to the mantissa words of the two values (the exponent word lies
// before them, the flag byte after: Big's layout, checked by the caller); both values
// must be normalised and carry no flag but the sign. The result goes to the first
// value, with the NaN flag set when an exponent step left the range. The two may be
// one value. Returns false, having written nothing, when the quotient needs the
// general code.
#ifndef TTMATH_BIG_DIV_X86_64_H
#define TTMATH_BIG_DIV_X86_64_H

#include "kernels_x86_64_quotient.h"
#include "types.h"

namespace ttmath {
namespace x86_64_div {

// Byte offsets from the first mantissa word.
const int exponent_offset = -8;
const int info_offset = 32;
// The first exponent step subtracts the mantissa width less the quotient's extra bit.
const int mantissa_bits = 256;

template<bool round>
inline bool quotient(uint * a, const uint * d)
{
    uint q[5];
    uint * scratch = q;
    uint r0, r1, r2, r3, v, x, y, rax, rdx;
    __asm__ volatile goto(
        TTMATH_QUOTIENT_4
        // the quotient has 256 + x bits (x = q[4]): keep its top 256
        "movq 0(%[q]), %[r0]\n\t"
        "movq 8(%[q]), %[r1]\n\t"
        "movq 16(%[q]), %[r2]\n\t"
        "movq 24(%[q]), %[r3]\n\t"
        "movq 32(%[q]), %[x]\n\t"
        ".if %c[round]\n\t"
        // with x = 1 the lowest bit is the rounding bit, a tie: up when the kept part
        // is odd
        "movq %[r0], %[q]\n\t"
        "shrq $1, %[q]\n\t"
        "andq %[r0], %[q]\n\t"
        "andq %[x], %[q]\n\t"
        ".endif\n\t"
        "movq %[r0], %%rax\n\t"
        "shrdq $1, %[r1], %%rax\n\t"
        "movq %[r1], %%rdx\n\t"
        "shrdq $1, %[r2], %%rdx\n\t"
        "movq %[r2], %[y]\n\t"
        "shrdq $1, %[r3], %[y]\n\t"
        "movq %[r3], %[v]\n\t"
        "shrdq $1, %[x], %[v]\n\t"
        "testq %[x], %[x]\n\t"
        "cmovnzq %%rax, %[r0]\n\t"
        "cmovnzq %%rdx, %[r1]\n\t"
        "cmovnzq %[y], %[r2]\n\t"
        "cmovnzq %[v], %[r3]\n\t"
        // the exponent: - (256 - x), then - the second exponent, each checked
        "movq %c[exp](%[a]), %%rax\n\t"
        "movl %[bits], %%edx\n\t"
        "subq %[x], %%rdx\n\t"
        "subq %%rdx, %%rax\n\t"
        "jo 25f\n"
        "24:\n\t"
        "subq %c[exp](%[d]), %%rax\n\t"
        "jo 23f\n"
        "22:\n\t"
        ".if %c[round]\n\t"
        "andl $1, %k[q]\n\t"
        "addq %[q], %[r0]\n\t"
        "adcq $0, %[r1]\n\t"
        "adcq $0, %[r2]\n\t"
        "adcq $0, %[r3]\n\t"
        "jc 27f\n"
        "26:\n\t"
        ".endif\n\t"
        "movq %%rax, %c[exp](%[a])\n\t"
        "movq %[r0], 0(%[a])\n\t"
        "movq %[r1], 8(%[a])\n\t"
        "movq %[r2], 16(%[a])\n\t"
        "movq %[r3], 24(%[a])\n\t"
        // the sign: the flags hold only the signs, whose exclusive or it is
        "movzbl %c[inf](%[d]), %%edx\n\t"
        "andl %[sign], %%edx\n\t" // (the two may be one value, its NaN flag just set)
        "xorb %%dl, %c[inf](%[a])\n\t"
        "jmp 21f\n"
        // rare side exits: an exponent step that left the range sets the NaN flag
        "25:\n\t"
        "orb %[nan], %c[inf](%[a])\n\t"
        "jmp 24b\n"
        "23:\n\t"
        "orb %[nan], %c[inf](%[a])\n\t"
        "jmp 22b\n"
        ".if %c[round]\n"
        // a rounding that carried out: only the top bit is left, and the exponent
        // gains one, checked as well
        "27:\n\t"
        "btsq $63, %[r3]\n\t"
        "addq $1, %%rax\n\t"
        "jno 26b\n\t"
        "orb %[nan], %c[inf](%[a])\n\t"
        "jmp 26b\n"
        ".endif\n"
        "21:\n\t"
        : [r0] "=&r"(r0), [r1] "=&r"(r1), [r2] "=&r"(r2), [r3] "=&r"(r3), [v] "=&r"(v), [x] "=&r"(x),
          [y] "=&r"(y), "=&a"(rax), "=&d"(rdx), [q] "+&r"(scratch)
        : [a] "r"(a), [d] "r"(d), [exp] "i"(exponent_offset), [inf] "i"(info_offset), [nan] "i"(TTMATH_BIG_NAN),
          [sign] "i"(TTMATH_BIG_SIGN), [bits] "i"(mantissa_bits), [round] "i"(round ? 1 : 0)
        : "cc", "memory"
        : general);
    return true;
general:
    return false;
}

#undef TTMATH_QUOTIENT_4
#undef TTMATH_QUOTIENT_STEP
#undef TTMATH_QUOTIENT_STEP_RARE

} // namespace x86_64_div
} // namespace ttmath

#endif
