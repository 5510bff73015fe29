// The plugin's operators, methods, shared functions and native conversions against its
// numeric core, on random operands, in both classes: a script computes each expression
// through the host and prints it in base 16, where texts are exact, and the same
// operation done here on the core's values must print the same text. A row wired to the
// wrong handler, operands swapped, a rounding flag dropped or a class built on the other
// value type shows here.
#include "plugin_test_support.h"

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <functional>
#include <random>
#include <sstream>

#include "numbers/class_traits.h"

namespace plugin_test {
namespace {

constexpr int kRounds = 6;
constexpr int kHexBase = 16;
constexpr int kHexDigitsBeforePoint = 2; // operands between 1/256 and 256 in magnitude

// The operands of one round, named as the script names them.
template <class Value>
struct Operands {
    Value a, b;  // any sign
    Value p, q;  // positive
    Value u;     // inside (-1, 1)
    Value k;     // a small integer root index
};

template <class Value>
struct Check {
    const char * expression; // `C` stands for the class
    std::function<Value(const Operands<Value> &)> expected;
};

// `v` after `op` changed it in place, which must not have failed.
template <class Value, class Op>
Value Applied(Value v, Op op)
{
    EXPECT_EQ(op(v), 0u);
    return v;
}

template <class Value>
Value OnePlus(const Value & x)
{
    Value one;
    one.SetOne();
    return Applied(one, [&](Value & r) { return r.Add(x); });
}

template <class Value>
std::vector<Check<Value>> Checks()
{
    using O = Operands<Value>;
    ttmath::ErrorCode * const ignored = nullptr;
    auto binary = [](auto op) {
        return [op](const O & o) { return Applied(o.a, [&](Value & r) { return op(r, o.b); }); };
    };
    return {
        {"a + b", binary([](Value & r, const Value & b) { return r.Add(b); })},
        {"a - b", binary([](Value & r, const Value & b) { return r.Sub(b); })},
        {"a * b", binary([](Value & r, const Value & b) { return r.Mul(b); })},
        {"a / b", binary([](Value & r, const Value & b) { return r.Div(b); })},
        {"a Mod b", binary([](Value & r, const Value & b) { return r.Mod(b); })},
        {"a.Add(b, False)", binary([](Value & r, const Value & b) { return r.Add(b, false); })},
        {"a.Subtract(b, False)", binary([](Value & r, const Value & b) { return r.Sub(b, false); })},
        {"a.Multiply(b, False)", binary([](Value & r, const Value & b) { return r.Mul(b, false); })},
        {"a.Divide(b, False)", binary([](Value & r, const Value & b) { return r.Div(b, false); })},
        {"p ^ b", [](const O & o) { return Applied(o.p, [&](Value & r) { return r.Pow(o.b); }); }},
        {"C.Root(p, k)", [=](const O & o) { return ttmath::Root(o.p, o.k, ignored); }},
        {"C.Log(p, q)", [=](const O & o) { return ttmath::Log(o.p, o.q, ignored); }},
        {"p.Sqrt", [=](const O & o) { return ttmath::Sqrt(o.p, ignored); }},
        {"C.Ln(p)", [=](const O & o) { return ttmath::Ln(o.p, ignored); }},
        {"C.Exp(a)", [=](const O & o) { return ttmath::Exp(o.a, ignored); }},
        {"C.Sin(a)", [=](const O & o) { return ttmath::Sin(o.a, ignored); }},
        {"C.Cos(a)", [=](const O & o) { return ttmath::Cos(o.a, ignored); }},
        {"C.Tan(a)", [=](const O & o) { return ttmath::Tan(o.a, ignored); }},
        {"C.Cot(a)", [=](const O & o) { return ttmath::Cot(o.a, ignored); }},
        {"C.ASin(u)", [=](const O & o) { return ttmath::ASin(o.u, ignored); }},
        {"C.ACos(u)", [=](const O & o) { return ttmath::ACos(o.u, ignored); }},
        {"C.ATan(a)", [](const O & o) { return ttmath::ATan(o.a); }},
        {"C.ACot(a)", [](const O & o) { return ttmath::ACot(o.a); }},
        {"C.Sinh(a)", [=](const O & o) { return ttmath::Sinh(o.a, ignored); }},
        {"C.Cosh(a)", [=](const O & o) { return ttmath::Cosh(o.a, ignored); }},
        {"C.Tanh(a)", [=](const O & o) { return ttmath::Tanh(o.a, ignored); }},
        {"C.Coth(a)", [=](const O & o) { return ttmath::Coth(o.a, ignored); }},
        {"C.ASinh(a)", [=](const O & o) { return ttmath::ASinh(o.a, ignored); }},
        {"C.ACosh(p + C.One)", [=](const O & o) { return ttmath::ACosh(OnePlus(o.p), ignored); }},
        {"C.ATanh(u)", [=](const O & o) { return ttmath::ATanh(o.u, ignored); }},
        {"C.ACoth(p + C.One)", [=](const O & o) { return ttmath::ACoth(OnePlus(o.p), ignored); }},
    };
}

// A random base-16 text with up to `digits` digits, `before` of them before the point.
std::string RandomHex(std::mt19937_64 & rng, int digits, int before, bool negative)
{
    static const char kDigits[] = "0123456789ABCDEF";
    std::string text = negative ? "-" : "";
    for (int i = 0; i < digits; ++i) {
        if (i == before)
            text += '.';
        text += kDigits[rng() % kHexBase];
    }
    // never zero: the last digit is odd
    text.back() = kDigits[(rng() % (kHexBase / 2)) * 2 + 1];
    return text;
}

ttmath::Conv HexConversion()
{
    ttmath::Conv hex;
    hex.base = kHexBase;
    return hex;
}

class Agreement : public PluginHost {
protected:
    template <class Traits>
    void ExpectAgreement(std::uint64_t seed);
    template <class Traits>
    void ExpectNativeAgreement(std::uint64_t seed);

