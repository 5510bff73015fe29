// The parsed form of a script: statements, expressions and the routines it defines.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/lang/literal.h"
#include "host/lang/source_error.h"
#include "host/runtime/declaration.h"

namespace hostsim {

struct Expr;
using ExprPtr = std::unique_ptr<Expr>;

struct Expr {
    enum class Kind { Literal, Name, Member, Call, Unary, Binary, New, IsA };
    Kind kind = Kind::Literal;
    SourcePosition where;
    Literal literal;
    std::string name;   // Name, Member, New and IsA: the name; Unary and Binary: the operator
    ExprPtr target;     // Member: the object; Call: the callee; Unary and Binary: the (left) operand
    ExprPtr right;      // Binary
    std::vector<ExprPtr> args; // Call and New
};

struct Stmt;
using Block = std::vector<std::unique_ptr<Stmt>>;

struct CatchClause {
    std::string variable;   // may be empty
    std::string className;  // empty: any RuntimeException
    Block body;
    SourcePosition where;
};

struct Stmt {
    enum class Kind { Var, Assign, Print, If, For, While, Exit, Try, Raise, Return, Call };
    Kind kind = Kind::Call;
    SourcePosition where;
    // Var
    std::vector<std::string> names;
    std::string typeName;
    bool asNew = false;       // Var x As New Class(args): args in `args`
    std::vector<ExprPtr> args;
    // Var initial value, Assign value, Print, Raise and Return operand, If/While condition
    ExprPtr value;
    // Assign target; Call expression
    ExprPtr target;
    // If: conditions and bodies in order; the last body without condition is Else
    std::vector<ExprPtr> conditions;
    std::vector<Block> bodies;
    // For
    std::string counter;
    ExprPtr from, to, step;
    // For, While, Try body
    Block body;
    // Try
    std::vector<CatchClause> catches;
    Block finallyBody;
    bool hasFinally = false;
    // Exit: "for", "while", "sub", "function" or empty (innermost loop)
    std::string exitWhat;
};

struct Routine {
    std::string name;
    std::vector<Parameter> parameters;
    std::optional<TypeRef> result;
    Block body;
    SourcePosition where;
};

struct Program {
    Block main;
    std::vector<std::unique_ptr<Routine>> routines;
};

} // namespace hostsim
