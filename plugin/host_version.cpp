#include "plugin/host_version.h"

namespace zqt {

namespace {

struct VersionStep {
    double fromHost;
    uint32_t controlVersion;
};

// Newest first; hosts older than every row get kOldestControlVersion.
const VersionStep kControlVersionSteps[] = {
    {2013.04, 13},
    {2013.03, 12},
    {2013.0, 11},
    {2012.0, 10},
};
const uint32_t kOldestControlVersion = 9;

} // namespace

uint32_t ControlVersionFor(double hostVersion)
{
    for (const VersionStep & step : kControlVersionSteps)
        if (hostVersion >= step.fromHost)
            return step.controlVersion;
    return kOldestControlVersion;
}

} // namespace zqt
