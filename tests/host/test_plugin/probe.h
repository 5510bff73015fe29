// The test plugin's classes: Probe (every calling shape and declared type), its
// subclass ProbeChild, ProbeError (a RuntimeException subclass) and ProbeHost.
#pragma once

#include "sdk/records.h"

const RBInteger kProbeSlots = 4;

struct ProbeData {
    RBInteger count;
    double ratio;
    RBBoolean flag;
    int32_t small;
    float fraction;
    REALcurrency money;
    RBUInt64 big;
    RBColor tint;
    REALstring label;
    REALobject link;
    RBInteger slots[kProbeSlots];
    RBBoolean initialized;
};

struct ProbeChildData {
    RBInteger depth;
    RBInteger sawParentInitialized;
};

extern REALclassDefinition gProbeClass;
extern REALclassDefinition gProbeChildClass;
extern REALclassDefinition gProbeErrorClass;

ProbeData & DataOf(REALobject probe);
// A new Probe (+1) with `count`.
REALobject NewProbe(RBInteger count);

// ProbeHost: shared methods over the host's services, and faults made on purpose.
extern REALclassDefinition gProbeHostClass;
