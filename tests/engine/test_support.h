// Shared helpers of the numeric core's tests: a seeded random source, random values,
// and conversions of words to and from GMP integers, the independent reference.
#ifndef TESTS_ENGINE_TEST_SUPPORT_H
#define TESTS_ENGINE_TEST_SUPPORT_H

#include <gmp.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include <ttmath/ttmath.h>

namespace testing_support {

typedef ttmath::uint Word;

class Random {
public:
    explicit Random(std::uint64_t seed = 0x243f6a8885a308d3ull) : state_(seed | 1) {}
    std::uint64_t Next()
    {
        state_ ^= state_ << 13;
        state_ ^= state_ >> 7;
        state_ ^= state_ << 17;
        return state_;
    }
    // Words that favour carries and borrows: all ones, zero, single bits or random.
    std::uint64_t NextWord()
    {
        switch (Next() % 8) {
        case 0: return ~std::uint64_t(0);
        case 1: return 0;
        case 2: return std::uint64_t(1) << (Next() % 64);
        default: return Next();
        }
    }
    int Between(int lo, int hi) { return lo + static_cast<int>(Next() % static_cast<std::uint64_t>(hi - lo + 1)); }

private:
    std::uint64_t state_;
};

// A normalised value with a random mantissa, the given sign and a binary exponent of
// its leading bit in [lo, hi].
template<class Big>
Big RandomNormal(Random & rng, int lo, int hi, bool negative = false)
{
    Big x;
    x.info = negative ? TTMATH_BIG_SIGN : 0;
    for (Word & w : x.mantissa.table)
        w = rng.NextWord();
    x.mantissa.table[x.mantissa.Size() - 1] |= TTMATH_UINT_HIGHEST_BIT;
    x.exponent = decltype(x.exponent)(static_cast<ttmath::sint>(rng.Between(lo, hi)) -
                                      static_cast<ttmath::sint>(Big::mantissa_bits) + 1);
    return x;
}

// Runs `check` once for every set of word kernels this processor can run: on x86-64
// with MULX/ADCX/ADOX where it has them, and with the base kernels.
template<class Check>
void ForEachKernelChoice(Check check)
{
#ifdef TTMATH_ASM_X86_64
    const bool detected = ttmath::x86_64_kernels::use_mulx_adx;
    for (bool use : {false, true}) {
        if (use && !ttmath::x86_64_kernels::detect_mulx_adx())
            continue;
        ttmath::x86_64_kernels::use_mulx_adx = use;
        SCOPED_TRACE(use ? "MULX/ADCX/ADOX kernels" : "base kernels");
        check();
    }
    ttmath::x86_64_kernels::use_mulx_adx = detected;
#else
    check();
#endif
}

class Mpz {
public:
    Mpz() { mpz_init(z); }
    ~Mpz() { mpz_clear(z); }
    Mpz(const Mpz &) = delete;
    Mpz & operator=(const Mpz &) = delete;
    mpz_t z;
};

inline void WordsToMpz(mpz_t z, const Word * words, std::size_t n)
{
    mpz_import(z, n, -1, sizeof(Word), 0, 0, words);
}

// The low n words of a non-negative z.
inline std::vector<Word> MpzToWords(const mpz_t z, std::size_t n)
{
    std::vector<Word> w(n + mpz_size(z) + 1, 0);
    std::size_t count = 0;
    mpz_export(w.data(), &count, -1, sizeof(Word), 0, 0, z);
    w.resize(n);
    return w;
}

} // namespace testing_support

#endif
