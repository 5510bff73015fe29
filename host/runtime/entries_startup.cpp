// Entries a plugin uses while it starts: the version handshake and class registration.
#include "host/runtime/entry_support.h"
#include "host/runtime/registration.h"
#include "sdk/host_entries.h"

namespace hostsim {

namespace {

void RegisterPluginVersion(int version)
{
    GuardedVoid("RegisterPluginVersion", [&](Runtime & rt) { rt.pluginVersion = version; });
}

double GetRBVersion()
{
    return Guarded("REALGetRBVersion", 0.0, [](Runtime & rt) { return rt.settings.version; });
}

RBBoolean InRuntime()
{
    return Guarded<RBBoolean>("REALinRuntime", 0, [](Runtime & rt) { return rt.settings.inRuntime ? 1 : 0; });
}

// Declared void for plugins; this host also answers 1 for a class it accepted and 0 for
// one it refused, so that a plugin reading the register sees a fixed value.
RBInteger PluginRegisterClass(REALclassDefinition * definition)
{
    return Guarded<RBInteger>("PluginRegisterClass", 0, [&](Runtime & rt) -> RBInteger {
        try {
            RegisterClass(rt, definition, rt.loadingOrigin);
            return 1;
        } catch (const RegistrationError & e) {
            rt.Report(Diagnostic::Level::Error, rt.loadingOrigin + ": " + e.what());
            return 0;
        }
    });
}

const EntryRow kRows[] = {
    {"RegisterPluginVersion", Address<RegisterPluginVersionProc>(&RegisterPluginVersion)},
    {"REALGetRBVersion", Address<REALGetRBVersionProc>(&GetRBVersion)},
    {"REALinRuntime", Address<REALinRuntimeProc>(&InRuntime)},
    {"PluginRegisterClass", Address(&PluginRegisterClass)},
};

} // namespace

ENTRY_GROUP(kStartupEntries, kRows);

} // namespace hostsim
