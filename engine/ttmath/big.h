// Big<exp, man>: a binary floating-point number (-1)^s * mantissa * 2^exponent with a
// man-word unsigned mantissa, an exp-word two's-complement exponent and a flag byte.
//
// The operations reproduce, word for word, a reference arithmetic that rounds on the
// bits it happens to keep: results, carries and the words a failure leaves behind are
// all part of the behaviour. There is no infinity and no subnormal; leaving the
// exponent range is a carry: the NaN flag is OR-ed into the computed words and the call
// returns 1.
//
// This header declares the class and defines its small members; the operations live
// in the big_*.h headers included at the end.
#ifndef TTMATH_BIG_H
#define TTMATH_BIG_H

#include <string>

#include "conv.h"
#include "int.h"
#include "uint.h"

namespace ttmath {

template<uint exp, uint man>
class Big {
public:
    Int<exp> exponent;
    UInt<man> mantissa;
    unsigned char info;

private:
    // Fills the value to a whole number of words, so that copies move whole words:
    // a copy of only the 41 used bytes of a 256-bit value is done with overlapping
    // moves, which defeats store-to-load forwarding when the copy is read right away.
    unsigned char padding_[7] = {};

public:

    // Mantissa width in bits.
    static constexpr uint mantissa_bits = man * 64;

    // A new value is "nil": NaN and zero flags, all words zero.
    Big() { SetZeroNan(); }
    Big(const Big &) = default;
    Big & operator=(const Big &) = default;

    Big(sint value) { FromInt(value); }
    Big(uint value) { FromUInt(value); }
    Big(int value) { FromInt(static_cast<sint>(value)); }
    Big(unsigned int value) { FromUInt(static_cast<uint>(value)); }
    Big(double value)
    {
        SetZeroNan();
        FromDouble(value);
    }

    Big & operator=(sint value)
    {
        FromInt(value);
        return *this;
    }
    Big & operator=(uint value)
    {
        FromUInt(value);
        return *this;
    }
    Big & operator=(int value)
    {
        FromInt(static_cast<sint>(value));
        return *this;
    }
    Big & operator=(unsigned int value)
    {
        FromUInt(static_cast<uint>(value));
        return *this;
    }
    Big & operator=(double value)
    {
        FromDouble(value);
        return *this;
    }

    template<uint exp2, uint man2>
    explicit Big(const Big<exp2, man2> & value)
    {
        SetZeroNan();
        FromBig(value);
    }

    static const char * LibTypeStr() { return UInt<man>::LibTypeStr(); }
    static LibTypeCode LibType() { return UInt<man>::LibType(); }

    // ---- flags -------------------------------------------------------------------
    void ClearInfoBit(unsigned char bit) { info = static_cast<unsigned char>(info & ~bit); }
    void SetInfoBit(unsigned char bit) { info = static_cast<unsigned char>(info | bit); }
    bool IsInfoBit(unsigned char bit) const { return (info & bit) != 0; }

    bool IsZero() const { return IsInfoBit(TTMATH_BIG_ZERO); }
    bool IsNan() const { return IsInfoBit(TTMATH_BIG_NAN); }
    bool IsSign() const { return IsInfoBit(TTMATH_BIG_SIGN); }

    // ---- special values ----------------------------------------------------------
    void SetZero()
    {
        info = TTMATH_BIG_ZERO;
        exponent.SetZero();
        mantissa.SetZero();
    }

    void SetOne()
    {
        info = 0;
        mantissa.SetZero();
        mantissa.table[man - 1] = TTMATH_UINT_HIGHEST_BIT;
        exponent = Int<exp>(-static_cast<sint>(mantissa_bits - 1));
    }

    void Set05()
    {
        SetOne();
        exponent.SubOne();
    }

    void SetNan() { SetInfoBit(TTMATH_BIG_NAN); }

    void SetZeroNan()
    {
        SetZero();
        SetNan();
    }

