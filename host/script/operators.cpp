#include <cmath>
#include <map>

#include "host/framework/framework.h"
#include "host/lang/lexer.h"
#include "host/runtime/conversions.h"
#include "host/runtime/encodings.h"
#include "host/script/interpreter.h"
#include "sdk/encodings.h"

namespace hostsim {

namespace {

const int64_t kCurrencyScale = 10000;
const char * const kDivisionByZero = "Division by zero.";

// Operator method names: Operator_<name>, and Operator_<name>Right when only the
// right operand is an object.
const std::map<std::string, std::string> kOperatorMethods = {
    {"+", "Add"}, {"-", "Subtract"}, {"*", "Multiply"}, {"/", "Divide"}, {"\\", "IntegerDivide"},
    {"mod", "Modulo"}, {"^", "Power"}, {"and", "And"}, {"or", "Or"},
};

bool IsComparison(const std::string & op)
{
    return op == "=" || op == "<>" || op == "<" || op == ">" || op == "<=" || op == ">=";
}

bool CompareResult(const std::string & op, int c)
{
    if (op == "=") return c == 0;
    if (op == "<>") return c != 0;
    if (op == "<") return c < 0;
    if (op == ">") return c > 0;
    if (op == "<=") return c <= 0;
    return c >= 0;
}

bool IsObject(const Value & v)
{
    return v.kind() == TypeKind::Object && !v.IsNil() && !IsNilType(v.type());
}

bool IsArithmeticKind(TypeKind k)
{
    return (k >= TypeKind::Int8 && k <= TypeKind::UInt64) || IsFloatKind(k) || k == TypeKind::Currency;
}

__int128 Wide(const Value & v)
{
    return IsUnsignedKind(v.kind()) ? static_cast<__int128>(v.AsUnsigned()) : static_cast<__int128>(v.AsSigned());
}

double RealOf(const Value & v)
{
    if (IsFloatKind(v.kind()))
        return v.AsReal();
    if (v.kind() == TypeKind::Currency)
        return static_cast<double>(v.AsSigned()) / kCurrencyScale;
    return static_cast<double>(Wide(v));
}

int64_t ScaledOf(const Value & v)
{
    if (v.kind() == TypeKind::Currency)
        return v.AsSigned();
    if (IsFloatKind(v.kind()))
        return static_cast<int64_t>(std::llround(v.AsReal() * kCurrencyScale));
    return static_cast<int64_t>(static_cast<uint64_t>(Wide(v)) * kCurrencyScale);
}

std::string Utf8Lower(const Value & v)
{
    return LowerCase(TextOf(v));
}

} // namespace

Value Interpreter::EvalUnary(const Expr & e)
{
    Value v = Eval(*e.target);
    if (v.kind() == TypeKind::Variant)
        v = VariantContent(v.object());
    if (e.name == "not") {
        if (v.kind() == TypeKind::Boolean)
            return Value::Boolean(!v.AsBoolean());
        if (IsIntegerKind(v.kind()))
            return Value::Unsigned(v.kind(), ~v.AsUnsigned());
        throw ScriptError(e.where, "Not needs a Boolean or an integer, found " + v.type().Name());
    }
    if (IsObject(v)) {
        std::vector<Argument> none;
        auto methods = v.object()->cls->FindMethods("Operator_Negate", false);
        if (std::optional<Value> r = TryInvoke(methods, v.object(), none))
            return *r;
        throw ScriptError(e.where, v.object()->cls->name + " has no Operator_Negate");
    }
    if (IsFloatKind(v.kind()))
        return Value::Real(v.kind(), -v.AsReal());
    if (v.kind() == TypeKind::Currency)
        return Value::Currency(static_cast<int64_t>(0 - static_cast<uint64_t>(v.AsSigned())));
    if (IsArithmeticKind(v.kind()))
        return Value::Signed(IsUnsignedKind(v.kind()) ? TypeKind::Int64 : v.kind(), static_cast<int64_t>(0 - v.AsUnsigned()));
    throw ScriptError(e.where, "cannot negate a " + v.type().Name());
}

Value Interpreter::EvalBinary(const Expr & e)
{
    Value left = Eval(*e.target);
    if ((e.name == "and" || e.name == "or") && left.kind() == TypeKind::Boolean) {
        bool l = left.AsBoolean();
        if (e.name == "and" ? !l : l)
            return Value::Boolean(l); // the right side is not evaluated
    }
    Value right = Eval(*e.right);
    return ApplyBinary(e.name, left, right, e.where);
}

std::optional<Value> Interpreter::ObjectOperator(const std::string & op, const Value & left, const Value & right)
{
    if (IsComparison(op)) {
        for (int side = 0; side < 2; ++side) {
            const Value & self = side == 0 ? left : right;
            const Value & other = side == 0 ? right : left;
            if (!IsObject(self))
                continue;
            std::vector<Argument> args(1);
            args[0].value = other;
            auto methods = self.object()->cls->FindMethods("Operator_Compare", false);
            if (std::optional<Value> r = TryInvoke(methods, self.object(), args)) {
                int64_t c = ConvertLoosely(rt_, *r, TypeKind::Int64).AsSigned();
                if (side == 1)
                    c = -c;
                return Value::Boolean(CompareResult(op, c < 0 ? -1 : c > 0 ? 1 : 0));
            }
        }
        return std::nullopt;
    }
    auto name = kOperatorMethods.find(op);
    if (name == kOperatorMethods.end())
        return std::nullopt;
    if (IsObject(left)) {
        std::vector<Argument> args(1);
        args[0].value = right;
        auto methods = left.object()->cls->FindMethods("Operator_" + name->second, false);
        if (std::optional<Value> r = TryInvoke(methods, left.object(), args))
            return r;
    }
    if (IsObject(right)) {
        std::vector<Argument> args(1);
        args[0].value = left;
        auto methods = right.object()->cls->FindMethods("Operator_" + name->second + "Right", false);
        if (std::optional<Value> r = TryInvoke(methods, right.object(), args))
            return r;
    }
    return std::nullopt;
}

Value Interpreter::ApplyBinary(const std::string & op, const Value & leftIn, const Value & rightIn, SourcePosition where)
{
    if (op == "is") {
        bool objects = (leftIn.kind() == TypeKind::Object || leftIn.kind() == TypeKind::Variant) &&
                       (rightIn.kind() == TypeKind::Object || rightIn.kind() == TypeKind::Variant);
        if (!objects)
            throw ScriptError(where, "Is compares objects, found " + leftIn.type().Name() + " and " + rightIn.type().Name());
        return Value::Boolean(leftIn.object() == rightIn.object());
    }
    Value left = leftIn.kind() == TypeKind::Variant ? VariantContent(leftIn.object()) : leftIn;
    Value right = rightIn.kind() == TypeKind::Variant ? VariantContent(rightIn.object()) : rightIn;
    if (IsObject(left) || IsObject(right)) {
        if (std::optional<Value> r = ObjectOperator(op, left, right))
            return *r;
    }
    TypeKind l = left.kind(), r = right.kind();
    if (IsComparison(op))
        return Value::Boolean(CompareResult(op, Compare(left, right, where)));
    if (op == "and" || op == "or") {
        if (l == TypeKind::Boolean && r == TypeKind::Boolean)
            return Value::Boolean(op == "and" ? left.AsBoolean() && right.AsBoolean() : left.AsBoolean() || right.AsBoolean());
        if (IsIntegerKind(l) && IsIntegerKind(r)) {
            uint64_t bits = op == "and" ? left.AsUnsigned() & right.AsUnsigned() : left.AsUnsigned() | right.AsUnsigned();
            return Value::Unsigned(IsUnsignedKind(l) && IsUnsignedKind(r) ? TypeKind::UInt64 : TypeKind::Int64, bits);
        }
        throw ScriptError(where, op + " needs Booleans or integers, found " + left.type().Name() + " and " + right.type().Name());
    }
    if (op == "+" && IsStringKind(l) && IsStringKind(r)) {
        std::string joined = TextOf(left) + TextOf(right);
        return Value::AdoptString(TypeKind::String, rt_.NewString(joined, kREALTextEncodingUTF8));
    }
    if (IsArithmeticKind(l) && IsArithmeticKind(r))
        return Arithmetic(op, left, right, where);
    throw ScriptError(where, "the operator " + op + " is not defined for " + left.type().Name() + " and " + right.type().Name());
}

Value Interpreter::Arithmetic(const std::string & op, const Value & left, const Value & right, SourcePosition where)
{
    TypeKind l = left.kind(), r = right.kind();
    if (!IsArithmeticKind(l) || !IsArithmeticKind(r))
        throw ScriptError(where, "the operator " + op + " needs numbers");
    bool real = IsFloatKind(l) || IsFloatKind(r);
    if (op == "/" || op == "^" || (real && op != "\\")) {
        double a = RealOf(left), b = RealOf(right), v;
        if (op == "+") v = a + b;
        else if (op == "-") v = a - b;
        else if (op == "*") v = a * b;
        else if (op == "/") v = a / b;
        else if (op == "^") v = std::pow(a, b);
        else v = std::fmod(a, b);
        bool single = l == TypeKind::Single && r == TypeKind::Single && op != "/" && op != "^";
        return Value::Real(single ? TypeKind::Single : TypeKind::Double, v);
    }
    if (op == "\\") {
        if (real) {
            double q = RealOf(left) / RealOf(right);
            return Value::Signed(TypeKind::Int64, static_cast<int64_t>(std::trunc(q)));
        }
        __int128 b = Wide(right);
        if (b == 0)
            ThrowHost(kRuntimeExceptionClassName, kDivisionByZero);
        return Value::Signed(TypeKind::Int64, static_cast<int64_t>(Wide(left) / b));
    }
    if (l == TypeKind::Currency || r == TypeKind::Currency) {
        __int128 a = ScaledOf(left), b = ScaledOf(right), v;
        if (op == "+") v = a + b;
        else if (op == "-") v = a - b;
        else if (op == "*") v = a * b / kCurrencyScale;
        else {
            if (b == 0)
                ThrowHost(kRuntimeExceptionClassName, kDivisionByZero);
            v = a % b;
        }
        return Value::Currency(static_cast<int64_t>(v));
    }
    bool unsignedResult = IsUnsignedKind(l) && IsUnsignedKind(r);
    TypeKind kind = unsignedResult ? TypeKind::UInt64 : TypeKind::Int64;
    uint64_t a = left.AsUnsigned(), b = right.AsUnsigned();
    if (op == "+") return Value::Unsigned(kind, a + b);
    if (op == "-") return Value::Unsigned(kind, a - b);
    if (op == "*") return Value::Unsigned(kind, a * b);
    if (Wide(right) == 0)
        ThrowHost(kRuntimeExceptionClassName, kDivisionByZero);
    return Value::Signed(kind, static_cast<int64_t>(Wide(left) % Wide(right)));
}

int Interpreter::Compare(const Value & left, const Value & right, SourcePosition where)
{
    TypeKind l = left.kind(), r = right.kind();
    if (IsArithmeticKind(l) && IsArithmeticKind(r)) {
        if (IsFloatKind(l) || IsFloatKind(r)) {
            double a = RealOf(left), b = RealOf(right);
            return a < b ? -1 : a > b ? 1 : 0;
        }
        __int128 a = l == TypeKind::Currency || r == TypeKind::Currency ? ScaledOf(left) : Wide(left);
        __int128 b = l == TypeKind::Currency || r == TypeKind::Currency ? ScaledOf(right) : Wide(right);
        return a < b ? -1 : a > b ? 1 : 0;
    }
    if (IsStringKind(l) && IsStringKind(r)) {
        int c = Utf8Lower(left).compare(Utf8Lower(right));
        return c < 0 ? -1 : c > 0 ? 1 : 0;
    }
    if (l == TypeKind::Boolean && r == TypeKind::Boolean)
        return left.AsBoolean() == right.AsBoolean() ? 0 : 1;
    bool lo = l == TypeKind::Object, ro = r == TypeKind::Object;
    if (lo && ro)
        return left.object() == right.object() ? 0 : 1;
    if (IsIntegerKind(l) && l == r)
        return left.AsUnsigned() == right.AsUnsigned() ? 0 : 1;
    throw ScriptError(where, "cannot compare " + left.type().Name() + " with " + right.type().Name());
}

} // namespace hostsim
