// The written half of the class reference: for each class a description page
// (docs/reference/<Class>.md) and the member entries it draws in. An entry is one or
// more "### " headings, each a declaration exactly as the plugin registers it ("@"
// standing for the class's own name; a property as "Name As Type"), followed by the
// text that describes them together.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace reference {

struct MemberEntry {
    std::vector<std::string> declarations;
    std::string text;
};

struct ClassProse {
    std::string description;
    std::vector<MemberEntry> members;
};

// The line of a description page that draws in the entries of a member file.
inline const char * const kMembersDirective = "<!-- members: ";
inline const char * const kDirectiveEnd = " -->";
inline const char * const kEntryHeading = "### ";
inline const char kSelfPlaceholder = '@';

// Reads `<folder>/<className>.md` and the member files it names, with the class's
// name put in for every placeholder. Throws std::runtime_error when a file is missing.
ClassProse ReadClassProse(const std::string & folder, const std::string & className);

} // namespace reference
