// Random arguments across each function's domain, at both widths: every result must
// equal MPFR's rounding to nearest at the mantissa's width. Functions MPFR lacks (log
// to a base, acot, acoth, roots with large indexes) are evaluated with 128 more bits
// and then rounded, which settles the rounding unless the value lies within 2^-128 of
// a tie.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "mpfr_bridge.h"

namespace {

using namespace testing_support;

template<class Big>
class Accuracy : public ::testing::Test {};

typedef ::testing::Types<ttmath::Big<1, 4>, ttmath::Big<8, 32>> Widths;
TYPED_TEST_SUITE(Accuracy, Widths);

// Arguments per function and region: fewer at 2048 bits to keep the run short.
template<class Big>
int Samples()
{
    return Big::mantissa_bits > 256 ? 4 : 24;
}

const mpfr_prec_t extra_bits = 128;

// A region: leading-bit exponents in [lo, hi], and the sign.
struct Region {
    int lo, hi;
    bool negative;
};

template<class Big>
struct Checker {
    typedef std::function<Big(const Big &, ttmath::ErrorCode *)> Ours;
    typedef std::function<void(mpfr_t, const mpfr_t)> Reference; // at the precision of its output

    Random rng{0x5eed};

    // Checks `ours` against `reference` (evaluated with `extra` bits, then rounded).
    void Run(const char * name, const Ours & ours, const Reference & reference, Region region, mpfr_prec_t extra = 0,
             const std::function<Big(Big)> & shape = nullptr)
    {
        const mpfr_prec_t p = Big::mantissa_bits;
        for (int i = 0; i < Samples<Big>(); ++i) {
            Big x = RandomNormal<Big>(rng, region.lo, region.hi, region.negative);
            if (shape)
                x = shape(x);
            Mpfr mx(p), my(p + extra);
            ToMpfr(x, mx.m);
            reference(my.m, mx.m);
            mpfr_prec_round(my.m, p, MPFR_RNDN);
            ttmath::ErrorCode e = ttmath::err_ok;
            Big got = ours(x, &e);
            ASSERT_EQ(e, ttmath::err_ok) << name << " failed at sample " << i;
            Big want = FromMpfr<Big>(my.m);
            EXPECT_TRUE(got == want && got.mantissa == want.mantissa)
                << name << "(" << mpfr_get_d(mx.m, MPFR_RNDN) << ") is not correctly rounded";
        }
    }
};

// Near 1: 1 + m 2^-k for a random m in [-1, 1) and k in [2, P].
template<class Big>
Big NearOne(Big x)
{
    Big one;
    one.SetOne();
    return one + x;
}

#define MPFR1(fn) [](mpfr_t r, const mpfr_t a) { fn(r, a, MPFR_RNDN); }

TYPED_TEST(Accuracy, ExponentialsAndLogarithms)
{
    typedef TypeParam B;
    Checker<B> c;
    const int p = static_cast<int>(B::mantissa_bits);
    c.Run("exp", ttmath::Exp<B>, MPFR1(mpfr_exp), {-300, 12, false});
    c.Run("exp", ttmath::Exp<B>, MPFR1(mpfr_exp), {-300, 12, true});
    c.Run("ln", ttmath::Ln<B>, MPFR1(mpfr_log), {-1000, 1000, false});
    c.Run("ln", ttmath::Ln<B>, MPFR1(mpfr_log), {-p, -2, false}, 0, NearOne<B>);
    c.Run("ln", ttmath::Ln<B>, MPFR1(mpfr_log), {-p, -2, true}, 0, NearOne<B>);
    B base(10);
    c.Run("log10", [&](const B & x, ttmath::ErrorCode * e) { return ttmath::Log(x, base, e); },
          [](mpfr_t r, const mpfr_t a) {
              Mpfr t(mpfr_get_prec(r));
              mpfr_log(r, a, MPFR_RNDN);
              mpfr_set_ui(t.m, 10, MPFR_RNDN);
              mpfr_log(t.m, t.m, MPFR_RNDN);
              mpfr_div(r, r, t.m, MPFR_RNDN);
          },
          {-300, 300, false}, extra_bits);
    c.Run("sqrt", [](const B & x, ttmath::ErrorCode * e) { return ttmath::Sqrt(x, e); }, MPFR1(mpfr_sqrt),
          {-1000, 1000, false});
    B index(7);
    c.Run("root7", [&](const B & x, ttmath::ErrorCode * e) { return ttmath::Root(x, index, e); },
          [](mpfr_t r, const mpfr_t a) { mpfr_rootn_ui(r, a, 7, MPFR_RNDN); }, {-300, 300, true});
    B y(-2.75);
    c.Run("pow", [&](const B & x, ttmath::ErrorCode * e) {
              B r(x);
              *e = r.Pow(y) ? ttmath::err_overflow : ttmath::err_ok;
              return r;
          },
          [&](mpfr_t r, const mpfr_t a) {
              Mpfr t(ttmath::Big<1, 4>::mantissa_bits);
              mpfr_set_d(t.m, -2.75, MPFR_RNDN);
              mpfr_pow(r, a, t.m, MPFR_RNDN);
          },
          {-200, 200, false});
}

TYPED_TEST(Accuracy, Trigonometry)
{
    typedef TypeParam B;
    Checker<B> c;
    for (bool negative : {false, true}) {
        c.Run("sin", ttmath::Sin<B>, MPFR1(mpfr_sin), {-300, 1000, negative});
        c.Run("cos", ttmath::Cos<B>, MPFR1(mpfr_cos), {-300, 1000, negative});
        c.Run("tan", ttmath::Tan<B>, MPFR1(mpfr_tan), {-300, 1000, negative});
        c.Run("cot", ttmath::Cot<B>, MPFR1(mpfr_cot), {-300, 1000, negative});
        c.Run("asin", ttmath::ASin<B>, MPFR1(mpfr_asin), {-300, -1, negative});
        c.Run("acos", ttmath::ACos<B>, MPFR1(mpfr_acos), {-300, -1, negative});
        c.Run("atan", [](const B & x, ttmath::ErrorCode *) { return ttmath::ATan(x); }, MPFR1(mpfr_atan),
              {-300, 300, negative});
        c.Run("acot", [](const B & x, ttmath::ErrorCode *) { return ttmath::ACot(x); },
              [](mpfr_t r, const mpfr_t a) {
                  Mpfr t(mpfr_get_prec(r));
                  mpfr_const_pi(t.m, MPFR_RNDN);
                  mpfr_div_2ui(t.m, t.m, 1, MPFR_RNDN);
                  mpfr_atan(r, a, MPFR_RNDN);
                  mpfr_sub(r, t.m, r, MPFR_RNDN);
              },
              {-300, 100, negative}, extra_bits);
    }
    // huge arguments up to the reduction limit
    c.Run("sin", ttmath::Sin<B>, MPFR1(mpfr_sin), {60000, 65535, false});
    // next to +-1, where asin and acos are steep
    const int p = static_cast<int>(B::mantissa_bits);
    auto below_one = [](B x) {
        B one;
        one.SetOne();
        return one - x;
    };
    c.Run("asin", ttmath::ASin<B>, MPFR1(mpfr_asin), {-p, -2, false}, 0, below_one);
    c.Run("acos", ttmath::ACos<B>, MPFR1(mpfr_acos), {-p, -2, false}, 0, below_one);
}

TYPED_TEST(Accuracy, Hyperbolic)
{
    typedef TypeParam B;
    Checker<B> c;
    const int p = static_cast<int>(B::mantissa_bits);
    for (bool negative : {false, true}) {
        c.Run("sinh", ttmath::Sinh<B>, MPFR1(mpfr_sinh), {-300, 12, negative});
        c.Run("cosh", ttmath::Cosh<B>, MPFR1(mpfr_cosh), {-300, 12, negative});
        c.Run("tanh", ttmath::Tanh<B>, MPFR1(mpfr_tanh), {-300, 10, negative});
        c.Run("coth", ttmath::Coth<B>, MPFR1(mpfr_coth), {-300, 10, negative});
        c.Run("asinh", ttmath::ASinh<B>, MPFR1(mpfr_asinh), {-300, 300, negative});
        c.Run("atanh", ttmath::ATanh<B>, MPFR1(mpfr_atanh), {-300, -1, negative});
        c.Run("acoth", ttmath::ACoth<B>,
              [](mpfr_t r, const mpfr_t a) {
                  mpfr_ui_div(r, 1, a, MPFR_RNDN);
                  mpfr_atanh(r, r, MPFR_RNDN);
              },
              {2, 300, negative}, extra_bits);
    }
    c.Run("acosh", ttmath::ACosh<B>, MPFR1(mpfr_acosh), {1, 300, false});
    c.Run("acosh", ttmath::ACosh<B>, MPFR1(mpfr_acosh), {-p, -2, false}, 0, NearOne<B>);
}

} // namespace
