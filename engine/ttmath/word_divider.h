// Division of word arrays by one word that stays the same over many divisions. A
// reciprocal of the divisor, computed once, turns each two-word-by-one-word step into
// two word products and a few corrections (Moller and Granlund, "Improved division by
// invariant integers"), much cheaper than a hardware or software division. The quotients
// and remainders are the exact floor ones, whatever the back end.
#ifndef TTMATH_WORD_DIVIDER_H
#define TTMATH_WORD_DIVIDER_H

#include <cstddef>

#include "kernels.h"
#include "words.h"

namespace ttmath {

class WordDivider {
public:
    // divisor != 0
    explicit WordDivider(uint divisor)
        : shift_(words::clz(divisor)), normalized_(divisor << shift_)
    {
        // floor((2^128 - 1) / d) - 2^64 for the normalised d
        uint unused;
        reciprocal_ = kernel::div_ww(~normalized_, TTMATH_UINT_MAX_VALUE, normalized_, unused);
    }

    // q[0 .. n) = floor(u / divisor); returns the remainder. q may equal u.
    uint Divide(uint * q, const uint * u, std::size_t n) const
    {
        if (n == 0)
            return 0;
        const unsigned s = shift_;
        uint r = s ? u[n - 1] >> (words::bits_per_word - s) : 0;
        for (std::size_t i = n; i-- > 0;) {
            uint low = u[i] << s;
            if (s && i > 0)
                low |= u[i - 1] >> (words::bits_per_word - s);
            q[i] = Step(r, low, r);
        }
        return r >> s;
    }

private:
    // floor((hi * 2^64 + lo) / d) for the normalised d and hi < d; rem gets the remainder.
    uint Step(uint hi, uint lo, uint & rem) const
    {
        uint q1, q0;
        kernel::mul_ww(reciprocal_, hi, q1, q0);
        q0 += lo;
        q1 += hi + 1 + (q0 < lo ? 1 : 0);
        uint r = lo - q1 * normalized_;
        // q1 is one too large about half the time: corrected without a branch
        const uint too_large = uint(0) - (r > q0 ? 1 : 0);
        q1 += too_large;
        r += too_large & normalized_;
        if (r >= normalized_) {
            ++q1;
            r -= normalized_;
        }
        rem = r;
        return q1;
    }

    unsigned shift_;
    uint normalized_;
    uint reciprocal_;
};

} // namespace ttmath

#endif
