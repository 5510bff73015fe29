// WideFloat<CAP>: the working number of the elementary functions. A binary
// floating-point value with a run-time precision of n <= CAP words and a plain
// 64-bit exponent:
//
//     value = (-1)^neg * W * 2^(e - 64 n),  W the n-word mantissa, top bit set,
//
// so a non-zero value lies in [2^(e-1), 2^e). Every operation truncates its exact
// result to the precision it is asked for, so each one is off by less than one unit in
// the last place (ulp) of its result; the function kernels add these errors up into
// the bound they hand to the rounding test. Exponents stay far from the 64-bit limits
// because the functions only convert arguments whose exponents are moderate (see
// moderate_exponent) and treat the others by their asymptotic forms.
#ifndef TTMATH_WIDE_FLOAT_H
#define TTMATH_WIDE_FLOAT_H

#include <cmath>
#include <cstddef>
#include <cstring>

#include "integer_sqrt.h"
#include "kernels.h"
#include "quotient.h"
#include "words.h"

namespace ttmath {
namespace wide {

// Arguments whose binary exponent lies within +-2^moderate_exponent_bits are converted
// to working numbers; products of a few of them still fit a 64-bit exponent.
const unsigned moderate_exponent_bits = 40;
const sint moderate_exponent = sint(1) << moderate_exponent_bits;

const unsigned word_bits = 64;

template<std::size_t CAP>
struct WideFloat {
    uint w[CAP];
    sint e = 0;
    std::size_t n = 1;
    bool neg = false;
    bool zero = true;

    WideFloat() { w[0] = 0; }

    void SetZero(std::size_t words)
    {
        n = words <= CAP ? words : CAP;
        zero = true;
        neg = false;
        e = 0;
        words::fill(w, n, 0);
    }

    // 2^k at the given precision.
    void SetPowerOfTwo(sint k, std::size_t words)
    {
        n = words;
        words::fill(w, n, 0);
        w[n - 1] = TTMATH_UINT_HIGHEST_BIT;
        e = k + 1;
        neg = false;
        zero = false;
    }

    void SetOne(std::size_t words) { SetPowerOfTwo(0, words); }

    void SetWord(uint value, std::size_t words)
    {
        if (value == 0) {
            SetZero(words);
            return;
        }
        n = words;
        words::fill(w, n, 0);
        unsigned lz = words::clz(value);
        w[n - 1] = value << lz;
        e = static_cast<sint>(word_bits - lz);
        neg = false;
        zero = false;
    }

    // Sets the value of `count` words (least significant first) times 2^shift, exactly
    // when count <= words, else truncated.
    void SetWords(const uint * src, std::size_t count, sint shift, std::size_t words)
    {
        n = words;
        neg = false;
        std::size_t used = words::used_words(src, count);
        if (used == 0) {
            SetZero(words);
            return;
        }
        uint lz = words::clz(src[used - 1]);
        e = static_cast<sint>(used * word_bits - lz) + shift;
        zero = false;
        // tmp[1 .. words] gets the top words of src, tmp[0] the word below them, then
        // everything moves left by lz
        uint tmp[CAP + 1];
        for (std::size_t i = 0; i <= words; ++i) {
            // tmp[i] holds src word (used - 1) - (words - i), when it exists
            std::size_t back = words - i; // how far below the top word
            tmp[i] = back < used ? src[used - 1 - back] : 0;
        }
        if (lz)
            words::shl_bits(tmp, tmp, words + 1, static_cast<unsigned>(lz));
        words::copy(w, tmp + 1, words);
    }

    void Negate()
    {
        if (!zero)
            neg = !neg;
    }

    // Changes the precision: zeros are appended below, or low words are dropped.
    void Resize(std::size_t words)
    {
        if (words > n) {
            std::size_t d = words - n;
            std::memmove(w + d, w, n * sizeof(uint));
            words::fill(w, d, 0);
        } else if (words < n) {
            std::size_t d = n - words;
            std::memmove(w, w + d, words * sizeof(uint));
        }
        n = words;
    }

    // Multiplies by 2^k exactly.
    void Shift(sint k)
    {
        if (!zero)
            e += k;
    }

    // An approximation as a double, for starting values; exponents beyond the double
    // range give 0 or infinity.
    double ToDouble() const
    {
        if (zero)
            return 0.0;
        double top = static_cast<double>(w[n - 1]);
        if (n > 1)
            top += static_cast<double>(w[n - 2]) * 0x1p-64;
        sint k = e - static_cast<sint>(word_bits);
        double v;
        if (k > 2000)
            v = HUGE_VAL;
        else if (k < -2000)
            v = 0.0;
        else
            v = std::ldexp(top, static_cast<int>(k));
        return neg ? -v : v;
    }

    void FromDouble(double d, std::size_t words)
    {
        if (d == 0.0) {
            SetZero(words);
            return;
        }
        int k;
        double f = std::frexp(std::fabs(d), &k); // f in [0.5, 1)
        uint top = static_cast<uint>(std::ldexp(f, static_cast<int>(word_bits)));
        SetWord(top, words);
        e = k;
        neg = d < 0;
    }

