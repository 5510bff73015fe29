// Reading arguments of the elementary functions: the value a Big stands for (its words
// taken as they are, normalised here; the zero flag or an all-zero mantissa means 0),
// split into a normalised mantissa and the exponent of its leading bit, which may be
// far outside the working numbers' range.
#ifndef TTMATH_FUNCTION_ARGUMENTS_H
#define TTMATH_FUNCTION_ARGUMENTS_H

#include "correct_rounding.h"

namespace ttmath {
namespace wide {

template<uint exp, uint man>
struct Argument {
    typedef typename Work<exp, man>::Offset Offset;

    uint m[man];  // normalised mantissa, top bit set (when not zero)
    Offset lead;  // |value| in [2^(lead - 1), 2^lead)
    bool neg = false;
    bool zero = true;

    explicit Argument(const Big<exp, man> & x)
    {
        lead.SetZero();
        neg = x.IsSign();
        words::copy(m, x.mantissa.table, man);
        if (x.IsZero() || words::is_zero(m, man)) {
            zero = true;
            neg = false;
            return;
        }
        zero = false;
        uint lz = words::leading_zeros(m, man);
        if (lz)
            words::shl(m, man, lz);
        // lead = exponent + P - lz, computed one word wider
        for (uint i = 0; i < exp; ++i)
            lead.table[i] = x.exponent.table[i];
        lead.table[exp] = x.exponent.IsSign() ? TTMATH_UINT_MAX_VALUE : 0;
        lead.Add(Offset(static_cast<sint>(Big<exp, man>::mantissa_bits) - static_cast<sint>(lz)));
    }

    // The leading exponent as a sint when it lies within +-2^moderate_exponent_bits.
    bool Moderate(sint & e) const
    {
        sint v;
        if (lead.ToInt(v))
            return false;
        if (v > moderate_exponent || v < -moderate_exponent)
            return false;
        e = v;
        return true;
    }

    // The sign of lead - k: -1, 0 or 1.
    int CompareLead(sint k) const { return lead.Compare(Offset(k)); }

    // The value as a working number of n >= man words (exact); needs a moderate exponent.
    template<std::size_t C>
    bool ToWide(WideFloat<C> & x, std::size_t n) const
    {
        if (zero) {
            x.SetZero(n);
            return true;
        }
        sint e;
        if (!Moderate(e))
            return false;
        x.SetWords(m, man, e - static_cast<sint>(man * word_bits), n);
        x.neg = neg;
        return true;
    }

    // The mantissa alone as a working number in [1/2, 1).
    template<std::size_t C>
    void MantissaToWide(WideFloat<C> & x, std::size_t n) const
    {
        x.SetWords(m, man, -static_cast<sint>(man * word_bits), n);
    }

    // True when |value| lies within a factor 1 +- 2^-20 of 2^(64 exp - 1) ln 2, where e^x
    // and e^-x leave the exponent range.
    bool NearRangeEdge() const
    {
        const double ln2 = 0.6931471805599453;
        const double band = 0x1p-20;
        if (zero || CompareLead(static_cast<sint>(exp * word_bits) - 1) != 0)
            return false;
        // |value| / (2^lead ln 2) = m / ln 2 with m in [1/2, 1)
        const double ratio = (static_cast<double>(m[man - 1]) * 0x1p-64) / ln2;
        return ratio > 1.0 - band && ratio < 1.0 + band;
    }

    // |value| == 1
    bool IsOneMagnitude() const
    {
        return !zero && CompareLead(1) == 0 && m[man - 1] == TTMATH_UINT_HIGHEST_BIT && words::is_zero(m, man - 1);
    }

    bool IsOne() const { return !neg && IsOneMagnitude(); }
};

// A signed integer of `count` words (two's complement) as a working number of n words;
// exact when n covers its bits.
template<std::size_t C>
void IntegerToWide(WideFloat<C> & x, const uint * table, std::size_t count, std::size_t n)
{
    uint mag[C];
    words::copy(mag, table, count);
    bool negative = (table[count - 1] & TTMATH_UINT_HIGHEST_BIT) != 0;
    if (negative) {
        for (std::size_t i = 0; i < count; ++i)
            mag[i] = ~mag[i];
        for (std::size_t i = 0; i < count; ++i)
            if (++mag[i] != 0)
                break;
    }
    x.SetWords(mag, count, 0, n);
    x.neg = negative && !x.zero;
}

} // namespace wide
} // namespace ttmath

#endif
