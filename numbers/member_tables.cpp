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

MethodTable::MethodTable(const std::vector<MethodSpec> & specs, const char * className)
{
    for (const MethodSpec & spec : specs) {
        if (!spec.function)
            continue;
        declarations_.push_back(WithClassName(spec.declaration, className));
        REALmethodDefinition row{};
        row.function = spec.function;
        row.setterFunction = spec.setter;
        row.declaration = declarations_.back().c_str();
        row.mFlags = kMemberFlags;
        if (spec.hidden) {
            row.attributeCount = 1;
            row.attributes = DebuggingHiddenAttributes;
        }
        rows_.push_back(row);
    }
}

PropertyTable::PropertyTable(const std::vector<PropertySpec> & specs)
{
    for (const PropertySpec & spec : specs) {
        if (!spec.getter)
            continue;
        REALproperty row{};
        row.name = spec.name;
        row.type = spec.type;
        row.flags = kPropertyFlags;
        row.getter = spec.getter;
        row.setter = spec.setter;
        rows_.push_back(row);
    }
}

} // namespace zqt
