// A shared library that is not a plugin: it has no REALPluginMain.
#include "sdk/host_entries.h"

extern "C" REAL_PLUGIN_EXPORT int SomethingElse()
{
    return 1;
}
