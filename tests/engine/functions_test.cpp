// The elementary functions' exact results and failure rules, by name, at both widths:
// which inputs fail and with which code, and the values that are exact by convention
// or by the class's constants.
#include <gtest/gtest.h>

#include <ttmath/ttmath.h>

namespace {

using ttmath::ErrorCode;
using ttmath::err_improper_argument;
using ttmath::err_ok;
using ttmath::err_overflow;

template<class Big>
class Functions : public ::testing::Test {};

typedef ::testing::Types<ttmath::Big<1, 4>, ttmath::Big<8, 32>> Widths;
TYPED_TEST_SUITE(Functions, Widths);

template<class Big>
Big Of(double v)
{
    return Big(v);
}

// 2^k
template<class Big>
Big PowerOfTwo(ttmath::sint k)
{
    Big x;
    x.SetOne();
    x.exponent.Add(decltype(x.exponent)(k));
    return x;
}

TYPED_TEST(Functions, RootsFollowTheLibrarysConventions)
{
    typedef TypeParam B;
    ErrorCode e;
    EXPECT_EQ(ttmath::Root(Of<B>(8), Of<B>(3), &e), Of<B>(2));
    EXPECT_EQ(e, err_ok);
    EXPECT_EQ(ttmath::Root(Of<B>(-8), Of<B>(3), &e), Of<B>(-2));
    EXPECT_EQ(ttmath::Root(Of<B>(81), Of<B>(4), &e), Of<B>(3));
    EXPECT_EQ(ttmath::Root(Of<B>(-5), Of<B>(0), &e), Of<B>(1)); // index 0 gives 1
    EXPECT_EQ(ttmath::Root(Of<B>(-5), Of<B>(1), &e), Of<B>(-5));
    EXPECT_EQ(ttmath::Root(Of<B>(0), Of<B>(3), &e), Of<B>(0));
    EXPECT_EQ(ttmath::Root(Of<B>(4), Of<B>(2), &e), Of<B>(2));
    EXPECT_EQ(e, err_ok);
    ttmath::Root(Of<B>(0), Of<B>(0), &e);
    EXPECT_EQ(e, err_improper_argument);
    ttmath::Root(Of<B>(0), Of<B>(0.5), &e); // the fractional index is checked first
    EXPECT_EQ(e, err_improper_argument);
    ttmath::Root(Of<B>(8), Of<B>(-3), &e);
    EXPECT_EQ(e, err_improper_argument);
    ttmath::Root(Of<B>(-8), Of<B>(4), &e);
    EXPECT_EQ(e, err_improper_argument);
    ttmath::Root(Of<B>(-4), Of<B>(2), &e);
    EXPECT_EQ(e, err_improper_argument);
    // every index of 2^P or more counts as even
    ttmath::Root(Of<B>(-8), PowerOfTwo<B>(B::mantissa_bits + 1), &e);
    EXPECT_EQ(e, err_improper_argument);
    EXPECT_EQ(ttmath::Root(Of<B>(5), PowerOfTwo<B>(B::mantissa_bits + 1), &e), Of<B>(1));
}

TYPED_TEST(Functions, LogarithmsCheckArgumentThenBase)
{
    typedef TypeParam B;
    ErrorCode e;
    EXPECT_EQ(ttmath::Log(Of<B>(1), Of<B>(10), &e), Of<B>(0));
    EXPECT_EQ(e, err_ok);
    EXPECT_EQ(ttmath::Log(Of<B>(8), Of<B>(2), &e), Of<B>(3));
    EXPECT_EQ(ttmath::Log(Of<B>(2), Of<B>(4), &e), Of<B>(0.5));
    for (double base : {1.0, 0.0, -2.0}) {
        B r;
        EXPECT_EQ(r.Log(Of<B>(1), Of<B>(base)), 3u) << base; // the base is checked before x = 1
        ttmath::Log(Of<B>(1), Of<B>(base), &e);
        EXPECT_EQ(e, err_improper_argument);
    }
    B r;
    EXPECT_EQ(r.Log(Of<B>(-1), Of<B>(2)), 2u);
    EXPECT_EQ(r.Ln(Of<B>(0)), 2u);
    EXPECT_EQ(r.Ln(Of<B>(-3)), 2u);
    EXPECT_EQ(r.Ln(Of<B>(1)), 0u);
    EXPECT_TRUE(r.IsZero());
    B nan;
    EXPECT_EQ(r.Ln(nan), 1u);
    ttmath::Ln(nan, &e);
    EXPECT_EQ(e, err_improper_argument);
    B two(2), ln2;
    ln2.SetLn2();
    // ln 2 correctly rounded: the truncated constant at 256 bits is one ulp below
    EXPECT_TRUE(ttmath::Ln(two, &e) >= ln2);
}

TYPED_TEST(Functions, ExponentialFailsOutsideTheRangeBothWays)
{
    typedef TypeParam B;
    ErrorCode e;
    EXPECT_EQ(ttmath::Exp(Of<B>(0), &e), Of<B>(1));
    const ttmath::sint range = static_cast<ttmath::sint>(sizeof(B().exponent) * 8) - 1; // 2^range is the limit
    ttmath::Exp(PowerOfTwo<B>(range), &e);
    EXPECT_EQ(e, err_overflow);
    ttmath::Exp(-PowerOfTwo<B>(range), &e);
    EXPECT_EQ(e, err_overflow); // underflow fails too
    ttmath::Exp(PowerOfTwo<B>(range - 2), &e);
    EXPECT_EQ(e, err_ok);
    // tiny arguments round to 1
    EXPECT_EQ(ttmath::Exp(-PowerOfTwo<B>(-static_cast<ttmath::sint>(B::mantissa_bits) - 3), &e), Of<B>(1));
}

TYPED_TEST(Functions, PowersFollowTheDispatch)
{
    typedef TypeParam B;
    B x;
    x = Of<B>(0);
    EXPECT_EQ(x.Pow(Of<B>(0)), 2u);
    x = Of<B>(0);
    EXPECT_EQ(x.Pow(Of<B>(-2)), 2u);
    x = Of<B>(0);
    EXPECT_EQ(x.Pow(Of<B>(2.5)), 0u);
    EXPECT_TRUE(x.IsZero());
    x = Of<B>(-2);
    EXPECT_EQ(x.Pow(Of<B>(0.5)), 2u);
    x = Of<B>(-2);
    EXPECT_EQ(x.Pow(Of<B>(3)), 0u);
    EXPECT_EQ(x, Of<B>(-8));
    x = Of<B>(-2);
    EXPECT_EQ(x.Pow(Of<B>(-3)), 0u);
    EXPECT_EQ(x, Of<B>(-0.125));
    x = Of<B>(-5);
    EXPECT_EQ(x.Pow(Of<B>(0)), 0u);
    EXPECT_EQ(x, Of<B>(1));
    // a negative base with an integer exponent of 2^P or more goes the fractional way
    x = Of<B>(-1);
    EXPECT_EQ(x.Pow(PowerOfTwo<B>(B::mantissa_bits + 4)), 2u);
    x = Of<B>(2);
    EXPECT_EQ(x.Pow(PowerOfTwo<B>(B::mantissa_bits + 4)), 1u);
    x = Of<B>(0.5);
    EXPECT_EQ(x.Pow(PowerOfTwo<B>(B::mantissa_bits + 4)), 1u); // underflow fails
    x = Of<B>(4);
    EXPECT_EQ(x.Pow(Of<B>(0.5)), 0u);
    EXPECT_EQ(x, Of<B>(2));
    x = Of<B>(9);
    EXPECT_EQ(x.Pow(Of<B>(1.5)), 0u);
    EXPECT_EQ(x, Of<B>(27));
    B nan;
    x = Of<B>(2);
    EXPECT_EQ(x.Pow(nan), 1u);
}

TYPED_TEST(Functions, SquareRootsAreExactOnSquares)
{
    typedef TypeParam B;
    B x = Of<B>(81);
    EXPECT_EQ(x.Sqrt(), 0u);
    EXPECT_EQ(x, Of<B>(9));
    x = Of<B>(0.25);
    EXPECT_EQ(x.Sqrt(), 0u);
    EXPECT_EQ(x, Of<B>(0.5));
    x = Of<B>(-4);
    EXPECT_EQ(x.Sqrt(), 2u);
    B minus_zero;
    minus_zero.SetZero();
    minus_zero.SetSign();
    EXPECT_EQ(minus_zero.Sqrt(), 2u);
    ErrorCode e;
    ttmath::Sqrt(Of<B>(-4), &e);
    EXPECT_EQ(e, err_improper_argument);
}

TYPED_TEST(Functions, InverseTrigonometryUsesTheClassConstants)
{
    typedef TypeParam B;
    ErrorCode e;
    B half_pi, pi;
    half_pi.Set05Pi();
    pi.SetPi();
    EXPECT_EQ(ttmath::ASin(Of<B>(1), &e), half_pi);
    EXPECT_EQ(ttmath::ASin(Of<B>(-1), &e), -half_pi);
    EXPECT_EQ(ttmath::ACos(Of<B>(0), &e), half_pi);
    EXPECT_EQ(ttmath::ACos(Of<B>(-1), &e), pi);
    EXPECT_EQ(ttmath::ACos(Of<B>(1), &e), Of<B>(0));
    EXPECT_EQ(e, err_ok);
    ttmath::ASin(Of<B>(1.5), &e);
    EXPECT_EQ(e, err_improper_argument);
    ttmath::ACos(Of<B>(-1.0000001), &e);
    EXPECT_EQ(e, err_improper_argument);
    B nan;
    EXPECT_TRUE(ttmath::ATan(nan).IsNan());
    EXPECT_TRUE(ttmath::ACot(nan).IsNan());
    EXPECT_EQ(ttmath::ATan(Of<B>(0)), Of<B>(0));
}

TYPED_TEST(Functions, TrigonometryFailsOnlyAtZeroCotAndBeyondTheLimit)
{
    typedef TypeParam B;
    ErrorCode e;
    ttmath::Cot(Of<B>(0), &e);
    EXPECT_EQ(e, err_improper_argument);
    EXPECT_EQ(ttmath::Cos(Of<B>(0), &e), Of<B>(1));
    const ttmath::sint limit = ttmath::wide::trig_reduction_limit_bits;
    B below = PowerOfTwo<B>(limit);
    below.mantissa.SetMax(); // just under 2^limit
    below.exponent.SubOne();
    for (auto fn : {&ttmath::Sin<B>, &ttmath::Cos<B>}) {
        fn(below, &e);
        EXPECT_EQ(e, err_ok);
        fn(PowerOfTwo<B>(limit), &e);
        EXPECT_EQ(e, err_overflow);
    }
    ttmath::Tan(below, &e);
    EXPECT_EQ(e, err_ok);
    ttmath::Tan(PowerOfTwo<B>(limit), &e);
    EXPECT_NE(e, err_ok);
    // the truncated pi is not a multiple of pi: its cotangent exists
    B pi;
    pi.SetPi();
    ttmath::Cot(pi, &e);
    EXPECT_EQ(e, err_ok);
    ttmath::Tan(pi / Of<B>(2), &e);
    EXPECT_EQ(e, err_ok);
}

TYPED_TEST(Functions, HyperbolicDomainsAndRange)
{
    typedef TypeParam B;
    ErrorCode e;
    ttmath::Coth(Of<B>(0), &e);
    EXPECT_EQ(e, err_improper_argument);
    ttmath::ACosh(Of<B>(0.5), &e);
    EXPECT_EQ(e, err_improper_argument);
    EXPECT_EQ(ttmath::ACosh(Of<B>(1), &e), Of<B>(0));
    for (double edge : {1.0, -1.0, 0.5}) {
        ttmath::ACoth(Of<B>(edge), &e);
        EXPECT_EQ(e, err_improper_argument) << edge;
    }
    ttmath::ATanh(Of<B>(1), &e);
    EXPECT_EQ(e, err_improper_argument);
    ttmath::ATanh(Of<B>(-1), &e);
    EXPECT_EQ(e, err_improper_argument);
    EXPECT_EQ(ttmath::Cosh(Of<B>(0), &e), Of<B>(1));
    // e^-|x| leaves the range at (2^(E-1) - P + 1) ln 2: all four fail beyond, also
    // tanh and coth, whose values are +-1 there
    const ttmath::sint range = static_cast<ttmath::sint>(sizeof(B().exponent) * 8) - 1;
    B beyond = PowerOfTwo<B>(range - 1) * Of<B>(1.4); // about 0.7 2^range > 0.693 2^range
    B inside = PowerOfTwo<B>(range - 1) * Of<B>(1.38);
    for (auto fn : {&ttmath::Sinh<B>, &ttmath::Cosh<B>, &ttmath::Tanh<B>, &ttmath::Coth<B>}) {
        fn(beyond, &e);
        EXPECT_EQ(e, err_overflow);
        fn(-beyond, &e);
        EXPECT_EQ(e, err_overflow);
        fn(inside, &e);
        EXPECT_EQ(e, err_ok);
    }
    EXPECT_EQ(ttmath::Tanh(inside, &e), Of<B>(1));
}

} // namespace
