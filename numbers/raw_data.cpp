#include "numbers/raw_data.h"

namespace zqt {

namespace {

const char * const kNilReferenceSubject = "me->ref";
const char * const kNilBlockSubject = "mem";
const char * const kIsNil = "is nil";

} // namespace

bool HasValueOrReport(const void * ref)
{
    if (ref)
        return true;
    if (DebuggingEnabled)
        LogMessageX("%s%s %s", kLogPrefix, kNilReferenceSubject, kIsNil);
    RaiseException(kNilObjectExceptionClass, kNotInitializedMessage);
    return false;
}

void CopyWordsFromBlock(REALobject block, void * words, size_t size)
{
    if (!block) {
        if (DebuggingEnabled)
            LogMessageX("%s%s %s", kLogPrefix, kNilBlockSubject, kIsNil);
        RaiseException(kNilObjectExceptionClass, kNilBlockMessage);
        return;
    }
    rbData data(block);
    if (data.size() != size) {
        auto required = static_cast<int64_t>(size);
        RaiseOutOfBoundsException(static_cast<int64_t>(data.size()), required, required + 1, kBlockSizeParameter,
                                  kBlockSizeMethod);
        return;
    }
    std::memcpy(words, data.bytes(), size);
}

} // namespace zqt
