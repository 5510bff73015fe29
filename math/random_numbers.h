// Rand: a positive number whose every mantissa and exponent byte is the low byte of one
// draw of the C library's generator: first the mantissa's bytes, then the exponent's,
// each from the least significant byte of the least significant word up. It is not
// normalised, so the top mantissa bit may be clear, and its exponent spans the whole
// range: the magnitude may lie far below or far above one. For one seed the result is
// fixed.
#pragma once

#include <cstdlib>

#include "plugin/debug_log.h"
#include "plugin/handler_guard.h"

namespace zqt {

inline const char * const kMantissaLengthLog = "mantissaLength";
inline const char * const kExponentLengthLog = "exponentLength";

// Each word of `words` made of `count` generator draws' low bytes, least significant first.
template <class Word, size_t count>
void FillWithDrawnBytes(Word (&words)[count])
{
    const unsigned kBitsPerByte = 8;
    const unsigned kByteMask = 0xFF;
    for (Word & word : words) {
        word = 0;
        for (unsigned byte = 0; byte < sizeof word; ++byte)
            word |= static_cast<Word>(static_cast<unsigned>(std::rand()) & kByteMask) << (byte * kBitsPerByte);
    }
}

template <class N>
struct RandomNumbers {
    using Value = typename N::Value;

    static REALobject GetRand()
    {
        Trace("GetRand");
        return Guarded([] {
            Value value;
            value.SetOne(); // positive, neither zero nor NaN
            LogSize(kMantissaLengthLog, sizeof value.mantissa.table);
            FillWithDrawnBytes(value.mantissa.table);
            LogSize(kExponentLengthLog, sizeof value.exponent.table);
            FillWithDrawnBytes(value.exponent.table);
            return N::NewBigNumberZQT(value);
        });
    }

private:
    static void LogSize(const char * what, size_t bytes)
    {
        if (DebuggingEnabled)
            LogMessageX("%s%s %lu", kLogPrefix, what, static_cast<unsigned long>(bytes));
    }
};

} // namespace zqt