    void SetMax()
    {
        info = 0;
        mantissa.SetMax();
        exponent.SetMax();
    }

    // The most negative value (not the smallest positive one).
    void SetMin()
    {
        SetMax();
        SetSign();
    }

    void SetPi();
    void Set05Pi();
    void Set2Pi();
    void SetE();
    void SetLn2();
    void SetLn10();

    void Swap(Big & ss2)
    {
        Big tmp(*this);
        *this = ss2;
        ss2 = tmp;
    }

    // ---- sign --------------------------------------------------------------------
    // Sets the sign bit, even on a zero.
    void SetSign() { SetInfoBit(TTMATH_BIG_SIGN); }

    // Toggles the sign; a zero keeps its flags.
    void ChangeSign()
    {
        if (IsZero())
            return;
        info = static_cast<unsigned char>(info ^ TTMATH_BIG_SIGN);
    }

    void Abs() { ClearInfoBit(TTMATH_BIG_SIGN); }

    // -1, 0 or 1; a NaN stays as it is and a negative zero gives -1.
    void Sgn()
    {
        if (IsNan())
            return;
        if (IsSign()) {
            SetOne();
            SetSign();
        } else if (IsZero()) {
            SetZero();
        } else {
            SetOne();
        }
    }

    // ---- normalisation -----------------------------------------------------------
    // Moves the mantissa's leading bit to the top; returns the carry of the exponent
    // adjustment. A zero mantissa becomes the zero form.
    uint Standardizing()
    {
        if (mantissa.IsTheHighestBitSet()) {
            ClearInfoBit(TTMATH_BIG_ZERO);
            return 0;
        }
        if (CorrectZero())
            return 0;
        uint comp = words::leading_zeros_fixed<man>(mantissa.table);
        if (comp < words::bits_per_word)
            words::shl_bits(mantissa.table, mantissa.table, man, static_cast<unsigned>(comp));
        else
            words::shl_fixed<man>(mantissa.table, comp);
        return exponent.SubInt(comp);
    }

    // If this is not zero: OR the NaN flag into info and return 1. Otherwise 0.
    uint CheckCarry(uint c)
    {
        if (c != 0) {
            SetNan();
            return 1;
        }
        return 0;
    }

    // ---- arithmetic (big_add.h, big_mul_div.h, big_pow.h, big_fraction.h, big_bits.h) --
    uint Add(Big ss2, bool round = true, bool adding = true);
    uint Sub(const Big & ss2, bool round = true)
    {
        uint rc;
        if (AddNormalised(ss2, round, false, rc))
            return rc;
        return AddGeneral(ss2, round, false);
    }
    uint AddOne()
    {
        Big one;
        one.SetOne();
        return Add(one);
    }
    uint SubOne()
    {
        Big one;
        one.SetOne();
        return Sub(one);
    }
    uint Mul(const Big & ss2, bool round = true)
    {
        uint rc;
        if (MulNormalised(ss2, round, rc))
            return rc;
        return MulGeneral(ss2, round);
    }
    uint MulOneWord(const Big & ss2, bool round = true); // big_mul_one_word.h
    uint Div(const Big & ss2, bool round = true)
    {
        uint rc;
        if (DivNormalised(ss2, round, rc))
            return rc;
        return DivGeneral(ss2, round);
    }
    uint MulUInt(uint ss2);
    uint MulInt(sint ss2);
    uint Mod(const Big & ss2);
    uint Mod2() const;

    template<uint pow_size> uint Pow(UInt<pow_size> pow);
    template<uint pow_size> uint Pow(Int<pow_size> pow);
    uint PowUInt(Big pow);
    uint PowInt(const Big & pow);

    // ---- elementary functions, correctly rounded (functions_*.h) ---------------------
    uint Pow(const Big & pow);
    uint Sqrt();
    uint Exp(const Big & x);
    uint Ln(const Big & x);
    uint Log(const Big & x, const Big & base);

