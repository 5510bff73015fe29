// Object entries: references, classes, new instances, methods found by declaration,
// exceptions.
#include <string>
#include <vector>

#include "host/framework/framework.h"
#include "host/runtime/dispatcher.h"
#include "host/runtime/entry_support.h"
#include "sdk/host_entries.h"

namespace hostsim {

namespace {

void LockObject(REALobject o)
{
    GuardedVoid("REALLockObject", [&](Runtime & rt) { rt.LockObject(o, "REALLockObject"); });
}

void UnlockObject(REALobject o)
{
    GuardedVoid("REALUnlockObject", [&](Runtime & rt) {
        rt.accounting.NotePluginRelease(o);
        rt.UnlockObject(o, "REALUnlockObject");
    });
}

REALclassRef ObjectType(const char * name)
{
    return Guarded<REALclassRef>("pluginObjectType", nullptr, [&](Runtime & rt) {
        return name ? ToClassRef(rt.FindClass(name)) : nullptr;
    });
}

RBBoolean ObjectIsa(REALobject o, REALclassRef c)
{
    return Guarded<RBBoolean>("RuntimeObjectIsa", 0, [&](Runtime & rt) -> RBBoolean {
        if (!o || !c || !rt.ValidObject(o, "RuntimeObjectIsa"))
            return 0;
        if (!rt.ValidClassRef(c)) {
            rt.accounting.Fault("RuntimeObjectIsa was given a class reference the host did not hand out, in " +
                                rt.accounting.CurrentContext());
            return 0;
        }
        return o->cls->IsA(FromClassRef(c)) ? 1 : 0;
    });
}

REALobject NewInstance(Runtime & rt, const ClassInfo & cls, bool runConstructor)
{
    REALobject o = rt.NewObject(cls);
    if (!runConstructor)
        return o;
    for (const MethodInfo * m : cls.FindMethods(kConstructorName, false)) {
        if (m->signature.parameters.empty()) {
            CallMethod(rt, *m, o, {});
            break;
        }
    }
    return o;
}

REALobject PluginNewInstance(const char * name)
{
    return Guarded<REALobject>("PluginNewInstance", nullptr, [&](Runtime & rt) -> REALobject {
        const ClassInfo * cls = name ? rt.FindClass(name) : nullptr;
        return cls ? NewInstance(rt, *cls, rt.settings.newInstanceRunsConstructor) : nullptr;
    });
}

REALobject CreateInstance(REALclassRef c)
{
    return Guarded<REALobject>("CreateInstance", nullptr, [&](Runtime & rt) -> REALobject {
        return c && rt.ValidClassRef(c) ? NewInstance(rt, *FromClassRef(c), true) : nullptr;
    });
}

REALobject NewInstanceOfClass(REALclassDefinition * definition)
{
    return Guarded<REALobject>("PluginNewInstanceOfClass", nullptr, [&](Runtime & rt) -> REALobject {
        for (const ClassInfo * cls : rt.Classes())
            if (definition && cls->record == definition)
                return NewInstance(rt, *cls, false);
        return nullptr;
    });
}

void * GetPluginData(REALobject o, REALclassRef c)
{
    return Guarded<void *>("PluginGetPluginData", nullptr, [&](Runtime & rt) -> void * {
        if (!o || !c || !rt.ValidObject(o, "PluginGetPluginData") || !rt.ValidClassRef(c))
            return nullptr;
        const ClassInfo * cls = FromClassRef(c);
        if (cls->origin == kFrameworkOrigin || !o->cls->IsA(cls))
            return nullptr;
        return Runtime::ClassData(o, *cls);
    });
}

// Finds a row by its declaration text among `candidates`.
void * MatchDeclaration(Runtime & rt, const char * entry, const char * prototype,
                        const std::vector<const MethodInfo *> & candidates)
{
    if (!prototype)
        return nullptr;
    Signature wanted;
    try {
        wanted = ParseDeclaration(prototype);
    } catch (const SourceError & e) {
        rt.Report(Diagnostic::Level::Warning, std::string(entry) + " was asked for \"" + prototype +
                  "\", which does not parse: " + e.what());
        return nullptr;
    }
    for (const MethodInfo * m : candidates)
        if (m->signature.SameShape(wanted))
            return reinterpret_cast<void *>(m->function);
    return nullptr;
}

std::vector<const MethodInfo *> AllNamed(const ClassInfo & cls, const char * prototype, bool shared)
{
    try {
        return cls.FindMethods(ParseDeclaration(prototype ? prototype : "").name, shared);
    } catch (const SourceError &) {
        return {};
    }
}

void * LoadGlobalMethod(const char *, const char * prototype)
{
    return Guarded<void *>("REALLoadGlobalMethod", nullptr, [&](Runtime & rt) -> void * {
        const ClassInfo & module = rt.Framework(kFrameworkModuleName);
        std::vector<const MethodInfo *> candidates = AllNamed(module, prototype, true);
        if (!candidates.empty() && rt.IsHidden(candidates.front()->signature.name))
            return nullptr;
        return MatchDeclaration(rt, "REALLoadGlobalMethod", prototype, candidates);
    });
}

void * LoadObjectMethod(REALobject o, const char * prototype)
{
    return Guarded<void *>("REALLoadObjectMethod", nullptr, [&](Runtime & rt) -> void * {
        if (!o || !rt.ValidObject(o, "REALLoadObjectMethod"))
            return nullptr;
        return MatchDeclaration(rt, "REALLoadObjectMethod", prototype, AllNamed(*o->cls, prototype, false));
    });
}

void * LoadSharedMethod(REALclassRef c, const char * prototype)
{
    return Guarded<void *>("PluginLoadSharedMethod", nullptr, [&](Runtime & rt) -> void * {
        if (!c || !rt.ValidClassRef(c))
            return nullptr;
        return MatchDeclaration(rt, "PluginLoadSharedMethod", prototype, AllNamed(*FromClassRef(c), prototype, true));
    });
}

// --- exceptions

void RaiseException(REALobject exception)
{
    GuardedVoid("RuntimeRaiseException", [&](Runtime & rt) { rt.Raise(exception); });
}

REALobject CallWithExceptionHandler(void (*callback)(void *), void * userData)
{
    return Guarded<REALobject>("PluginCallFunctionWithExceptionHandler", nullptr, [&](Runtime & rt) -> REALobject {
        if (!callback)
            return nullptr;
        REALobject outer = rt.TakePending();
        {
            Accounting::Scope scope(rt.accounting, "PluginCallFunctionWithExceptionHandler callback");
            callback(userData);
        }
        REALobject raised = rt.TakePending();
        if (outer)
            rt.RestorePending(outer);
        return raised;
    });
}

const EntryRow kRows[] = {
    {"REALLockObject", Address<REALLockObjectProc>(&LockObject)},
    {"REALUnlockObject", Address<REALUnlockObjectProc>(&UnlockObject)},
    {"pluginObjectType", Address<pluginObjectTypeProc>(&ObjectType)},
    {"RuntimeObjectIsa", Address<RuntimeObjectIsaProc>(&ObjectIsa)},
    {"PluginNewInstance", Address<PluginNewInstanceProc>(&PluginNewInstance)},
    {"CreateInstance", Address<CreateInstanceProc>(&CreateInstance)},
    {"PluginNewInstanceOfClass", Address<PluginNewInstanceOfClassProc>(&NewInstanceOfClass)},
    {"PluginGetPluginData", Address<PluginGetPluginDataProc>(&GetPluginData)},
    {"REALLoadGlobalMethod", Address<REALLoadGlobalMethodProc>(&LoadGlobalMethod)},
    {"REALLoadObjectMethod", Address<REALLoadObjectMethodProc>(&LoadObjectMethod)},
    {"PluginLoadSharedMethod", Address<PluginLoadSharedMethodProc>(&LoadSharedMethod)},
    {"RuntimeRaiseException", Address<RuntimeRaiseExceptionProc>(&RaiseException)},
    {"PluginCallFunctionWithExceptionHandler", Address<PluginCallFunctionWithExceptionHandlerProc>(&CallWithExceptionHandler)},
};

} // namespace

ENTRY_GROUP(kObjectEntries, kRows);

} // namespace hostsim
