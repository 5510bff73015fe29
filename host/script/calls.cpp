#include <stdexcept>

#include "host/framework/framework.h"
#include "host/lang/lexer.h"
#include "host/runtime/conversions.h"
#include "host/runtime/dispatcher.h"
#include "host/script/interpreter.h"

namespace hostsim {

namespace {

// Nested routine calls allowed before the script is stopped.
const size_t kMaxCallDepth = 1000;

std::string ArgumentTypes(const std::vector<Value> & values)
{
    std::string text = "(";
    for (size_t i = 0; i < values.size(); ++i)
        text += (i ? ", " : "") + values[i].type().Name();
    return text + ")";
}

} // namespace

std::optional<Interpreter::Chosen> Interpreter::Choose(const std::vector<const MethodInfo *> & candidates,
                                                       std::vector<Argument> & args, bool assignForm,
                                                       const Value * assigned)
{
    const MethodInfo * best = nullptr;
    bool bestSetter = false;
    int bestCost = 0;
    for (const MethodInfo * m : candidates) {
        const Signature & sig = m->signature;
        size_t count = sig.parameters.size();
        bool setter = false;
        std::optional<TypeRef> assignedType;
        if (assignForm) {
            if (m->setter) {
                setter = true;
                assignedType = *sig.result;
            } else if (sig.HasAssigns()) {
                --count;
                assignedType = sig.parameters.back().type;
            } else {
                continue;
            }
        } else if (sig.HasAssigns()) {
            continue;
        }
        if (args.size() > count)
            continue;
        int cost = 0;
        bool viable = true;
        for (size_t i = 0; i < count && viable; ++i) {
            const Parameter & p = sig.parameters[i];
            if (i >= args.size()) {
                viable = p.defaultValue.has_value();
            } else if (p.byRef) {
                viable = args[i].variable && args[i].variable->type == p.type;
            } else {
                int c = ConversionCost(rt_, args[i].value.type(), p.type);
                viable = c != kCannotConvert;
                cost += c;
            }
        }
        if (viable && assignedType) {
            int c = ConversionCost(rt_, assigned->type(), *assignedType);
            viable = c != kCannotConvert;
            cost += c;
        }
        if (viable && (!best || cost < bestCost)) {
            best = m;
            bestCost = cost;
            bestSetter = setter;
        }
    }
    if (!best)
        return std::nullopt;
    Chosen chosen;
    chosen.method = best;
    chosen.setterForm = bestSetter;
    const Signature & sig = best->signature;
    size_t count = sig.parameters.size() - (assignForm && !bestSetter ? 1 : 0);
    for (size_t i = 0; i < count; ++i) {
        const Parameter & p = sig.parameters[i];
        if (i < args.size() && p.byRef)
            chosen.converted.emplace_back();
        else if (i < args.size())
            chosen.converted.push_back(ConvertForStore(args[i].value, p.type, args[i].where));
        else
            chosen.converted.push_back(ConvertForStore(EvalLiteral(*p.defaultValue), p.type, here_));
    }
    if (assignForm)
        chosen.converted.push_back(ConvertForStore(*assigned, bestSetter ? *sig.result : sig.parameters.back().type, here_));
    return chosen;
}

Value Interpreter::CallMethodRow(Chosen & chosen, REALobject self, std::vector<Argument> & args)
{
    const MethodInfo & m = *chosen.method;
    std::vector<Value> & converted = chosen.converted;
    std::vector<Value *> pointers;
    for (size_t i = 0; i < m.signature.parameters.size() && i < converted.size(); ++i) {
        if (m.signature.parameters[i].byRef && i < args.size())
            pointers.push_back(&args[i].variable->value);
        else
            pointers.push_back(&converted[i]);
    }
    Value result;
    if (chosen.setterForm) {
        pointers.resize(m.signature.parameters.size());
        CallMethodSetter(rt_, m, self, pointers, converted.back());
    } else {
        result = CallMethod(rt_, m, self, pointers);
    }
    CheckPending();
    return result;
}

Value Interpreter::Invoke(const std::vector<const MethodInfo *> & candidates, REALobject self,
                          std::vector<Argument> & args, SourcePosition where, const std::string & what)
{
    std::optional<Chosen> chosen = Choose(candidates, args, false, nullptr);
    if (!chosen) {
        std::vector<Value> values;
        for (const Argument & a : args)
            values.push_back(a.value);
        throw ScriptError(where, "no form of " + what + " accepts " + ArgumentTypes(values));
    }
    return CallMethodRow(*chosen, self, args);
}

std::optional<Value> Interpreter::TryInvoke(const std::vector<const MethodInfo *> & candidates, REALobject self,
                                            std::vector<Argument> & args)
{
    std::optional<Chosen> chosen = Choose(candidates, args, false, nullptr);
    if (!chosen)
        return std::nullopt;
    return CallMethodRow(*chosen, self, args);
}

void Interpreter::InvokeAssign(const std::vector<const MethodInfo *> & candidates, REALobject self,
                               std::vector<Argument> & args, const Value & assigned, SourcePosition where,
                               const std::string & what)
{
    std::optional<Chosen> chosen = Choose(candidates, args, true, &assigned);
    if (!chosen) {
        std::vector<Value> values;
        for (const Argument & a : args)
            values.push_back(a.value);
        throw ScriptError(where, what + " cannot be assigned a " + assigned.type().Name() + " with the arguments " +
                                     ArgumentTypes(values));
    }
    CallMethodRow(*chosen, self, args);
}

Value Interpreter::CallRoutine(const Routine & r, std::vector<Argument> & args, SourcePosition where)
{
    if (args.size() > r.parameters.size())
        throw ScriptError(where, r.name + " takes at most " + std::to_string(r.parameters.size()) + " arguments");
    if (frames_.size() > kMaxCallDepth)
        ThrowHost("StackOverflowException", "Too many nested calls of " + r.name + ".");
    Frame frame;
    for (size_t i = 0; i < r.parameters.size(); ++i) {
        const Parameter & p = r.parameters[i];
        Value v;
        if (i < args.size())
            v = ConvertForStore(args[i].value, p.type, args[i].where);
        else if (p.defaultValue)
            v = ConvertForStore(EvalLiteral(*p.defaultValue), p.type, where);
        else
            throw ScriptError(where, r.name + " needs a value for " + p.name);
        v.Retype(p.type);
        frame[LowerCase(p.name)] = Variable{p.type, std::move(v), nullptr};
    }
    if (r.result)
        frame[kResultVariable] = Variable{*r.result, DefaultValue(*r.result), nullptr};
    frames_.push_back(std::move(frame));
    struct PopFrame {
        std::deque<Frame> & frames;
        ~PopFrame() { frames.pop_back(); }
    } pop{frames_};
    SourcePosition caller = here_;
    ExecBlock(r.body);
    here_ = caller;
    rt_.accounting.SetScriptLine(caller.line);
    return r.result ? frames_.back()[kResultVariable].value : Value();
}

Value Interpreter::ReadProperty(const PropertyInfo & p, REALobject self)
{
    if (!p.getter)
        throw ScriptError(here_, p.QualifiedName() + " can only be assigned");
    Value v = GetProperty(rt_, p, self);
    CheckPending();
    return v;
}

void Interpreter::WriteProperty(const PropertyInfo & p, REALobject self, const Value & v, SourcePosition where)
{
    if (!p.setter)
        throw ScriptError(where, p.QualifiedName() + " is read-only");
    SetProperty(rt_, p, self, ConvertForStore(v, p.type, where));
    CheckPending();
}

void Interpreter::CheckPending()
{
    if (!rt_.HasPending())
        return;
    REALobject e = rt_.TakePending();
    throw ScriptThrow{Value::AdoptObject(TypeRef::OfClass(e->cls->name), e)};
}

void Interpreter::ThrowHost(const char * className, const std::string & message)
{
    RaiseHostException(rt_, className, message);
    CheckPending();
    throw std::logic_error("the host could not raise " + std::string(className));
}

} // namespace hostsim
