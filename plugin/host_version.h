// What the host told the plugin about itself at entry, and the host versions at which
// the plugin changes what it does.
#pragma once

#include <cstdint>

namespace zqt {

// The host's version as it reports it: year plus release / 100 (2013r4 is 2013.04);
// 0.0 when the host does not say.
inline double rbversion_rbversion = 0.0;

// The record layout version the plugin claims; set at entry from the host's version,
// so this initial value (the newest layout) is never the one registered.
inline uint32_t CurrentREALControlVersion = 15;

// Hosts from this version build strings with an encoding in one call.
inline const double kHostBuildsStringsWithEncoding = 2012.0;
// Hosts from this version know the UInteger type.
inline const double kHostKnowsUInteger = 2015.0;
// Hosts from this version understand the desktop and iOS target bits in flags words.
inline const double kHostKnowsTargetBits = 2020.02;
// Hosts from this version understand the all-targets bit in flags words.
inline const double kHostKnowsAllTargetsBit = 2010.029;

// The record version the plugin claims on a host of the given version.
uint32_t ControlVersionFor(double hostVersion);

} // namespace zqt
