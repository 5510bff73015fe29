// Runs a parsed script against the host runtime: variables, control flow, calls into
// registered classes with overload resolution, operators, exceptions.
#pragma once

#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "host/runtime/runtime.h"
#include "host/runtime/value.h"
#include "host/script/ast.h"

namespace hostsim {

// A host exception travelling through the script.
struct ScriptThrow {
    Value exception;
};

// A mistake in the script found while running it (an unknown name, no matching
// method, a value that cannot be assigned): reported like a parse error.
class ScriptError : public SourceError {
public:
    using SourceError::SourceError;
};

class Interpreter {
public:
    Interpreter(Runtime & rt, std::ostream & out) : rt_(rt), out_(out) { frames_.emplace_back(); }
    Interpreter(const Interpreter &) = delete;
    Interpreter & operator=(const Interpreter &) = delete;

    // Runs the main code of `program` in the top-level frame, which keeps its variables
    // for the next call (the interactive prompt runs one line at a time). Routines are
    // added to those already known. Throws ScriptThrow, ScriptError.
    void Run(Program program);
    // Releases every variable.
    void Clear();
    // "Unhandled <Class>: <Message>" for an exception that reached the top.
    std::string DescribeUnhandled(const Value & exception);

private:
    // The variable holding a Function's result; not a valid name, so no script can clash.
    static constexpr const char * kResultVariable = "%result";

    struct Variable {
        TypeRef type;
        Value value;
        const Stmt * declaredBy = nullptr;
    };
    using Frame = std::map<std::string, Variable>;
    enum class Flow { Normal, ExitLoop, ExitRoutine };
    struct Argument {
        Value value;
        Variable * variable = nullptr; // set when the argument is a variable: ByRef may bind to it
        SourcePosition where;
    };
    struct Chosen {
        const MethodInfo * method = nullptr;
        bool setterForm = false;       // through the row's assignment handler
        std::vector<Value> converted;  // per parameter (empty for ByRef), then an assigned value
    };

    // statements (interpreter.cpp)
    Flow ExecBlock(const Block & block);
    Flow Exec(const Stmt & s);
    void ExecVar(const Stmt & s);
    void ExecAssign(const Stmt & s);
    Flow ExecIf(const Stmt & s);
    Flow ExecFor(const Stmt & s);
    Flow ExecWhile(const Stmt & s);
    Flow ExecTry(const Stmt & s);
    void ExecRaise(const Stmt & s);
    TypeRef ResolveType(const std::string & name, SourcePosition where) const;
    Value DefaultValue(const TypeRef & type);
    Variable * FindVariable(const std::string & name);
    bool Truth(const Value & v, SourcePosition where);

    // expressions (expressions.cpp)
    Value Eval(const Expr & e);
    Value EvalLiteral(const Literal & lit);
    Value EvalName(const Expr & e);
    Value EvalMember(const Expr & e);
    Value EvalCall(const Expr & e);
    Value EvalNew(const std::string & className, const std::vector<ExprPtr> & args, SourcePosition where);
    Value EvalIsA(const Expr & e);
    std::vector<Argument> EvalArguments(const std::vector<ExprPtr> & args);
    const ClassInfo * SharedTarget(const Expr & target);
    REALobject ObjectOf(const Value & v, SourcePosition where);
    void AssignMember(const Expr & target, Value value, SourcePosition where);
    void AssignCall(const Expr & target, Value value, SourcePosition where);
    // Converts for storage in a variable, property or argument of `type`, with
    // Operator_Convert in both directions.
    Value ConvertForStore(const Value & v, const TypeRef & type, SourcePosition where);
    std::string TextForPrint(const Value & v);

    // calls (calls.cpp)
    std::optional<Chosen> Choose(const std::vector<const MethodInfo *> & candidates, std::vector<Argument> & args,
                                 bool assignForm, const Value * assigned);
    Value Invoke(const std::vector<const MethodInfo *> & candidates, REALobject self, std::vector<Argument> & args,
                 SourcePosition where, const std::string & what);
    std::optional<Value> TryInvoke(const std::vector<const MethodInfo *> & candidates, REALobject self,
                                   std::vector<Argument> & args);
    void InvokeAssign(const std::vector<const MethodInfo *> & candidates, REALobject self, std::vector<Argument> & args,
                      const Value & assigned, SourcePosition where, const std::string & what);
    Value CallMethodRow(Chosen & chosen, REALobject self, std::vector<Argument> & args);
    Value CallRoutine(const Routine & r, std::vector<Argument> & args, SourcePosition where);
    Value ReadProperty(const PropertyInfo & p, REALobject self);
    void WriteProperty(const PropertyInfo & p, REALobject self, const Value & v, SourcePosition where);
    void CheckPending();
    [[noreturn]] void ThrowHost(const char * className, const std::string & message);

    // operators and built-in functions (operators.cpp, builtins.cpp)
    Value EvalUnary(const Expr & e);
    Value EvalBinary(const Expr & e);
    Value ApplyBinary(const std::string & op, const Value & left, const Value & right, SourcePosition where);
    std::optional<Value> ObjectOperator(const std::string & op, const Value & left, const Value & right);
    Value Arithmetic(const std::string & op, const Value & left, const Value & right, SourcePosition where);
    int Compare(const Value & left, const Value & right, SourcePosition where);
    bool TryBuiltin(const std::string & name, std::vector<Argument> & args, SourcePosition where, Value & out);

    Runtime & rt_;
    std::ostream & out_;
    std::deque<Frame> frames_;
    SourcePosition here_; // the statement running, for errors found below expressions
    std::vector<std::unique_ptr<Routine>> routines_;
};

} // namespace hostsim
