// Conversions between Big and native integers, doubles, floats, UInt/Int and Big of
// other sizes. From-conversions are exact (or truncate where the target is narrower);
// ToDouble truncates toward zero; integer conversions read the words and ignore the
// NaN flag.
#ifndef TTMATH_BIG_NATIVE_H
#define TTMATH_BIG_NATIVE_H

#include <cstring>
#include <limits>

namespace ttmath {

template<uint exp, uint man>
uint Big<exp, man>::FromUInt(uint value)
{
    if (value == 0) {
        SetZero();
        return 0;
    }
    info = 0;
    mantissa.SetZero();
    mantissa.table[man - 1] = value;
    exponent = Int<exp>(-static_cast<sint>(words::bits_per_word * (man - 1)));
    Standardizing();
    return 0;
}

template<uint exp, uint man>
uint Big<exp, man>::FromInt(sint value)
{
    if (value >= 0)
        return FromUInt(static_cast<uint>(value));
    FromUInt(uint(0) - static_cast<uint>(value));
    SetSign();
    return 0;
}

namespace detail {
const unsigned double_fraction_bits = 52;
const unsigned double_exponent_all_ones = 2047;
const sint double_exponent_bias = 1023;
const uint double_fraction_mask = (uint(1) << double_fraction_bits) - 1;
const uint double_nan_bits = 0x7ff0000000000001ull;
const uint double_infinity_bits = 0x7ff0000000000000ull;
const uint double_sign_bit = TTMATH_UINT_HIGHEST_BIT;
// The binary exponents of the smallest normal and of the smallest subnormal double,
// and the first exponent beyond the largest finite double.
const sint double_min_normal_exponent = -1022;
const sint double_min_subnormal_exponent = -1074;
const sint double_overflow_exponent = 1024;
// A double's fraction sits in the top word of a mantissa shifted by this much.
const unsigned double_fraction_shift = 11;
} // namespace detail

// Exact. An infinite or NaN argument only ORs the NaN flag into the old content.
template<uint exp, uint man>
uint Big<exp, man>::FromDouble(double value)
{
    uint bits;
    std::memcpy(&bits, &value, sizeof(bits));
    const bool negative = (bits & detail::double_sign_bit) != 0;
    const uint biased = (bits >> detail::double_fraction_bits) & detail::double_exponent_all_ones;
    const uint fraction = bits & detail::double_fraction_mask;

    if (biased == detail::double_exponent_all_ones) {
        SetNan();
        return 0;
    }
    if (biased == 0 && fraction == 0) {
        SetZero();
        return 0;
    }

    info = negative ? TTMATH_BIG_SIGN : 0;
    mantissa.SetZero();
    if (biased != 0) {
        // normal: the hidden bit on top, the fraction below it
        mantissa.table[man - 1] = TTMATH_UINT_HIGHEST_BIT | (fraction << detail::double_fraction_shift);
        exponent = Int<exp>(static_cast<sint>(biased) - (detail::double_exponent_bias - 1) -
                            static_cast<sint>(mantissa_bits));
    } else {
        // subnormal: no hidden bit; normalise
        mantissa.table[man - 1] = fraction << detail::double_fraction_shift;
        exponent = Int<exp>(detail::double_min_normal_exponent + 1 - static_cast<sint>(mantissa_bits));
        Standardizing();
    }
    return 0;
}

template<uint exp, uint man>
uint Big<exp, man>::ToDouble(double & result) const
{
    uint bits;
    uint c = 0;
    if (IsZero()) {
        bits = 0;
    } else if (IsNan()) {
        bits = detail::double_nan_bits;
    } else if (CompareExponent(detail::double_overflow_exponent + 1 - static_cast<sint>(mantissa_bits)) >= 0) {
        bits = detail::double_infinity_bits | (IsSign() ? detail::double_sign_bit : 0);
        c = 1;
    } else if (CompareExponent(detail::double_min_subnormal_exponent - static_cast<sint>(mantissa_bits)) <= 0) {
        bits = 0; // too small: +0, whatever the sign
        c = 1;
    } else {
        // t: the binary exponent of the leading bit, assuming a normalised mantissa
        const sint t = exponent.ToInt() + static_cast<sint>(mantissa_bits) - 1;
        const uint top = mantissa.table[man - 1];
        uint fraction, biased;
        if (t < detail::double_min_normal_exponent) {
            const unsigned k = static_cast<unsigned>(detail::double_min_normal_exponent - 1 - t);
            fraction = (top >> (detail::double_fraction_shift + 1 + k)) & detail::double_fraction_mask;
            biased = 0;
        } else {
            fraction = (top >> detail::double_fraction_shift) & detail::double_fraction_mask;
            biased = static_cast<uint>(t + detail::double_exponent_bias);
        }
        bits = (biased << detail::double_fraction_bits) | fraction | (IsSign() ? detail::double_sign_bit : 0);
    }
    std::memcpy(&result, &bits, sizeof(result));
    return c;
}

// Truncates to a double, then rounds that to the nearest float.
template<uint exp, uint man>
uint Big<exp, man>::ToFloat(float & result) const
{
    double d;
    uint c = ToDouble(d);
    float f = static_cast<float>(d);
    if (f == 0.0f)
        f = 0.0f;
    result = f;
    if (c)
        return 1;
    const float inf = std::numeric_limits<float>::infinity();
    if (f == inf || f == -inf)
        return 1;
    if (f == 0.0f && d != 0.0)
        return 1;
    return 0;
}

// |this| truncated to a word. Returns 1 when |this| >= 2^64 (result 0).
template<uint exp, uint man>
uint Big<exp, man>::ToUIntCore(uint & result) const
{
    result = 0;
    if (IsZero())
        return 0;
    if (CompareExponent(static_cast<sint>(words::bits_per_word) - static_cast<sint>(mantissa_bits)) > 0)
        return 1;
    if (CompareExponent(-static_cast<sint>(mantissa_bits)) <= 0)
        return 0;
    uint shift = static_cast<uint>(-exponent.ToInt()) - (mantissa_bits - words::bits_per_word);
    result = mantissa.table[man - 1] >> shift;
    return 0;
}

// A negative value stores its magnitude and returns 1.
template<uint exp, uint man>
uint Big<exp, man>::ToUInt(uint & result) const
{
    if (ToUIntCore(result))
        return 1;
    return IsSign() ? 1 : 0;
}

// Returns 1 when the value does not fit; every value in (-1, 0) counts as not fitting.
template<uint exp, uint man>
uint Big<exp, man>::ToInt(sint & result) const
{
    uint magnitude;
    if (ToUIntCore(magnitude)) {
        result = 0;
        return 1;
    }
    bool expect_negative = false;
    if (IsSign()) {
        magnitude = uint(0) - magnitude;
        expect_negative = true;
    }
    result = static_cast<sint>(magnitude);
    bool negative = (magnitude & TTMATH_UINT_HIGHEST_BIT) != 0;
    return negative == expect_negative ? 0 : 1;
}

template<uint exp, uint man>
uint Big<exp, man>::ToUInt(unsigned int & result) const
{
    uint value;
    uint c = ToUInt(value);
    result = static_cast<unsigned int>(value);
    return (c || value > 0xffffffffu) ? 1 : 0;
}

template<uint exp, uint man>
uint Big<exp, man>::ToInt(int & result) const
{
    sint value;
    uint c = ToInt(value);
    result = static_cast<int>(static_cast<std::uint32_t>(static_cast<uint>(value)));
    const sint int_min = -2147483647 - 1, int_max = 2147483647;
    return (c || value < int_min || value > int_max) ? 1 : 0;
}

// The top words of value become the mantissa (the rest is dropped, not rounded).
template<uint exp, uint man>
template<uint int_size>
uint Big<exp, man>::FromUInt(UInt<int_size> value)
{
    info = 0;
    uint shift = value.CompensationToLeft();
    const sint word_shift = static_cast<sint>(words::bits_per_word) *
                            (static_cast<sint>(int_size) - static_cast<sint>(man));
    exponent = Int<exp>(word_shift - static_cast<sint>(shift));
    const uint copied = int_size < man ? int_size : man;
    mantissa.SetZero();
    words::copy(mantissa.table + man - copied, value.table + int_size - copied, copied);
    CorrectZero();
    return 0;
}

template<uint exp, uint man>
template<uint int_size>
uint Big<exp, man>::FromInt(Int<int_size> value)
{
    bool negative = value.IsSign();
    if (negative)
        value.ChangeSign(); // the most negative value stays: read unsigned it is its magnitude
    FromUInt(static_cast<UInt<int_size>>(value));
    if (negative)
        SetSign();
    return 0;
}

// Conversion from another precision: the exponent must fit (else NaN, return 1), the
// mantissa is truncated or extended with zero words.
template<uint exp, uint man>
template<uint exp2, uint man2>
uint Big<exp, man>::FromBig(const Big<exp2, man2> & value)
{
    info = value.info;
    if (IsNan())
        return 1;

    // exponent: sign-extend or narrow (checking that nothing is lost)
    const uint fill = value.exponent.IsSign() ? TTMATH_UINT_MAX_VALUE : 0;
    if (exp >= exp2) {
        words::copy(exponent.table, value.exponent.table, exp2);
        words::fill(exponent.table + exp2, exp - exp2, fill);
    } else {
        words::copy(exponent.table, value.exponent.table, exp);
        const uint kept_fill = exponent.IsSign() ? TTMATH_UINT_MAX_VALUE : 0;
        for (uint i = exp; i < exp2; ++i) {
            if (value.exponent.table[i] != kept_fill) {
                SetNan();
                return 1;
            }
        }
    }

    const uint copied = man < man2 ? man : man2;
    mantissa.SetZero();
    words::copy(mantissa.table + man - copied, value.mantissa.table + man2 - copied, copied);

    uint c = 0;
    if (man > man2)
        c += exponent.SubInt(words::bits_per_word * (man - man2));
    else if (man < man2)
        c += exponent.AddInt(words::bits_per_word * (man2 - man));

    CorrectZero();
    return CheckCarry(c);
}

} // namespace ttmath

#endif
