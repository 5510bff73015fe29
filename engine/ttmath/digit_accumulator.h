// Reading a run of digits into a number as value := value Mul base, value := value Add
// digit, digit after digit, each operation rounded as Mul and Add round. This is how the
// parser builds the integer part, the fraction digits and the decimal exponent, and the
// rounding of every step is part of the result.
//
// While the value stays below 2^N both operations are exact, so the digits are gathered
// a word at a time (as many digits as a power of the base that fits a word) into an
// integer. When a word of digits would take the integer to 2^N or more, that word is read
// again digit by digit: exactly up to the digit that crosses 2^N, then with the rounded
// operations (Mul by the base in its one-row form).
#ifndef TTMATH_DIGIT_ACCUMULATOR_H
#define TTMATH_DIGIT_ACCUMULATOR_H

#include "big.h"
#include "big_mul_one_word.h"
#include "integer_digits.h"
#include "text_chars.h"

namespace ttmath {
namespace text {

// The digits the parser reads as one run: digits of the base and, when `skip_on`, the
// separator character `skip`, which is passed over. The text ends at its NUL.
struct DigitRun {
    uint base;
    bool skip_on;
    char skip;

    bool Skipped(char c) const { return skip_on && c == skip && c != '\0'; }
    bool IsDigit(char c) const { return DigitValue(c) < base; }

    // The end of the run that starts at p.
    const char * End(const char * p) const
    {
        while (Skipped(*p) || IsDigit(*p))
            ++p;
        return p;
    }
};

struct Accumulated {
    const char * stop; // the first character not consumed
    uint digits;       // digits consumed
    uint carry;        // carries of the rounded operations
};

// How the run ends: every digit is read (a carry stops it at the failing digit), or, for
// the fraction, reading stops once the value has reached 2^N.
enum class RunKind { whole, until_full };

template<uint exp, uint man>
class DigitAccumulator {
public:
    typedef Big<exp, man> Value;

    // Reads the run [begin, end) into value, which starts at zero.
    static Accumulated Read(const DigitRun & run, const char * begin, const char * end, RunKind kind, Value & value)
    {
        const WordPower wp = LargestWordPower(run.base);
        UInt<man> exact;
        exact.SetZero();
        uint used = 0;
        Accumulated result = {end, 0, 0};
        const char * word_start = begin;
        uint word = 0;
        unsigned word_digits = 0;
        for (const char * p = begin; p < end; ++p) {
            if (run.Skipped(*p))
                continue;
            word = word * run.base + DigitValue(*p);
            if (++word_digits == wp.digits) {
                if (!Append(exact, used, wp.power, word))
                    return ReadEachDigit(run, word_start, end, kind, exact, used, result, value);
                result.digits += word_digits;
                word = 0;
                word_digits = 0;
                word_start = p + 1;
            }
        }
        if (word_digits) {
            uint power = 1;
            for (unsigned i = 0; i < word_digits; ++i)
                power *= run.base;
            if (!Append(exact, used, power, word))
                return ReadEachDigit(run, word_start, end, kind, exact, used, result, value);
            result.digits += word_digits;
        }
        ToValue(exact, value);
        return result;
    }

private:
    // exact := exact * factor + addend, when that stays below 2^N; otherwise false and
    // exact is unchanged. `used` counts the words up to the highest non-zero one.
    static bool Append(UInt<man> & exact, uint & used, uint factor, uint addend)
    {
        if (used < man) {
            // below 2^(64 used), so the result fits used + 1 words
            exact.table[used] = kernel::mul_1(exact.table, exact.table, used, factor);
            for (uint i = 0; addend; ++i) {
                exact.table[i] += addend;
                addend = exact.table[i] < addend ? 1 : 0;
            }
            if (exact.table[used])
                ++used;
            return true;
        }
        uint t[man];
        uint top = kernel::mul_1(t, exact.table, man, factor);
        for (uint i = 0; i < man && addend; ++i) {
            t[i] += addend;
            addend = t[i] < addend ? 1 : 0;
        }
        if (top || addend)
            return false;
        words::copy(exact.table, t, man);
        return true;
    }

    // The value of an exact integer below 2^N: normalised, or the zero form.
    static void ToValue(const UInt<man> & exact, Value & value)
    {
        if (exact.IsZero()) {
            value.SetZero();
            return;
        }
        const uint shift = words::leading_zeros(exact.table, man);
        value.info = 0;
        value.mantissa = exact;
        if (shift)
            words::shl(value.mantissa.table, man, shift);
        value.exponent = Int<exp>(-static_cast<sint>(shift));
    }

    // Digit by digit from p, exactly while the value stays below 2^N, then rounded.
    static Accumulated ReadEachDigit(const DigitRun & run, const char * p, const char * end, RunKind kind,
                                     UInt<man> & exact, uint & used, Accumulated & result, Value & value)
    {
        for (; p < end; ++p) {
            if (run.Skipped(*p))
                continue;
            if (!Append(exact, used, run.base, DigitValue(*p)))
                break;
            ++result.digits;
        }
        ToValue(exact, value);

        Value base;
        base.FromUInt(run.base);
        for (; p < end; ++p) {
            if (kind == RunKind::until_full && value.exponent > Int<exp>(0))
                break;
            if (run.Skipped(*p))
                continue;
            Value digit;
            digit.FromUInt(DigitValue(*p));
            uint c = value.MulOneWord(base);
            c += value.Add(digit);
            if (c && kind == RunKind::whole) {
                result.carry += c;
                break;
            }
            result.carry += c;
            ++result.digits;
        }
        result.stop = p;
        return result;
    }
};

} // namespace text
} // namespace ttmath

#endif
