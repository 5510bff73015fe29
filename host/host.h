// The simulated host as a library: load plugins as the real host does, set what the
// host reports about itself, run scripts, and read what was registered and counted.
//
//   hostsim::Host host;                          // one at a time in a process
//   host.Settings().version = 2019.02;           // before loading: the plugin reads it at entry
//   host.HideEntry("REALGetPropValueCurrency");  // the resolver then answers null
//   std::string error;
//   if (!host.LoadPlugin("libmy.so", error)) ...
//   std::ostringstream out, err;
//   int code = host.Run("Print 1 + 2", out, err); // 0, 1 unhandled, 2 script error, 4 leaks
//   host.Leaks(); host.Faults();                  // what the accounting found
#pragma once

#include <istream>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "host/runtime/runtime.h"

namespace hostsim {

enum ExitCode {
    kExitSuccess = 0,
    kExitUnhandledException = 1,
    kExitScriptError = 2,   // does not parse, or a mistake found while running
    kExitHostError = 3,     // bad command line, plugin that cannot be loaded
    kExitAccountingError = 4, // leaks or releases of dead references
};

struct LoadOptions {
    // Load a private copy of the file, so that a library loaded before starts afresh
    // with its own static data (the system would hand out the same loaded image).
    bool privateCopy = false;
};

class SharedLibrary;
class Interpreter;

class Host {
public:
    explicit Host(HostSettings settings = {});
    ~Host();
    Host(const Host &) = delete;
    Host & operator=(const Host &) = delete;

    HostSettings & Settings() { return runtime_->settings; }
    void HideEntry(const std::string & name) { runtime_->HideEntry(name); }

    // Loads the library and calls its REALPluginMain with the host's resolver. False,
    // with a message in `error`, for a missing file, a file that is not a library or
    // not a plugin, or a plugin whose registration was rejected.
    bool LoadPlugin(const std::string & path, std::string & error, LoadOptions options = {});

    const ClassInfo * FindClass(std::string_view name) const { return runtime_->FindClass(name); }
    // Classes registered by plugins, in the order of registration.
    std::vector<const ClassInfo *> PluginClasses() const;
    std::optional<int> PluginVersion() const { return runtime_->pluginVersion; }
    // Every name the plugin asked the resolver for, in order.
    const std::vector<std::string> & RequestedEntries() const { return runtime_->Requested(); }
    const std::vector<Diagnostic> & Diagnostics() const { return runtime_->Diagnostics(); }

    // Runs a whole script. Printed text goes to `out`; an unhandled exception, a script
    // error and the accounting report go to `err`. Returns an ExitCode.
    int Run(std::string_view script, std::ostream & out, std::ostream & err);
    // Reads statements from `in` one line at a time (blocks over several lines), runs
    // each at once and keeps variables between them. `prompt` writes "> " before each line.
    int RunInteractive(std::istream & in, std::ostream & out, std::ostream & err, bool prompt);

    std::vector<std::string> Leaks() const { return runtime_->accounting.Leaks(); }
    const std::vector<std::string> & Faults() const { return runtime_->accounting.Faults(); }
    // Writes the leaks and faults, if any, to `err`; true when there were none.
    bool ReportAccounting(std::ostream & err) const;

    Runtime & runtime() { return *runtime_; }

private:
    // Writes the warnings and errors the host noted since diagnostic number `from`.
    void ReportDiagnostics(size_t from, std::ostream & err) const;

    std::vector<std::unique_ptr<SharedLibrary>> libraries_;
    std::unique_ptr<Runtime> runtime_;
};

} // namespace hostsim
