// The built-in constants are the mathematical constants truncated to the mantissa:
// checked against MPFR rounding toward zero at both widths.
#include <gtest/gtest.h>
#include <mpfr.h>

#include <ttmath/ttmath.h>

#include "test_support.h"

namespace {

using namespace testing_support;

enum Constant { pi, half_pi, two_pi, euler, ln2, ln10 };

template<class Big>
void Expect(Constant which)
{
    const std::size_t words = Big::mantissa_bits / 64;
    mpfr_t m;
    mpfr_init2(m, Big::mantissa_bits);
    Big x;
    switch (which) {
    case pi: case half_pi: case two_pi:
        mpfr_const_pi(m, MPFR_RNDZ);
        if (which == pi) x.SetPi();
        if (which == half_pi) x.Set05Pi(), mpfr_div_2ui(m, m, 1, MPFR_RNDZ);
        if (which == two_pi) x.Set2Pi(), mpfr_mul_2ui(m, m, 1, MPFR_RNDZ);
        break;
    case euler:
        mpfr_set_ui(m, 1, MPFR_RNDZ);
        mpfr_exp(m, m, MPFR_RNDZ);
        x.SetE();
        break;
    case ln2:
        mpfr_const_log2(m, MPFR_RNDZ);
        x.SetLn2();
        break;
    case ln10:
        mpfr_set_ui(m, 10, MPFR_RNDZ);
        mpfr_log(m, m, MPFR_RNDZ);
        x.SetLn10();
        break;
    }
    Mpz z;
    mpfr_exp_t e = mpfr_get_z_2exp(z.z, m);
    EXPECT_EQ(x.info, 0);
    EXPECT_EQ(x.exponent.ToInt(), static_cast<ttmath::sint>(e)) << "constant " << which;
    EXPECT_EQ(std::vector<Word>(x.mantissa.table, x.mantissa.table + words), MpzToWords(z.z, words))
        << "constant " << which << " at " << Big::mantissa_bits << " bits";
    mpfr_clear(m);
}

TEST(Constants, AreTruncatedConstants)
{
    for (Constant c : {pi, half_pi, two_pi, euler, ln2, ln10}) {
        Expect<ttmath::Big<1, 4>>(c);
        Expect<ttmath::Big<8, 32>>(c);
        Expect<ttmath::Big<2, 11>>(c);
    }
}

} // namespace
