#include "docs/generator/class_page.h"

#include <cctype>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>

namespace reference {

namespace {

const char * const kRootClass = "Object";
const char * const kHiddenAttribute = "Hidden";
const std::string kAsWord = " as "; // between a declaration's parameters and its type

enum class Kind { Property, Method, SharedProperty, SharedMethod };

struct Row {
    Kind kind;
    std::string declaration; // as the prose keys it
    std::string name;
    std::string parameters;
    std::string type;        // result or property type
    bool readOnly = false;
    bool hidden = false;
};

bool IsProperty(Kind k)
{
    return k == Kind::Property || k == Kind::SharedProperty;
}

bool IsShared(Kind k)
{
    return k == Kind::SharedProperty || k == Kind::SharedMethod;
}

bool Hidden(const std::vector<hostsim::Attribute> & attributes)
{
    for (const hostsim::Attribute & a : attributes) {
        if (a.name == kHiddenAttribute)
            return true;
    }
    return false;
}

std::string Lower(std::string text)
{
    for (char & c : text)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

// Where " as " (any case) starts at or after `from`, outside quotes; npos if nowhere.
size_t FindAs(const std::string & text, size_t from)
{
    const std::string lower = Lower(text);
    bool quoted = false;
    for (size_t i = from; i + kAsWord.size() <= lower.size(); ++i) {
        if (lower[i] == '"')
            quoted = !quoted;
        if (!quoted && lower.compare(i, kAsWord.size(), kAsWord) == 0)
            return i;
    }
    return std::string::npos;
}

// Name, parameter list and result of a declaration such as "Add(other as X) as X".
Row MethodRow(Kind kind, const hostsim::MethodInfo & method)
{
    Row row{kind, method.declaration, method.signature.name, "", "", false, Hidden(method.attributes)};
    const std::string & d = method.declaration;
    size_t after = row.name.size();
    if (after < d.size() && d[after] == '(') {
        bool quoted = false;
        size_t close = after + 1;
        for (; close < d.size(); ++close) {
            if (d[close] == '"')
                quoted = !quoted;
            else if (!quoted && d[close] == ')')
                break;
        }
        row.parameters = d.substr(after + 1, close - after - 1);
        after = close + 1;
    }
    const size_t as = FindAs(d, after);
    if (as != std::string::npos)
        row.type = d.substr(as + kAsWord.size());
    return row;
}

Row PropertyRow(Kind kind, const hostsim::PropertyInfo & property)
{
    const std::string type = property.declaredType;
    return Row{kind, property.name + " As " + type, property.name, "", type, property.setter == nullptr,
               Hidden(property.attributes)};
}

std::vector<Row> RegisteredRows(const hostsim::ClassInfo & info)
{
    std::vector<Row> rows;
    for (const hostsim::PropertyInfo & p : info.properties)
        rows.push_back(PropertyRow(Kind::Property, p));
    for (const hostsim::PropertyInfo & p : info.sharedProperties)
        rows.push_back(PropertyRow(Kind::SharedProperty, p));
    for (const hostsim::MethodInfo & m : info.methods)
        rows.push_back(MethodRow(Kind::Method, m));
    for (const hostsim::MethodInfo & m : info.sharedMethods)
        rows.push_back(MethodRow(Kind::SharedMethod, m));
    return rows;
}

const char * AnchorPrefix(Kind k)
{
    switch (k) {
    case Kind::Property: return "property-";
    case Kind::SharedProperty: return "shared-property-";
    case Kind::Method: return "method-";
    case Kind::SharedMethod: return "shared-method-";
    }
    return "";
}

std::string NameCell(const Row & row, const std::string & anchor)
{
    std::string cell = "[" + row.name + "](#" + anchor + ")";
    if (row.hidden)
        cell += " (hidden)";
    return cell;
}

std::string Code(const std::string & text)
{
    return text.empty() ? "" : "`" + text + "`";
}

class PageWriter {
public:
    PageWriter(const hostsim::ClassInfo & info, const ClassProse & prose) : info_(info), prose_(prose) {}

    ClassPage Write()
    {
        MatchRows();
        std::ostringstream page;
        page << "# " << info_.name << "\n\n";
        const bool hasSuper = info_.super && info_.super->name != kRootClass;
        page << "**Class** (inherits from " << (hasSuper ? info_.super->name : kRootClass) << ")\n\n";
        page << prose_.description << "\n";
        WritePropertyTable(page);
        WriteMethodTable(page);
        WriteDetails(page, "Property details", true);
        WriteDetails(page, "Method details", false);
        ClassPage result{page.str(), {}};
        for (size_t e = 0; e < prose_.members.size(); ++e) {
            for (const std::string & d : prose_.members[e].declarations) {
                if (!registered_.count(d))
                    result.waiting.push_back(d);
            }
        }
        return result;
    }

private:
    void MatchRows()
    {
        std::map<std::string, size_t> entryOf;
        for (size_t e = 0; e < prose_.members.size(); ++e) {
            for (const std::string & d : prose_.members[e].declarations) {
                if (!entryOf.emplace(d, e).second)
                    throw std::runtime_error(info_.name + ": two entries for `" + d + "`");
            }
        }
        std::string missing;
        for (Row & row : RegisteredRows(info_)) {
            auto found = entryOf.find(row.declaration);
            if (found == entryOf.end()) {
                missing += "\n  " + row.declaration;
                continue;
            }
            registered_.insert(row.declaration);
            entryFor_.push_back(found->second);
            rows_.push_back(row);
            if (!anchors_.count(found->second)) {
                std::string anchor = AnchorPrefix(row.kind) + Lower(row.name);
                const std::string base = anchor;
                for (int n = 2; usedAnchors_.count(anchor); ++n)
                    anchor = base + "-" + std::to_string(n);
                usedAnchors_.insert(anchor);
                anchors_[found->second] = anchor;
                entryOrder_.push_back(found->second);
            }
        }
        if (!missing.empty())
            throw std::runtime_error(info_.name + ": no written entry (docs/reference) for:" + missing);
    }

    void WritePropertyTable(std::ostream & page) const
    {
        bool any = false;
        for (size_t i = 0; i < rows_.size(); ++i) {
            if (!IsProperty(rows_[i].kind))
                continue;
            if (!any)
                page << "## Properties\n\n| Name | Type | Read-only | Shared |\n|---|---|---|---|\n";
            any = true;
            page << "| " << NameCell(rows_[i], anchors_.at(entryFor_[i])) << " | " << rows_[i].type << " | "
                 << (rows_[i].readOnly ? "Yes" : "") << " | " << (IsShared(rows_[i].kind) ? "Yes" : "") << " |\n";
        }
        if (any)
            page << "\n";
    }

    void WriteMethodTable(std::ostream & page) const
    {
        bool any = false;
        for (size_t i = 0; i < rows_.size(); ++i) {
            if (IsProperty(rows_[i].kind))
                continue;
            if (!any)
                page << "## Methods\n\n| Name | Parameters | Returns | Shared |\n|---|---|---|---|\n";
            any = true;
            page << "| " << NameCell(rows_[i], anchors_.at(entryFor_[i])) << " | " << Code(rows_[i].parameters)
                 << " | " << rows_[i].type << " | " << (IsShared(rows_[i].kind) ? "Yes" : "") << " |\n";
        }
        if (any)
            page << "\n";
    }

    void WriteDetails(std::ostream & page, const char * title, bool properties) const
    {
        bool any = false;
        for (size_t entry : entryOrder_) {
            std::vector<const Row *> rows;
            for (size_t i = 0; i < rows_.size(); ++i) {
                if (entryFor_[i] == entry && IsProperty(rows_[i].kind) == properties)
                    rows.push_back(&rows_[i]);
            }
            if (rows.empty())
                continue;
            if (!any)
                page << "## " << title << "\n\n";
            any = true;
            page << "<a id=\"" << anchors_.at(entry) << "\"></a>\n\n### " << rows.front()->name;
            if (IsShared(rows.front()->kind))
                page << " (shared)";
            page << "\n\n```\n";
            for (const Row * row : rows)
                page << row->declaration << "\n";
            page << "```\n\n" << prose_.members[entry].text << "\n";
        }
    }

    const hostsim::ClassInfo & info_;
    const ClassProse & prose_;
    std::vector<Row> rows_;
    std::vector<size_t> entryFor_;    // the entry of each row
    std::map<size_t, std::string> anchors_;
    std::set<std::string> usedAnchors_;
    std::vector<size_t> entryOrder_;  // entries in the order of their first row
    std::set<std::string> registered_;
};

} // namespace

ClassPage RenderClassPage(const hostsim::ClassInfo & info, const ClassProse & prose)
{
    return PageWriter(info, prose).Write();
}

} // namespace reference
