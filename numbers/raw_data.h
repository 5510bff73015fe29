// The value's storage as the library keeps it: DataExponent and DataMantissa as memory
// blocks of its words (least significant first, in the machine's byte order) and
// DataFlags as its flag byte. What is written is taken as it is, so a value can be
// saved and restored bit for bit.
#pragma once

#include <cstring>

#include "plugin/debug_log.h"
#include "plugin/exceptions.h"
#include "plugin/memory_blocks.h"

namespace zqt {

inline const char * const kNotInitializedMessage = "Not initialized";
inline const char * const kNilBlockMessage = "MemoryBlock is nil";
inline const char * const kBlockSizeParameter = "MemoryBlock.Size";
// Both block setters name this method when a block has the wrong size.
inline const char * const kBlockSizeMethod = "DataMantissa";
inline const RBInteger kFlagByteMask = 0xFF;

// Reports a number object without a value; true when there is one.
bool HasValueOrReport(const void * ref);

// Copies a block of exactly `size` bytes over `words`; reports a nil block or one of
// another size and leaves the words alone.
void CopyWordsFromBlock(REALobject block, void * words, size_t size);

template <class N>
struct RawData {
    using Value = typename N::Value;

    static REALobject GetDataMantissa(REALobject me, RBInteger)
    {
        Value * v = N::Ref(me);
        if (!HasValueOrReport(v))
            return nullptr;
        return REALBuildMemoryblock(v->mantissa.table, sizeof v->mantissa.table);
    }
    static REALobject GetDataExponent(REALobject me, RBInteger)
    {
        Value * v = N::Ref(me);
        if (!HasValueOrReport(v))
            return nullptr;
        return REALBuildMemoryblock(v->exponent.table, sizeof v->exponent.table);
    }
    static RBInteger GetDataFlags(REALobject me, RBInteger)
    {
        Value * v = N::Ref(me);
        if (!HasValueOrReport(v))
            return 0;
        return v->info;
    }

    // The sign, NaN and zero flags stay as they were, even where they no longer agree
    // with the new words.
    static void SetDataMantissa(REALobject me, RBInteger, REALobject block)
    {
        Value * v = N::Ref(me);
        if (HasValueOrReport(v))
            CopyWordsFromBlock(block, v->mantissa.table, sizeof v->mantissa.table);
    }
    static void SetDataExponent(REALobject me, RBInteger, REALobject block)
    {
        Value * v = N::Ref(me);
        if (HasValueOrReport(v))
            CopyWordsFromBlock(block, v->exponent.table, sizeof v->exponent.table);
    }
    // Only the low 8 bits are kept.
    static void SetDataFlags(REALobject me, RBInteger, RBInteger flags)
    {
        Value * v = N::Ref(me);
        if (HasValueOrReport(v))
            v->info = static_cast<unsigned char>(flags & kFlagByteMask);
    }
};

} // namespace zqt
