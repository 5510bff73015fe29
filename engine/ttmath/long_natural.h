// LongNatural: a natural number of any length on a vector of words (least significant
// first, no leading zero words). Only the one-time computation of the constant tables
// uses it, where numbers reach tens of thousands of bits: products by Karatsuba's
// method, floor quotients by long division and integer square roots by Newton's
// iteration.
#ifndef TTMATH_LONG_NATURAL_H
#define TTMATH_LONG_NATURAL_H

#include <algorithm>
#include <cmath>
#include <vector>

#include "kernels.h"
#include "product.h"
#include "quotient.h"
#include "words.h"

namespace ttmath {
namespace wide {

typedef std::vector<uint> LongNatural;

inline void Trim(LongNatural & a)
{
    while (!a.empty() && a.back() == 0)
        a.pop_back();
}

inline LongNatural FromWord(uint v)
{
    LongNatural a;
    if (v)
        a.push_back(v);
    return a;
}

inline std::size_t BitLength(const LongNatural & a)
{
    if (a.empty())
        return 0;
    return a.size() * 64 - words::clz(a.back());
}

inline int Compare(const LongNatural & a, const LongNatural & b)
{
    if (a.size() != b.size())
        return a.size() < b.size() ? -1 : 1;
    return words::compare(a.data(), b.data(), a.size());
}

inline LongNatural Sum(const LongNatural & a, const LongNatural & b)
{
    const LongNatural & x = a.size() >= b.size() ? a : b;
    const LongNatural & y = a.size() >= b.size() ? b : a;
    LongNatural r(x.size() + 1, 0);
    uint c = y.empty() ? 0 : kernel::add_n(r.data(), x.data(), y.data(), y.size(), 0);
    for (std::size_t i = y.size(); i < x.size(); ++i) {
        r[i] = x[i] + c;
        c = r[i] < c ? 1 : 0;
    }
    r[x.size()] = c;
    Trim(r);
    return r;
}

// a - b for a >= b.
inline LongNatural Difference(const LongNatural & a, const LongNatural & b)
{
    LongNatural r(a);
    uint c = b.empty() ? 0 : kernel::sub_n(r.data(), a.data(), b.data(), b.size(), 0);
    for (std::size_t i = b.size(); c && i < r.size(); ++i) {
        uint old = r[i];
        r[i] = old - 1;
        c = old == 0 ? 1 : 0;
    }
    Trim(r);
    return r;
}

// Products of operands with at least this many words use Karatsuba's method.
const std::size_t long_karatsuba_words = 32;

inline LongNatural Product(const LongNatural & a, const LongNatural & b)
{
    if (a.empty() || b.empty())
        return LongNatural();
    const LongNatural & x = a.size() >= b.size() ? a : b; // the longer
    const LongNatural & y = a.size() >= b.size() ? b : a;
    LongNatural r(x.size() + y.size(), 0);
    if (y.size() < long_karatsuba_words) {
        r[x.size()] = kernel::mul_1(r.data(), x.data(), x.size(), y[0]);
        for (std::size_t j = 1; j < y.size(); ++j)
            r[x.size() + j] = kernel::addmul_1(r.data() + j, x.data(), x.size(), y[j]);
        Trim(r);
        return r;
    }
    // chunks of the longer operand, each multiplied by the shorter at an even size
    const std::size_t n = y.size() + (y.size() & 1);
    std::vector<uint> ys(n, 0), xs(n), part(2 * n), scratch(product::karatsuba_scratch(n));
    std::copy(y.begin(), y.end(), ys.begin());
    for (std::size_t at = 0; at < x.size(); at += n) {
        std::size_t len = std::min(n, x.size() - at);
        std::fill(xs.begin(), xs.end(), 0);
        std::copy(x.begin() + at, x.begin() + at + len, xs.begin());
        product::karatsuba(part.data(), xs.data(), ys.data(), n, scratch.data());
        std::size_t room = r.size() - at;
        std::size_t add = std::min(2 * n, room);
        uint c = kernel::add_n(r.data() + at, r.data() + at, part.data(), add, 0);
        for (std::size_t i = at + add; c && i < r.size(); ++i) {
            r[i] += 1;
            c = r[i] == 0 ? 1 : 0;
        }
    }
    Trim(r);
    return r;
}

inline LongNatural ProductWord(const LongNatural & a, uint k)
{
    if (a.empty() || k == 0)
        return LongNatural();
    LongNatural r(a.size() + 1);
    r[a.size()] = kernel::mul_1(r.data(), a.data(), a.size(), k);
    Trim(r);
    return r;
}

// a * 2^bits
inline LongNatural ShiftLeft(const LongNatural & a, std::size_t bits)
{
    if (a.empty())
        return a;
    LongNatural r(a.size() + bits / 64 + 1, 0);
    std::copy(a.begin(), a.end(), r.begin() + bits / 64);
    if (bits % 64)
        words::shl_bits(r.data() + bits / 64, r.data() + bits / 64, a.size() + 1, static_cast<unsigned>(bits % 64));
    Trim(r);
    return r;
}

// floor(a / 2^bits)
inline LongNatural ShiftRight(const LongNatural & a, std::size_t bits)
{
    if (bits / 64 >= a.size())
        return LongNatural();
    LongNatural r(a.begin() + bits / 64, a.end());
    if (bits % 64)
        words::shr_bits(r.data(), r.data(), r.size(), static_cast<unsigned>(bits % 64));
    Trim(r);
    return r;
}

// floor(a / b) for b > 0.
inline LongNatural Quotient(const LongNatural & a, const LongNatural & b)
{
    if (Compare(a, b) < 0)
        return LongNatural();
    LongNatural q(a.size() - b.size() + 1);
    std::vector<uint> scratch(quotient::scratch_words(a.size(), b.size()));
    quotient::floor_quotient(q.data(), a.data(), a.size(), b.data(), b.size(), scratch.data());
    Trim(q);
    return q;
}

// floor(sqrt(a)): the root of the top half of the bits first, then Newton steps at
// the full length, which start within a few units of the root.
inline LongNatural SquareRoot(const LongNatural & a)
{
    const std::size_t bits = BitLength(a);
    const std::size_t double_exact_bits = 100;
    LongNatural x;
    if (bits <= double_exact_bits) {
        double d = 0;
        for (std::size_t i = a.size(); i-- > 0;)
            d = d * 0x1p64 + static_cast<double>(a[i]);
        uint s = static_cast<uint>(std::sqrt(d));
        x = FromWord(s + 2);
    } else {
        // sqrt(a) ~ sqrt(a / 4^k) 2^k
        const std::size_t k = bits / 4;
        x = Sum(ShiftLeft(SquareRoot(ShiftRight(a, 2 * k)), k), ShiftLeft(FromWord(1), k));
    }
    // Newton from above: x decreases to floor(sqrt(a)) and then stops decreasing
    for (;;) {
        LongNatural y = ShiftRight(Sum(x, Quotient(a, x)), 1);
        if (Compare(y, x) >= 0)
            break;
        x = y;
    }
    return x;
}

} // namespace wide
} // namespace ttmath

#endif
