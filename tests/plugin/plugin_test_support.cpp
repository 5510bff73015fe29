#include "plugin_test_support.h"

#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <filesystem>
#include <sstream>

#include "host/framework/framework.h"
#include "host/runtime/class_info.h"
#include "host/runtime/entries.h"
#include "sdk/host_entries.h"

namespace plugin_test {

void PluginHost::TearDown()
{
    std::ostringstream report;
    EXPECT_TRUE(host.ReportAccounting(report)) << report.str();
}

bool PluginHost::Load(std::string & error)
{
    return host.LoadPlugin(PLUGIN_FILE, error, hostsim::LoadOptions{true});
}

void PluginHost::LoadOrFail()
{
    std::string error;
    ASSERT_TRUE(Load(error)) << error;
}

std::string PluginHost::Output(const std::string & script)
{
    std::ostringstream out, err;
    EXPECT_EQ(host.Run(script, out, err), hostsim::kExitSuccess) << err.str();
    return out.str();
}

Raised TakeRaised(hostsim::Host & host)
{
    Raised r;
    REALobject e = host.runtime().TakePending();
    if (!e)
        return r;
    r.className = e->cls->name;
    r.message = hostsim::ExceptionMessage(e);
    auto getInteger = reinterpret_cast<REALGetPropValueIntegerProc>(hostsim::ResolveEntry("REALGetPropValueInteger"));
    getInteger(e, "ErrorNumber", &r.errorNumber);
    host.runtime().UnlockObject(e, "test");
    return r;
}

std::string CapturedStandardError(const std::function<void()> & action)
{
    std::fflush(stderr);
    std::FILE * file = std::tmpfile();
    int saved = dup(STDERR_FILENO);
    dup2(fileno(file), STDERR_FILENO);
    action();
    std::fflush(stderr);
    dup2(saved, STDERR_FILENO);
    close(saved);
    std::rewind(file);
    std::string text;
    char buffer[4096];
    size_t n;
    while ((n = std::fread(buffer, 1, sizeof buffer, file)) > 0)
        text.append(buffer, n);
    std::fclose(file);
    return text;
}

PluginImage::PluginImage()
{
    static std::atomic<unsigned> counter{0};
    path_ = (std::filesystem::temp_directory_path() /
             ("plugin-image-" + std::to_string(getpid()) + "-" + std::to_string(++counter) + ".so"))
                .string();
}

PluginImage::~PluginImage()
{
    library_.Close();
    std::error_code ec;
    std::filesystem::remove(path_, ec);
}

bool PluginImage::Open(std::string & error)
{
    std::error_code ec;
    if (!std::filesystem::copy_file(PLUGIN_FILE, path_, std::filesystem::copy_options::overwrite_existing, ec)) {
        error = ec.message();
        return false;
    }
    return library_.Open(path_, error);
}

void PluginImage::Start(REALresolver resolver)
{
    auto entry = reinterpret_cast<REALPluginMainProc>(library_.Symbol(REAL_PLUGIN_MAIN_NAME));
    ASSERT_NE(entry, nullptr);
    entry(resolver);
}

std::ostream & operator<<(std::ostream & out, const HiddenCase & c)
{
    return out << c.entry;
}

std::string HiddenEntryHost::OutputWithEntryHidden()
{
    host.HideEntry(GetParam().entry);
    LoadOrFail();
    return Output(GetParam().script);
}

} // namespace plugin_test
