#include "plugin/memory_blocks.h"

#include <cstdio>
#include <cstring>
#include <exception>

#include "plugin/debug_log.h"
#include "plugin/exceptions.h"
#include "plugin/host_strings.h"

namespace zqt {

namespace {

const char * const kMemoryBlockClass = "MemoryBlock";
const char * const kMemoryBlockConstructor = "Constructor(bytes as Integer)";

const char * const kBuildFailedLog = "Got C++ exception in REALBuildMemoryblock: ";
const char * const kBuildFailedFormat = "Failed to allocate a memoryblock with %lld bytes in size.";
// Room for the fixed words and the number of the message.
const size_t kBuildFailedMessageSize = 100;
const char * const kNoDataLog = "data is NULL, so size fixed to zero.";
// Room for the text of a native exception thrown while a block is made.
const size_t kFailureTextSize = 256;

struct BuildWork {
    MemoryBlockRequest request;
    bool ran = false;
    bool threw = false;
    char failure[kFailureTextSize] = {};
};

// Runs under the host's exception handler; nothing may leave it.
void RunBuildWork(void * userData)
{
    auto & work = *static_cast<BuildWork *>(userData);
    work.ran = true;
    try {
        REALNewMemoryBlockWork(work.request);
    } catch (const std::exception & e) {
        work.threw = true;
        std::snprintf(work.failure, sizeof work.failure, "%s", e.what());
    } catch (...) {
        work.threw = true;
    }
}

void LogHostException(REALobject exception)
{
    REALstring raw = nullptr;
    REALGetPropValueString(exception, kMessageProperty, &raw);
    OwnedString message(raw);
    rbText text(message.get());
    LogMessageX("%s%s %s", kLogPrefix, kBuildFailedLog, text.GetUTF8());
}

} // namespace

RBInteger REALNewMemoryBlockWork(MemoryBlockRequest & request)
{
    OwnedObject block(REALnewInstance(kMemoryBlockClass));
    if (!block)
        return 0;
    static bool constructorSought = false;
    static void * constructor = nullptr;
    if (!constructorSought) {
        constructor = REALLoadObjectMethod(block.get(), kMemoryBlockConstructor);
        constructorSought = true;
    }
    if (!constructor)
        return 0;
    reinterpret_cast<MemoryBlockConstructorProc>(constructor)(block.get(), request.wanted);
    RBInteger size = REALMemoryBlockGetSize(block.get());
    if (size < request.wanted)
        return 0;
    request.block = block.release();
    return size;
}

REALobject REALBuildMemoryblock(const void * bytes, RBInteger count)
{
    BuildWork work;
    work.request.wanted = count;
    OwnedObject hostException(REALCallFunctionWithExceptionHandler(&RunBuildWork, &work));
    if (!work.ran)
        RunBuildWork(&work); // a host without the handler service
    OwnedObject block(work.request.block);
    if (hostException || work.threw || !block) {
        if (DebuggingEnabled && hostException)
            LogHostException(hostException.get());
        else if (DebuggingEnabled && work.threw)
            LogMessageX("%s%s %s", kLogPrefix, kBuildFailedLog, work.failure);
        char message[kBuildFailedMessageSize];
        std::snprintf(message, sizeof message, kBuildFailedFormat, static_cast<long long>(count));
        RaiseException(kOutOfMemoryExceptionClass, message);
        return nullptr;
    }
    void * target = REALMemoryBlockGetPtr(block.get());
    if (target && bytes && count > 0)
        std::memcpy(target, bytes, static_cast<size_t>(count));
    return block.release();
}

rbData::rbData(REALobject block) : block_(nullptr), bytes_(nullptr), size_(0)
{
    if (!block)
        return;
    REALLockObject(block);
    block_.reset(block);
    RBInteger size = REALMemoryBlockGetSize(block);
    size_ = size > 0 ? static_cast<size_t>(size) : 0;
    bytes_ = static_cast<unsigned char *>(REALMemoryBlockGetPtr(block));
    if (!bytes_ && size_ > 0) {
        size_ = 0;
        if (DebuggingEnabled)
            LogMessageX("%s%s", kLogPrefix, kNoDataLog);
    }
}

} // namespace zqt
