// UInt<N>: an unsigned integer of N 64-bit words, least significant first.
// Arithmetic wraps modulo 2^(64N) and reports the carry or borrow.
#ifndef TTMATH_UINT_H
#define TTMATH_UINT_H

#include <cstddef>
#include "kernels.h"
#include "product.h"
#include "quotient.h"
#include "words.h"

namespace ttmath {

template<uint value_size>
class UInt {
public:
    static_assert(value_size >= 1, "a UInt has at least one word");

    uint table[value_size];

    // The words are left as they are, as for a built-in integer.
    UInt() {}
    UInt(uint value) { FromUInt(value); }

    static const char * LibTypeStr() { return kernel::lib_type_str(); }
    static LibTypeCode LibType() { return kernel::lib_type(); }
    uint Size() const { return value_size; }

    void SetZero() { words::fill(table, value_size, 0); }
    void SetOne()
    {
        SetZero();
        table[0] = 1;
    }
    void SetMax() { words::fill(table, value_size, TTMATH_UINT_MAX_VALUE); }
    void SetMin() { SetZero(); }

    uint FromUInt(uint value)
    {
        SetZero();
        table[0] = value;
        return 0;
    }

    bool IsZero() const { return words::is_zero(table, value_size); }
    bool IsTheHighestBitSet() const { return (table[value_size - 1] & TTMATH_UINT_HIGHEST_BIT) != 0; }
    bool IsTheLowestBitSet() const { return (table[0] & 1) != 0; }
    bool IsOnlyTheHighestBitSet() const
    {
        return table[value_size - 1] == TTMATH_UINT_HIGHEST_BIT && words::is_zero(table, value_size - 1);
    }
    bool IsOnlyTheLowestBitSet() const
    {
        return table[0] == 1 && words::is_zero(table + 1, value_size - 1);
    }

    uint Add(const UInt & ss2, uint c = 0) { return fixed::add<value_size>(table, table, ss2.table, c != 0); }
    uint Sub(const UInt & ss2, uint c = 0) { return fixed::sub<value_size>(table, table, ss2.table, c != 0); }

    // Adds `value` at word position `index`, propagating the carry; returns the carry out.
    uint AddInt(uint value, uint index = 0)
    {
        for (uint i = index; i < value_size; ++i) {
            uint old = table[i];
            table[i] = old + value;
            if (table[i] >= old)
                return 0;
            value = 1;
        }
        return 1;
    }

    // Subtracts `value` at word position `index`, propagating the borrow; returns the borrow out.
    uint SubInt(uint value, uint index = 0)
    {
        for (uint i = index; i < value_size; ++i) {
            uint old = table[i];
            table[i] = old - value;
            if (old >= value)
                return 0;
            value = 1;
        }
        return 1;
    }

    uint AddOne() { return AddInt(1); }
    uint SubOne() { return SubInt(1); }

    // Adds or subtracts 1 on the words of a value of this size; returns the carry.
    static uint AddOneTo(uint * t)
    {
        for (uint i = 0; i < value_size; ++i)
            if (++t[i] != 0)
                return 0;
        return 1;
    }
    static uint SubOneFrom(uint * t)
    {
        for (uint i = 0; i < value_size; ++i)
            if (t[i]-- != 0)
                return 0;
        return 1;
    }

    // Shifts left by `bits`, filling with ones if c != 0; returns the last bit shifted out.
    uint Rcl(uint bits, uint c = 0)
    {
        const uint total = value_size * words::bits_per_word;
        const uint fill = c ? TTMATH_UINT_MAX_VALUE : 0;
        if (bits == 0)
            return 0;
        if (bits >= total) {
            uint last = bits == total ? (table[0] & 1) : 0;
            words::fill(table, value_size, fill);
            return last;
        }
        uint last = GetBit(total - bits);
        words::shl(table, value_size, bits);
        if (c)
            words::fill_low_bits(table, bits);
        return last;
    }

    // Shifts right by `bits`, filling with ones if c != 0; returns the last bit shifted out.
    uint Rcr(uint bits, uint c = 0)
    {
        const uint total = value_size * words::bits_per_word;
        const uint fill = c ? TTMATH_UINT_MAX_VALUE : 0;
        if (bits == 0)
            return 0;
        if (bits >= total) {
            uint last = bits == total ? (table[value_size - 1] >> 63) : 0;
            words::fill(table, value_size, fill);
            return last;
        }
        uint last = GetBit(bits - 1);
        words::shr(table, value_size, bits);
        if (c)
            words::fill_high_bits(table, value_size, bits);
        return last;
    }

    // Shifts left until the top bit is set; returns the shift. Zero stays zero (returns 0).
    uint CompensationToLeft()
    {
        uint moving = words::leading_zeros(table, value_size);
        if (moving)
            words::shl(table, value_size, moving);
        return moving;
    }

    bool FindLeadingBit(uint & table_id, uint & index) const
    {
        for (uint i = value_size; i-- > 0;) {
            if (table[i]) {
                table_id = i;
                index = words::bits_per_word - 1 - words::clz(table[i]);
                return true;
            }
        }
        table_id = 0;
        index = 0;
        return false;
    }

