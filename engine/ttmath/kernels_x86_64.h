// Word kernels for x86-64 in GCC/Clang inline assembly: the carry chains and the
// multiply-accumulate loops that every mantissa operation runs through. Results are
// identical to the portable kernels.
#ifndef TTMATH_KERNELS_X86_64_H
#define TTMATH_KERNELS_X86_64_H

#include <cstddef>
#include "types.h"

namespace ttmath {
namespace x86_64_kernels {

// hi:lo = a * b
inline void mul_ww(uint a, uint b, uint & hi, uint & lo)
{
    __asm__("mulq %[b]" : "=a"(lo), "=d"(hi) : "a"(a), [b] "rm"(b) : "cc");
}

// Quotient of hi:lo by d, which must be greater than hi; the remainder goes to rem.
inline uint div_ww(uint hi, uint lo, uint d, uint & rem)
{
    uint q;
    __asm__("divq %[d]" : "=a"(q), "=d"(rem) : "a"(lo), "d"(hi), [d] "rm"(d) : "cc");
    return q;
}

// r = a + b + c over n words (c is 0 or 1); returns the carry out. r may alias a or b.
inline uint add_n(uint * r, const uint * a, const uint * b, std::size_t n, uint c)
{
    if (n == 0)
        return c;
    std::size_t i = 0;
    uint t;
    __asm__ __volatile__(
        "negq %[c]\n\t"                      // CF = (c != 0)
        "1:\n\t"
        "movq (%[a],%[i],8), %[t]\n\t"
        "adcq (%[b],%[i],8), %[t]\n\t"
        "movq %[t], (%[r],%[i],8)\n\t"
        "leaq 1(%[i]), %[i]\n\t"             // lea and dec keep CF
        "decq %[n]\n\t"
        "jnz 1b\n\t"
        "sbbq %[c], %[c]\n\t"
        "negq %[c]\n\t"
        : [c] "+&r"(c), [i] "+&r"(i), [n] "+&r"(n), [t] "=&r"(t)
        : [a] "r"(a), [b] "r"(b), [r] "r"(r)
        : "cc", "memory");
    return c;
}

// r = a - b - c over n words (c is 0 or 1); returns the borrow out. r may alias a or b.
inline uint sub_n(uint * r, const uint * a, const uint * b, std::size_t n, uint c)
{
    if (n == 0)
        return c;
    std::size_t i = 0;
    uint t;
    __asm__ __volatile__(
        "negq %[c]\n\t"
        "1:\n\t"
        "movq (%[a],%[i],8), %[t]\n\t"
        "sbbq (%[b],%[i],8), %[t]\n\t"
        "movq %[t], (%[r],%[i],8)\n\t"
        "leaq 1(%[i]), %[i]\n\t"
        "decq %[n]\n\t"
        "jnz 1b\n\t"
        "sbbq %[c], %[c]\n\t"
        "negq %[c]\n\t"
        : [c] "+&r"(c), [i] "+&r"(i), [n] "+&r"(n), [t] "=&r"(t)
        : [a] "r"(a), [b] "r"(b), [r] "r"(r)
        : "cc", "memory");
    return c;
}

// r = a * b over n words; returns the high word. r may alias a.
inline uint mul_1(uint * r, const uint * a, std::size_t n, uint b)
{
    uint carry = 0;
    if (n == 0)
        return carry;
    std::size_t i = 0;
    uint lo, hi;
    __asm__ __volatile__(
        "1:\n\t"
        "movq (%[a],%[i],8), %%rax\n\t"
        "mulq %[b]\n\t"
        "addq %[carry], %%rax\n\t"
        "adcq $0, %%rdx\n\t"
        "movq %%rax, (%[r],%[i],8)\n\t"
        "movq %%rdx, %[carry]\n\t"
        "incq %[i]\n\t"
        "cmpq %[n], %[i]\n\t"
        "jb 1b\n\t"
        : [carry] "+&r"(carry), [i] "+&r"(i), "=&a"(lo), "=&d"(hi)
        : [a] "r"(a), [b] "r"(b), [r] "r"(r), [n] "r"(n)
        : "cc", "memory");
    return carry;
}

// r += a * b over n words; returns the word carried out of the top.
inline uint addmul_1(uint * r, const uint * a, std::size_t n, uint b)
{
    uint carry = 0;
    if (n == 0)
        return carry;
    std::size_t i = 0;
    uint lo, hi;
    __asm__ __volatile__(
        "1:\n\t"
        "movq (%[a],%[i],8), %%rax\n\t"
        "mulq %[b]\n\t"
        "addq %[carry], %%rax\n\t"
        "adcq $0, %%rdx\n\t"
        "addq %%rax, (%[r],%[i],8)\n\t"
        "adcq $0, %%rdx\n\t"
        "movq %%rdx, %[carry]\n\t"
        "incq %[i]\n\t"
        "cmpq %[n], %[i]\n\t"
        "jb 1b\n\t"
        : [carry] "+&r"(carry), [i] "+&r"(i), "=&a"(lo), "=&d"(hi)
        : [a] "r"(a), [b] "r"(b), [r] "r"(r), [n] "r"(n)
        : "cc", "memory");
    return carry;
}

// r -= a * b over n words; returns the word borrowed from above the top.
inline uint submul_1(uint * r, const uint * a, std::size_t n, uint b)
{
    uint carry = 0;
    if (n == 0)
        return carry;
    std::size_t i = 0;
    uint lo, hi;
    __asm__ __volatile__(
        "1:\n\t"
        "movq (%[a],%[i],8), %%rax\n\t"
        "mulq %[b]\n\t"
        "addq %[carry], %%rax\n\t"
        "adcq $0, %%rdx\n\t"
        "subq %%rax, (%[r],%[i],8)\n\t"
        "adcq $0, %%rdx\n\t"
        "movq %%rdx, %[carry]\n\t"
        "incq %[i]\n\t"
        "cmpq %[n], %[i]\n\t"
        "jb 1b\n\t"
        : [carry] "+&r"(carry), [i] "+&r"(i), "=&a"(lo), "=&d"(hi)
        : [a] "r"(a), [b] "r"(b), [r] "r"(r), [n] "r"(n)
        : "cc", "memory");
    return carry;
}

// Four-word carry chains, unrolled: the mantissa width of the 256-bit type.
inline uint add_4(uint * r, const uint * a, const uint * b, uint c)
{
    uint r0 = a[0], r1 = a[1], r2 = a[2], r3 = a[3];
    __asm__("negq %[c]\n\t"
            "adcq %[b0], %[r0]\n\t"
            "adcq %[b1], %[r1]\n\t"
            "adcq %[b2], %[r2]\n\t"
            "adcq %[b3], %[r3]\n\t"
            "sbbq %[c], %[c]\n\t"
            "negq %[c]\n\t"
            : [r0] "+&r"(r0), [r1] "+&r"(r1), [r2] "+&r"(r2), [r3] "+&r"(r3), [c] "+&r"(c)
            : [b0] "rm"(b[0]), [b1] "rm"(b[1]), [b2] "rm"(b[2]), [b3] "rm"(b[3])
            : "cc");
    r[0] = r0;
    r[1] = r1;
    r[2] = r2;
    r[3] = r3;
    return c;
}

inline uint sub_4(uint * r, const uint * a, const uint * b, uint c)
{
    uint r0 = a[0], r1 = a[1], r2 = a[2], r3 = a[3];
    __asm__("negq %[c]\n\t"
            "sbbq %[b0], %[r0]\n\t"
            "sbbq %[b1], %[r1]\n\t"
            "sbbq %[b2], %[r2]\n\t"
            "sbbq %[b3], %[r3]\n\t"
            "sbbq %[c], %[c]\n\t"
            "negq %[c]\n\t"
            : [r0] "+&r"(r0), [r1] "+&r"(r1), [r2] "+&r"(r2), [r3] "+&r"(r3), [c] "+&r"(c)
            : [b0] "rm"(b[0]), [b1] "rm"(b[1]), [b2] "rm"(b[2]), [b3] "rm"(b[3])
            : "cc");
    r[0] = r0;
    r[1] = r1;
    r[2] = r2;
    r[3] = r3;
    return c;
}

// r += c and r -= c over four words (c is 0 or 1); return the carry or borrow out.
inline uint add_carry_4(uint * r, uint c)
{
    __asm__("addq %[c], %[r0]\n\t"
            "adcq $0, %[r1]\n\t"
            "adcq $0, %[r2]\n\t"
            "adcq $0, %[r3]\n\t"
            "sbbq %[c], %[c]\n\t"
            "negq %[c]\n\t"
            : [r0] "+&r"(r[0]), [r1] "+&r"(r[1]), [r2] "+&r"(r[2]), [r3] "+&r"(r[3]), [c] "+&r"(c)
            :
            : "cc");
    return c;
}

inline uint sub_carry_4(uint * r, uint c)
{
    __asm__("subq %[c], %[r0]\n\t"
            "sbbq $0, %[r1]\n\t"
            "sbbq $0, %[r2]\n\t"
            "sbbq $0, %[r3]\n\t"
            "sbbq %[c], %[c]\n\t"
            "negq %[c]\n\t"
            : [r0] "+&r"(r[0]), [r1] "+&r"(r[1]), [r2] "+&r"(r[2]), [r3] "+&r"(r[3]), [c] "+&r"(c)
            :
            : "cc");
    return c;
}

// r[0 .. 8) = a[0 .. 4) * b[0 .. 4), column by column with a three-word accumulator.
// r must not overlap a or b.
inline void mul_4x4(uint * r, const uint * a, const uint * b)
{
    uint x = 0, y = 0, z = 0;
    __asm__ __volatile__(
        "movq 0(%[a]), %%rax\n\t"
        "mulq 0(%[b])\n\t"
        "addq %%rax, %[x]\n\t"
        "adcq %%rdx, %[y]\n\t"
        "adcq $0, %[z]\n\t"
        "movq %[x], 0(%[r])\n\t"
        "xorl %k[x], %k[x]\n\t"
        "movq 0(%[a]), %%rax\n\t"
        "mulq 8(%[b])\n\t"
        "addq %%rax, %[y]\n\t"
        "adcq %%rdx, %[z]\n\t"
        "adcq $0, %[x]\n\t"
        "movq 8(%[a]), %%rax\n\t"
        "mulq 0(%[b])\n\t"
        "addq %%rax, %[y]\n\t"
        "adcq %%rdx, %[z]\n\t"
        "adcq $0, %[x]\n\t"
        "movq %[y], 8(%[r])\n\t"
        "xorl %k[y], %k[y]\n\t"
        "movq 0(%[a]), %%rax\n\t"
        "mulq 16(%[b])\n\t"
        "addq %%rax, %[z]\n\t"
        "adcq %%rdx, %[x]\n\t"
        "adcq $0, %[y]\n\t"
        "movq 8(%[a]), %%rax\n\t"
        "mulq 8(%[b])\n\t"
        "addq %%rax, %[z]\n\t"
        "adcq %%rdx, %[x]\n\t"
        "adcq $0, %[y]\n\t"
        "movq 16(%[a]), %%rax\n\t"
        "mulq 0(%[b])\n\t"
        "addq %%rax, %[z]\n\t"
        "adcq %%rdx, %[x]\n\t"
        "adcq $0, %[y]\n\t"
        "movq %[z], 16(%[r])\n\t"
        "xorl %k[z], %k[z]\n\t"
        "movq 0(%[a]), %%rax\n\t"
        "mulq 24(%[b])\n\t"
        "addq %%rax, %[x]\n\t"
        "adcq %%rdx, %[y]\n\t"
        "adcq $0, %[z]\n\t"
        "movq 8(%[a]), %%rax\n\t"
        "mulq 16(%[b])\n\t"
        "addq %%rax, %[x]\n\t"
        "adcq %%rdx, %[y]\n\t"
        "adcq $0, %[z]\n\t"
        "movq 16(%[a]), %%rax\n\t"
        "mulq 8(%[b])\n\t"
        "addq %%rax, %[x]\n\t"
        "adcq %%rdx, %[y]\n\t"
        "adcq $0, %[z]\n\t"
        "movq 24(%[a]), %%rax\n\t"
        "mulq 0(%[b])\n\t"
        "addq %%rax, %[x]\n\t"
        "adcq %%rdx, %[y]\n\t"
        "adcq $0, %[z]\n\t"
        "movq %[x], 24(%[r])\n\t"
        "xorl %k[x], %k[x]\n\t"
        "movq 8(%[a]), %%rax\n\t"
        "mulq 24(%[b])\n\t"
        "addq %%rax, %[y]\n\t"
        "adcq %%rdx, %[z]\n\t"
        "adcq $0, %[x]\n\t"
        "movq 16(%[a]), %%rax\n\t"
        "mulq 16(%[b])\n\t"
        "addq %%rax, %[y]\n\t"
        "adcq %%rdx, %[z]\n\t"
        "adcq $0, %[x]\n\t"
        "movq 24(%[a]), %%rax\n\t"
        "mulq 8(%[b])\n\t"
        "addq %%rax, %[y]\n\t"
        "adcq %%rdx, %[z]\n\t"
        "adcq $0, %[x]\n\t"
        "movq %[y], 32(%[r])\n\t"
        "xorl %k[y], %k[y]\n\t"
        "movq 16(%[a]), %%rax\n\t"
        "mulq 24(%[b])\n\t"
        "addq %%rax, %[z]\n\t"
        "adcq %%rdx, %[x]\n\t"
        "adcq $0, %[y]\n\t"
        "movq 24(%[a]), %%rax\n\t"
        "mulq 16(%[b])\n\t"
        "addq %%rax, %[z]\n\t"
        "adcq %%rdx, %[x]\n\t"
        "adcq $0, %[y]\n\t"
        "movq %[z], 40(%[r])\n\t"
        "xorl %k[z], %k[z]\n\t"
        "movq 24(%[a]), %%rax\n\t"
        "mulq 24(%[b])\n\t"
        "addq %%rax, %[x]\n\t"
        "adcq %%rdx, %[y]\n\t"
        "movq %[x], 48(%[r])\n\t"
        "movq %[y], 56(%[r])\n\t"
        : [x] "+&r"(x), [y] "+&r"(y), [z] "+&r"(z)
        : [a] "r"(a), [b] "r"(b), [r] "r"(r)
        : "rax", "rdx", "cc", "memory");
}

// Loads the four words of `small` into s0 .. s3 shifted right by %cl bits (below 64),
// and the bits shifted out into `lost`, from its top bit down.
#define TTMATH_X86_64_LOAD_SHIFTED                                                          \
    "movq 0(%[a]), %[s0]\n\t"                                                               \
    "movq 8(%[a]), %[s1]\n\t"                                                               \
    "movq 16(%[a]), %[s2]\n\t"                                                              \
    "movq 24(%[a]), %[s3]\n\t"                                                              \
    "xorl %k[lost], %k[lost]\n\t"                                                           \
    "shrdq %%cl, %[s0], %[lost]\n\t"                                                        \
    "shrdq %%cl, %[s1], %[s0]\n\t"                                                          \
    "shrdq %%cl, %[s2], %[s1]\n\t"                                                          \
    "shrdq %%cl, %[s3], %[s2]\n\t"                                                          \
    "shrq %%cl, %[s3]\n\t"

// Sets CF to the rounding step of half-to-even rounding: the carry out of
// lost + (2^63 - 1) + (lowest kept bit), which is 1 exactly when the lost bits exceed
// half a unit or equal it with the kept part odd. With round = 0 it adds nothing and
// never carries. Uses t as scratch and `low` as the lowest kept word.
#define TTMATH_X86_64_ROUNDING_CARRY(low, t, u)                                             \
    "movq %[round], %[" #u "]\n\t"                                                          \
    "shlq $63, %[" #u "]\n\t"                                                               \
    "subq %[round], %[" #u "]\n\t"                                                          \
    "movq %[" #low "], %[" #t "]\n\t"                                                       \
    "andq %[round], %[" #t "]\n\t"                                                          \
    "addq %[" #u "], %[" #t "]\n\t"                                                         \
    "addq %[lost], %[" #t "]\n\t"

// The sum of two four-word numbers with their top bits set, the second shifted right
// by k bits (0 <= k < 64) first: r = big + small / 2^k, halved when it carries out of
// four words, then rounded half to even on everything below r (round = 1) or truncated
// (round = 0). A rounding that carries out leaves only the top bit. Returns the number
// of halvings (0, 1 or 2), which the caller adds to the exponent. No branches: the
// halving is a select.
inline uint sum_shifted_4(uint * r, const uint * big, const uint * small, unsigned k, uint round)
{
    uint s0, s1, s2, s3, lost, t0, t1, halved;
    uint count = k;
    const uint * a = small;
    const uint * b = big;
    __asm__(TTMATH_X86_64_LOAD_SHIFTED
            "addq 0(%[b]), %[s0]\n\t"
            "adcq 8(%[b]), %[s1]\n\t"
            "adcq 16(%[b]), %[s2]\n\t"
            "adcq 24(%[b]), %[s3]\n\t"
            "sbbq %[halved], %[halved]\n\t" // all ones when the sum carried out
            // the sum halved, the carry becoming its top bit
            "movq %[lost], %[t0]\n\t"
            "shrdq $1, %[s0], %[t0]\n\t"
            "movq %[s0], %[t1]\n\t"
            "shrdq $1, %[s1], %[t1]\n\t"
            "movq %[s1], %[a]\n\t"
            "shrdq $1, %[s2], %[a]\n\t"
            "movq %[s2], %[b]\n\t"
            "shrdq $1, %[s3], %[b]\n\t"
            "movq %[s3], %[count]\n\t"
            "shrdq $1, %[halved], %[count]\n\t"
            "testq %[halved], %[halved]\n\t"
            "cmovnzq %[t0], %[lost]\n\t"
            "cmovnzq %[t1], %[s0]\n\t"
            "cmovnzq %[a], %[s1]\n\t"
            "cmovnzq %[b], %[s2]\n\t"
            "cmovnzq %[count], %[s3]\n\t"
            TTMATH_X86_64_ROUNDING_CARRY(s0, t0, t1)
            "adcq $0, %[s0]\n\t"
            "adcq $0, %[s1]\n\t"
            "adcq $0, %[s2]\n\t"
            "adcq $0, %[s3]\n\t"
            "sbbq %[t1], %[t1]\n\t" // all ones when the rounding carried out
            : [s0] "=&r"(s0), [s1] "=&r"(s1), [s2] "=&r"(s2), [s3] "=&r"(s3), [lost] "=&r"(lost),
              [t0] "=&r"(t0), [t1] "=&r"(t1), [halved] "=&r"(halved), [count] "+&c"(count), [a] "+&r"(a),
              [b] "+&r"(b)
            : [round] "r"(round)
            : "cc");
    // A carried-out rounding left all words zero; the value is the top bit alone.
    r[0] = s0;
    r[1] = s1;
    r[2] = s2;
    r[3] = s3 | (t1 << 63);
    return (0 - halved) + (0 - t1);
}

// The difference of two four-word numbers, big >= small, the second shifted right by
// k bits (0 <= k < 64) first: r = big - floor(small / 2^k), decremented when round = 1
// and the bits shifted out exceed half a unit or equal it with r odd.
inline void difference_shifted_4(uint * r, const uint * big, const uint * small, unsigned k, uint round)
{
    uint s0, s1, s2, s3, lost, x0, x1, x2, x3;
    uint count = k;
    const uint * a = small;
    const uint * b = big;
    __asm__(TTMATH_X86_64_LOAD_SHIFTED
            "movq 0(%[b]), %[x0]\n\t"
            "movq 8(%[b]), %[x1]\n\t"
            "movq 16(%[b]), %[x2]\n\t"
            "movq 24(%[b]), %[x3]\n\t"
            "subq %[s0], %[x0]\n\t"
            "sbbq %[s1], %[x1]\n\t"
            "sbbq %[s2], %[x2]\n\t"
            "sbbq %[s3], %[x3]\n\t"
            TTMATH_X86_64_ROUNDING_CARRY(x0, s0, s1)
            "sbbq $0, %[x0]\n\t"
            "sbbq $0, %[x1]\n\t"
            "sbbq $0, %[x2]\n\t"
            "sbbq $0, %[x3]\n\t"
            : [s0] "=&r"(s0), [s1] "=&r"(s1), [s2] "=&r"(s2), [s3] "=&r"(s3), [lost] "=&r"(lost),
              [x0] "=&r"(x0), [x1] "=&r"(x1), [x2] "=&r"(x2), [x3] "=&r"(x3), [count] "+&c"(count),
              [a] "+&r"(a), [b] "+&r"(b)
            : [round] "r"(round)
            : "cc");
    r[0] = x0;
    r[1] = x1;
    r[2] = x2;
    r[3] = x3;
}

#undef TTMATH_X86_64_LOAD_SHIFTED
#undef TTMATH_X86_64_ROUNDING_CARRY

inline const char * lib_type_str() { return "asm_gcc_64"; }
inline LibTypeCode lib_type() { return asm_gcc_64; }

} // namespace x86_64_kernels
} // namespace ttmath

#endif
