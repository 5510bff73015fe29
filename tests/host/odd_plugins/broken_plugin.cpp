// A plugin whose records the host must refuse, each for its own reason, with one
// good class among them that must still register.
#include "sdk/flags.h"
#include "sdk/host_entries.h"

namespace {

void Handler(REALobject) {}

REALmethodDefinition gUnparsable[] = {
    {reinterpret_cast<REALproc>(&Handler), nullptr, "Broken(x As) As", REALTargetAll, 0, nullptr},
};

REALmethodDefinition gNullHandler[] = {
    {nullptr, nullptr, "Nothing()", REALTargetAll, 0, nullptr},
};

REALproperty gOutside[] = {
    {nullptr, "Far", "Integer", REALTargetAll, REALstandardGetter, nullptr, 64, nullptr, 0, nullptr, 0, nullptr},
};

REALclassDefinition Named(const char * name)
{
    REALclassDefinition d{};
    d.version = kControlVersionModuleNesting;
    d.name = name;
    d.mFlags = REALTargetAll;
    return d;
}

REALclassDefinition gBadDeclaration = [] {
    REALclassDefinition d = Named("BadDeclaration");
    d.methods = gUnparsable;
    d.methodCount = 1;
    return d;
}();

REALclassDefinition gNullHandlerClass = [] {
    REALclassDefinition d = Named("NullHandler");
    d.methods = gNullHandler;
    d.methodCount = 1;
    return d;
}();

REALclassDefinition gNonsense = [] {
    REALclassDefinition d = Named("Nonsense");
    d.version = 77;
    d.dataSize = ~size_t(0);
    return d;
}();

REALclassDefinition gFieldOutside = [] {
    REALclassDefinition d = Named("FieldOutside");
    d.dataSize = 8;
    d.properties = gOutside;
    d.propertyCount = 1;
    return d;
}();

REALclassDefinition gMissingList = [] {
    REALclassDefinition d = Named("MissingList");
    d.methodCount = 3;
    return d;
}();

REALclassDefinition gGood = Named("StillGood");

} // namespace

extern "C" REAL_PLUGIN_EXPORT void REALPluginMain(REALresolver resolver)
{
    reinterpret_cast<RegisterPluginVersionProc>(resolver("RegisterPluginVersion"))(kControlVersionModuleNesting);
    auto registerClass = reinterpret_cast<PluginRegisterClassProc>(resolver("PluginRegisterClass"));
    registerClass(&gBadDeclaration);
    registerClass(&gNullHandlerClass);
    registerClass(&gNonsense);
    registerClass(&gFieldOutside);
    registerClass(&gMissingList);
    registerClass(nullptr);
    registerClass(&gGood);
}
