// Integer powers of a small base, kept for reuse: base^u and 1 / base^u as Pow(UInt)
// and Pow(Int) compute them, bit for bit, for one-word magnitudes u.
//
// Pow multiplies the running square s_i = base^(2^i) into the result for every set bit
// of u, from the lowest up, and squares s_i for the next bit. The squares depend only on
// the base, so they are computed once per thread and kept; a result is formed from them
// with the same rounded products in the same order, and the last few results are kept as
// well (text conversion asks for the same powers again and again). A power that fails
// is recomputed by Pow itself, so even its left-over words are Pow's.
#ifndef TTMATH_POWER_CACHE_H
#define TTMATH_POWER_CACHE_H

#include <vector>

#include "text_chars.h"

namespace ttmath {
namespace text {

template<class Big>
class PowerCache {
public:
    // result = base^magnitude (with reciprocal: 1 Div base^magnitude) for a base of
    // 2..16; returns the carry Pow would return.
    static uint Power(uint base, uint magnitude, bool reciprocal, Big & result)
    {
        Memo & memo = Slot(base, magnitude, reciprocal);
        if (memo.valid && memo.base == base && memo.magnitude == magnitude && memo.reciprocal == reciprocal) {
            result = memo.value;
            return 0;
        }
        if (Compute(base, magnitude, reciprocal, result) != 0)
            return Recompute(base, magnitude, reciprocal, result);
        memo.valid = true;
        memo.base = base;
        memo.magnitude = magnitude;
        memo.reciprocal = reciprocal;
        memo.value = result;
        return 0;
    }

private:
    struct Memo {
        bool valid = false;
        bool reciprocal = false;
        uint base = 0;
        uint magnitude = 0;
        Big value;
    };

    struct Squares {
        std::vector<Big> values; // values[i] = base^(2^i), while no squaring carried
        bool failed = false;     // the square after the last one carried
    };

    static constexpr uint memo_slots = 64;
    // 2^64 divided by the golden ratio: multiplying by it spreads neighbouring
    // magnitudes over the high bits, which pick the slot.
    static constexpr uint slot_hash_factor = 0x9e3779b97f4a7c15ull;
    static constexpr unsigned slot_hash_shift = 32;

    static Memo & Slot(uint base, uint magnitude, bool reciprocal)
    {
        static thread_local Memo memo[memo_slots];
        const uint key = (magnitude * (max_base + 1) + base) * 2 + (reciprocal ? 1 : 0);
        return memo[((key * slot_hash_factor) >> slot_hash_shift) % memo_slots];
    }

    // s_i, or null when forming it carries.
    static const Big * Square(uint base, uint i)
    {
        static thread_local Squares squares[max_base + 1];
        Squares & s = squares[base];
        if (s.values.empty()) {
            Big b;
            b.FromUInt(base);
            s.values.push_back(b);
        }
        while (s.values.size() <= i) {
            if (s.failed)
                return nullptr;
            Big next(s.values.back());
            if (next.Mul(s.values.back()) != 0) {
                s.failed = true;
                return nullptr;
            }
            s.values.push_back(next);
        }
        return &s.values[i];
    }

    // Pow's sequence from the kept squares; returns non-zero on any carry (the result is
    // then not Pow's).
    static uint Compute(uint base, uint magnitude, bool reciprocal, Big & result)
    {
        Big power;
        power.SetOne();
        for (uint i = 0; i < words::bits_per_word && (magnitude >> i) != 0; ++i) {
            if ((magnitude >> i) & 1) {
                const Big * s = Square(base, i);
                if (!s || power.Mul(*s) != 0)
                    return 1;
            }
        }
        if (!reciprocal) {
            result = power;
            return 0;
        }
        result.SetOne();
        return result.Div(power);
    }

    static uint Recompute(uint base, uint magnitude, bool reciprocal, Big & result)
    {
        result.FromUInt(base);
        if (!reciprocal)
            return result.Pow(UInt<1>(magnitude));
        Big power(result);
        uint c = power.Pow(UInt<1>(magnitude));
        result.SetOne();
        c += result.Div(power);
        return result.CheckCarry(c);
    }
};

} // namespace text
} // namespace ttmath

#endif
