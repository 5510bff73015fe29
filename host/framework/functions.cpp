// Framework functions, found by plugins with REALLoadGlobalMethod and called by
// scripts by name. They are the shared methods of a module class of their own.
#include "host/framework/framework.h"
#include "host/runtime/registration.h"
#include "sdk/flags.h"

namespace hostsim {

const char * const kFrameworkModuleName = "_Framework";
const char * const kObjectClassName = "Object";
const char * const kFrameworkOrigin = "framework";

namespace {

RBInteger LenB(REALstring s)
{
    Runtime & rt = *Runtime::Current();
    return rt.ValidString(s, "LenB") ? static_cast<RBInteger>(Runtime::Bytes(s).size()) : 0;
}

RBInteger VarType(REALobject value)
{
    Runtime & rt = *Runtime::Current();
    return rt.ValidObject(value, "VarType") ? VariantTypeCode(value) : 0;
}

REALmethodDefinition gFunctions[] = {
    {reinterpret_cast<REALproc>(&LenB), nullptr, "LenB(s As String) As Integer", REALTargetAll, 0, nullptr},
    {reinterpret_cast<REALproc>(&VarType), nullptr, "VarType(value As Variant) As Integer", REALTargetAll, 0, nullptr},
};

REALclassDefinition gModule = [] {
    REALclassDefinition d{};
    d.version = kControlVersionNewest;
    d.name = kFrameworkModuleName;
    d.sharedMethods = gFunctions;
    d.sharedMethodCount = sizeof gFunctions / sizeof gFunctions[0];
    d.mFlags = REALTargetAll;
    return d;
}();

} // namespace

void RegisterFrameworkFunctions(Runtime & rt)
{
    RegisterClass(rt, &gModule, kFrameworkOrigin);
}

void RegisterFrameworkClasses(Runtime & rt)
{
    RegisterExceptionClasses(rt);
    RegisterMemoryBlockClass(rt);
    RegisterVariantClasses(rt);
    RegisterDateClasses(rt);
    RegisterFrameworkFunctions(rt);
}

} // namespace hostsim
