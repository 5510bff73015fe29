// Helpers of the text-conversion tests: comparing values word for word, and exact
// conversions of values and integers to and from GMP/MPFR.
#ifndef TESTS_ENGINE_TEXT_TEST_SUPPORT_H
#define TESTS_ENGINE_TEXT_TEST_SUPPORT_H

#include <gtest/gtest.h>
#include <mpfr.h>

#include <string>

#include "test_support.h"

namespace testing_support {

template<class Big>
::testing::AssertionResult SameValue(const Big & a, const Big & b)
{
    bool same = a.info == b.info;
    for (std::size_t i = 0; same && i < a.exponent.Size(); ++i)
        same = a.exponent.table[i] == b.exponent.table[i];
    for (std::size_t i = 0; same && i < a.mantissa.Size(); ++i)
        same = a.mantissa.table[i] == b.mantissa.table[i];
    if (same)
        return ::testing::AssertionSuccess();
    ttmath::Conv hex;
    hex.base = 16;
    hex.scient = true;
    return ::testing::AssertionFailure() << "info " << int(a.info) << " " << a.ToString(hex) << " vs info "
                                         << int(b.info) << " " << b.ToString(hex);
}

// z = the signed value of a two's-complement Int.
template<ttmath::uint n>
void IntToMpz(mpz_t z, const ttmath::Int<n> & v)
{
    WordsToMpz(z, v.table, n);
    if (v.IsSign()) {
        Mpz wrap;
        mpz_setbit(wrap.z, n * 64);
        mpz_sub(z, z, wrap.z);
    }
}

template<ttmath::uint n>
ttmath::Int<n> MpzToInt(const mpz_t z)
{
    Mpz m;
    mpz_set(m.z, z);
    if (mpz_sgn(z) < 0) {
        Mpz wrap;
        mpz_setbit(wrap.z, n * 64);
        mpz_add(m.z, m.z, wrap.z);
    }
    std::vector<Word> w = MpzToWords(m.z, n);
    ttmath::Int<n> v;
    for (std::size_t i = 0; i < n; ++i)
        v.table[i] = w[i];
    return v;
}

// x = the exact value of a non-NaN Big (x needs the mantissa's precision).
template<class Big>
void BigToMpfr(mpfr_t x, const Big & v)
{
    if (v.IsZero()) {
        mpfr_set_zero(x, 1);
        return;
    }
    Mpz m, e;
    WordsToMpz(m.z, v.mantissa.table, v.mantissa.Size());
    IntToMpz(e.z, v.exponent);
    mpfr_set_z(x, m.z, MPFR_RNDN);
    mpfr_mul_2si(x, x, mpz_get_si(e.z), MPFR_RNDN);
    if (v.IsSign())
        mpfr_neg(x, x, MPFR_RNDN);
}

// |a - b| / |b| < 2^-bits for a non-zero reference b.
template<class Big>
::testing::AssertionResult RelativelyClose(const Big & a, const mpfr_t b, long bits)
{
    mpfr_t x;
    mpfr_init2(x, static_cast<mpfr_prec_t>(Big::mantissa_bits * 2));
    BigToMpfr(x, a);
    mpfr_sub(x, x, b, MPFR_RNDN);
    mpfr_div(x, x, b, MPFR_RNDN);
    const bool close = mpfr_zero_p(x) || mpfr_get_exp(x) <= -bits;
    const long exponent = mpfr_get_exp(x);
    mpfr_clear(x);
    if (close)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "relative difference about 2^" << exponent;
}

template<class Big>
::testing::AssertionResult RelativelyClose(const Big & a, const Big & b, long bits)
{
    mpfr_t y;
    mpfr_init2(y, static_cast<mpfr_prec_t>(Big::mantissa_bits));
    BigToMpfr(y, b);
    ::testing::AssertionResult r = RelativelyClose(a, y, bits);
    mpfr_clear(y);
    return r;
}

} // namespace testing_support

#endif
