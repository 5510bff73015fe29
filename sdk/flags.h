// Flag bits of class, method and property records, the control versions of the
// record layouts, and the marker values a property row uses for direct field access.
#pragma once

#include "sdk/rb_types.h"

// Control versions: the layout generation a record was written for.
enum : uint32_t {
    kControlVersionSharedMembers = 9,   // oldest layout: rows without attributes
    kControlVersionAttributes = 10,     // method, property and other rows gain attributes
    kControlVersionDelegatesEnums = 11, // class record gains delegates and enums
    kControlVersion12 = 12,
    kControlVersionModuleNesting = 13,  // module record gains nested classes and modules
    kControlVersionModuleFlags = 14,
    kControlVersionMobileControls = 15,
    kControlVersionOldest = kControlVersionSharedMembers,
    kControlVersionNewest = kControlVersionMobileControls,
};

// Flags words of classes, methods and properties.
enum : uint32_t {
    REALpropInvalidate = 0x1,
    REALTargetRuntimeOnly = 0x2, // formerly REALpropRuntimeOnly
    REALTargetAll = 0x4,         // formerly REALconsoleSafe
    REALTargetConsole = 0x8,     // formerly REALconsoleOnly
    REALScopeGlobal = 0x10,
    REALScopePublic = 0x20,
    REALScopeProtected = 0x40,
    REALScopePrivate = 0x80,
    REALTargetWeb = 0x100,       // formerly REALwebOnly
    REALTargetDesktop = 0x200,
    REALTargetIOS = 0x400,
    // Every bit a host of the current generation gives a meaning to.
    kKnownFlagBits = 0x7FF,
};

// Property rows whose getter or setter holds this value are read or written by the
// host itself, at class data + param.
#define REALstandardGetter (reinterpret_cast<REALproc>(static_cast<intptr_t>(-1)))
#define REALstandardSetter (reinterpret_cast<REALproc>(static_cast<intptr_t>(-1)))
#define REALnoImplementation (static_cast<REALproc>(nullptr))