    void SkipFraction();
    void RemainFraction();
    bool IsInteger() const;
    uint Round();

    uint BitAnd(Big ss2);
    uint BitOr(Big ss2);
    uint BitXor(Big ss2);

    // ---- comparisons (the NaN flag is ignored, the zero flag decides first) ----------
    bool SmallerWithoutSignThan(const Big & ss2) const
    {
        if (IsZero())
            return !ss2.IsZero();
        if (ss2.IsZero())
            return false;
        int ce = exponent.Compare(ss2.exponent);
        if (ce != 0)
            return ce < 0;
        return mantissa < ss2.mantissa;
    }

    bool GreaterWithoutSignThan(const Big & ss2) const
    {
        if (IsZero())
            return false;
        if (ss2.IsZero())
            return true;
        int ce = exponent.Compare(ss2.exponent);
        if (ce != 0)
            return ce > 0;
        return mantissa > ss2.mantissa;
    }

    bool EqualWithoutSign(const Big & ss2) const
    {
        if (IsZero() || ss2.IsZero())
            return IsZero() && ss2.IsZero();
        return exponent == ss2.exponent && mantissa == ss2.mantissa;
    }

    bool operator<(const Big & ss2) const
    {
        if (IsSign() != ss2.IsSign())
            return IsSign();
        return IsSign() ? ss2.SmallerWithoutSignThan(*this) : SmallerWithoutSignThan(ss2);
    }

    bool operator>(const Big & ss2) const
    {
        if (IsSign() != ss2.IsSign())
            return !IsSign();
        return IsSign() ? ss2.GreaterWithoutSignThan(*this) : GreaterWithoutSignThan(ss2);
    }

    bool operator==(const Big & ss2) const
    {
        return IsSign() == ss2.IsSign() && EqualWithoutSign(ss2);
    }

    bool operator>=(const Big & ss2) const { return !operator<(ss2); }
    bool operator<=(const Big & ss2) const { return !operator>(ss2); }
    bool operator!=(const Big & ss2) const { return !operator==(ss2); }

    // ---- operators: the return codes are dropped; a failure shows as the NaN flag ----
    Big operator-() const
    {
        Big r(*this);
        r.ChangeSign();
        return r;
    }
    Big operator+(const Big & ss2) const
    {
        Big r(*this);
        r.Add(ss2);
        return r;
    }
    Big operator-(const Big & ss2) const
    {
        Big r(*this);
        r.Sub(ss2);
        return r;
    }
    Big operator*(const Big & ss2) const
    {
        Big r(*this);
        r.Mul(ss2);
        return r;
    }
    Big operator/(const Big & ss2) const
    {
        Big r(*this);
        r.Div(ss2);
        return r;
    }
    Big & operator+=(const Big & ss2)
    {
        Add(ss2);
        return *this;
    }
    Big & operator-=(const Big & ss2)
    {
        Sub(ss2);
        return *this;
    }
    Big & operator*=(const Big & ss2)
    {
        Mul(ss2);
        return *this;
    }
    Big & operator/=(const Big & ss2)
    {
        Div(ss2);
        return *this;
    }
    Big & operator++()
    {
        AddOne();
        return *this;
    }
    Big & operator--()
    {
        SubOne();
        return *this;
    }
    Big operator++(int)
    {
        Big old(*this);
        AddOne();
        return old;
    }
    Big operator--(int)
    {
        Big old(*this);
        SubOne();
        return old;
    }

    // ---- conversions (big_native.h) -------------------------------------------------
    uint FromUInt(uint value);
    uint FromInt(sint value);
    uint FromDouble(double value);
    uint FromFloat(float value) { return FromDouble(static_cast<double>(value)); }
    template<uint exp2, uint man2> uint FromBig(const Big<exp2, man2> & value);
    template<uint int_size> uint FromUInt(UInt<int_size> value);
    template<uint int_size> uint FromInt(Int<int_size> value);

