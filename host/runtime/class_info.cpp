#include "host/runtime/class_info.h"

#include "host/lang/lexer.h"
#include "sdk/flags.h"

namespace hostsim {

const char * const kConstructorName = "Constructor";

std::string MethodInfo::QualifiedName() const
{
    return owner->name + "." + signature.name;
}

bool PropertyInfo::StandardGetter() const
{
    return getter == REALstandardGetter;
}

bool PropertyInfo::StandardSetter() const
{
    return setter == REALstandardSetter;
}

std::string PropertyInfo::QualifiedName() const
{
    return owner->name + "." + name;
}

bool ClassInfo::IsA(const ClassInfo * other) const
{
    for (const ClassInfo * c = this; c; c = c->super)
        if (c == other)
            return true;
    return false;
}

std::vector<const MethodInfo *> ClassInfo::FindMethods(std::string_view wanted, bool shared) const
{
    std::vector<const MethodInfo *> found;
    for (const ClassInfo * c = this; c; c = c->super)
        for (const MethodInfo & m : shared ? c->sharedMethods : c->methods)
            if (EqualsIgnoringCase(m.signature.name, wanted))
                found.push_back(&m);
    return found;
}

const PropertyInfo * ClassInfo::FindProperty(std::string_view wanted, bool shared) const
{
    for (const ClassInfo * c = this; c; c = c->super)
        for (const PropertyInfo & p : shared ? c->sharedProperties : c->properties)
            if (EqualsIgnoringCase(p.name, wanted))
                return &p;
    return nullptr;
}

} // namespace hostsim
