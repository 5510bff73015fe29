#include "host/cli/command_line.h"

#include <cstdlib>
#include <string_view>

namespace hostsim {

const char * const kUsage =
    "usage: hostsim [options] SCRIPT.xs      run a script file\n"
    "       hostsim [options] -e STATEMENTS  run the given statements\n"
    "       hostsim [options]                read statements from standard input\n"
    "options:\n"
    "  --plugin PATH       load a plugin library (may be repeated)\n"
    "  --version YYYY.RR   the host version the plugin is told (default 2023.03)\n"
    "  --runtime | --ide   run as a built application (default) or as the IDE\n"
    "  --hide ENTRY        answer null when the plugin asks for ENTRY or for the framework\n"
    "                      function of that name (may be repeated)\n"
    "  --new-runs-constructor  PluginNewInstance also runs a parameterless Constructor\n"
    "  --unterminated-string-data  PluginGetStringData puts no NUL after the bytes\n"
    "exit status: 0 done, 1 unhandled exception, 2 script error, 3 host error, 4 leaks\n";

bool ParseCommandLine(int argc, char ** argv, CommandLine & out, std::string & error)
{
    for (int i = 1; i < argc; ++i) {
        std::string_view arg = argv[i];
        auto value = [&](std::string & into) {
            if (i + 1 >= argc) {
                error = std::string(arg) + " needs a value";
                return false;
            }
            into = argv[++i];
            return true;
        };
        std::string text;
        if (arg == "--plugin") {
            if (!value(text))
                return false;
            out.plugins.push_back(text);
        } else if (arg == "--hide") {
            if (!value(text))
                return false;
            out.hidden.push_back(text);
        } else if (arg == "--version") {
            if (!value(text))
                return false;
            char * end = nullptr;
            out.settings.version = std::strtod(text.c_str(), &end);
            if (end == text.c_str() || *end) {
                error = "--version needs a number such as 2023.03, not " + text;
                return false;
            }
        } else if (arg == "--runtime") {
            out.settings.inRuntime = true;
        } else if (arg == "--ide") {
            out.settings.inRuntime = false;
        } else if (arg == "--new-runs-constructor") {
            out.settings.newInstanceRunsConstructor = true;
        } else if (arg == "--unterminated-string-data") {
            out.settings.terminateStringData = false;
        } else if (arg == "-e") {
            if (!value(out.statement))
                return false;
            out.hasStatement = true;
        } else if (arg == "-h" || arg == "--help") {
            out.help = true;
        } else if (!arg.empty() && arg[0] == '-') {
            error = "unknown option " + std::string(arg);
            return false;
        } else if (out.scriptFile.empty()) {
            out.scriptFile = arg;
        } else {
            error = "only one script file can be run";
            return false;
        }
    }
    if (out.hasStatement && !out.scriptFile.empty()) {
        error = "give either a script file or -e, not both";
        return false;
    }
    return true;
}

} // namespace hostsim
