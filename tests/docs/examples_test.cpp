// Every example of the documentation runs in the simulated host with the plugin and
// prints exactly the output shown below it; an example without one runs without error.
#include <gtest/gtest.h>

#include <sstream>

#include "doc_pages.h"
#include "host/host.h"

namespace docs_test {
namespace {

TEST(Examples, RunAndPrintWhatThePagesShow)
{
    hostsim::Host host;
    std::string error;
    ASSERT_TRUE(host.LoadPlugin(PLUGIN_FILE, error)) << error;
    size_t run = 0;
    for (const std::string & page : MarkdownPages()) {
        for (const Example & example : Examples(page, ReadPage(page))) {
            std::ostringstream out, err;
            const int code = host.Run(example.program, out, err);
            EXPECT_EQ(code, hostsim::kExitSuccess) << page << "\n" << example.program << err.str();
            if (example.hasOutput) {
                EXPECT_EQ(out.str(), example.output) << page << "\n" << example.program;
            }
            ++run;
        }
    }
    EXPECT_GT(run, 50u);
}

} // namespace
} // namespace docs_test