    bool FindLowestBit(uint & table_id, uint & index) const
    {
        for (uint i = 0; i < value_size; ++i) {
            if (table[i]) {
                table_id = i;
                index = words::ctz(table[i]);
                return true;
            }
        }
        table_id = 0;
        index = 0;
        return false;
    }

    uint GetBit(uint bit_index) const
    {
        return (table[bit_index / words::bits_per_word] >> (bit_index % words::bits_per_word)) & 1;
    }

    uint SetBit(uint bit_index)
    {
        uint old = GetBit(bit_index);
        table[bit_index / words::bits_per_word] |= uint(1) << (bit_index % words::bits_per_word);
        return old;
    }

    bool AreFirstBitsZero(uint bits) const
    {
        if (bits >= value_size * words::bits_per_word)
            return IsZero();
        return words::low_bits_zero(table, bits);
    }

    void ClearFirstBits(uint n)
    {
        if (n >= value_size * words::bits_per_word)
            SetZero();
        else
            words::clear_low_bits(table, n);
    }

    void BitAnd(const UInt & ss2)
    {
        for (uint i = 0; i < value_size; ++i)
            table[i] &= ss2.table[i];
    }
    void BitOr(const UInt & ss2)
    {
        for (uint i = 0; i < value_size; ++i)
            table[i] |= ss2.table[i];
    }
    void BitXor(const UInt & ss2)
    {
        for (uint i = 0; i < value_size; ++i)
            table[i] ^= ss2.table[i];
    }
    void BitNot()
    {
        for (uint i = 0; i < value_size; ++i)
            table[i] = ~table[i];
    }

    // this *= ss2; returns 1 if the product does not fit.
    uint MulInt(uint ss2)
    {
        return kernel::mul_1(table, table, value_size, ss2) != 0;
    }

    // result = this * ss2, exactly; result has more words than this.
    template<uint result_size>
    void MulInt(uint ss2, UInt<result_size> & result) const
    {
        static_assert(result_size > value_size, "the result needs more words than the factor");
        result.SetZero();
        result.table[value_size] = kernel::mul_1(result.table, table, value_size, ss2);
    }

    // result = this * ss2, exactly.
    void MulBig(const UInt & ss2, UInt<value_size * 2> & result, uint /*algorithm*/ = 100) const
    {
        if (&result.table[0] == &table[0] || &result.table[0] == &ss2.table[0]) {
            UInt<value_size * 2> tmp;
            product::full<value_size>(tmp.table, table, ss2.table);
            result = tmp;
        } else {
            product::full<value_size>(result.table, table, ss2.table);
        }
    }

    // this *= ss2; returns 1 if the product does not fit (the low words are kept).
    uint Mul(const UInt & ss2, uint algorithm = 100)
    {
        UInt<value_size * 2> full;
        MulBig(ss2, full, algorithm);
        words::copy(table, full.table, value_size);
        return words::is_zero(full.table + value_size, value_size) ? 0 : 1;
    }

    // this = floor(this / divisor); the remainder goes to *remainder. Returns 1 (and
    // changes nothing) when the divisor is zero.
    uint Div(const UInt & divisor, UInt * remainder = 0, uint /*algorithm*/ = 3)
    {
        std::size_t vn = words::used_words(divisor.table, value_size);
        if (vn == 0)
            return 1;
        std::size_t un = words::used_words(table, value_size);
        if (un < vn) {
            if (remainder)
                *remainder = *this;
            SetZero();
            return 0;
        }
        uint q[value_size];
        uint rem[value_size];
        uint scratch[2 * value_size + 2];
        quotient::floor_quotient(q, table, un, divisor.table, vn, scratch, rem);
        SetZero();
        words::copy(table, q, un - vn + 1);
        if (remainder) {
            remainder->SetZero();
            words::copy(remainder->table, rem, vn);
        }
        return 0;
    }

    // this = floor(this / divisor); returns 1 (changing nothing) when the divisor is zero.
    uint DivInt(uint divisor, uint * remainder = 0)
    {
        if (divisor == 0)
            return 1;
        uint r = quotient::by_word(table, table, value_size, divisor);
        if (remainder)
            *remainder = r;
        return 0;
    }

    uint ToUInt(uint & result) const
    {
        result = table[0];
        return words::is_zero(table + 1, value_size - 1) ? 0 : 1;
    }

    bool operator<(const UInt & l) const { return words::compare(table, l.table, value_size) < 0; }
    bool operator>(const UInt & l) const { return words::compare(table, l.table, value_size) > 0; }
    bool operator<=(const UInt & l) const { return words::compare(table, l.table, value_size) <= 0; }
    bool operator>=(const UInt & l) const { return words::compare(table, l.table, value_size) >= 0; }
    bool operator==(const UInt & l) const { return words::compare(table, l.table, value_size) == 0; }
    bool operator!=(const UInt & l) const { return words::compare(table, l.table, value_size) != 0; }
};

} // namespace ttmath

#endif
