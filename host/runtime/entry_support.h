// What every host entry shares: the guard that keeps C++ exceptions and a missing
// host away from plugin code, and the rows of the name table.
#pragma once

#include <exception>
#include <string>

#include "host/runtime/runtime.h"

namespace hostsim {

struct EntryRow {
    const char * name;
    void * address;
};

// The entry rows of each group, searched by FindEntry.
struct EntryGroup {
    const EntryRow * rows;
    size_t count;
};
extern const EntryGroup kStartupEntries;
extern const EntryGroup kStringEntries;
extern const EntryGroup kObjectEntries;
extern const EntryGroup kValueEntries;

// Reports an entry called while no host exists.
void NoHost(const char * entry);

// Runs an entry's body with the current runtime. Without one, or when the body throws,
// the failure is reported and the entry answers `neutral`.
template <class R, class F>
R Guarded(const char * entry, R neutral, F body)
{
    Runtime * rt = Runtime::Current();
    if (!rt) {
        NoHost(entry);
        return neutral;
    }
    try {
        return body(*rt);
    } catch (const std::exception & e) {
        rt->Report(Diagnostic::Level::Error, std::string(entry) + " failed: " + e.what());
        return neutral;
    } catch (...) {
        rt->Report(Diagnostic::Level::Error, std::string(entry) + " failed");
        return neutral;
    }
}

template <class F>
void GuardedVoid(const char * entry, F body)
{
    Guarded<int>(entry, 0, [&](Runtime & rt) {
        body(rt);
        return 0;
    });
}

template <class F>
void * Address(F f)
{
    return reinterpret_cast<void *>(f);
}

#define ENTRY_GROUP(Name, rows) const EntryGroup Name = {rows, sizeof rows / sizeof rows[0]}

} // namespace hostsim
