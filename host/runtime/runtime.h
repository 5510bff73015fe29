// The state of the simulated host: settings, registered classes, strings and objects
// with their accounting, the pending exception, and the entries a plugin may resolve.
// Entries reach it through Runtime::Current(): the resolver is a plain C function.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "host/native/native_call.h"
#include "host/runtime/accounting.h"
#include "host/runtime/class_info.h"
#include "host/runtime/handles.h"

namespace hostsim {

struct HostSettings {
    // What REALGetRBVersion answers: year plus release / 100.
    double version = 2023.03;
    // What REALinRuntime answers: true in a built application, false in the IDE.
    bool inRuntime = true;
    // Whether PluginNewInstance runs a parameterless `Constructor` row after the initializers.
    bool newInstanceRunsConstructor = false;
    // Whether PluginGetStringData puts a NUL after the bytes it hands out.
    bool terminateStringData = true;
};

struct Diagnostic {
    enum class Level { Warning, Error };
    Level level;
    std::string text;
};

class Runtime {
public:
    explicit Runtime(HostSettings settings);
    ~Runtime();
    Runtime(const Runtime &) = delete;
    Runtime & operator=(const Runtime &) = delete;

    // The one live runtime, or null.
    static Runtime * Current();

    HostSettings settings;
    Accounting accounting;
    NativeCaller & native() { return *native_; }

    // Strings. A null REALstring is the empty string everywhere.
    REALstring NewString(std::string bytes, uint32_t encoding); // +1
    // Checks a handle given to the host; null is valid. `entry` names the user in faults.
    bool ValidString(REALstring s, const char * entry);
    void LockString(REALstring s, const char * entry);
    void UnlockString(REALstring s, const char * entry);
    static const std::string & Bytes(REALstring s); // empty for null
    static uint32_t EncodingOf(REALstring s);       // UTF-8 for null

    // Objects.
    REALobject NewObject(const ClassInfo & cls); // +1, zero-filled, initializers run
    bool ValidObject(REALobject o, const char * entry);
    void LockObject(REALobject o, const char * entry);
    void UnlockObject(REALobject o, const char * entry);
    static void * ClassData(REALobject o, const ClassInfo & cls);

    // Classes.
    const ClassInfo * FindClass(std::string_view name) const;
    const std::vector<const ClassInfo *> & Classes() const { return order_; }
    ClassInfo & AddClass(std::unique_ptr<ClassInfo> cls);
    bool ValidClassRef(REALclassRef c) const;
    // A framework class the host itself relies on; throws if it is missing.
    const ClassInfo & Framework(std::string_view name) const;

    // Exceptions raised by plugin code wait here until the handler returns.
    void Raise(REALobject exception); // locks it
    bool HasPending() const { return pending_ != nullptr; }
    REALobject TakePending();         // +1 for the caller
    void RestorePending(REALobject owned); // puts back what TakePending gave
    // The exception waiting now (borrowed), to tell whether a call raised one.
    REALobject Pending() const { return pending_; }

    // Entries.
    // A hidden name is unknown to the resolver and, for a framework function, to
    // REALLoadGlobalMethod.
    void HideEntry(const std::string & name) { hidden_.insert(name); }
    bool IsHidden(const std::string & name) const { return hidden_.count(name) != 0; }
    void * Resolve(const char * name);
    const std::vector<std::string> & Requested() const { return requested_; }
    std::optional<int> pluginVersion;
    // The library whose REALPluginMain is running, named in registrations.
    std::string loadingOrigin;

    void Report(Diagnostic::Level level, const std::string & text);
    const std::vector<Diagnostic> & Diagnostics() const { return diagnostics_; }
    bool HasErrors() const;

private:
    static void DestroyString(void * p);
    static void DestroyObject(void * p);
    void Finalize(REALobject o);

    std::unique_ptr<NativeCaller> native_;
    std::vector<std::unique_ptr<ClassInfo>> classes_;
    std::vector<const ClassInfo *> order_;
    std::map<std::string, ClassInfo *> byName_; // lower-case names
    REALobject pending_ = nullptr;
    std::set<std::string> hidden_;
    std::vector<std::string> requested_;
    std::vector<Diagnostic> diagnostics_;
};

} // namespace hostsim
