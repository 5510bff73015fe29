#include "math/random_seed.h"

#include <cstdint>
#include <cstdlib>
#include <ctime>

#if defined(_WIN32)
#include <process.h>
#else
#include <unistd.h>
#endif

#include "plugin/host_services.h"

namespace zqt {

namespace {

// Spreads the seeds of applications started within the same second.
const int64_t kProcessIdWeight = 17;

// Seconds since 1970 plus 17 times the process id, cut to 32 bits.
uint32_t RandomSeed(int64_t secondsSince1970, int64_t processId)
{
    return static_cast<uint32_t>(static_cast<uint64_t>(secondsSince1970) +
                                 static_cast<uint64_t>(kProcessIdWeight) * static_cast<uint64_t>(processId));
}

int64_t ProcessId()
{
#if defined(_WIN32)
    return _getpid();
#else
    return getpid();
#endif
}

} // namespace

void SeedRandomInRuntime()
{
    if (!REALinRuntime())
        return;
    std::srand(RandomSeed(static_cast<int64_t>(std::time(nullptr)), ProcessId()));
}

} // namespace zqt
