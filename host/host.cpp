#include "host/host.h"

#include <atomic>
#include <filesystem>
#include <sstream>

#include "host/framework/framework.h"
#include "host/platform/platform.h"
#include "host/runtime/entries.h"
#include "host/script/interpreter.h"
#include "host/script/parser.h"
#include "sdk/host_entries.h"

namespace hostsim {

namespace {

const char * const kPrompt = "> ";
const char * const kContinuationPrompt = "... ";

std::string PrivateCopy(const std::string & path, std::string & error)
{
    static std::atomic<unsigned> counter{0};
    namespace fs = std::filesystem;
    std::error_code ec;
    fs::path copy = fs::temp_directory_path(ec) /
                    ("hostsim-" + std::to_string(++counter) + "-" + fs::path(path).filename().string());
    if (ec || !fs::copy_file(path, copy, fs::copy_options::overwrite_existing, ec)) {
        error = "cannot make a private copy of " + path + ": " + ec.message();
        return {};
    }
    return copy.string();
}

} // namespace

Host::Host(HostSettings settings) : runtime_(std::make_unique<Runtime>(settings))
{
    RegisterFrameworkClasses(*runtime_);
}

Host::~Host()
{
    // Objects and strings go before the libraries whose code they may point at.
    runtime_.reset();
    libraries_.clear();
}

bool Host::LoadPlugin(const std::string & path, std::string & error, LoadOptions options)
{
    std::error_code ec;
    if (!std::filesystem::is_regular_file(path, ec)) {
        error = path + ": no such file";
        return false;
    }
    std::string loadPath = path;
    if (options.privateCopy) {
        loadPath = PrivateCopy(path, error);
        if (loadPath.empty())
            return false;
    }
    auto library = std::make_unique<SharedLibrary>();
    std::string reason;
    bool opened = library->Open(loadPath, reason);
    if (options.privateCopy)
        std::filesystem::remove(loadPath, ec); // the loaded image stays usable on systems that allow it
    if (!opened) {
        error = path + ": not a loadable library (" + reason + ")";
        return false;
    }
    auto entry = reinterpret_cast<REALPluginMainProc>(library->Symbol(REAL_PLUGIN_MAIN_NAME));
    if (!entry) {
        error = path + ": not a plugin (it does not export " + REAL_PLUGIN_MAIN_NAME + ")";
        return false;
    }
    size_t diagnosticsBefore = runtime_->Diagnostics().size();
    runtime_->loadingOrigin = path;
    {
        Accounting::Scope scope(runtime_->accounting, std::string(REAL_PLUGIN_MAIN_NAME) + " of " + path);
        entry(&ResolveEntry);
    }
    libraries_.push_back(std::move(library));
    std::string problems;
    const auto & diagnostics = runtime_->Diagnostics();
    for (size_t i = diagnosticsBefore; i < diagnostics.size(); ++i)
        if (diagnostics[i].level == Diagnostic::Level::Error)
            problems += (problems.empty() ? "" : "\n") + diagnostics[i].text;
    if (!problems.empty()) {
        error = problems;
        return false;
    }
    return true;
}

std::vector<const ClassInfo *> Host::PluginClasses() const
{
    std::vector<const ClassInfo *> out;
    for (const ClassInfo * c : runtime_->Classes())
        if (c->origin != kFrameworkOrigin)
            out.push_back(c);
    return out;
}

namespace {

// Runs one piece of script and turns its outcome into an exit code.
int RunProgram(Interpreter & interpreter, Runtime & rt, Program program, std::ostream & err)
{
    try {
        interpreter.Run(std::move(program));
        return kExitSuccess;
    } catch (ScriptThrow & thrown) {
        err << interpreter.DescribeUnhandled(thrown.exception) << '\n';
        return kExitUnhandledException;
    } catch (const ScriptError & e) {
        err << e.Describe() << '\n';
        return kExitScriptError;
    } catch (const std::exception & e) {
        rt.Report(Diagnostic::Level::Error, std::string("internal error: ") + e.what());
        err << "hostsim: internal error: " << e.what() << '\n';
        return kExitHostError;
    }
}

} // namespace

int Host::Run(std::string_view script, std::ostream & out, std::ostream & err)
{
    size_t diagnosticsBefore = runtime_->Diagnostics().size();
    Program program;
    try {
        program = ParseProgram(script);
    } catch (const SourceError & e) {
        err << e.Describe() << '\n';
        return kExitScriptError;
    }
    int code;
    {
        Interpreter interpreter(*runtime_, out);
        code = RunProgram(interpreter, *runtime_, std::move(program), err);
    }
    runtime_->accounting.SetScriptLine(0);
    out.flush();
    ReportDiagnostics(diagnosticsBefore, err);
    if (!ReportAccounting(err) && code == kExitSuccess)
        code = kExitAccountingError;
    return code;
}

void Host::ReportDiagnostics(size_t from, std::ostream & err) const
{
    const auto & diagnostics = runtime_->Diagnostics();
    for (size_t i = from; i < diagnostics.size(); ++i)
        err << "hostsim: " << (diagnostics[i].level == Diagnostic::Level::Error ? "error: " : "warning: ")
            << diagnostics[i].text << '\n';
}

int Host::RunInteractive(std::istream & in, std::ostream & out, std::ostream & err, bool prompt)
{
    size_t diagnosticsBefore = runtime_->Diagnostics().size();
    int last = kExitSuccess;
    {
        Interpreter interpreter(*runtime_, out);
        std::string pending;
        std::string line;
        for (;;) {
            if (prompt)
                out << (pending.empty() ? kPrompt : kContinuationPrompt) << std::flush;
            if (!std::getline(in, line))
                break;
            pending += line + "\n";
            Program program;
            try {
                program = ParseProgram(pending);
            } catch (const IncompleteInput &) {
                continue;
            } catch (const SourceError & e) {
                err << e.Describe() << '\n';
                pending.clear();
                last = kExitScriptError;
                continue;
            }
            pending.clear();
            last = RunProgram(interpreter, *runtime_, std::move(program), err);
            out.flush();
        }
        if (!pending.empty()) {
            err << "the last statement is incomplete\n";
            last = kExitScriptError;
        }
    }
    runtime_->accounting.SetScriptLine(0);
    ReportDiagnostics(diagnosticsBefore, err);
    if (!ReportAccounting(err) && last == kExitSuccess)
        last = kExitAccountingError;
    return last;
}

bool Host::ReportAccounting(std::ostream & err) const
{
    std::vector<std::string> leaks = Leaks();
    for (const std::string & leak : leaks)
        err << "hostsim: leaked " << leak << '\n';
    for (const std::string & fault : Faults())
        err << "hostsim: bad reference: " << fault << '\n';
    return leaks.empty() && Faults().empty();
}

} // namespace hostsim
