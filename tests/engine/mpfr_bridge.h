// Exact conversions between Big values and MPFR numbers, and the reference functions
// of the tests: MPFR rounding to nearest at the mantissa's width.
#ifndef TESTS_ENGINE_MPFR_BRIDGE_H
#define TESTS_ENGINE_MPFR_BRIDGE_H

#include <mpfr.h>

#include <ttmath/ttmath.h>

#include "test_support.h"

namespace testing_support {

class Mpfr {
public:
    explicit Mpfr(mpfr_prec_t bits) { mpfr_init2(m, bits); }
    ~Mpfr() { mpfr_clear(m); }
    Mpfr(const Mpfr &) = delete;
    Mpfr & operator=(const Mpfr &) = delete;
    mpfr_t m;
};

// x (normalised, moderate exponent) into m, exactly.
template<class Big>
void ToMpfr(const Big & x, mpfr_t m)
{
    if (x.IsZero()) {
        mpfr_set_zero(m, 1);
        return;
    }
    Mpz z;
    WordsToMpz(z.z, x.mantissa.table, x.mantissa.Size());
    mpfr_set_z_2exp(m, z.z, static_cast<mpfr_exp_t>(x.exponent.ToInt()), MPFR_RNDN);
    if (x.IsSign())
        mpfr_neg(m, m, MPFR_RNDN);
}

// m (already rounded to the mantissa's width) as a normalised Big.
template<class Big>
Big FromMpfr(const mpfr_t m)
{
    Big x;
    if (mpfr_zero_p(m)) {
        x.SetZero();
        return x;
    }
    Mpz z;
    mpfr_exp_t e = mpfr_get_z_2exp(z.z, m);
    const bool negative = mpz_sgn(z.z) < 0;
    mpz_abs(z.z, z.z);
    const long bits = static_cast<long>(Big::mantissa_bits);
    const long shift = bits - static_cast<long>(mpz_sizeinbase(z.z, 2));
    mpz_mul_2exp(z.z, z.z, static_cast<unsigned long>(shift));
    std::vector<Word> w = MpzToWords(z.z, x.mantissa.Size());
    for (std::size_t i = 0; i < w.size(); ++i)
        x.mantissa.table[i] = w[i];
    x.exponent = decltype(x.exponent)(static_cast<ttmath::sint>(e - shift));
    x.info = negative ? TTMATH_BIG_SIGN : 0;
    return x;
}

} // namespace testing_support

#endif
