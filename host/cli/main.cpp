// hostsim: loads plugins and runs a script file, one statement given with -e, or an
// interactive prompt.
#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>

#include "host/cli/command_line.h"
#include "host/host.h"
#include "host/platform/platform.h"

int main(int argc, char ** argv)
{
    using namespace hostsim;
    CommandLine cl;
    std::string error;
    if (!ParseCommandLine(argc, argv, cl, error)) {
        std::cerr << "hostsim: " << error << '\n' << kUsage;
        return kExitHostError;
    }
    if (cl.help) {
        std::cout << kUsage;
        return kExitSuccess;
    }
    std::string script;
    if (!cl.scriptFile.empty()) {
        std::ifstream file(cl.scriptFile, std::ios::binary);
        if (!file) {
            std::cerr << "hostsim: cannot read " << cl.scriptFile << '\n';
            return kExitHostError;
        }
        std::ostringstream text;
        text << file.rdbuf();
        script = text.str();
    }
    Host host(cl.settings);
    for (const std::string & entry : cl.hidden)
        host.HideEntry(entry);
    for (const std::string & plugin : cl.plugins) {
        if (!host.LoadPlugin(plugin, error)) {
            std::cerr << "hostsim: " << error << '\n';
            return kExitHostError;
        }
    }
    for (const Diagnostic & d : host.Diagnostics())
        std::cerr << "hostsim: warning: " << d.text << '\n'; // load errors stopped above
    if (cl.hasStatement)
        return host.Run(cl.statement, std::cout, std::cerr);
    if (!cl.scriptFile.empty())
        return host.Run(script, std::cout, std::cerr);
    return host.RunInteractive(std::cin, std::cout, std::cerr, StandardInputIsTerminal());
}
