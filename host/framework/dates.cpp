// Date (seconds since 1904 in TotalSeconds) and DateTime (SecondsFrom1970): just
// enough of both for a variant to hold one and for a plugin to read its seconds.
#include <cstddef>

#include "host/framework/framework.h"
#include "host/runtime/registration.h"
#include "sdk/flags.h"

namespace hostsim {

namespace {

struct SecondsData {
    double seconds;
};

void ConstructDateTime(REALobject self, double seconds)
{
    Runtime & rt = *Runtime::Current();
    static_cast<SecondsData *>(Runtime::ClassData(self, rt.Framework("DateTime")))->seconds = seconds;
}

REALproperty gDateProperties[] = {
    {nullptr, "TotalSeconds", "Double", REALTargetAll, REALstandardGetter, REALstandardSetter,
     offsetof(SecondsData, seconds), nullptr, 0, nullptr, 0, nullptr},
};

REALproperty gDateTimeProperties[] = {
    {nullptr, "SecondsFrom1970", "Double", REALTargetAll, REALstandardGetter, nullptr,
     offsetof(SecondsData, seconds), nullptr, 0, nullptr, 0, nullptr},
};

REALmethodDefinition gDateTimeMethods[] = {
    {reinterpret_cast<REALproc>(&ConstructDateTime), nullptr, "Constructor(secondsFrom1970 As Double)",
     REALTargetAll, 0, nullptr},
};

REALclassDefinition gDate = [] {
    REALclassDefinition d{};
    d.version = kControlVersionNewest;
    d.name = "Date";
    d.dataSize = sizeof(SecondsData);
    d.properties = gDateProperties;
    d.propertyCount = 1;
    d.mFlags = REALTargetAll;
    return d;
}();

REALclassDefinition gDateTime = [] {
    REALclassDefinition d{};
    d.version = kControlVersionNewest;
    d.name = "DateTime";
    d.dataSize = sizeof(SecondsData);
    d.properties = gDateTimeProperties;
    d.propertyCount = 1;
    d.methods = gDateTimeMethods;
    d.methodCount = 1;
    d.mFlags = REALTargetAll;
    return d;
}();

} // namespace

void RegisterDateClasses(Runtime & rt)
{
    RegisterClass(rt, &gDate, kFrameworkOrigin);
    RegisterClass(rt, &gDateTime, kFrameworkOrigin);
}

} // namespace hostsim
