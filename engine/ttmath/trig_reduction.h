// Argument reduction of sin, cos, tan and cot: |x| = k pi/2 + r with |r| <= pi/4 and
// the quadrant k mod 4, exact for every argument below 2^trig_reduction_limit_bits in
// magnitude (beyond, the functions fail with err_overflow).
//
// x = M 2^X with an integer mantissa M. x 2/pi modulo 4 only needs the bits of 2/pi
// whose products with M do not vanish modulo 4 and reach below the precision wanted:
// a window of about P + F bits of 2/pi that starts near bit X, read from a table (the
// short one for moderate arguments, the long one beyond). The fraction's leading zeros
// tell how close x lies to a multiple of pi/2; when they eat into the precision the
// window is widened, so r keeps its relative accuracy however close x comes.
#ifndef TTMATH_TRIG_REDUCTION_H
#define TTMATH_TRIG_REDUCTION_H

#include "function_arguments.h"
#include "series_constants.h"

namespace ttmath {
namespace wide {

const uint trig_reduction_limit_bits = 65536;

// Arguments whose leading bit lies at most this high use the short table.
const sint short_reduction_bits = 4096;

// Guard bits of the fraction beyond the precision it must have.
const sint reduction_guard_bits = 64;

template<uint exp, uint man>
struct Reduction {
    static constexpr std::size_t capacity = Work<exp, man>::capacity;
    // the widest window of 2/pi, in words: the mantissa, twice the working capacity
    // for the fraction, and the guard
    static constexpr std::size_t window_words = man + 2 * capacity + 4;
};

// Bits [lo_bit, lo_bit + count) of the integer in table t (count <= 64 words), into dst.
inline void ExtractBits(uint * dst, std::size_t dst_words, const std::vector<uint> & t, std::size_t lo_bit, std::size_t count)
{
    words::fill(dst, dst_words, 0);
    const std::size_t first = lo_bit / word_bits;
    const unsigned shift = static_cast<unsigned>(lo_bit % word_bits);
    for (std::size_t i = 0; i < dst_words; ++i) {
        std::size_t j = first + i;
        uint lo = j < t.size() ? t[j] : 0;
        uint hi = j + 1 < t.size() ? t[j + 1] : 0;
        dst[i] = shift ? (lo >> shift) | (hi << (word_bits - shift)) : lo;
    }
    // clear the bits at and above `count`
    const std::size_t full = count / word_bits;
    if (full < dst_words) {
        if (count % word_bits)
            dst[full] &= (uint(1) << (count % word_bits)) - 1;
        else
            dst[full] = 0;
        for (std::size_t i = full + 1; i < dst_words; ++i)
            dst[i] = 0;
    }
}

// |x| = quadrant pi/2 + r (quadrant taken mod 4, r in [-pi/4, pi/4]) for a moderate
// argument below the limit, r at n words with an error of at most 4 ulps. Returns
// false when the window would need more of 2/pi than the tables hold.
template<uint exp, uint man>
bool ReduceQuarterTurns(typename Work<exp, man>::Float & r, unsigned & quadrant, const Argument<exp, man> & a,
                        sint lead, std::size_t n)
{
    typedef typename Work<exp, man>::Float Float;
    typedef Reduction<exp, man> Red;
    const sint bits_p = static_cast<sint>(man * word_bits);
    const sint x_low = lead - bits_p; // x = M 2^x_low
    const ConstantTable & table = lead <= short_reduction_bits ? Short().two_over_pi : LongTwoOverPi();
    const sint table_bits = static_cast<sint>(table.w.size() * word_bits);
    // bit i of 2/pi has weight 2^-i; terms with i <= x_low - 2 are multiples of 4
    const sint i_lo = x_low - 1 > 1 ? x_low - 1 : 1;
    sint fraction_bits = static_cast<sint>(n * word_bits) + reduction_guard_bits;
    for (;;) {
        const sint i_hi = bits_p + x_low + fraction_bits + reduction_guard_bits;
        if (i_hi > table_bits)
            return false;
        const sint count = i_hi - i_lo + 1;
        const std::size_t cw = static_cast<std::size_t>(count + static_cast<sint>(word_bits) - 1) / word_bits;
        if (cw + 1 > Red::window_words)
            return false;
        Meter().Reduction(cw);
        uint c[Red::window_words], y[Red::window_words + man + 1];
        ExtractBits(c, cw, table.w, static_cast<std::size_t>(table_bits - i_hi), static_cast<std::size_t>(count));
        // y = M c: the binary point lies f = i_hi - x_low bits above y's bottom
        const std::size_t yw = cw + man;
        y[cw] = kernel::mul_1(y, c, cw, a.m[0]);
        for (std::size_t j = 1; j < man; ++j)
            y[cw + j] = kernel::addmul_1(y + j, c, cw, a.m[j]);
        const std::size_t f = static_cast<std::size_t>(i_hi - x_low);
        // the two bits above the point, and the fraction below it
        uint q = 0;
        for (unsigned b = 0; b < 2; ++b) {
            std::size_t pos = f + b;
            if (pos / word_bits < yw)
                q |= ((y[pos / word_bits] >> (pos % word_bits)) & 1) << b;
        }
        const std::size_t fw = (f + word_bits - 1) / word_bits;
        words::fill(y + fw, yw > fw ? yw - fw : 0, 0);
        if (f % word_bits)
            y[fw - 1] &= (uint(1) << (f % word_bits)) - 1;
        // fraction >= 1/2: take fraction - 1 and the next quadrant
        const bool upper = (y[(f - 1) / word_bits] >> ((f - 1) % word_bits)) & 1;
        bool negative = false;
        if (upper) {
            // 1 - fraction over fw words (the bits above f are zero)
            for (std::size_t i = 0; i < fw; ++i)
                y[i] = ~y[i];
            if (f % word_bits)
                y[fw - 1] &= (uint(1) << (f % word_bits)) - 1;
            for (std::size_t i = 0; i < fw; ++i)
                if (++y[i] != 0)
                    break;
            negative = true;
            q = (q + 1) & 3;
        }
        const std::size_t used = words::used_words(y, fw);
        const sint zeros = static_cast<sint>(f) - (used ? static_cast<sint>(used * word_bits - words::clz(y[used - 1])) : 0);
        // relative accuracy: the fraction needs n words plus a byte below its leading bit
        if (used && zeros + static_cast<sint>(n * word_bits) + 8 <= fraction_bits + reduction_guard_bits) {
            Float fr, half_pi;
            fr.SetWords(y, fw, -static_cast<sint>(f), n + 1);
            fr.neg = negative;
            LoadConstant(half_pi, Short().pi, n + 1);
            half_pi.Shift(-1);
            Mul(r, fr, half_pi, n);
            quadrant = static_cast<unsigned>(q);
            return true;
        }
        fraction_bits = used ? zeros + static_cast<sint>(n * word_bits) + 16 : 2 * fraction_bits;
    }
}

} // namespace wide
} // namespace ttmath

#endif
