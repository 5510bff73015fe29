// One page of the class reference, in the manner of the host's own language reference:
// the class, its description, tables of its properties and methods, then each member's
// syntax (the declarations exactly as registered), description and example. Made from
// the members the plugin registered, as the host holds them, and the written prose.
#pragma once

#include <string>
#include <vector>

#include "docs/generator/prose.h"
#include "host/runtime/class_info.h"

namespace reference {

struct ClassPage {
    std::string markdown;
    // Declarations with a written entry that the plugin does not register (yet).
    std::vector<std::string> waiting;
};

// Throws std::runtime_error naming every registered member without a written entry.
ClassPage RenderClassPage(const hostsim::ClassInfo & info, const ClassProse & prose);

} // namespace reference
