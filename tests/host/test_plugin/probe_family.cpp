// ProbeChild (a plugin class with a plugin superclass) and ProbeError (a subclass of
// the host's RuntimeException).
#include <cstddef>

#include "host_calls.h"
#include "probe.h"
#include "sdk/flags.h"

namespace {

ProbeChildData & ChildDataOf(REALobject child)
{
    return *reinterpret_cast<ProbeChildData *>(reinterpret_cast<char *>(child) + gProbeChildClass.forSystemUse);
}

// Runs after Probe's initializer, so the parent's data is ready.
void InitializeChild(REALobject self)
{
    ChildDataOf(self).sawParentInitialized = DataOf(self).initialized;
    ChildDataOf(self).depth = 1;
}

REALstring KindInteger(REALobject, RBInteger)
{
    return NewString("Child Integer");
}

REALmethodDefinition gChildMethods[] = {
    {reinterpret_cast<REALproc>(&KindInteger), nullptr, "Kind(v As Integer) As String", REALTargetAll, 0, nullptr},
};

REALproperty gChildProperties[] = {
    {nullptr, "Depth", "Integer", REALTargetAll, REALstandardGetter, REALstandardSetter,
     offsetof(ProbeChildData, depth), nullptr, 0, nullptr, 0, nullptr},
    {nullptr, "SawParentInitialized", "Integer", REALTargetAll, REALstandardGetter, nullptr,
     offsetof(ProbeChildData, sawParentInitialized), nullptr, 0, nullptr, 0, nullptr},
};

} // namespace

REALclassDefinition gProbeChildClass = [] {
    REALclassDefinition d{};
    d.version = kControlVersionModuleNesting;
    d.name = "ProbeChild";
    d.superName = "Probe";
    d.dataSize = sizeof(ProbeChildData);
    d.constructor = reinterpret_cast<REALproc>(&InitializeChild);
    d.methods = gChildMethods;
    d.methodCount = 1;
    d.properties = gChildProperties;
    d.propertyCount = 2;
    d.mFlags = REALTargetAll;
    return d;
}();

REALclassDefinition gProbeErrorClass = [] {
    REALclassDefinition d{};
    d.version = kControlVersionModuleNesting;
    d.name = "ProbeError";
    d.superName = "RuntimeException";
    d.mFlags = REALTargetAll;
    return d;
}();
