// The elementary functions against MPFR at 256 and 2048 bits, on the same arguments
// (the regions of the function notes' speed table). MPFR's missing functions are its
// natural sequences: log to a base = two logarithms and a division, acot = atan(1/x),
// acoth = atanh(1/x), root = rootn_ui.
#include <benchmark/benchmark.h>
#include <mpfr.h>

#include <cmath>
#include <cstdint>
#include <functional>
#include <vector>

#include <ttmath/ttmath.h>

#include "comparison_report.h"

namespace {

const std::size_t pool_size = 16; // arguments cycled through

struct Random {
    std::uint64_t state = 0x2545f4914f6cdd1dull;
    double Uniform(double lo, double hi)
    {
        state ^= state << 13;
        state ^= state >> 7;
        state ^= state << 17;
        return lo + (hi - lo) * static_cast<double>(state >> 11) * 0x1p-53;
    }
};

// Arguments: doubles in [lo, hi] (log-uniform over [2^lo, 2^hi] when `log_scale`).
struct Domain {
    double lo, hi;
    bool log_scale;
};

std::vector<double> Arguments(const Domain & d)
{
    Random rng;
    std::vector<double> v;
    for (std::size_t i = 0; i < pool_size; ++i)
        v.push_back(d.log_scale ? std::exp2(rng.Uniform(d.lo, d.hi)) : rng.Uniform(d.lo, d.hi));
    return v;
}

// Fills the full mantissa so the arguments are not short doubles.
template<class Big>
Big Widen(double d)
{
    Big x(d), third(3);
    Big tiny(1e-30);
    x.Add(x * tiny / third);
    return x;
}

template<class Big>
using Ours = std::function<void(Big &, const Big &)>;
using Theirs = std::function<void(mpfr_t, const mpfr_t)>;

// MPFR's arguments and result live as long as the process; the benchmarks use them.
struct MpfrArgs {
    std::vector<mpfr_t> x;
    mpfr_t r;
    MpfrArgs() : x(pool_size) {}
};

template<class Big>
void Register(const char * name, const Domain & d, Ours<Big> ours, Theirs theirs)
{
    const unsigned bits = Big::mantissa_bits;
    std::vector<Big> xs;
    MpfrArgs * m = new MpfrArgs;
    mpfr_init2(m->r, bits);
    for (double v : Arguments(d)) {
        xs.push_back(Widen<Big>(v));
    }
    for (std::size_t i = 0; i < pool_size; ++i) {
        mpfr_init2(m->x[i], bits);
        // exact copy of our argument
        mpz_t z;
        mpz_init(z);
        mpz_import(z, Big::mantissa_bits / 64, -1, 8, 0, 0, xs[i].mantissa.table);
        mpfr_set_z_2exp(m->x[i], z, static_cast<mpfr_exp_t>(xs[i].exponent.ToInt()), MPFR_RNDN);
        if (xs[i].IsSign())
            mpfr_neg(m->x[i], m->x[i], MPFR_RNDN);
        mpz_clear(z);
    }
    benchmark::RegisterBenchmark(bench::Name(name, bits, bench::ours).c_str(), [xs, ours](benchmark::State & state) {
        std::size_t i = 0;
        Big r;
        for (auto _ : state) {
            ours(r, xs[i]);
            benchmark::DoNotOptimize(r);
            i = (i + 1) % pool_size;
        }
    });
    benchmark::RegisterBenchmark(bench::Name(name, bits, "mpfr").c_str(), [m, theirs](benchmark::State & state) {
        std::size_t i = 0;
        for (auto _ : state) {
            theirs(m->r, m->x[i]);
            benchmark::DoNotOptimize(m->r);
            i = (i + 1) % pool_size;
        }
    });
}

#define OUR1(fn) [](Big & r, const Big & x) { ttmath::ErrorCode e; r = ttmath::fn(x, &e); }
#define THEIR1(fn) [](mpfr_t r, const mpfr_t x) { fn(r, x, MPFR_RNDN); }

template<class Big>
void RegisterWidth()
{
    const Domain unit{-1, 1, false}, wide_log{-1000, 1000, true}, trig{-10, 10, false};
    Register<Big>("exp", {-100, 100, false}, OUR1(Exp), THEIR1(mpfr_exp));
    Register<Big>("ln", wide_log, OUR1(Ln), THEIR1(mpfr_log));
    Register<Big>("log", {-100, 100, true}, [](Big & r, const Big & x) {
        ttmath::ErrorCode e;
        r = ttmath::Log(x, Big(7.25), &e);
    },
                  [](mpfr_t r, const mpfr_t x) {
                      mpfr_t b;
                      mpfr_init2(b, mpfr_get_prec(r));
                      mpfr_set_d(b, 7.25, MPFR_RNDN);
                      mpfr_log(b, b, MPFR_RNDN);
                      mpfr_log(r, x, MPFR_RNDN);
                      mpfr_div(r, r, b, MPFR_RNDN);
                      mpfr_clear(b);
                  });
    Register<Big>("sqrt", wide_log, [](Big & r, const Big & x) {
        r = x;
        r.Sqrt();
    },
                  THEIR1(mpfr_sqrt));
    Register<Big>("pow", {0.001, 10, false}, [](Big & r, const Big & x) {
        r = x;
        r.Pow(Big(-7.375));
    },
                  [](mpfr_t r, const mpfr_t x) {
                      mpfr_t y;
                      mpfr_init2(y, 64);
                      mpfr_set_d(y, -7.375, MPFR_RNDN);
                      mpfr_pow(r, x, y, MPFR_RNDN);
                      mpfr_clear(y);
                  });
    Register<Big>("root", {-100, 100, true}, [](Big & r, const Big & x) {
        ttmath::ErrorCode e;
        r = ttmath::Root(x, Big(7), &e);
    },
                  [](mpfr_t r, const mpfr_t x) { mpfr_rootn_ui(r, x, 7, MPFR_RNDN); });
    Register<Big>("sin", trig, OUR1(Sin), THEIR1(mpfr_sin));
    Register<Big>("cos", trig, OUR1(Cos), THEIR1(mpfr_cos));
    Register<Big>("tan", trig, OUR1(Tan), THEIR1(mpfr_tan));
    Register<Big>("cot", trig, OUR1(Cot), THEIR1(mpfr_cot));
    Register<Big>("asin", unit, OUR1(ASin), THEIR1(mpfr_asin));
    Register<Big>("acos", unit, OUR1(ACos), THEIR1(mpfr_acos));
    Register<Big>("atan", unit, [](Big & r, const Big & x) { r = ttmath::ATan(x); }, THEIR1(mpfr_atan));
    Register<Big>("acot", unit, [](Big & r, const Big & x) { r = ttmath::ACot(x); },
                  [](mpfr_t r, const mpfr_t x) {
                      mpfr_ui_div(r, 1, x, MPFR_RNDN);
                      mpfr_atan(r, r, MPFR_RNDN);
                  });
    Register<Big>("sinh", {-50, 50, false}, OUR1(Sinh), THEIR1(mpfr_sinh));
    Register<Big>("cosh", {-50, 50, false}, OUR1(Cosh), THEIR1(mpfr_cosh));
    Register<Big>("tanh", {-50, 50, false}, OUR1(Tanh), THEIR1(mpfr_tanh));
    Register<Big>("coth", {-50, 50, false}, OUR1(Coth), THEIR1(mpfr_coth));
    Register<Big>("asinh", {-10, 10, false}, OUR1(ASinh), THEIR1(mpfr_asinh));
    Register<Big>("acosh", {1, 10, false}, OUR1(ACosh), THEIR1(mpfr_acosh));
    Register<Big>("atanh", {-0.99, 0.99, false}, OUR1(ATanh), THEIR1(mpfr_atanh));
    Register<Big>("acoth", {1.01, 10, false}, OUR1(ACoth), [](mpfr_t r, const mpfr_t x) {
        mpfr_ui_div(r, 1, x, MPFR_RNDN);
        mpfr_atanh(r, r, MPFR_RNDN);
    });
}

} // namespace

int main(int argc, char ** argv)
{
    RegisterWidth<ttmath::Big<1, 4>>();
    RegisterWidth<ttmath::Big<8, 32>>();
    return bench::RunAndCompare(argc, argv);
}
