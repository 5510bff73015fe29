#include "numbers/member_tables.h"

#include "plugin/debugging_property.h"
#include "plugin/registration.h"

namespace zqt {

std::string WithClassName(const char * declaration, const char * className)
{
    std::string out;
    for (const char * c = declaration; *c; ++c) {
        if (*c == kSelfPlaceholder)
            out += className;
        else
            out += *c;
    }
    return out;
}

MethodTable::MethodTable(const std::vector<ListedMethod> & list, const char * className)
{
    for (const ListedMethod & listed : list) {
        if (!listed.function)
            continue;
        declarations_.push_back(WithClassName(listed.declaration, className));
        REALmethodDefinition row{};
        row.function = listed.function;
        row.setterFunction = listed.setter;
        row.declaration = declarations_.back().c_str();
        row.mFlags = kMemberFlags;
        if (listed.hidden) {
            row.attributeCount = 1;
            row.attributes = DebuggingHiddenAttributes;
        }
        rows_.push_back(row);
    }
}

PropertyTable::PropertyTable(const std::vector<ListedProperty> & list)
{
    for (const ListedProperty & listed : list) {
        if (!listed.getter)
            continue;
        REALproperty row{};
        row.name = listed.name;
        row.type = listed.type;
        row.flags = kPropertyFlags;
        row.getter = listed.getter;
        row.setter = listed.setter;
        rows_.push_back(row);
    }
}

} // namespace zqt
