// No argument makes a function work long or use much memory: for the hardest inputs
// we can build (huge and tiny arguments, arguments next to domain edges and to
// multiples of pi/2, the ends of the exponent range) every call stays within fixed
// bounds on the rounds of the rounding test, the working precision, the length of its
// series and the words of 2/pi its reduction reads. Working numbers live on the stack
// with a fixed capacity; the constant tables have fixed lengths.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <vector>

#include "mpfr_bridge.h"

namespace {

using namespace testing_support;
using ttmath::wide::Meter;

template<class Big>
class Bounds : public ::testing::Test {};

typedef ::testing::Types<ttmath::Big<1, 4>, ttmath::Big<8, 32>> Widths;
TYPED_TEST_SUITE(Bounds, Widths);

template<class Big>
Big PowerOfTwo(ttmath::sint k)
{
    Big x;
    x.SetOne();
    x.exponent.Add(decltype(x.exponent)(k));
    return x;
}

// The representable number nearest to 2^k pi/2: as close to a multiple of pi/2 as
// an argument of that size gets.
template<class Big>
Big NearHalfPiMultiple(long k)
{
    Mpfr pi(Big::mantissa_bits + k + 256);
    mpfr_const_pi(pi.m, MPFR_RNDN);
    mpfr_mul_2si(pi.m, pi.m, k - 1, MPFR_RNDN);
    mpfr_prec_round(pi.m, Big::mantissa_bits, MPFR_RNDN);
    return FromMpfr<Big>(pi.m);
}

template<class Big>
std::vector<Big> HardArguments()
{
    typedef Big B;
    const ttmath::sint p = B::mantissa_bits;
    const ttmath::sint limit = ttmath::wide::trig_reduction_limit_bits;
    std::vector<B> v;
    B max, smallest, one, x;
    max.SetMax();
    smallest.SetOne();
    smallest.exponent.SetMin();
    one.SetOne();
    v.push_back(max);
    v.push_back(-max);
    v.push_back(smallest);
    v.push_back(-smallest);
    v.push_back(one);
    v.push_back(one - PowerOfTwo<B>(-p));          // next below 1
    v.push_back(one + PowerOfTwo<B>(1 - p));       // next above 1
    v.push_back(-(one - PowerOfTwo<B>(-p)));
    v.push_back(PowerOfTwo<B>(-p / 2 - 3));        // where the tiny rules start
    v.push_back(PowerOfTwo<B>(limit) - PowerOfTwo<B>(limit - p)); // largest reducible
    v.push_back(NearHalfPiMultiple<B>(p));
    v.push_back(NearHalfPiMultiple<B>(limit - 2));
    // the edge of the exponential's range, where the library's rounding is emulated
    const ttmath::sint range = static_cast<ttmath::sint>(sizeof(B().exponent) * 8) - 1;
    B ln2;
    ln2.SetLn2();
    x = PowerOfTwo<B>(range) * ln2;
    v.push_back(x);
    v.push_back(-x);
    v.push_back(B(1e-300));
    v.push_back(B(7.5));
    return v;
}

TYPED_TEST(Bounds, HardArgumentsStayWithinFixedWork)
{
    typedef TypeParam B;
    typedef ttmath::wide::Work<sizeof(B().exponent) / 8, sizeof(B().mantissa) / 8> W;
    typedef ttmath::wide::Reduction<sizeof(B().exponent) / 8, sizeof(B().mantissa) / 8> R;
    const std::size_t p = B::mantissa_bits;
    // the series: the library's own exponential series (edges of the range) has at
    // most about P/2 terms; ours at most a few square roots of the working bits
    const std::size_t series_bound = p + 4 * static_cast<std::size_t>(std::sqrt(64.0 * W::capacity)) + 64;
    typedef B (*Unary)(const B &, ttmath::ErrorCode *);
    typedef B (*ByValue)(B, ttmath::ErrorCode *);
    std::vector<std::pair<const char *, std::function<B(const B &)>>> fns;
    ttmath::ErrorCode e;
    auto add = [&](const char * name, Unary f) { fns.push_back({name, [f, &e](const B & x) { return f(x, &e); }}); };
    auto add_v = [&](const char * name, ByValue f) { fns.push_back({name, [f, &e](const B & x) { return f(x, &e); }}); };
    add("exp", ttmath::Exp<B>);
    add("ln", ttmath::Ln<B>);
    add_v("sin", ttmath::Sin<B>);
    add_v("cos", ttmath::Cos<B>);
    add("tan", ttmath::Tan<B>);
    add("cot", ttmath::Cot<B>);
    add_v("asin", ttmath::ASin<B>);
    add("acos", ttmath::ACos<B>);
    fns.push_back({"atan", [](const B & x) { return ttmath::ATan(x); }});
    fns.push_back({"acot", [](const B & x) { return ttmath::ACot(x); }});
    for (auto f : {ttmath::Sinh<B>, ttmath::Cosh<B>, ttmath::Tanh<B>, ttmath::Coth<B>, ttmath::ASinh<B>,
                   ttmath::ACosh<B>, ttmath::ATanh<B>, ttmath::ACoth<B>})
        add("hyperbolic", f);
    const B three(3), half(0.5);
    fns.push_back({"log3", [&](const B & x) { return ttmath::Log(x, three, &e); }});
    fns.push_back({"root3", [&](const B & x) { return ttmath::Root(x, three, &e); }});
    fns.push_back({"sqrt", [](const B & x) {
                       B r(x);
                       r.Sqrt();
                       return r;
                   }});
    fns.push_back({"pow", [&](const B & x) {
                       B r(three);
                       r.Pow(x);
                       return r;
                   }});
    fns.push_back({"pow", [&](const B & x) {
                       B r(x);
                       r.Pow(half);
                       return r;
                   }});
    const std::vector<B> args = HardArguments<B>();
    for (const auto & fn : fns) {
        for (std::size_t i = 0; i < args.size(); ++i) {
            Meter().Reset();
            fn.second(args[i]);
            const ttmath::wide::WorkMeter m = Meter();
            EXPECT_LE(m.rounds, W::rounds) << fn.first << " argument " << i;
            EXPECT_LE(m.widest, W::capacity) << fn.first << " argument " << i;
            EXPECT_LE(m.longest_series, series_bound) << fn.first << " argument " << i;
            EXPECT_LE(m.reduction_words, R::window_words) << fn.first << " argument " << i;
            EXPECT_EQ(m.undecided, 0u) << fn.first << " argument " << i;
        }
    }
}

TEST(Bounds, ConstantTablesHaveFixedLengths)
{
    EXPECT_EQ(ttmath::wide::Short().pi.w.size(), ttmath::wide::short_table_words);
    EXPECT_EQ(ttmath::wide::Short().ln2.w.size(), ttmath::wide::short_table_words);
    EXPECT_EQ(ttmath::wide::LongTwoOverPi().w.size(), ttmath::wide::long_table_words);
    // the long table reaches past the reduction limit by the widest window
    const std::size_t reach = ttmath::wide::trig_reduction_limit_bits + 2 * 2048 + 64 * ttmath::wide::Work<8, 32>::capacity;
    EXPECT_GE(ttmath::wide::long_table_words * 64, reach);
}

} // namespace
