// What the host keeps of a registered class: its place in the hierarchy, where its data
// sits in an object, and its member tables with parsed declarations.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "host/runtime/declaration.h"
#include "sdk/records.h"

namespace hostsim {

// The name of constructor rows.
extern const char * const kConstructorName;

struct ClassInfo;

struct Attribute {
    std::string name;
    std::string value;
};

struct MethodInfo {
    const ClassInfo * owner = nullptr;
    std::string declaration;
    Signature signature;
    REALproc function = nullptr;
    REALproc setter = nullptr;  // the assignment form `obj.Name(args) = value`
    uint32_t flags = 0;
    bool shared = false;
    std::vector<Attribute> attributes;
    // "Class.Name" for messages
    std::string QualifiedName() const;
};

struct PropertyInfo {
    const ClassInfo * owner = nullptr;
    std::string name;
    TypeRef type;
    std::string declaredType;  // as the row spells it ("Integer" where `type` is Int64)
    uint32_t flags = 0;
    REALproc getter = nullptr;
    REALproc setter = nullptr;
    int32_t param = 0;
    bool shared = false;
    std::vector<Attribute> attributes;

    bool StandardGetter() const;
    bool StandardSetter() const;
    std::string QualifiedName() const;
};

struct ClassInfo {
    std::string name;
    const ClassInfo * super = nullptr;
    REALclassDefinition * record = nullptr; // the plugin's (or the host's own) static record
    std::string origin;                     // the library that registered it, or "framework"
    uint32_t version = 0;
    uint32_t flags = 0;
    size_t dataSize = 0;
    size_t dataOffset = 0;  // from the start of an object
    size_t objectSize = 0;  // header and the data of every class up to this one
    REALproc initializer = nullptr;
    REALproc finalizer = nullptr;
    std::vector<MethodInfo> methods;
    std::vector<MethodInfo> sharedMethods;
    std::vector<PropertyInfo> properties;
    std::vector<PropertyInfo> sharedProperties;
    std::vector<Attribute> attributes;
    size_t eventCount = 0;
    size_t constantCount = 0;

    bool IsA(const ClassInfo * other) const;
    // Rows named `name` (ignoring case) here and in the superclasses, nearest first.
    std::vector<const MethodInfo *> FindMethods(std::string_view name, bool shared) const;
    const PropertyInfo * FindProperty(std::string_view name, bool shared) const;
};

} // namespace hostsim
