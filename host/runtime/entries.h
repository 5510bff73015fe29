// The table of host entries a plugin finds by name through the resolver.
#pragma once

namespace hostsim {

// The address of the entry called `name`, or null when the host has none.
void * FindEntry(const char * name);
// The resolver handed to REALPluginMain.
void * ResolveEntry(const char * name);

} // namespace hostsim
