// The test plugin's entry: announce the record version, then register the classes,
// superclasses first.
#include "host_calls.h"
#include "probe.h"
#include "sdk/flags.h"

extern "C" REAL_PLUGIN_EXPORT void REALPluginMain(REALresolver resolver)
{
    gResolver = resolver;
    HostEntry<RegisterPluginVersionProc>("RegisterPluginVersion")(kControlVersionModuleNesting);
    auto registerClass = HostEntry<PluginRegisterClassProc>("PluginRegisterClass");
    registerClass(&gProbeClass);
    registerClass(&gProbeChildClass);
    registerClass(&gProbeErrorClass);
    registerClass(&gProbeHostClass);
}