    uint ToUInt(uint & result) const;
    uint ToInt(sint & result) const;
    uint ToUInt(unsigned int & result) const;
    uint ToInt(int & result) const;
    uint ToDouble(double & result) const;
    uint ToFloat(float & result) const;
    double ToDouble() const
    {
        double d;
        ToDouble(d);
        return d;
    }
    float ToFloat() const
    {
        float f;
        ToFloat(f);
        return f;
    }
    sint ToInt() const
    {
        sint r;
        ToInt(r);
        return r;
    }
    uint ToUInt() const
    {
        uint r;
        ToUInt(r);
        return r;
    }

    // ---- text (big_to_string.h, big_from_string.h) -----------------------------------
    uint ToString(std::string & result, const Conv & conv) const;
    uint ToString(std::string & result, uint base = 10, bool scient = false, sint scient_from = 15,
                  sint round = -1, bool trim_zeroes = true, char comma = '.') const;
    std::string ToString(const Conv & conv) const;
    std::string ToString(uint base = 10) const;

    uint FromString(const char * source, const Conv & conv, const char ** after_source = 0, bool * value_read = 0);
    uint FromString(const char * source, uint base = 10, const char ** after_source = 0, bool * value_read = 0);
    uint FromString(const std::string & string, const Conv & conv, const char ** after_source = 0,
                    bool * value_read = 0);
    uint FromString(const std::string & string, uint base = 10, const char ** after_source = 0,
                    bool * value_read = 0);

private:
    // The zero form when the mantissa is zero (returns true); otherwise clears the
    // zero flag (returns false).
    bool CorrectZero()
    {
        if (mantissa.IsZero()) {
            SetInfoBit(TTMATH_BIG_ZERO);
            ClearInfoBit(TTMATH_BIG_SIGN);
            exponent.SetZero();
            return true;
        }
        ClearInfoBit(TTMATH_BIG_ZERO);
        return false;
    }

    // Rounds the kept mantissa half to even on bits that were discarded: is_half says
    // the discarded part was exactly half a unit (else more than half); `up` moves
    // away from zero, otherwise toward it. Returns the exponent's carry.
    uint RoundHalfToEven(bool is_half, bool up)
    {
        if (is_half && !mantissa.IsTheLowestBitSet())
            return 0;
        if (!up) {
            mantissa.SubOne();
            return 0;
        }
        if (mantissa.AddOne()) {
            mantissa.table[man - 1] = TTMATH_UINT_HIGHEST_BIT;
            return exponent.AddOne();
        }
        return 0;
    }

    // The word count `count` zero-extended to the exponent's width.
    static Int<exp> ExponentFromWord(uint count)
    {
        Int<exp> e;
        e.FromUInt(count);
        return e;
    }

    // -1, 0 or 1 as the exponent is below, equal to or above `value`.
    int CompareExponent(sint value) const { return exponent.Compare(Int<exp>(value)); }

    uint ToUIntCore(uint & result) const;
    bool AddNormalised(const Big & ss2, bool round, bool adding, uint & rc);
    bool MulNormalised(const Big & ss2, bool round, uint & rc);
    uint MulGeneral(const Big & ss2, bool round);
    bool MulOfSpecial(const Big & ss2, uint & rc);
    uint SetFromProduct(uint * p, const Big & ss2, bool round);
    bool DivNormalised(const Big & ss2, bool round, uint & rc);
    uint DivGeneral(const Big & ss2, bool round);
    uint AddGeneral(Big ss2, bool round, bool adding);

    template<uint e2, uint m2> friend class Big;
};

} // namespace ttmath

#include "big_add.h"
#include "big_mul_div.h"
#include "big_pow.h"
#include "big_fraction.h"
#include "big_bits.h"
#include "big_native.h"
#include "constants.h"

#endif
