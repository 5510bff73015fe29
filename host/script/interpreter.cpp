#include "host/script/interpreter.h"

#include <exception>

#include "host/framework/framework.h"
#include "host/lang/lexer.h"
#include "host/runtime/conversions.h"

namespace hostsim {

void Interpreter::Run(Program program)
{
    for (auto & r : program.routines)
        routines_.push_back(std::move(r));
    // The statements stay alive with the routines: variables remember where they were declared.
    auto main = std::make_unique<Routine>();
    main->body = std::move(program.main);
    const Routine & code = *main;
    routines_.push_back(std::move(main));
    ExecBlock(code.body);
}

void Interpreter::Clear()
{
    frames_.clear();
    frames_.emplace_back();
}

std::string Interpreter::DescribeUnhandled(const Value & exception)
{
    REALobject e = exception.object();
    std::string message;
    if (const PropertyInfo * p = e->cls->FindProperty(kMessagePropertyName, false))
        message = TextOf(ReadProperty(*p, e));
    return "Unhandled " + e->cls->name + ": " + message;
}

Interpreter::Flow Interpreter::ExecBlock(const Block & block)
{
    for (const auto & s : block) {
        Flow f = Exec(*s);
        if (f != Flow::Normal)
            return f;
    }
    return Flow::Normal;
}

Interpreter::Flow Interpreter::Exec(const Stmt & s)
{
    rt_.accounting.SetScriptLine(s.where.line);
    here_ = s.where;
    switch (s.kind) {
    case Stmt::Kind::Var: ExecVar(s); return Flow::Normal;
    case Stmt::Kind::Assign: ExecAssign(s); return Flow::Normal;
    case Stmt::Kind::Print: out_ << TextForPrint(Eval(*s.value)) << '\n'; return Flow::Normal;
    case Stmt::Kind::If: return ExecIf(s);
    case Stmt::Kind::For: return ExecFor(s);
    case Stmt::Kind::While: return ExecWhile(s);
    case Stmt::Kind::Try: return ExecTry(s);
    case Stmt::Kind::Raise: ExecRaise(s); return Flow::Normal;
    case Stmt::Kind::Exit:
        return s.exitWhat == "sub" || s.exitWhat == "function" ? Flow::ExitRoutine : Flow::ExitLoop;
    case Stmt::Kind::Return: {
        if (s.value) {
            Variable * result = FindVariable(kResultVariable);
            if (!result)
                throw ScriptError(s.where, "Return with a value is allowed only in a Function");
            result->value = ConvertForStore(Eval(*s.value), result->type, s.value->where);
        }
        return Flow::ExitRoutine;
    }
    case Stmt::Kind::Call: {
        const Expr & t = *s.target;
        if (t.kind == Expr::Kind::Call)
            EvalCall(t);
        else
            Eval(t); // a name or member naming a method without arguments
        return Flow::Normal;
    }
    }
    return Flow::Normal;
}

TypeRef Interpreter::ResolveType(const std::string & name, SourcePosition where) const
{
    TypeRef t;
    ParseTypeName(name, t);
    if (t.kind == TypeKind::Object && !EqualsIgnoringCase(t.className, kObjectClassName) && !rt_.FindClass(t.className))
        throw ScriptError(where, "unknown type " + name);
    return t;
}

Value Interpreter::DefaultValue(const TypeRef & type)
{
    TypeKind k = type.kind;
    if (IsStringKind(k))
        return Value::AdoptString(k, nullptr);
    if (k == TypeKind::Object || k == TypeKind::Variant)
        return Value::AdoptObject(type, nullptr);
    if (k == TypeKind::Boolean)
        return Value::Boolean(false);
    if (IsFloatKind(k))
        return Value::Real(k, 0);
    if (k == TypeKind::Currency)
        return Value::Currency(0);
    return Value::Signed(k, 0);
}

Interpreter::Variable * Interpreter::FindVariable(const std::string & name)
{
    Frame & frame = frames_.back();
    auto it = frame.find(LowerCase(name));
    return it == frame.end() ? nullptr : &it->second;
}

bool Interpreter::Truth(const Value & v, SourcePosition where)
{
    if (v.kind() == TypeKind::Boolean)
        return v.AsBoolean();
    if (v.kind() == TypeKind::Variant)
        return ConvertLoosely(rt_, VariantContent(v.object()), TypeKind::Boolean).AsBoolean();
    throw ScriptError(where, "expected a Boolean, found " + v.type().Name());
}

void Interpreter::ExecVar(const Stmt & s)
{
    TypeRef type = ResolveType(s.typeName, s.where);
    Frame & frame = frames_.back();
    for (const std::string & name : s.names) {
        std::string key = LowerCase(name);
        auto it = frame.find(key);
        if (it != frame.end() && it->second.declaredBy != &s)
            throw ScriptError(s.where, name + " is declared already");
        Value initial;
        if (s.asNew)
            initial = EvalNew(s.typeName, s.args, s.where);
        else if (s.value)
            initial = ConvertForStore(Eval(*s.value), type, s.value->where);
        else
            initial = DefaultValue(type);
        initial.Retype(type);
        frame[key] = Variable{type, std::move(initial), &s};
    }
}

void Interpreter::ExecAssign(const Stmt & s)
{
    const Expr & target = *s.target;
    Value value = Eval(*s.value);
    switch (target.kind) {
    case Expr::Kind::Name: {
        Variable * v = FindVariable(target.name);
        if (!v)
            throw ScriptError(target.where, "unknown variable " + target.name);
        v->value = ConvertForStore(value, v->type, s.value->where);
        return;
    }
    case Expr::Kind::Member:
        AssignMember(target, std::move(value), s.value->where);
        return;
    default:
        AssignCall(target, std::move(value), s.value->where);
        return;
    }
}

Interpreter::Flow Interpreter::ExecIf(const Stmt & s)
{
    for (size_t i = 0; i < s.bodies.size(); ++i) {
        if (i >= s.conditions.size() || Truth(Eval(*s.conditions[i]), s.conditions[i]->where))
            return ExecBlock(s.bodies[i]);
    }
    return Flow::Normal;
}

Interpreter::Flow Interpreter::ExecFor(const Stmt & s)
{
    if (!s.typeName.empty()) {
        TypeRef type = ResolveType(s.typeName, s.where);
        frames_.back()[LowerCase(s.counter)] = Variable{type, DefaultValue(type), &s};
    }
    Variable * counter = FindVariable(s.counter);
    if (!counter)
        throw ScriptError(s.where, "unknown variable " + s.counter);
    if (!IsNumberKind(counter->type.kind))
        throw ScriptError(s.where, "the counter of a For loop must be a number");
    TypeRef type = counter->type;
    counter->value = ConvertForStore(Eval(*s.from), type, s.from->where);
    Value limit = ConvertForStore(Eval(*s.to), type, s.to->where);
    Value step = s.step ? ConvertForStore(Eval(*s.step), type, s.step->where) : ConvertForStore(Value::Signed(TypeKind::Int64, 1), type, s.where);
    bool down = Compare(step, ConvertForStore(Value::Signed(TypeKind::Int64, 0), type, s.where), s.where) < 0;
    for (;;) {
        counter = FindVariable(s.counter);
        int c = Compare(counter->value, limit, s.where);
        if (down ? c < 0 : c > 0)
            return Flow::Normal;
        Flow f = ExecBlock(s.body);
        if (f == Flow::ExitLoop)
            return Flow::Normal;
        if (f == Flow::ExitRoutine)
            return f;
        counter = FindVariable(s.counter);
        counter->value = ConvertForStore(Arithmetic("+", counter->value, step, s.where), type, s.where);
    }
}

Interpreter::Flow Interpreter::ExecWhile(const Stmt & s)
{
    while (Truth(Eval(*s.value), s.value->where)) {
        Flow f = ExecBlock(s.body);
        if (f == Flow::ExitLoop)
            return Flow::Normal;
        if (f == Flow::ExitRoutine)
            return f;
    }
    return Flow::Normal;
}

Interpreter::Flow Interpreter::ExecTry(const Stmt & s)
{
    std::exception_ptr escaping;
    Flow flow = Flow::Normal;
    try {
        flow = ExecBlock(s.body);
    } catch (ScriptThrow & thrown) {
        const CatchClause * handler = nullptr;
        REALobject e = thrown.exception.object();
        for (const CatchClause & c : s.catches) {
            const ClassInfo * cls = c.className.empty() ? &rt_.Framework(kRuntimeExceptionClassName) : rt_.FindClass(c.className);
            if (!cls)
                throw ScriptError(c.where, "unknown exception class " + c.className);
            if (e->cls->IsA(cls)) {
                handler = &c;
                break;
            }
        }
        if (!handler) {
            escaping = std::current_exception();
        } else {
            try {
                if (!handler->variable.empty()) {
                    TypeRef type = TypeRef::OfClass(handler->className.empty() ? kRuntimeExceptionClassName : handler->className);
                    Value caught = thrown.exception;
                    caught.Retype(type);
                    frames_.back()[LowerCase(handler->variable)] = Variable{type, std::move(caught), nullptr};
                }
                flow = ExecBlock(handler->body);
            } catch (...) {
                escaping = std::current_exception();
            }
        }
    }
    if (s.hasFinally) {
        Flow f = ExecBlock(s.finallyBody);
        if (f != Flow::Normal && !escaping)
            flow = f;
    }
    if (escaping)
        std::rethrow_exception(escaping);
    return flow;
}

void Interpreter::ExecRaise(const Stmt & s)
{
    Value v = Eval(*s.value);
    if (v.kind() != TypeKind::Object || v.IsNil() ||
        !v.object()->cls->IsA(&rt_.Framework(kRuntimeExceptionClassName)))
        throw ScriptError(s.value->where, "Raise needs a RuntimeException, found " + v.type().Name());
    throw ScriptThrow{std::move(v)};
}

} // namespace hostsim