    // Normalises w[0 .. n) after an operation that may have left leading zeros.
    void Normalize()
    {
        uint lz = words::leading_zeros(w, n);
        if (lz == 0 && (w[n - 1] & TTMATH_UINT_HIGHEST_BIT))
            return;
        if (words::is_zero(w, n)) {
            zero = true;
            neg = false;
            e = 0;
            return;
        }
        words::shl(w, n, lz);
        e -= static_cast<sint>(lz);
    }
};

// -1, 0 or 1 as |a| is below, equal to or above |b|.
template<std::size_t C1, std::size_t C2>
int CompareAbs(const WideFloat<C1> & a, const WideFloat<C2> & b)
{
    if (a.zero || b.zero)
        return a.zero ? (b.zero ? 0 : -1) : 1;
    if (a.e != b.e)
        return a.e < b.e ? -1 : 1;
    std::size_t i = a.n, j = b.n;
    while (i > 0 && j > 0) {
        --i;
        --j;
        if (a.w[i] != b.w[j])
            return a.w[i] < b.w[j] ? -1 : 1;
    }
    if (i > 0 && !words::is_zero(a.w, i))
        return 1;
    if (j > 0 && !words::is_zero(b.w, j))
        return -1;
    return 0;
}

// Copies the top `count` words of x's mantissa into dst, padding with zeros below.
template<std::size_t C>
void TopWords(uint * dst, const WideFloat<C> & x, std::size_t count)
{
    if (x.n >= count) {
        words::copy(dst, x.w + (x.n - count), count);
    } else {
        std::size_t d = count - x.n;
        words::fill(dst, d, 0);
        words::copy(dst + d, x.w, x.n);
    }
}

// r = (top of) the 'len'-word number p times 2^(shift - 64 len); r gets r.n words.
template<std::size_t C>
void LoadProduct(WideFloat<C> & r, const uint * p, std::size_t len, sint shift, bool negative)
{
    std::size_t used = words::used_words(p, len);
    if (used == 0) {
        r.SetZero(r.n);
        return;
    }
    r.SetWords(p, used, shift - static_cast<sint>(len * word_bits), r.n);
    r.neg = negative;
}

// r = a * b at precision n. r may be a or b.
template<std::size_t C>
void Mul(WideFloat<C> & r, const WideFloat<C> & a, const WideFloat<C> & b, std::size_t n)
{
    if (a.zero || b.zero) {
        r.SetZero(n);
        return;
    }
    std::size_t na = a.n < n ? a.n : n;
    std::size_t nb = b.n < n ? b.n : n;
    uint x[C], y[C], p[2 * C];
    TopWords(x, a, na);
    TopWords(y, b, nb);
    if (na >= nb) {
        p[na] = kernel::mul_1(p, x, na, y[0]);
        for (std::size_t j = 1; j < nb; ++j)
            p[na + j] = kernel::addmul_1(p + j, x, na, y[j]);
    } else {
        p[nb] = kernel::mul_1(p, y, nb, x[0]);
        for (std::size_t j = 1; j < na; ++j)
            p[nb + j] = kernel::addmul_1(p + j, y, nb, x[j]);
    }
    bool negative = a.neg != b.neg;
    sint e = a.e + b.e;
    r.n = n;
    LoadProduct(r, p, na + nb, e, negative);
}

template<std::size_t C>
void Sqr(WideFloat<C> & r, const WideFloat<C> & a, std::size_t n)
{
    Mul(r, a, a, n);
}

// r = a * k for a word k, at precision n.
template<std::size_t C>
void MulWord(WideFloat<C> & r, const WideFloat<C> & a, uint k, std::size_t n)
{
    if (a.zero || k == 0) {
        r.SetZero(n);
        return;
    }
    uint x[C + 1];
    std::size_t na = a.n < n ? a.n : n;
    TopWords(x, a, na);
    x[na] = kernel::mul_1(x, x, na, k);
    bool negative = a.neg;
    sint e = a.e + static_cast<sint>(word_bits);
    r.n = n;
    LoadProduct(r, x, na + 1, e, negative);
}

// r = a / k for a non-zero word k, at precision n.
template<std::size_t C>
void DivWord(WideFloat<C> & r, const WideFloat<C> & a, uint k, std::size_t n)
{
    if (a.zero) {
        r.SetZero(n);
        return;
    }
    uint x[C + 1];
    TopWords(x + 1, a, n);
    x[0] = 0;
    quotient::by_word(x, x, n + 1, k);
    bool negative = a.neg;
    sint e = a.e;
    r.n = n;
    LoadProduct(r, x, n + 1, e, negative);
}

// r = a + b (or a - b when `subtract`), at precision n. The operands are aligned in a
// window of n + 2 words below the larger one's leading bit, so the sum is exact up to
// 2^-128 of the larger operand before it is truncated.
template<std::size_t C>
void AddSub(WideFloat<C> & r, const WideFloat<C> & a, const WideFloat<C> & b_, bool subtract, std::size_t n)
{
    if (b_.zero) {
        WideFloat<C> t(a);
        t.Resize(n);
        r = t;
        return;
    }
    if (a.zero) {
        WideFloat<C> t(b_);
        t.Resize(n);
        if (subtract)
            t.Negate();
        r = t;
        return;
    }
    const bool bneg = subtract ? !b_.neg : b_.neg;
    // big: the operand of larger magnitude
    const int cmp = CompareAbs(a, b_);
    const WideFloat<C> & big = cmp >= 0 ? a : b_;
    const WideFloat<C> & small = cmp >= 0 ? b_ : a;
    const bool big_neg = cmp >= 0 ? a.neg : bneg;
    const bool small_neg = cmp >= 0 ? bneg : a.neg;
    const std::size_t win = n + 2;
    uint x[C + 2], y[C + 3];
    TopWords(x, big, win);
    const sint d = big.e - small.e; // >= 0
    if (d >= static_cast<sint>(win * word_bits)) {
        // the smaller operand lies entirely below the window
        WideFloat<C> t(big);
        t.Resize(n);
        t.neg = big_neg;
        r = t;
        return;
    }
    const std::size_t dw = static_cast<std::size_t>(d) / word_bits;
    const unsigned db = static_cast<unsigned>(static_cast<std::size_t>(d) % word_bits);
    // y = small's top words shifted right by d bits within the window
    words::fill(y, win + 1, 0);
    {
        uint s[C + 3];
        TopWords(s + 1, small, win);
        s[0] = 0;
        // s has win + 1 words; after shifting right by db, drop dw words
        if (db)
            words::shr_bits(s, s, win + 1, db);
        for (std::size_t i = 0; i + dw < win; ++i)
            y[i] = s[i + dw + 1];
    }
    uint carry = 0;
    if (big_neg == small_neg)
        carry = kernel::add_n(x, x, y, win, 0);
    else
        kernel::sub_n(x, x, y, win, 0);
    r.n = n;
    if (carry) {
        uint z[C + 3];
        words::copy(z, x, win);
        z[win] = 1;
        LoadProduct(r, z, win + 1, big.e + static_cast<sint>(word_bits), big_neg);
    } else {
        LoadProduct(r, x, win, big.e, big_neg);
    }
}

template<std::size_t C>
void Add(WideFloat<C> & r, const WideFloat<C> & a, const WideFloat<C> & b, std::size_t n)
{
    AddSub(r, a, b, false, n);
}

template<std::size_t C>
void Sub(WideFloat<C> & r, const WideFloat<C> & a, const WideFloat<C> & b, std::size_t n)
{
    AddSub(r, a, b, true, n);
}

// r = a / b for a non-zero b, at precision n.
template<std::size_t C>
void Div(WideFloat<C> & r, const WideFloat<C> & a, const WideFloat<C> & b, std::size_t n)
{
    if (a.zero) {
        r.SetZero(n);
        return;
    }
    const std::size_t vn = b.n < n + 1 ? b.n : n + 1;
    const std::size_t un = n + 1 + vn; // the dividend a * 2^(64 (vn + 1)) with n top words of a
    uint u[2 * C + 4], v[C + 1], q[2 * C + 4], scratch[3 * C + 8];
    words::fill(u, un, 0);
    TopWords(u + (un - n), a, n);
    TopWords(v, b, vn);
    quotient::floor_quotient(q, u, un, v, vn, scratch);
    const std::size_t qn = un - vn + 1;
    // a = A 2^(ea - 64n), b = B 2^(eb - 64vn), q = floor(A 2^(64(vn+1)) / B)
    // a / b = q 2^(ea - eb - 64(n + 1))  ->  leading-exponent form with qn words
    const sint e = a.e - b.e - static_cast<sint>((n + 1) * word_bits) + static_cast<sint>(qn * word_bits);
    r.n = n;
    LoadProduct(r, q, qn, e, a.neg != b.neg);
}

// r = sqrt(a) for a >= 0 at precision n: the exact integer root of a's top 2n words
// (shifted right by one bit when the exponent is odd), so r is sqrt(a) truncated to
// n words, below it by less than one ulp (when a has more than 2n words, the words
// dropped only lower the radicand, and the bound still holds). r may be a.
template<std::size_t C>
void Sqrt(WideFloat<C> & r, const WideFloat<C> & a, std::size_t n)
{
    if (a.zero) {
        r.SetZero(n);
        return;
    }
    // a = A 2^(e - 128 n) for the 2n-word A; sqrt(a) = sqrt(A') 2^((e + odd) / 2 - 64 n)
    // with A' = A / 2^odd, whose top word is at least 2^62
    uint radicand[2 * C], root[C];
    uint scratch[integer_sqrt::rounding_scratch_words(C)];
    TopWords(radicand, a, 2 * n);
    const bool odd = (a.e & 1) != 0;
    if (odd)
        words::shr_bits(radicand, radicand, 2 * n, 1);
    integer_sqrt::sqrt_rounds_up(root, radicand, n, scratch);
    r.n = n;
    words::copy(r.w, root, n);
    r.e = (a.e + (odd ? 1 : 0)) / 2;
    r.neg = false;
    r.zero = false;
}

} // namespace wide
} // namespace ttmath

#endif
