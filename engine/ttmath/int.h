// Int<N>: a signed integer of N 64-bit words in two's complement. Arithmetic wraps
// like UInt's, but the carry it returns is the signed-overflow indication: 1 exactly
// when the mathematical result lies outside the type's range.
#ifndef TTMATH_INT_H
#define TTMATH_INT_H

#include "uint.h"

namespace ttmath {

template<uint value_size>
class Int : public UInt<value_size> {
    typedef UInt<value_size> Base;

public:
    using Base::table;

    Int() {}
    Int(sint value) { FromInt(value); }
    explicit Int(const Base & u) : Base(u) {}

    uint FromInt(sint value)
    {
        words::fill(table, value_size, value < 0 ? TTMATH_UINT_MAX_VALUE : 0);
        table[0] = static_cast<uint>(value);
        return 0;
    }

    // The value of a non-negative `value` word, zero-extended.
    uint FromUInt(uint value)
    {
        Base::FromUInt(value);
        return 0;
    }

    bool IsSign() const { return Base::IsTheHighestBitSet(); }

    void SetMax()
    {
        Base::SetMax();
        table[value_size - 1] = ~TTMATH_UINT_HIGHEST_BIT;
    }
    void SetMin()
    {
        Base::SetZero();
        table[value_size - 1] = TTMATH_UINT_HIGHEST_BIT;
    }
    void SetSignOne() { Base::SetMax(); }

    // Negates; the most negative value cannot be negated, stays as it is and returns 1.
    uint ChangeSign()
    {
        if (Base::IsOnlyTheHighestBitSet())
            return 1;
        Base::BitNot();
        Base::AddOne();
        return 0;
    }

    void SetSign()
    {
        if (!IsSign())
            ChangeSign();
    }

    // Absolute value; returns 1 (unchanged) for the most negative value.
    uint Abs()
    {
        if (!IsSign())
            return 0;
        return ChangeSign();
    }

    uint Add(const Int & ss2)
    {
        bool a = IsSign(), b = ss2.IsSign();
        Base::Add(ss2);
        return (a == b && IsSign() != a) ? 1 : 0;
    }

    uint Sub(const Int & ss2)
    {
        bool a = IsSign(), b = ss2.IsSign();
        Base::Sub(ss2);
        return (a != b && IsSign() != a) ? 1 : 0;
    }

    // Adds a non-negative word at word position `index`.
    uint AddInt(uint value, uint index = 0)
    {
        bool a = IsSign();
        Base::AddInt(value, index);
        return (!a && IsSign()) ? 1 : 0;
    }

    // Subtracts a non-negative word at word position `index`.
    uint SubInt(uint value, uint index = 0)
    {
        bool a = IsSign();
        Base::SubInt(value, index);
        return (a && !IsSign()) ? 1 : 0;
    }

    uint AddOne() { return AddInt(1); }
    uint SubOne() { return SubInt(1); }

    // The lowest word reinterpreted, without checking that the value fits.
    sint ToInt() const { return static_cast<sint>(table[0]); }

    // result = this if it fits a sint; returns 1 otherwise.
    uint ToInt(sint & result) const
    {
        result = static_cast<sint>(table[0]);
        uint fill = result < 0 ? TTMATH_UINT_MAX_VALUE : 0;
        for (uint i = 1; i < value_size; ++i)
            if (table[i] != fill)
                return 1;
        return 0;
    }

    bool operator<(const Int & l) const { return Compare(l) < 0; }
    bool operator>(const Int & l) const { return Compare(l) > 0; }
    bool operator<=(const Int & l) const { return Compare(l) <= 0; }
    bool operator>=(const Int & l) const { return Compare(l) >= 0; }
    bool operator==(const Int & l) const { return Compare(l) == 0; }
    bool operator!=(const Int & l) const { return Compare(l) != 0; }

    // -1, 0 or 1 as this is below, equal to or above l.
    int Compare(const Int & l) const
    {
        bool a = IsSign(), b = l.IsSign();
        if (a != b)
            return a ? -1 : 1;
        return words::compare(table, l.table, value_size);
    }
};

} // namespace ttmath

#endif
