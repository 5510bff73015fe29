// Text conversion of the numeric core against MPFR at 256 and 2048 bits: ToString of
// random values to full-precision decimal text (mpfr_get_str with as many digits as the
// precision needs), and FromString of those texts (mpfr_set_str).
#include <benchmark/benchmark.h>
#include <mpfr.h>

#include <cstdint>
#include <string>
#include <vector>

#include <ttmath/ttmath.h>

#include "comparison_report.h"

namespace {

using ttmath::uint;

const std::size_t pool_size = 32;  // values cycled through
const int exponent_spread = 8;     // values lie in [2^-8, 2^8)
const int mpfr_all_digits = 0;     // mpfr_get_str: as many digits as the precision needs
const int decimal = 10;
const std::size_t mpfr_text_extra = 2; // mpfr_get_str writes a sign and a NUL besides the digits

struct Random {
    std::uint64_t state = 0x2545f4914f6cdd1dull;
    std::uint64_t Next()
    {
        state ^= state << 13;
        state ^= state >> 7;
        state ^= state << 17;
        return state;
    }
};

template<class Big>
std::vector<Big> MakeValues()
{
    Random rng;
    std::vector<Big> values;
    for (std::size_t i = 0; i < pool_size; ++i) {
        Big x;
        x.info = (rng.Next() & 1) ? TTMATH_BIG_SIGN : 0;
        for (uint & w : x.mantissa.table)
            w = rng.Next();
        x.mantissa.table[x.mantissa.Size() - 1] |= TTMATH_UINT_HIGHEST_BIT;
        const int leading = static_cast<int>(rng.Next() % (2 * exponent_spread)) - exponent_spread;
        x.exponent = decltype(x.exponent)(static_cast<ttmath::sint>(leading) -
                                          static_cast<ttmath::sint>(Big::mantissa_bits) + 1);
        values.push_back(x);
    }
    return values;
}

// The same values in MPFR.
struct MpfrPool {
    std::vector<mpfr_t> x;
    mpfr_t r;
    std::vector<char> buffer;

    template<class Big>
    MpfrPool(const std::vector<Big> & values) : x(values.size())
    {
        const unsigned bits = Big::mantissa_bits;
        mpz_t m;
        mpz_init(m);
        for (std::size_t i = 0; i < values.size(); ++i) {
            const Big & v = values[i];
            mpfr_init2(x[i], bits);
            mpz_import(m, v.mantissa.Size(), -1, sizeof(uint), 0, 0, v.mantissa.table);
            mpfr_set_z_2exp(x[i], m, static_cast<mpfr_exp_t>(v.exponent.ToInt()), MPFR_RNDN);
            if (v.IsSign())
                mpfr_neg(x[i], x[i], MPFR_RNDN);
        }
        mpz_clear(m);
        mpfr_init2(r, bits);
        buffer.resize(mpfr_get_str_ndigits(decimal, bits) + mpfr_text_extra);
    }
};

template<class Big>
void RegisterWidth()
{
    const unsigned bits = Big::mantissa_bits;
    const std::vector<Big> values = MakeValues<Big>();
    MpfrPool * pool = new MpfrPool(values); // lives as long as the process
    std::vector<std::string> texts;
    for (const Big & v : values)
        texts.push_back(v.ToString());

    benchmark::RegisterBenchmark(bench::Name("tostring", bits, bench::ours).c_str(), [values](benchmark::State & state) {
        std::size_t i = 0;
        std::string text;
        ttmath::Conv conv;
        for (auto _ : state) {
            values[i].ToString(text, conv);
            benchmark::DoNotOptimize(text.data());
            i = (i + 1) % pool_size;
        }
    });
    benchmark::RegisterBenchmark(bench::Name("tostring", bits, "mpfr").c_str(), [pool](benchmark::State & state) {
        std::size_t i = 0;
        mpfr_exp_t e;
        for (auto _ : state) {
            mpfr_get_str(pool->buffer.data(), &e, decimal, mpfr_all_digits, pool->x[i], MPFR_RNDN);
            benchmark::DoNotOptimize(pool->buffer.data());
            i = (i + 1) % pool_size;
        }
    });
    benchmark::RegisterBenchmark(bench::Name("fromstring", bits, bench::ours).c_str(), [texts](benchmark::State & state) {
        std::size_t i = 0;
        Big x;
        ttmath::Conv conv;
        for (auto _ : state) {
            x.FromString(texts[i], conv);
            benchmark::DoNotOptimize(x);
            i = (i + 1) % pool_size;
        }
    });
    benchmark::RegisterBenchmark(bench::Name("fromstring", bits, "mpfr").c_str(), [texts, pool](benchmark::State & state) {
        std::size_t i = 0;
        for (auto _ : state) {
            mpfr_set_str(pool->r, texts[i].c_str(), decimal, MPFR_RNDN);
            benchmark::DoNotOptimize(pool->r);
            i = (i + 1) % pool_size;
        }
    });
}

} // namespace

int main(int argc, char ** argv)
{
    RegisterWidth<ttmath::Big<1, 4>>();
    RegisterWidth<ttmath::Big<8, 32>>();
    return bench::RunAndCompare(argc, argv);
}
