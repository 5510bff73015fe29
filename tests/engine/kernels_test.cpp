// The word kernels of the back end in use, checked against 128-bit arithmetic, on
// random words and on the patterns that stress carries: every word all ones, zero,
// single bits. Lengths cover the unrolled four-word kernels and the loops.
#include <gtest/gtest.h>

#include <ttmath/ttmath.h>

#include "test_support.h"

namespace {

using testing_support::Random;
typedef ttmath::uint Word;
typedef unsigned __int128 u128;

// every remainder of the four-word groups of the multiply-accumulate loops
const std::size_t lengths[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 30, 31, 32, 33};
const int rounds = 300;

std::vector<Word> Words(Random & rng, std::size_t n)
{
    std::vector<Word> w(n);
    for (Word & x : w)
        x = rng.NextWord();
    return w;
}

TEST(Kernels, WordProductAndQuotient)
{
    Random rng;
    const Word max = ~Word(0);
    const Word pairs[][2] = {{max, max}, {max, 1}, {0, max}, {Word(1) << 63, 2}, {3, Word(1) << 63}};
    for (auto & p : pairs) {
        Word hi, lo;
        ttmath::kernel::mul_ww(p[0], p[1], hi, lo);
        u128 expect = static_cast<u128>(p[0]) * p[1];
        EXPECT_EQ(hi, static_cast<Word>(expect >> 64));
        EXPECT_EQ(lo, static_cast<Word>(expect));
    }
    for (int i = 0; i < 10000; ++i) {
        Word a = rng.NextWord(), b = rng.NextWord(), hi, lo;
        ttmath::kernel::mul_ww(a, b, hi, lo);
        u128 p = static_cast<u128>(a) * b;
        ASSERT_EQ(hi, static_cast<Word>(p >> 64));
        ASSERT_EQ(lo, static_cast<Word>(p));

        Word d = rng.NextWord();
        if (d == 0)
            d = 1;
        Word nh = rng.Next() % d; // the quotient must fit a word
        Word nl = rng.NextWord();
        if (i % 3 == 0)
            nh = d - 1; // the largest dividend for d
        Word rem;
        Word q = ttmath::kernel::div_ww(nh, nl, d, rem);
        u128 n = (static_cast<u128>(nh) << 64) | nl;
        ASSERT_EQ(q, static_cast<Word>(n / d)) << nh << ":" << nl << " / " << d;
        ASSERT_EQ(rem, static_cast<Word>(n % d));
    }
}

TEST(Kernels, CarryChains)
{
    Random rng;
    for (std::size_t n : lengths) {
        for (int round = 0; round < rounds; ++round) {
            std::vector<Word> a = Words(rng, n), b = Words(rng, n), r(n);
            Word c = rng.Next() & 1;
            if (round == 0) { // a carry running through every word
                a.assign(n, ~Word(0));
                b.assign(n, 0);
                c = 1;
            }
            Word carry = ttmath::kernel::add_n(r.data(), a.data(), b.data(), n, c);
            Word borrow_expect = c, carry_expect = c;
            for (std::size_t i = 0; i < n; ++i) {
                u128 s = static_cast<u128>(a[i]) + b[i] + carry_expect;
                ASSERT_EQ(r[i], static_cast<Word>(s)) << "add, n=" << n << " word " << i;
                carry_expect = static_cast<Word>(s >> 64);
            }
            EXPECT_EQ(carry, carry_expect);

            Word borrow = ttmath::kernel::sub_n(r.data(), a.data(), b.data(), n, c);
            for (std::size_t i = 0; i < n; ++i) {
                u128 d = static_cast<u128>(a[i]) - b[i] - borrow_expect;
                ASSERT_EQ(r[i], static_cast<Word>(d)) << "sub, n=" << n << " word " << i;
                borrow_expect = (d >> 64) ? 1 : 0;
            }
            EXPECT_EQ(borrow, borrow_expect);

            // in place: r aliases a
            std::vector<Word> in_place = a;
            ttmath::kernel::add_n(in_place.data(), in_place.data(), b.data(), n, c);
            std::vector<Word> separate(n);
            ttmath::kernel::add_n(separate.data(), a.data(), b.data(), n, c);
            EXPECT_EQ(in_place, separate);
        }
    }
}

void CheckMultiplyAccumulate()
{
    Random rng;
    for (std::size_t n : lengths) {
        for (int round = 0; round < rounds; ++round) {
            std::vector<Word> a = Words(rng, n), r = Words(rng, n);
            Word m = rng.NextWord();
            if (round == 0) {
                a.assign(n, ~Word(0));
                r.assign(n, ~Word(0));
                m = ~Word(0);
            }
            std::vector<Word> prod(n), acc = r, dec = r;
            Word top = ttmath::kernel::mul_1(prod.data(), a.data(), n, m);
            Word acc_top = ttmath::kernel::addmul_1(acc.data(), a.data(), n, m);
            Word dec_top = ttmath::kernel::submul_1(dec.data(), a.data(), n, m);

            Word pc = 0, ac = 0, dc = 0;
            for (std::size_t i = 0; i < n; ++i) {
                u128 p = static_cast<u128>(a[i]) * m + pc;
                ASSERT_EQ(prod[i], static_cast<Word>(p));
                pc = static_cast<Word>(p >> 64);
                u128 s = static_cast<u128>(a[i]) * m + r[i] + ac;
                ASSERT_EQ(acc[i], static_cast<Word>(s));
                ac = static_cast<Word>(s >> 64);
                u128 t = static_cast<u128>(a[i]) * m + dc; // subtrahend word plus borrow
                Word low = static_cast<Word>(t);
                ASSERT_EQ(dec[i], r[i] - low);
                dc = static_cast<Word>(t >> 64) + (r[i] < low ? 1 : 0);
            }
            ASSERT_EQ(top, pc) << "n=" << n;
            ASSERT_EQ(acc_top, ac) << "n=" << n;
            ASSERT_EQ(dec_top, dc) << "n=" << n;

            std::vector<Word> in_place = a; // mul_1 may work in place
            ttmath::kernel::mul_1(in_place.data(), in_place.data(), n, m);
            ASSERT_EQ(in_place, prod);
        }
    }
}

TEST(Kernels, MultiplyAccumulate)
{
    testing_support::ForEachKernelChoice(CheckMultiplyAccumulate);
}

#ifdef TTMATH_ASM_X86_64
// The unrolled four-word kernels of the assembly back end against the portable loops.
TEST(Kernels, FourWordKernelsMatchPortable)
{
    Random rng;
    for (int round = 0; round < 2000; ++round) {
        std::vector<Word> a = Words(rng, 4), b = Words(rng, 4);
        Word c = rng.Next() & 1;
        Word r1[4], r2[4];
        EXPECT_EQ(ttmath::x86_64_kernels::add_4(r1, a.data(), b.data(), c),
                  ttmath::portable_kernels::add_n(r2, a.data(), b.data(), 4, c));
        EXPECT_TRUE(std::equal(r1, r1 + 4, r2));
        EXPECT_EQ(ttmath::x86_64_kernels::sub_4(r1, a.data(), b.data(), c),
                  ttmath::portable_kernels::sub_n(r2, a.data(), b.data(), 4, c));
        EXPECT_TRUE(std::equal(r1, r1 + 4, r2));
        Word p1[8], p2[8];
        ttmath::x86_64_kernels::mul_4x4(p1, a.data(), b.data());
        ttmath::product::columns<4>(p2, a.data(), b.data());
        EXPECT_TRUE(std::equal(p1, p1 + 8, p2));
        if (ttmath::x86_64_kernels::detect_mulx_adx()) {
            ttmath::x86_64_kernels::mul_4x4_adx(p1, a.data(), b.data());
            EXPECT_TRUE(std::equal(p1, p1 + 8, p2));
        }
        // a carry or borrow of one, through words that are often all ones or zero
        const Word zeros[4] = {};
        Word x1[4], x2[4];
        std::copy(a.begin(), a.end(), x1);
        std::copy(a.begin(), a.end(), x2);
        EXPECT_EQ(ttmath::x86_64_kernels::add_carry_4(x1, c), ttmath::portable_kernels::add_n(x2, x2, zeros, 4, c));
        EXPECT_TRUE(std::equal(x1, x1 + 4, x2));
        EXPECT_EQ(ttmath::x86_64_kernels::sub_carry_4(x1, c), ttmath::portable_kernels::sub_n(x2, x2, zeros, 4, c));
        EXPECT_TRUE(std::equal(x1, x1 + 4, x2));
    }
}
#endif

} // namespace
