#include "host/framework/framework.h"
#include "host/lang/lexer.h"
#include "host/runtime/conversions.h"
#include "host/runtime/dispatcher.h"
#include "host/script/interpreter.h"
#include "sdk/encodings.h"

namespace hostsim {

namespace {

const char * const kConvertOperator = "Operator_Convert";

} // namespace

Value Interpreter::Eval(const Expr & e)
{
    switch (e.kind) {
    case Expr::Kind::Literal: return EvalLiteral(e.literal);
    case Expr::Kind::Name: return EvalName(e);
    case Expr::Kind::Member: return EvalMember(e);
    case Expr::Kind::Call: return EvalCall(e);
    case Expr::Kind::Unary: return EvalUnary(e);
    case Expr::Kind::Binary: return EvalBinary(e);
    case Expr::Kind::New: return EvalNew(e.name, e.args, e.where);
    case Expr::Kind::IsA: return EvalIsA(e);
    }
    return Value();
}

Value Interpreter::EvalLiteral(const Literal & lit)
{
    switch (lit.kind) {
    case Literal::Kind::Integer: return Value::Signed(TypeKind::Int64, lit.integer);
    case Literal::Kind::UnsignedInteger: return Value::Unsigned(TypeKind::UInt64, lit.unsignedInteger);
    case Literal::Kind::Real: return Value::Real(TypeKind::Double, lit.real);
    case Literal::Kind::Boolean: return Value::Boolean(lit.integer != 0);
    case Literal::Kind::String:
        return Value::AdoptString(TypeKind::String, rt_.NewString(lit.text, kREALTextEncodingUTF8));
    case Literal::Kind::Nil: return Value::AdoptObject(NilType(), nullptr);
    case Literal::Kind::Color: return Value::Unsigned(TypeKind::Color, lit.unsignedInteger);
    }
    return Value();
}

Value Interpreter::EvalName(const Expr & e)
{
    if (Variable * v = FindVariable(e.name))
        return v->value;
    std::vector<Argument> none;
    Value out;
    for (const auto & r : routines_)
        if (EqualsIgnoringCase(r->name, e.name))
            return CallRoutine(*r, none, e.where);
    if (TryBuiltin(e.name, none, e.where, out))
        return out;
    const ClassInfo & module = rt_.Framework(kFrameworkModuleName);
    auto functions = module.FindMethods(e.name, true);
    if (!functions.empty())
        return Invoke(functions, nullptr, none, e.where, e.name);
    throw ScriptError(e.where, "unknown name " + e.name);
}

const ClassInfo * Interpreter::SharedTarget(const Expr & target)
{
    if (target.kind != Expr::Kind::Name || FindVariable(target.name))
        return nullptr;
    return rt_.FindClass(target.name);
}

REALobject Interpreter::ObjectOf(const Value & v, SourcePosition where)
{
    if (v.kind() != TypeKind::Object && v.kind() != TypeKind::Variant)
        throw ScriptError(where, "a " + v.type().Name() + " has no members");
    if (v.IsNil())
        ThrowHost(kNilObjectExceptionClassName, "This object is Nil.");
    return v.object();
}

Value Interpreter::EvalMember(const Expr & e)
{
    if (const ClassInfo * cls = SharedTarget(*e.target)) {
        if (const PropertyInfo * p = cls->FindProperty(e.name, true))
            return ReadProperty(*p, nullptr);
        auto methods = cls->FindMethods(e.name, true);
        if (methods.empty())
            throw ScriptError(e.where, cls->name + " has no shared member " + e.name);
        std::vector<Argument> none;
        return Invoke(methods, nullptr, none, e.where, cls->name + "." + e.name);
    }
    Value target = Eval(*e.target);
    REALobject self = ObjectOf(target, e.target->where);
    if (const PropertyInfo * p = self->cls->FindProperty(e.name, false))
        return ReadProperty(*p, self);
    auto methods = self->cls->FindMethods(e.name, false);
    if (methods.empty())
        throw ScriptError(e.where, self->cls->name + " has no member " + e.name);
    std::vector<Argument> none;
    return Invoke(methods, self, none, e.where, self->cls->name + "." + e.name);
}

std::vector<Interpreter::Argument> Interpreter::EvalArguments(const std::vector<ExprPtr> & args)
{
    std::vector<Argument> out;
    for (const ExprPtr & a : args) {
        Argument arg;
        arg.where = a->where;
        if (a->kind == Expr::Kind::Name)
            arg.variable = FindVariable(a->name);
        arg.value = Eval(*a);
        out.push_back(std::move(arg));
    }
    return out;
}

Value Interpreter::EvalCall(const Expr & e)
{
    const Expr & callee = *e.target;
    if (callee.kind == Expr::Kind::Name) {
        std::vector<Argument> args = EvalArguments(e.args);
        for (const auto & r : routines_)
            if (EqualsIgnoringCase(r->name, callee.name))
                return CallRoutine(*r, args, e.where);
        Value out;
        if (TryBuiltin(callee.name, args, e.where, out))
            return out;
        auto functions = rt_.Framework(kFrameworkModuleName).FindMethods(callee.name, true);
        if (!functions.empty())
            return Invoke(functions, nullptr, args, e.where, callee.name);
        throw ScriptError(callee.where, "unknown method " + callee.name);
    }
    if (callee.kind != Expr::Kind::Member)
        throw ScriptError(e.where, "this cannot be called");
    if (const ClassInfo * cls = SharedTarget(*callee.target)) {
        auto methods = cls->FindMethods(callee.name, true);
        if (methods.empty())
            throw ScriptError(callee.where, cls->name + " has no shared method " + callee.name);
        std::vector<Argument> args = EvalArguments(e.args);
        return Invoke(methods, nullptr, args, e.where, cls->name + "." + callee.name);
    }
    Value target = Eval(*callee.target);
    REALobject self = ObjectOf(target, callee.target->where);
    auto methods = self->cls->FindMethods(callee.name, false);
    if (methods.empty())
        throw ScriptError(callee.where, self->cls->name + " has no method " + callee.name);
    std::vector<Argument> args = EvalArguments(e.args);
    return Invoke(methods, self, args, e.where, self->cls->name + "." + callee.name);
}

Value Interpreter::EvalNew(const std::string & className, const std::vector<ExprPtr> & argExprs, SourcePosition where)
{
    const ClassInfo * cls = rt_.FindClass(className);
    if (!cls)
        throw ScriptError(where, "unknown class " + className);
    std::vector<Argument> args = EvalArguments(argExprs);
    auto constructors = cls->FindMethods(kConstructorName, false);
    Value object = Value::AdoptObject(TypeRef::OfClass(cls->name), rt_.NewObject(*cls));
    if (constructors.empty()) {
        if (!args.empty())
            throw ScriptError(where, cls->name + " has no constructor that takes arguments");
        return object;
    }
    Invoke(constructors, object.object(), args, where, cls->name + ".Constructor");
    return object;
}

Value Interpreter::EvalIsA(const Expr & e)
{
    Value v = Eval(*e.target);
    const ClassInfo * cls = rt_.FindClass(e.name);
    if (!cls)
        throw ScriptError(e.where, "unknown class " + e.name);
    if (v.kind() == TypeKind::Variant)
        v = VariantContent(v.object());
    if (v.kind() != TypeKind::Object)
        throw ScriptError(e.where, "IsA needs an object, found " + v.type().Name());
    return Value::Boolean(!v.IsNil() && v.object()->cls->IsA(cls));
}

void Interpreter::AssignMember(const Expr & target, Value value, SourcePosition where)
{
    const ClassInfo * cls = SharedTarget(*target.target);
    REALobject self = nullptr;
    Value holder;
    if (!cls) {
        holder = Eval(*target.target);
        self = ObjectOf(holder, target.target->where);
        cls = self->cls;
    }
    bool shared = self == nullptr;
    if (const PropertyInfo * p = cls->FindProperty(target.name, shared)) {
        WriteProperty(*p, self, value, where);
        return;
    }
    auto methods = cls->FindMethods(target.name, shared);
    if (methods.empty())
        throw ScriptError(target.where, cls->name + " has no member " + target.name);
    std::vector<Argument> none;
    InvokeAssign(methods, self, none, value, where, cls->name + "." + target.name);
}

void Interpreter::AssignCall(const Expr & target, Value value, SourcePosition where)
{
    const Expr & callee = *target.target;
    if (callee.kind != Expr::Kind::Member)
        throw ScriptError(target.where, "this cannot be assigned to");
    const ClassInfo * cls = SharedTarget(*callee.target);
    REALobject self = nullptr;
    Value holder;
    if (!cls) {
        holder = Eval(*callee.target);
        self = ObjectOf(holder, callee.target->where);
        cls = self->cls;
    }
    auto methods = cls->FindMethods(callee.name, self == nullptr);
    if (methods.empty())
        throw ScriptError(callee.where, cls->name + " has no method " + callee.name);
    std::vector<Argument> args = EvalArguments(target.args);
    InvokeAssign(methods, self, args, value, where, cls->name + "." + callee.name);
}

Value Interpreter::ConvertForStore(const Value & v, const TypeRef & type, SourcePosition where)
{
    if (ConversionCost(rt_, v.type(), type) != kCannotConvert) {
        try {
            return Convert(rt_, v, type);
        } catch (const ConversionError & e) {
            ThrowHost(kTypeMismatchExceptionClassName, std::string(e.what()) + ".");
        }
    }
    std::vector<Argument> args(1);
    args[0].value = v;
    args[0].where = where;
    if (v.kind() == TypeKind::Object && !v.IsNil()) {
        for (const MethodInfo * m : v.object()->cls->FindMethods(kConvertOperator, false))
            if (m->signature.parameters.empty() && m->signature.result && *m->signature.result == type) {
                std::vector<Argument> none;
                return Invoke({m}, v.object(), none, where, m->QualifiedName());
            }
    }
    if (type.kind == TypeKind::Object) {
        if (const ClassInfo * cls = rt_.FindClass(type.className)) {
            std::vector<const MethodInfo *> from;
            for (const MethodInfo * m : cls->FindMethods(kConvertOperator, false))
                if (m->signature.parameters.size() == 1 && !m->signature.result)
                    from.push_back(m);
            if (!from.empty() && Choose(from, args, false, nullptr)) {
                Value object = Value::AdoptObject(TypeRef::OfClass(cls->name), rt_.NewObject(*cls));
                Invoke(from, object.object(), args, where, cls->name + "." + kConvertOperator);
                object.Retype(type);
                return object;
            }
        }
    }
    throw ScriptError(where, "cannot convert " + v.type().Name() + " to " + type.Name());
}

std::string Interpreter::TextForPrint(const Value & v)
{
    Value shown = v.kind() == TypeKind::Variant ? VariantContent(v.object()) : v;
    if (shown.kind() == TypeKind::Object && !shown.IsNil()) {
        for (const MethodInfo * m : shown.object()->cls->FindMethods(kConvertOperator, false))
            if (m->signature.parameters.empty() && m->signature.result && m->signature.result->kind == TypeKind::String) {
                std::vector<Argument> none;
                return TextOf(Invoke({m}, shown.object(), none, {}, m->QualifiedName()));
            }
    }
    return TextOf(shown);
}

} // namespace hostsim
