// The resolver and the table of host entries a plugin finds by name. The entries
// themselves live with their kind in entries_*.cpp; each has exactly the C shape the
// plugin calls it through, checks every handle it is given, and never lets a C++
// exception out.
#include "host/runtime/entries.h"

#include <cstdio>
#include <cstring>

#include "host/runtime/entry_support.h"

namespace hostsim {

void NoHost(const char * entry)
{
    std::fprintf(stderr, "hostsim: %s was called with no host running; it does nothing\n", entry);
}

void * FindEntry(const char * name)
{
    for (const EntryGroup * group : {&kStartupEntries, &kStringEntries, &kObjectEntries, &kValueEntries})
        for (size_t i = 0; i < group->count; ++i)
            if (std::strcmp(group->rows[i].name, name) == 0)
                return group->rows[i].address;
    return nullptr;
}

void * ResolveEntry(const char * name)
{
    Runtime * rt = Runtime::Current();
    if (!rt) {
        NoHost("the resolver");
        return nullptr;
    }
    return rt->Resolve(name);
}

} // namespace hostsim
