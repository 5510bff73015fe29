#include "doc_pages.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace docs_test {

namespace {

const char * const kFence = "```";
const char * const kProgramFence = "```xojo";
const char * const kOutputFence = "```output";

} // namespace

std::string ReadPage(const std::string & path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

std::vector<std::string> Lines(const std::string & text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    std::string line;
    while (std::getline(in, line))
        lines.push_back(line);
    return lines;
}

std::vector<std::string> MarkdownPages()
{
    std::vector<std::string> pages;
    for (const auto & entry : std::filesystem::directory_iterator(DOCS_MARKDOWN_DIR)) {
        if (entry.path().extension() == ".md")
            pages.push_back(entry.path().string());
    }
    return pages;
}

std::vector<Example> Examples(const std::string & page, const std::string & markdown)
{
    std::vector<Example> examples;
    const std::vector<std::string> lines = Lines(markdown);
    for (size_t i = 0; i < lines.size(); ++i) {
        const bool program = lines[i] == kProgramFence;
        const bool output = lines[i] == kOutputFence;
        if (!program && !output)
            continue;
        std::string block;
        for (++i; i < lines.size() && lines[i] != kFence; ++i)
            block += lines[i] + "\n";
        if (program) {
            examples.push_back(Example{page, block, false, ""});
        } else if (!examples.empty() && !examples.back().hasOutput) {
            examples.back().hasOutput = true;
            examples.back().output = block;
        }
    }
    return examples;
}

std::string HtmlEscaped(const std::string & text)
{
    std::string out;
    for (char c : text) {
        switch (c) {
        case '&': out += "&amp;"; break;
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        case '"': out += "&quot;"; break;
        default: out += c;
        }
    }
    return out;
}

} // namespace docs_test
