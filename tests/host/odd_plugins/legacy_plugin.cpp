// A plugin written for record version 9, whose method and property rows are shorter
// (no attribute fields): the host must step through them with the old strides.
#include <cstddef>

#include "sdk/flags.h"
#include "sdk/host_entries.h"

namespace {

struct MethodRowV9 {
    REALproc function;
    REALproc setterFunction;
    const char * declaration;
    uint32_t mFlags;
};
static_assert(sizeof(MethodRowV9) == kMethodRowSizeV9);

struct PropertyRowV9 {
    const char * group;
    const char * name;
    const char * type;
    uint32_t flags;
    REALproc getter;
    REALproc setter;
    int32_t param;
    REALproc editor;
    size_t enumCount;
    const char ** enumEntries;
};
static_assert(sizeof(PropertyRowV9) == kPropertyRowSizeV9);

struct OldData {
    RBInteger first;
    RBInteger second;
};

RBInteger One(REALobject) { return 1; }
RBInteger Two(REALobject) { return 2; }
RBInteger Three(REALobject) { return 3; }

MethodRowV9 gMethods[] = {
    {reinterpret_cast<REALproc>(&One), nullptr, "One() As Integer", REALTargetAll},
    {reinterpret_cast<REALproc>(&Two), nullptr, "Two() As Integer", REALTargetAll},
    {reinterpret_cast<REALproc>(&Three), nullptr, "Three() As Integer", REALTargetAll},
};

PropertyRowV9 gProperties[] = {
    {nullptr, "First", "Integer", REALTargetAll, REALstandardGetter, REALstandardSetter, offsetof(OldData, first), nullptr, 0, nullptr},
    {nullptr, "Second", "Integer", REALTargetAll, REALstandardGetter, REALstandardSetter, offsetof(OldData, second), nullptr, 0, nullptr},
};

REALclassDefinition gOld = [] {
    REALclassDefinition d{};
    d.version = kControlVersionOldest;
    d.name = "OldStyle";
    d.dataSize = sizeof(OldData);
    d.methods = reinterpret_cast<REALmethodDefinition *>(gMethods);
    d.methodCount = 3;
    d.properties = reinterpret_cast<REALproperty *>(gProperties);
    d.propertyCount = 2;
    d.mFlags = REALTargetAll;
    return d;
}();

} // namespace

extern "C" REAL_PLUGIN_EXPORT void REALPluginMain(REALresolver resolver)
{
    reinterpret_cast<RegisterPluginVersionProc>(resolver("RegisterPluginVersion"))(kControlVersionOldest);
    reinterpret_cast<PluginRegisterClassProc>(resolver("PluginRegisterClass"))(&gOld);
}
