// Parses the declaration text of a method row, such as
// "Item(index As Integer, Assigns value As String)" or "Add(ByRef x As Double = 1.5) As Double".
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/lang/literal.h"
#include "host/lang/source_error.h"
#include "host/runtime/types.h"

namespace hostsim {

struct Parameter {
    std::string name;
    TypeRef type;
    bool byRef = false;
    bool assigns = false;  // receives the value of `obj.Name(args) = value`
    bool extends = false;
    std::optional<Literal> defaultValue;
};

struct Signature {
    std::string name;
    std::vector<Parameter> parameters;
    std::optional<TypeRef> result;

    // Parameters without defaults.
    size_t RequiredCount() const;
    bool HasAssigns() const { return !parameters.empty() && parameters.back().assigns; }
    // Same name (ignoring case), same parameter types and passing, same result:
    // how declarations asked for by text are matched.
    bool SameShape(const Signature & other) const;
};

// Throws SourceError (column within the text) when the text is not a declaration.
Signature ParseDeclaration(std::string_view text);

} // namespace hostsim
