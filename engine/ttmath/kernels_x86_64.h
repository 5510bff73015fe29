// Word kernels for x86-64 in GCC/Clang inline assembly: the carry chains and the
// multiply-accumulate loops that every mantissa operation runs through. Results are
// identical to the portable kernels. The multiply-accumulate loops and the four-word
// product use MULX, ADCX and ADOX when the processor has them (kernels_x86_64_adx.h,
// chosen at run time); the loops here run on every x86-64 processor.
#ifndef TTMATH_KERNELS_X86_64_H
#define TTMATH_KERNELS_X86_64_H

#include <cstddef>
#include "types.h"
#include "cpu_x86_64.h"
#include "kernels_x86_64_adx.h"
#include "kernels_x86_64_quotient.h"

namespace ttmath {
namespace x86_64_kernels {

// An assembly statement that reads n words through a pointer names them as a memory
// operand of this type, so that the compiler has stored them before and knows that
// nothing else is read or written.
template<std::size_t n>
struct word_block {
    uint w[n];
};

template<std::size_t n>
inline const word_block<n> & words_at(const uint * p)
{
    return *reinterpret_cast<const word_block<n> *>(p);
}

// All ones when x >= y, else 0, always without a branch: for choices that follow the
// data, which a branch would mispredict half the time.
inline uint mask_at_least(uint x, uint y)
{
    uint mask;
    __asm__("cmpq %[y], %[x]\n\t"
            "sbbq %[m], %[m]\n\t"
            "notq %[m]\n\t"
            : [m] "=r"(mask)
            : [x] "r"(x), [y] "rm"(y)
            : "cc");
    return mask;
}

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
inline uint mul_1_base(uint * r, const uint * a, std::size_t n, uint b)
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
inline uint addmul_1_base(uint * r, const uint * a, std::size_t n, uint b)
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
inline uint submul_1_base(uint * r, const uint * a, std::size_t n, uint b)
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

// The multiply-accumulate kernels: with MULX, ADCX and ADOX when the processor has
// them (kernels_x86_64_adx.h), else the base loops above.
inline uint mul_1(uint * r, const uint * a, std::size_t n, uint b)
{
    return use_mulx_adx ? mul_1_adx(r, a, n, b) : mul_1_base(r, a, n, b);
}

inline uint addmul_1(uint * r, const uint * a, std::size_t n, uint b)
{
    return use_mulx_adx ? addmul_1_adx(r, a, n, b) : addmul_1_base(r, a, n, b);
}

inline uint submul_1(uint * r, const uint * a, std::size_t n, uint b)
{
    return use_mulx_adx ? submul_1_adx(r, a, n, b) : submul_1_base(r, a, n, b);
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

// The high half of an eight-word product p whose leading bit is one of its top two:
// shifted left by i (0 or 1) so that its top bit is set, then rounded half to even on
// the low half (round = 1) or truncated (round = 0). A rounding that carries out leaves
// only the top bit and sets `carry`. Returns i. No branches: the shift is by a computed
// count, and the rounding step is the carry out of below + (2^63 - 1) + (the rest of
// the low half is non-zero or the kept part is odd), `below` being the low half's top
// word.
inline uint high_half_rounded_4(uint * m, const uint * p, uint round, uint & carry)
{
    uint x2, x3, x4, x5, x6, x7, t, i;
    __asm__("movq 56(%[p]), %[x7]\n\t"
            "movq 48(%[p]), %[x6]\n\t"
            "movq 40(%[p]), %[x5]\n\t"
            "movq 32(%[p]), %[x4]\n\t"
            "movq 24(%[p]), %[x3]\n\t"
            "movq 16(%[p]), %[x2]\n\t"
            "movq %[x7], %[i]\n\t"
            "notq %[i]\n\t"
            "shrq $63, %[i]\n\t"
            "shldq %%cl, %[x6], %[x7]\n\t"
            "shldq %%cl, %[x5], %[x6]\n\t"
            "shldq %%cl, %[x4], %[x5]\n\t"
            "shldq %%cl, %[x3], %[x4]\n\t"
            "shldq %%cl, %[x2], %[x3]\n\t"
            "shlq %%cl, %[x2]\n\t"
            "orq 8(%[p]), %[x2]\n\t"
            "orq 0(%[p]), %[x2]\n\t"
            "movq %[x4], %[t]\n\t"
            "andl $1, %k[t]\n\t"
            "orq %[t], %[x2]\n\t"
            "movq %[round], %[t]\n\t"
            "negq %[t]\n\t"
            "andq %[t], %[x2]\n\t"
            "shrq $1, %[t]\n\t"
            "negq %[x2]\n\t"
            "adcq %[t], %[x3]\n\t"
            "adcq $0, %[x4]\n\t"
            "adcq $0, %[x5]\n\t"
            "adcq $0, %[x6]\n\t"
            "adcq $0, %[x7]\n\t"
            "sbbq %[t], %[t]\n\t"
            : [x2] "=&r"(x2), [x3] "=&r"(x3), [x4] "=&r"(x4), [x5] "=&r"(x5), [x6] "=&r"(x6), [x7] "=&r"(x7),
              [t] "=&r"(t), [i] "=&c"(i)
            : [p] "r"(p), [round] "r"(round), "m"(words_at<8>(p))
            : "cc");
    m[0] = x4;
    m[1] = x5;
    m[2] = x6;
    m[3] = x7 | (t << 63);
    carry = t & 1;
    return i;
}

inline const char * lib_type_str() { return "asm_gcc_64"; }
inline LibTypeCode lib_type() { return asm_gcc_64; }

} // namespace x86_64_kernels
} // namespace ttmath

#endif