    // Runs the script and compares its lines with `expected`; `shown[i]` says what line i
    // computed.
    void ExpectPrinted(const std::string & script, const std::vector<std::string> & expected,
                       const std::vector<std::string> & shown)
    {
        std::istringstream printed(Output(script));
        std::string line;
        for (std::size_t i = 0; i < expected.size(); ++i) {
            ASSERT_TRUE(std::getline(printed, line)) << shown[i];
            EXPECT_EQ(line, expected[i]) << shown[i];
        }
    }
};

template <class Traits>
void Agreement::ExpectAgreement(std::uint64_t seed)
{
    using Value = typename Traits::Value;
    const std::string c = Traits::kName;
    const int digits = static_cast<int>(Value::mantissa_bits / 4);
    std::mt19937_64 rng(seed);
    const auto checks = Checks<Value>();
    const ttmath::Conv hex = HexConversion();

    std::ostringstream script;
    script << "Var a, b, p, q, u, k As " << c << "\n";
    std::vector<std::string> expected, shown;
    for (int round = 0; round < kRounds; ++round) {
        Operands<Value> o;
        std::ostringstream inputs;
        auto set = [&](const char * name, Value & v, const std::string & text) {
            ASSERT_EQ(v.FromString(text, hex), 0u) << text;
            script << name << " = New " << c << "\n"
                   << name << ".StringValue(" << kHexBase << ") = \"" << text << "\"\n";
            inputs << " " << name << "=" << text;
        };
        set("a", o.a, RandomHex(rng, digits, kHexDigitsBeforePoint, rng() & 1));
        set("b", o.b, RandomHex(rng, digits, kHexDigitsBeforePoint, rng() & 1));
        set("p", o.p, RandomHex(rng, digits, kHexDigitsBeforePoint, false));
        set("q", o.q, RandomHex(rng, digits, kHexDigitsBeforePoint, false));
        set("u", o.u, RandomHex(rng, digits, 0, rng() & 1));
        set("k", o.k, std::to_string(2 + rng() % 6));
        for (const auto & check : checks) {
            std::string expression = check.expression;
            for (std::size_t at = expression.find("C."); at != std::string::npos; at = expression.find("C.", at + c.size()))
                expression.replace(at, 1, c);
            script << "Print (" << expression << ").StringValue(" << kHexBase << ")\n";
            expected.push_back(check.expected(o).ToString(hex));
            shown.push_back(expression + " with" + inputs.str());
        }
    }
    ExpectPrinted(script.str(), expected, shown);
}

// Integers and doubles into a number and back out: a constructor must store what the core
// converts, Int64Value must truncate as the core does, and a double must come back as
// itself.
template <class Traits>
void Agreement::ExpectNativeAgreement(std::uint64_t seed)
{
    using Value = typename Traits::Value;
    const std::string c = Traits::kName;
    std::mt19937_64 rng(seed);
    const ttmath::Conv hex = HexConversion();
    const int integer_digits = 15; // below 2^60, so Int64Value never fails

    std::vector<std::int64_t> integers = {INT64_MAX, -INT64_MAX, 0, -1};
    std::vector<double> doubles = {DBL_MAX, -DBL_MIN, DBL_TRUE_MIN, 0.1};
    for (int round = 0; round < kRounds; ++round) {
        integers.push_back(static_cast<std::int64_t>(rng()) >> (rng() % 63));
        double d;
        do {
            const std::uint64_t bits = rng();
            std::memcpy(&d, &bits, sizeof d);
        } while (!std::isfinite(d));
        doubles.push_back(d);
    }

    std::ostringstream script;
    std::vector<std::string> expected, shown;
    script << "Var x As New " << c << "\n";
    for (std::int64_t i : integers) {
        Value v;
        v.FromInt(i);
        script << "Print New " << c << "(" << i << ").StringValue(" << kHexBase << ")\n";
        expected.push_back(v.ToString(hex));
        shown.push_back(c + " from Int64 " + std::to_string(i));
    }
    for (double d : doubles) {
        Value v;
        v.FromDouble(d);
        char literal[32];
        std::snprintf(literal, sizeof literal, "%.17g", d);
        script << "Print New " << c << "(" << literal << ").StringValue(" << kHexBase << ")\n"
               << "Print New " << c << "(" << literal << ").DoubleValue = " << literal << "\n";
        expected.push_back(v.ToString(hex));
        expected.push_back("True");
        shown.push_back(c + " from Double " + literal);
        shown.push_back(c + " from Double " + literal + " back to Double");
    }
    for (int round = 0; round < kRounds; ++round) {
        const std::string text = RandomHex(rng, integer_digits, integer_digits - round, rng() & 1);
        Value v;
        ASSERT_EQ(v.FromString(text, hex), 0u);
        ttmath::sint truncated = 0;
        ASSERT_EQ(v.ToInt(truncated), 0u);
        script << "x.StringValue(" << kHexBase << ") = \"" << text << "\"\nPrint x.Int64Value\n";
        expected.push_back(std::to_string(truncated));
        shown.push_back(c + " " + text + " as Int64");
    }
    ExpectPrinted(script.str(), expected, shown);
}

TEST_F(Agreement, NativeValuesCrossAsTheCoreConvertsThem)
{
    LoadOrFail();
    ExpectNativeAgreement<zqt::BigNumberTraits>(3);
    ExpectNativeAgreement<zqt::BiggerNumberTraits>(4);
}

TEST_F(Agreement, EveryOperationMatchesTheCoreOnRandomOperandsInBothClasses)
{
    LoadOrFail();
    ExpectAgreement<zqt::BigNumberTraits>(1);
    ExpectAgreement<zqt::BiggerNumberTraits>(2);
}

} // namespace
} // namespace plugin_test
