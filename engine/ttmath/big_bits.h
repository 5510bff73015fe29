// Bitwise AND, OR and XOR of the binary expansions of two non-negative values, aligned
// on the binary point, inside the mantissa window of the operand of larger magnitude.
#ifndef TTMATH_BIG_BITS_H
#define TTMATH_BIG_BITS_H

namespace ttmath {
namespace detail {

enum BitOperation { bit_and, bit_or, bit_xor };

template<uint exp, uint man>
uint BitOperate(Big<exp, man> & a, Big<exp, man> b, BitOperation op)
{
    if (a.IsNan() || b.IsNan())
        return a.CheckCarry(1);
    if (a.IsSign() || b.IsSign()) {
        a.SetNan();
        return 2;
    }

    switch (op) {
    case bit_and:
        if (a.IsZero())
            return 0;
        if (b.IsZero()) {
            a.SetZero();
            return 0;
        }
        break;
    case bit_or:
        if (a.IsZero()) {
            a = b;
            return 0;
        }
        if (b.IsZero())
            return 0;
        break;
    case bit_xor:
        if (b.IsZero())
            return 0;
        if (a.IsZero()) {
            a = b;
            return 0;
        }
        break;
    }

    if (a.SmallerWithoutSignThan(b))
        a.Swap(b);

    // The difference of the exponents, wrapping: b lies outside a's window when it is
    // the most negative value or at least the mantissa width in magnitude.
    Int<exp> diff(a.exponent);
    diff.Sub(b.exponent);
    Int<exp> limit;
    limit.SetMin();
    bool outside = diff == limit;
    if (!outside) {
        diff.Abs();
        outside = !(diff < Int<exp>(static_cast<sint>(Big<exp, man>::mantissa_bits)));
    }
    if (outside) {
        if (op == bit_and)
            a.SetZero();
        return 0;
    }

    b.mantissa.Rcr(diff.table[0]);
    switch (op) {
    case bit_and:
        a.mantissa.BitAnd(b.mantissa);
        break;
    case bit_or:
        a.mantissa.BitOr(b.mantissa);
        break;
    case bit_xor:
        a.mantissa.BitXor(b.mantissa);
        break;
    }
    uint c = a.Standardizing();
    return a.CheckCarry(c);
}

} // namespace detail

template<uint exp, uint man>
uint Big<exp, man>::BitAnd(Big ss2)
{
    return detail::BitOperate(*this, ss2, detail::bit_and);
}

template<uint exp, uint man>
uint Big<exp, man>::BitOr(Big ss2)
{
    return detail::BitOperate(*this, ss2, detail::bit_or);
}

template<uint exp, uint man>
uint Big<exp, man>::BitXor(Big ss2)
{
    return detail::BitOperate(*this, ss2, detail::bit_xor);
}

} // namespace ttmath

#endif
