// Every member the plugin registers, as the host holds it after loading the plugin,
// stands in its class's reference page: each declaration on a line of its own in the
// Markdown page and in the HTML page.
#include <gtest/gtest.h>

#include <algorithm>

#include "doc_pages.h"
#include "host/host.h"

namespace docs_test {
namespace {

std::vector<std::string> RegisteredDeclarations(const hostsim::ClassInfo & info)
{
    std::vector<std::string> declarations;
    for (const auto * methods : {&info.methods, &info.sharedMethods}) {
        for (const hostsim::MethodInfo & m : *methods)
            declarations.push_back(m.declaration);
    }
    for (const auto * properties : {&info.properties, &info.sharedProperties}) {
        for (const hostsim::PropertyInfo & p : *properties)
            declarations.push_back(p.name + " As " + p.declaredType);
    }
    return declarations;
}

bool HasLine(const std::vector<std::string> & lines, const std::string & line)
{
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

TEST(Reference, EveryRegisteredDeclarationStandsInItsClassPage)
{
    hostsim::Host host;
    std::string error;
    ASSERT_TRUE(host.LoadPlugin(PLUGIN_FILE, error)) << error;
    const auto classes = host.PluginClasses();
    ASSERT_EQ(classes.size(), 4u);
    size_t checked = 0;
    for (const hostsim::ClassInfo * info : classes) {
        const auto markdown = Lines(ReadPage(std::string(DOCS_MARKDOWN_DIR) + "/" + info->name + ".md"));
        const auto html = Lines(ReadPage(std::string(DOCS_HTML_DIR) + "/" + info->name + ".html"));
        ASSERT_FALSE(markdown.empty()) << info->name << " has no reference page";
        EXPECT_EQ(markdown.front(), "# " + info->name);
        for (const std::string & declaration : RegisteredDeclarations(*info)) {
            EXPECT_TRUE(HasLine(markdown, declaration)) << info->name << ".md lacks: " << declaration;
            const std::string escaped = HtmlEscaped(declaration);
            const bool inHtml = std::any_of(html.begin(), html.end(), [&](const std::string & line) {
                return line == escaped || line.find(">" + escaped) != std::string::npos;
            });
            EXPECT_TRUE(inHtml) << info->name << ".html lacks: " << declaration;
            ++checked;
        }
    }
    EXPECT_GT(checked, 100u);
}

} // namespace
} // namespace docs_test
