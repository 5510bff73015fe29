// Helpers of the plugin's tests: a host with the plugin loaded afresh, what a call
// raised, what went to standard error, and a private image of the plugin for a resolver
// of the test's own.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "host/host.h"
#include "host/platform/platform.h"

namespace plugin_test {

// A host with the plugin freshly loaded (its own static state); at the end of each test
// the host's accounting must show no leaked or over-released string or object.
class PluginHost : public ::testing::Test {
protected:
    void SetUp() override {}
    void TearDown() override;

    // Configure `host` before calling Load.
    bool Load(std::string & error);
    void LoadOrFail();
    // Runs a script that must succeed and returns what it printed.
    std::string Output(const std::string & script);

    hostsim::Host host;
};

// A host entry the resolver answers null for, a script to run without it, and what the
// script must print then.
struct HiddenCase {
    const char * entry;
    const char * script;
    const char * output;
};
std::ostream & operator<<(std::ostream & out, const HiddenCase & c);

class HiddenEntryHost : public PluginHost, public ::testing::WithParamInterface<HiddenCase> {
protected:
    // Hides the case's entry, loads the plugin and returns what the case's script printed.
    std::string OutputWithEntryHidden();
};

// What the last call raised: the exception's class, Message and ErrorNumber. Takes the
// pending exception from the host; `className` is empty when nothing was raised.
struct Raised {
    std::string className;
    std::string message;
    RBInteger errorNumber = -1;
};
Raised TakeRaised(hostsim::Host & host);

// Everything written to standard error while `action` runs.
std::string CapturedStandardError(const std::function<void()> & action);

// A private copy of the plugin, loaded so that its static state starts afresh and
// started with a resolver of the test's own.
class PluginImage {
public:
    PluginImage();
    ~PluginImage();
    bool Open(std::string & error);
    void Start(REALresolver resolver);

private:
    std::string path_;
    hostsim::SharedLibrary library_;
};

} // namespace plugin_test
