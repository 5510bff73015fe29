// What stands behind the opaque string and object handles of the plugin interface.
#pragma once

#include <cstdint>
#include <string>

#include "sdk/rb_types.h"

namespace hostsim {
struct ClassInfo;
}

// An immutable, counted string with the encoding code it is tagged with.
struct REALstringStruct {
    int64_t refs = 1;
    uint32_t encoding = 0;
    std::string bytes;
};

// The header of every object. The data of each class in the object's hierarchy follows
// at the offset the host wrote into that class's record.
struct REALobjectStruct {
    const hostsim::ClassInfo * cls = nullptr;
    int64_t refs = 1;
    uint64_t reserved = 0;
};

// The class handle is the class itself.
struct REALclassRefStruct;

namespace hostsim {

inline REALclassRef ToClassRef(const ClassInfo * c)
{
    return reinterpret_cast<REALclassRef>(const_cast<ClassInfo *>(c));
}

inline const ClassInfo * FromClassRef(REALclassRef c)
{
    return reinterpret_cast<const ClassInfo *>(c);
}

} // namespace hostsim
