// The command line of hostsim.
#pragma once

#include <string>
#include <vector>

#include "host/runtime/runtime.h"

namespace hostsim {

extern const char * const kUsage;

struct CommandLine {
    std::vector<std::string> plugins;
    std::vector<std::string> hidden;
    HostSettings settings;
    std::string scriptFile;
    std::string statement;
    bool hasStatement = false;
    bool help = false;
};

// False with `error` set for options it does not know or that lack their value.
bool ParseCommandLine(int argc, char ** argv, CommandLine & out, std::string & error);

} // namespace hostsim
