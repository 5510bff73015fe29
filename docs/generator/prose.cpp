#include "docs/generator/prose.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace reference {

namespace {

std::string ReadFile(const std::string & path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        throw std::runtime_error("cannot read " + path);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

std::string WithClassName(const std::string & text, const std::string & className)
{
    std::string out;
    for (char c : text) {
        if (c == kSelfPlaceholder)
            out += className;
        else
            out += c;
    }
    return out;
}

bool StartsWith(const std::string & line, const char * prefix)
{
    return line.rfind(prefix, 0) == 0;
}

std::string TrimmedLines(const std::string & text)
{
    const size_t first = text.find_first_not_of('\n');
    if (first == std::string::npos)
        return "";
    const size_t last = text.find_last_not_of('\n');
    return text.substr(first, last - first + 1) + "\n";
}

// Entries of a member file: consecutive headings (blank lines between them allowed)
// share the text below them.
void ReadEntries(const std::string & text, std::vector<MemberEntry> & entries)
{
    std::istringstream lines(text);
    std::string line;
    bool inHeadings = false;
    while (std::getline(lines, line)) {
        if (StartsWith(line, kEntryHeading)) {
            if (!inHeadings)
                entries.emplace_back();
            entries.back().declarations.push_back(line.substr(std::string(kEntryHeading).size()));
            inHeadings = true;
        } else if (!entries.empty()) {
            entries.back().text += line + "\n";
            if (!line.empty())
                inHeadings = false;
        }
    }
    for (MemberEntry & entry : entries)
        entry.text = TrimmedLines(entry.text);
}

} // namespace

ClassProse ReadClassProse(const std::string & folder, const std::string & className)
{
    ClassProse prose;
    std::istringstream lines(ReadFile(folder + "/" + className + ".md"));
    std::string line;
    while (std::getline(lines, line)) {
        if (StartsWith(line, kMembersDirective)) {
            const size_t from = std::string(kMembersDirective).size();
            const size_t end = line.find(kDirectiveEnd, from);
            const std::string file = line.substr(from, end == std::string::npos ? std::string::npos : end - from);
            ReadEntries(WithClassName(ReadFile(folder + "/" + file), className), prose.members);
        } else {
            prose.description += line + "\n";
        }
    }
    prose.description = TrimmedLines(WithClassName(prose.description, className));
    return prose;
}

} // namespace reference
