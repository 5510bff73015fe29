// The built documentation as the tests read it: a page's text, its lines, its examples.
#pragma once

#include <string>
#include <vector>

namespace docs_test {

std::string ReadPage(const std::string & path);
std::vector<std::string> Lines(const std::string & text);
std::vector<std::string> MarkdownPages();

// A program in a fenced block marked `xojo`, and the text of the block marked `output`
// right after it, if there is one.
struct Example {
    std::string page;
    std::string program;
    bool hasOutput = false;
    std::string output;
};
std::vector<Example> Examples(const std::string & page, const std::string & markdown);

std::string HtmlEscaped(const std::string & text);

} // namespace docs_test
