// The plugin's one export. The host calls it once, at load, with its resolver: the
// plugin learns the host's version, announces the record version it claims, adapts its
// class records to that host, seeds the random generator inside a built application and
// registers its four classes in a fixed order.
#include <initializer_list>

#include "math/random_seed.h"
#include "numbers/classes.h"
#include "plugin/host_services.h"
#include "plugin/host_version.h"
#include "plugin/registration.h"

namespace {

const char * const kGetVersionEntry = "REALGetRBVersion";
const char * const kRegisterVersionEntry = "RegisterPluginVersion";

} // namespace

extern "C" REAL_PLUGIN_EXPORT void REALPluginMain(REALresolver resolver)
{
    using namespace zqt;
    gResolver = resolver;
    if (resolver) {
        if (auto getVersion = reinterpret_cast<REALGetRBVersionProc>(resolver(kGetVersionEntry)))
            rbversion_rbversion = getVersion();
    }
    CurrentREALControlVersion = ControlVersionFor(rbversion_rbversion);
    if (!resolver)
        return;
    if (auto registerVersion = reinterpret_cast<RegisterPluginVersionProc>(resolver(kRegisterVersionEntry)))
        registerVersion(static_cast<int>(CurrentREALControlVersion));

    REALclassDefinition & big = BigNumberRecord();
    REALclassDefinition & bigger = BiggerNumberRecord();
    // Hosts before UInteger get every shared method but the last, NumberWithUInteger.
    if (rbversion_rbversion < kHostKnowsUInteger) {
        --big.sharedMethodCount;
        --bigger.sharedMethodCount;
    }
    SeedRandomInRuntime();
    for (REALclassDefinition * record : {&big, &bigger, &ConversionRecord(), &ErrorExceptionRecord()})
        MyREALRegisterClass(record);
}
