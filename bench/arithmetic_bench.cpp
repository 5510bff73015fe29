// The numeric core's basic arithmetic and double conversions against MPFR and Boost's
// cpp_bin_float at 256 and 2048 bits, on the same random operands.
#include <benchmark/benchmark.h>
#include <boost/multiprecision/cpp_bin_float.hpp>
#include <mpfr.h>

#include <cstdint>
#include <vector>

#include <ttmath/ttmath.h>

#include "comparison_report.h"

namespace {

using ttmath::uint;

// Operand pairs cycled through. A branch predictor can learn the outcomes of a cycle this
// short, which favours code that branches on the data; with a pool of a thousand pairs
// MPFR's 256-bit add, mul and div take about 15-30% longer, while operands still fit the
// cache.
const std::size_t pool_size = 32;
const int exponent_spread = 8;    // operands lie in [2^-8, 2^8)

// Seeds of the two operand pools: different, so that a pair is never one value twice
// (x + x and x - x are special cases that some libraries shortcut).
const std::uint64_t first_seed = 0x9e3779b97f4a7c15ull;
const std::uint64_t second_seed = 0x243f6a8885a308d3ull;

struct Random {
    std::uint64_t state = first_seed;
    std::uint64_t Next()
    {
        state ^= state << 13;
        state ^= state >> 7;
        state ^= state << 17;
        return state;
    }
};

// One random operand: normalised mantissa words and a binary exponent for the leading bit.
struct Operand {
    std::vector<uint> words; // least significant first
    int exponent;
    bool negative;
};

std::vector<Operand> MakeOperands(std::size_t count, std::size_t words, bool with_signs, std::uint64_t seed)
{
    Random rng{seed};
    std::vector<Operand> ops;
    for (std::size_t i = 0; i < count; ++i) {
        Operand o;
        for (std::size_t w = 0; w < words; ++w)
            o.words.push_back(rng.Next());
        o.words.back() |= TTMATH_UINT_HIGHEST_BIT;
        o.exponent = static_cast<int>(rng.Next() % (2 * exponent_spread)) - exponent_spread;
        o.negative = with_signs && (rng.Next() & 1);
        ops.push_back(o);
    }
    return ops;
}

template<class Big>
Big ToOurs(const Operand & o)
{
    Big x;
    x.info = o.negative ? TTMATH_BIG_SIGN : 0;
    for (std::size_t w = 0; w < o.words.size(); ++w)
        x.mantissa.table[w] = o.words[w];
    x.exponent = ttmath::Int<sizeof(x.exponent.table) / sizeof(uint)>(
        static_cast<ttmath::sint>(o.exponent) - static_cast<ttmath::sint>(Big::mantissa_bits) + 1);
    return x;
}

void ToMpfr(const Operand & o, mpfr_t x)
{
    mpz_t z;
    mpz_init(z);
    mpz_import(z, o.words.size(), -1, sizeof(uint), 0, 0, o.words.data());
    const long bits = static_cast<long>(o.words.size() * 64);
    mpfr_set_z_2exp(x, z, o.exponent - bits + 1, MPFR_RNDN);
    if (o.negative)
        mpfr_neg(x, x, MPFR_RNDN);
    mpz_clear(z);
}

template<class Float>
Float ToBoost(const Operand & o)
{
    Float x = 0;
    for (std::size_t w = 0; w < o.words.size(); ++w)
        x += boost::multiprecision::ldexp(Float(o.words[w]), static_cast<int>(64 * w));
    x = boost::multiprecision::ldexp(x, o.exponent - static_cast<int>(o.words.size() * 64) + 1);
    return o.negative ? Float(-x) : x;
}

enum class Op { add, sub, mul, div };

const char * OpName(Op op)
{
    switch (op) {
    case Op::add: return "add";
    case Op::sub: return "sub";
    case Op::mul: return "mul";
    default: return "div";
    }
}

// The measured loops, one per operation, so that a loop holds only its own operation
// (a shared loop switching on the operation makes the compiler allocate registers for
// all four at once).
template<class Big, Op op>
void RunOurs(benchmark::State & state, const std::vector<Big> & x, const std::vector<Big> & y)
{
    std::size_t i = 0;
    for (auto _ : state) {
        Big r(x[i]);
        if constexpr (op == Op::add)
            r.Add(y[i]);
        else if constexpr (op == Op::sub)
            r.Sub(y[i]);
        else if constexpr (op == Op::mul)
            r.Mul(y[i]);
        else
            r.Div(y[i]);
        benchmark::DoNotOptimize(r);
        i = (i + 1) % pool_size;
    }
}

template<Op op>
void RunMpfr(benchmark::State & state, mpfr_ptr r, const std::vector<mpfr_t> & x, const std::vector<mpfr_t> & y)
{
    std::size_t i = 0;
    for (auto _ : state) {
        if constexpr (op == Op::add)
            mpfr_add(r, x[i], y[i], MPFR_RNDN);
        else if constexpr (op == Op::sub)
            mpfr_sub(r, x[i], y[i], MPFR_RNDN);
        else if constexpr (op == Op::mul)
            mpfr_mul(r, x[i], y[i], MPFR_RNDN);
        else
            mpfr_div(r, x[i], y[i], MPFR_RNDN);
        benchmark::DoNotOptimize(r);
        i = (i + 1) % pool_size;
    }
}

template<class Big>
void RegisterOurs(Op op, const std::vector<Operand> & a, const std::vector<Operand> & b)
{
    std::vector<Big> x, y;
    for (std::size_t i = 0; i < pool_size; ++i) {
        x.push_back(ToOurs<Big>(a[i]));
        y.push_back(ToOurs<Big>(b[i]));
    }
    typedef void (*Loop)(benchmark::State &, const std::vector<Big> &, const std::vector<Big> &);
    Loop loop = op == Op::add ? Loop(RunOurs<Big, Op::add>)
              : op == Op::sub ? Loop(RunOurs<Big, Op::sub>)
              : op == Op::mul ? Loop(RunOurs<Big, Op::mul>)
                              : Loop(RunOurs<Big, Op::div>);
    benchmark::RegisterBenchmark(bench::Name(OpName(op), Big::mantissa_bits, bench::ours).c_str(),
                                 [loop, x, y](benchmark::State & state) { loop(state, x, y); });
}

// MPFR values live as long as the process; the benchmarks refer to them.
struct MpfrPool {
    std::vector<mpfr_t> x, y;
    mpfr_t r;
    MpfrPool(unsigned bits, const std::vector<Operand> & a, const std::vector<Operand> & b)
        : x(pool_size), y(pool_size)
    {
        for (std::size_t i = 0; i < pool_size; ++i) {
            mpfr_init2(x[i], bits);
            mpfr_init2(y[i], bits);
            ToMpfr(a[i], x[i]);
            ToMpfr(b[i], y[i]);
        }
        mpfr_init2(r, bits);
    }
};

void RegisterMpfr(Op op, unsigned bits, const std::vector<Operand> & a, const std::vector<Operand> & b)
{
    MpfrPool * pool = new MpfrPool(bits, a, b);
    typedef void (*Loop)(benchmark::State &, mpfr_ptr, const std::vector<mpfr_t> &, const std::vector<mpfr_t> &);
    Loop loop = op == Op::add ? Loop(RunMpfr<Op::add>)
              : op == Op::sub ? Loop(RunMpfr<Op::sub>)
              : op == Op::mul ? Loop(RunMpfr<Op::mul>)
                              : Loop(RunMpfr<Op::div>);
    benchmark::RegisterBenchmark(bench::Name(OpName(op), bits, "mpfr").c_str(),
                                 [loop, pool](benchmark::State & state) { loop(state, pool->r, pool->x, pool->y); });
}

template<class Float>
void RegisterBoost(Op op, unsigned bits, const std::vector<Operand> & a, const std::vector<Operand> & b)
{
    std::vector<Float> x, y;
    for (std::size_t i = 0; i < pool_size; ++i) {
        x.push_back(ToBoost<Float>(a[i]));
        y.push_back(ToBoost<Float>(b[i]));
    }
    benchmark::RegisterBenchmark(bench::Name(OpName(op), bits, "boost").c_str(), [op, x, y](benchmark::State & state) {
        std::size_t i = 0;
        Float r;
        for (auto _ : state) {
            switch (op) {
            case Op::add: r = x[i] + y[i]; break;
            case Op::sub: r = x[i] - y[i]; break;
            case Op::mul: r = x[i] * y[i]; break;
            case Op::div: r = x[i] / y[i]; break;
            }
            benchmark::DoNotOptimize(r);
            i = (i + 1) % pool_size;
        }
    });
}

// Doubles spread over many binades, both signs.
std::vector<double> MakeDoubles()
{
    Random rng;
    std::vector<double> d;
    for (std::size_t i = 0; i < pool_size; ++i) {
        double v = static_cast<double>(rng.Next() >> 11) / static_cast<double>(1ull << 53);
        v = std::ldexp(v + 0.5, static_cast<int>(rng.Next() % 200) - 100);
        d.push_back((rng.Next() & 1) ? -v : v);
    }
    return d;
}

template<class Big, class Float>
void RegisterDoubleConversions(unsigned bits)
{
    std::vector<double> d = MakeDoubles();
    std::vector<Big> ours;
    std::vector<Float> theirs;
    MpfrPool * pool = new MpfrPool(bits, MakeOperands(pool_size, bits / 64, true, first_seed),
                                    MakeOperands(pool_size, bits / 64, true, second_seed));
    for (std::size_t i = 0; i < pool_size; ++i) {
        ours.push_back(Big(d[i]));
        theirs.push_back(Float(d[i]));
        mpfr_set_d(pool->x[i], d[i], MPFR_RNDN);
    }
    benchmark::RegisterBenchmark(bench::Name("fromdouble", bits, bench::ours).c_str(), [d](benchmark::State & state) {
        std::size_t i = 0;
        Big r;
        for (auto _ : state) {
            r.FromDouble(d[i]);
            benchmark::DoNotOptimize(r);
            i = (i + 1) % pool_size;
        }
    });
    benchmark::RegisterBenchmark(bench::Name("fromdouble", bits, "mpfr").c_str(), [d, pool](benchmark::State & state) {
        std::size_t i = 0;
        for (auto _ : state) {
            mpfr_set_d(pool->r, d[i], MPFR_RNDN);
            benchmark::DoNotOptimize(pool->r);
            i = (i + 1) % pool_size;
        }
    });
    benchmark::RegisterBenchmark(bench::Name("fromdouble", bits, "boost").c_str(), [d](benchmark::State & state) {
        std::size_t i = 0;
        Float r;
        for (auto _ : state) {
            r = d[i];
            benchmark::DoNotOptimize(r);
            i = (i + 1) % pool_size;
        }
    });
    benchmark::RegisterBenchmark(bench::Name("todouble", bits, bench::ours).c_str(), [ours](benchmark::State & state) {
        std::size_t i = 0;
        for (auto _ : state) {
            double r = ours[i].ToDouble();
            benchmark::DoNotOptimize(r);
            i = (i + 1) % pool_size;
        }
    });
    benchmark::RegisterBenchmark(bench::Name("todouble", bits, "mpfr").c_str(), [pool](benchmark::State & state) {
        std::size_t i = 0;
        for (auto _ : state) {
            double r = mpfr_get_d(pool->x[i], MPFR_RNDZ);
            benchmark::DoNotOptimize(r);
            i = (i + 1) % pool_size;
        }
    });
    benchmark::RegisterBenchmark(bench::Name("todouble", bits, "boost").c_str(), [theirs](benchmark::State & state) {
        std::size_t i = 0;
        for (auto _ : state) {
            double r = theirs[i].template convert_to<double>();
            benchmark::DoNotOptimize(r);
            i = (i + 1) % pool_size;
        }
    });
}

template<class Big, class Float>
void RegisterWidth()
{
    const unsigned bits = Big::mantissa_bits;
    const std::size_t words = bits / 64;
    // Positive operands: "add" adds and "sub" subtracts magnitudes.
    std::vector<Operand> a = MakeOperands(pool_size, words, false, first_seed);
    std::vector<Operand> b = MakeOperands(pool_size, words, false, second_seed);
    for (Op op : {Op::add, Op::sub, Op::mul, Op::div}) {
        RegisterOurs<Big>(op, a, b);
        RegisterMpfr(op, bits, a, b);
        RegisterBoost<Float>(op, bits, a, b);
    }
    RegisterDoubleConversions<Big, Float>(bits);
}

} // namespace

int main(int argc, char ** argv)
{
    using boost::multiprecision::backends::cpp_bin_float;
    using boost::multiprecision::backends::digit_base_2;
    using boost::multiprecision::et_off;
    using boost::multiprecision::number;
    RegisterWidth<ttmath::Big<1, 4>, number<cpp_bin_float<256, digit_base_2>, et_off>>();
    RegisterWidth<ttmath::Big<8, 32>, number<cpp_bin_float<2048, digit_base_2>, et_off>>();
    return bench::RunAndCompare(argc, argv);
}
