// pi, 2/pi and ln 2 to any number of bits, by binary splitting of fast series:
// Chudnovsky's series for pi and 2 atanh(1/3) for ln 2. The tables the functions read
// are computed once, on first use, at fixed lengths: a short one that covers every
// working precision, and a long 2/pi that only arguments of sin, cos, tan and cot
// beyond 2^62 need. Their size and the time to make them do not depend on any argument.
#ifndef TTMATH_SERIES_CONSTANTS_H
#define TTMATH_SERIES_CONSTANTS_H

#include <vector>

#include "long_natural.h"
#include "wide_float.h"

namespace ttmath {
namespace wide {

namespace chudnovsky {
const uint a_constant = 13591409;
const uint a_step = 545140134;
const uint q_factor = 10939058860032000ull; // 640320^3 / 24
const uint sqrt_argument = 10005;
const uint pi_factor = 426880; // pi = pi_factor sqrt(sqrt_argument) Q / T
const double bits_per_term = 47.11;
} // namespace chudnovsky

struct SignedNatural {
    bool neg = false;
    LongNatural mag;
};

inline SignedNatural SignedSum(const SignedNatural & a, const SignedNatural & b)
{
    SignedNatural r;
    if (a.neg == b.neg) {
        r.neg = a.neg;
        r.mag = Sum(a.mag, b.mag);
    } else if (Compare(a.mag, b.mag) >= 0) {
        r.neg = a.neg;
        r.mag = Difference(a.mag, b.mag);
    } else {
        r.neg = b.neg;
        r.mag = Difference(b.mag, a.mag);
    }
    if (r.mag.empty())
        r.neg = false;
    return r;
}

inline SignedNatural SignedProduct(const SignedNatural & a, const LongNatural & b, bool b_neg)
{
    SignedNatural r;
    r.mag = Product(a.mag, b);
    r.neg = !r.mag.empty() && (a.neg != b_neg);
    return r;
}

// The sums P, Q, T of the terms [from, to) of Chudnovsky's series.
struct ChudnovskySplit {
    LongNatural p, q;
    bool p_neg = false;
    SignedNatural t;
};

inline ChudnovskySplit SplitChudnovsky(uint from, uint to)
{
    ChudnovskySplit r;
    if (to - from == 1) {
        const uint k = from;
        if (k == 0) {
            r.p = FromWord(1);
            r.q = FromWord(1);
        } else {
            r.p = FromWord((6 * k - 5) * (2 * k - 1) * (6 * k - 1));
            r.p_neg = true;
            r.q = ProductWord(FromWord(k * k * k), chudnovsky::q_factor);
        }
        r.t.mag = ProductWord(r.p, chudnovsky::a_constant + chudnovsky::a_step * k);
        r.t.neg = r.p_neg;
        return r;
    }
    const uint mid = from + (to - from) / 2;
    ChudnovskySplit left = SplitChudnovsky(from, mid), right = SplitChudnovsky(mid, to);
    // T = T1 Q2 + P1 T2
    SignedNatural a = SignedProduct(left.t, right.q, false);
    SignedNatural b = SignedProduct(right.t, left.p, left.p_neg);
    r.t = SignedSum(a, b);
    r.p = Product(left.p, right.p);
    r.p_neg = left.p_neg != right.p_neg;
    r.q = Product(left.q, right.q);
    return r;
}

// floor(pi 2^bits) and floor(2/pi 2^bits), each within a few units of the exact value.
struct PiTables {
    LongNatural pi, two_over_pi;
};

inline PiTables ComputePi(std::size_t bits)
{
    const uint terms = static_cast<uint>(static_cast<double>(bits) / chudnovsky::bits_per_term) + 3;
    ChudnovskySplit s = SplitChudnovsky(0, terms);
    // sqrt(10005) 2^bits
    LongNatural root = SquareRoot(ShiftLeft(FromWord(chudnovsky::sqrt_argument), 2 * bits));
    LongNatural num = ProductWord(Product(root, s.q), chudnovsky::pi_factor);
    PiTables r;
    r.pi = Quotient(num, s.t.mag);
    r.two_over_pi = Quotient(ShiftLeft(s.t.mag, 2 * bits + 1), num);
    return r;
}

// floor(ln 2 2^bits) from ln 2 = (2/3) sum 1/((2k+1) 9^k), split into P = 1, Q, B, T.
struct Ln2Split {
    LongNatural q, b, t;
};

const uint ln2_ratio = 9;
const double ln2_bits_per_term = 3.169;

inline Ln2Split SplitLn2(uint from, uint to)
{
    Ln2Split r;
    if (to - from == 1) {
        r.q = FromWord(from == 0 ? 1 : ln2_ratio);
        r.b = FromWord(2 * from + 1);
        r.t = FromWord(1);
        return r;
    }
    const uint mid = from + (to - from) / 2;
    Ln2Split left = SplitLn2(from, mid), right = SplitLn2(mid, to);
    // T = B2 Q2 T1 + B1 T2
    r.t = Sum(Product(Product(right.b, right.q), left.t), Product(left.b, right.t));
    r.q = Product(left.q, right.q);
    r.b = Product(left.b, right.b);
    return r;
}

inline LongNatural ComputeLn2(std::size_t bits)
{
    const uint terms = static_cast<uint>(static_cast<double>(bits) / ln2_bits_per_term) + 3;
    Ln2Split s = SplitLn2(0, terms);
    const uint three = 3;
    return Quotient(ShiftLeft(s.t, bits + 1), ProductWord(Product(s.b, s.q), three));
}

// A table: the words of floor(c 2^(64 words - integer_bits)), least significant first,
// for a constant c in [2^(integer_bits - 1), 2^integer_bits).
struct ConstantTable {
    std::vector<uint> w;
    sint integer_bits = 0;
};

// Guard bits computed beyond a table's length, so that its words are exact
// truncations (the computed values are within a few units of the exact ones).
const std::size_t table_guard_bits = 128;

// value = floor(c 2^(64 words + table_guard_bits))
inline ConstantTable MakeTable(const LongNatural & value, std::size_t words, sint integer_bits)
{
    ConstantTable t;
    t.integer_bits = integer_bits;
    LongNatural v = ShiftRight(value, table_guard_bits + static_cast<std::size_t>(integer_bits));
    v.resize(words, 0);
    t.w = v;
    return t;
}

// Lengths of the tables in words. The short ones serve every working precision; the
// long 2/pi reaches 2^-(65536 + 4096 + 7000) and serves the argument reduction.
const std::size_t short_table_words = 256;
const std::size_t long_table_words = 1210;

struct ShortTables {
    ConstantTable pi, two_over_pi, ln2;
};

inline const ShortTables & Short()
{
    static const ShortTables tables = [] {
        ShortTables t;
        const std::size_t bits = short_table_words * 64;
        PiTables p = ComputePi(bits + table_guard_bits);
        t.pi = MakeTable(p.pi, short_table_words, 2);
        t.two_over_pi = MakeTable(p.two_over_pi, short_table_words, 0);
        t.ln2 = MakeTable(ComputeLn2(bits + table_guard_bits), short_table_words, 0);
        return t;
    }();
    return tables;
}

// x = the table's constant truncated to n words (n at most the table's length).
template<std::size_t C>
void LoadConstant(WideFloat<C> & x, const ConstantTable & t, std::size_t n)
{
    const std::size_t len = t.w.size();
    x.SetWords(t.w.data() + (len - n), n, t.integer_bits - static_cast<sint>(n * word_bits), n);
}

inline const ConstantTable & LongTwoOverPi()
{
    static const ConstantTable table = [] {
        const std::size_t bits = long_table_words * 64;
        PiTables p = ComputePi(bits + table_guard_bits);
        return MakeTable(p.two_over_pi, long_table_words, 0);
    }();
    return table;
}

} // namespace wide
} // namespace ttmath

#endif
