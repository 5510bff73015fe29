// Arithmetic methods and operators. Each works on copies of its operands (a nil
// operand reads as the static zero) and returns a new object; a failure reported by
// the library raises the operation's error, naming the operands' own values, and
// returns nil. Every Right operator is served by its left-hand twin: the receiver is
// always the left operand.
#pragma once

#include <ttmath/ttmath.h>

#include "numbers/checked_call.h"

namespace zqt {

template <class N>
struct Arithmetic {
    using Value = typename N::Value;

    static REALobject Add(REALobject me, REALobject other, RBBoolean round)
    {
        return Binary(me, other, "Add", [=](Value & r, const Value & a) { return r.Add(a, round != 0); });
    }
    static REALobject Sub(REALobject me, REALobject other, RBBoolean round)
    {
        return Binary(me, other, "Sub", [=](Value & r, const Value & a) { return r.Sub(a, round != 0); });
    }
    static REALobject Mul(REALobject me, REALobject other, RBBoolean round)
    {
        return Binary(me, other, "Mul", [=](Value & r, const Value & a) { return r.Mul(a, round != 0); });
    }
    static REALobject Div(REALobject me, REALobject other, RBBoolean round)
    {
        return Binary(me, other, "Div", [=](Value & r, const Value & a) { return r.Div(a, round != 0); });
    }
    static REALobject Mod(REALobject me, REALobject other)
    {
        return Binary(me, other, "Mod", [](Value & r, const Value & a) { return r.Mod(a); });
    }
    // The general power: integer or fractional exponent.
    static REALobject Pow(REALobject me, REALobject other)
    {
        return Binary(me, other, "Pow", [](Value & r, const Value & a) { return r.Pow(a); });
    }
    static REALobject BitwiseAnd(REALobject me, REALobject other)
    {
        return Binary(me, other, "BitwiseAnd", [](Value & r, const Value & a) { return r.BitAnd(a); });
    }
    static REALobject BitwiseOr(REALobject me, REALobject other)
    {
        return Binary(me, other, "BitwiseOr", [](Value & r, const Value & a) { return r.BitOr(a); });
    }
    static REALobject BitwiseXor(REALobject me, REALobject other)
    {
        return Binary(me, other, "BitwiseXor", [](Value & r, const Value & a) { return r.BitXor(a); });
    }

    static REALobject Operator_Add(REALobject me, REALobject other)
    {
        return Binary(me, other, "Operator_Add", [](Value & r, const Value & a) { return r.Add(a); });
    }
    static REALobject Operator_Subtract(REALobject me, REALobject other)
    {
        return Binary(me, other, "Operator_Subtract",
                      [](Value & r, const Value & a) { return r.Sub(a); });
    }
    static REALobject Operator_Multiply(REALobject me, REALobject other)
    {
        return Binary(me, other, "Operator_Multiply",
                      [](Value & r, const Value & a) { return r.Mul(a); });
    }
    static REALobject Operator_Divide(REALobject me, REALobject other)
    {
        return Binary(me, other, "Operator_Divide",
                      [](Value & r, const Value & a) { return r.Div(a); });
    }

    // The quotient with its fraction dropped (toward zero). A failed division shows the
    // failed quotient, not the receiver, as the first number.
    static REALobject Operator_IntegerDivide(REALobject me, REALobject other)
    {
        const char * const name = "Operator_IntegerDivide";
        Trace(name);
        return Guarded([&]() -> REALobject {
            Value quotient = N::ValueOf(me);
            if (quotient.Div(N::ValueOf(other))) {
                RaiseOverflowException(name, &quotient, N::Ref(other));
                return nullptr;
            }
            if (!quotient.IsZero() && !quotient.IsNan())
                quotient.SkipFraction();
            return N::NewBigNumberZQT(quotient);
        });
    }

    // A failed product shows the factor as a number.
    static REALobject MulInt(REALobject me, RBInteger factor)
    {
        return ByInteger(me, "MulInt", [=](Value & r) { return r.MulInt(factor); },
                         [=](Value & f) { f.FromInt(factor); });
    }
    static REALobject MulUInt(REALobject me, uint32_t factor)
    {
        return ByInteger(me, "MulUInt", [=](Value & r) { return r.MulUInt(factor); },
                         [=](Value & f) { f.FromUInt(factor); });
    }

    static REALobject Ceil(REALobject me) { return CallShowingArgument<N>("Ceil", me, &ttmath::Ceil<Value>); }
    static REALobject Floor(REALobject me) { return CallShowingArgument<N>("Floor", me, &ttmath::Floor<Value>); }
    static REALobject Round(REALobject me) { return CallShowingArgument<N>("Round", me, &ttmath::Round<Value>); }
    static REALobject Sqrt(REALobject me) { return CallShowingArgument<N>("Sqrt", me, &ttmath::Sqrt<Value>); }

    static REALobject SkipFraction(REALobject me)
    {
        return Unfailing(me, "SkipFraction", [](Value & r) { r.SkipFraction(); });
    }
    // A value with the zero or NaN flag comes back as it is.
    static REALobject Frac(REALobject me)
    {
        return Unfailing(me, "Frac", [](Value & r) { r.RemainFraction(); });
    }
    static REALobject GetAbs(REALobject me)
    {
        return Unfailing(me, "GetAbs", [](Value & r) { r.Abs(); });
    }
    // A value with the zero flag keeps its sign; any other flips it, NaN included.
    static REALobject ChangeSign(REALobject me)
    {
        return Unfailing(me, "ChangeSign", [](Value & r) { r.ChangeSign(); });
    }
    static REALobject Operator_Negate(REALobject me)
    {
        return Unfailing(me, "Operator_Negate", [](Value & r) { r.ChangeSign(); });
    }

    // The units bit of the integer part: 1 when it is odd.
    static RBInteger Mod2(REALobject me)
    {
        Trace("Mod2");
        return static_cast<RBInteger>(N::ValueOf(me).Mod2());
    }

    // Exact equality of sign, zero flag, exponent and mantissa; the NaN flag is not looked
    // at, so a nil argument equals a zero receiver.
    static RBBoolean Equals(REALobject me, REALobject other)
    {
        Trace("Equals");
        return N::ValueOf(me) == N::ValueOf(other) ? 1 : 0;
    }

    // -1, 0 or 1 by sign, then by magnitude; a zero-flagged value is below every other
    // magnitude and NaN is not treated apart.
    static RBInteger Operator_Compare(REALobject me, REALobject other)
    {
        Trace("Operator_Compare");
        const Value & r = N::ValueOf(me);
        const Value & a = N::ValueOf(other);
        if (r.IsSign() != a.IsSign())
            return r.IsSign() ? -1 : 1;
        const Value & larger = r.IsSign() ? a : r;
        const Value & smaller = r.IsSign() ? r : a;
        if (larger.GreaterWithoutSignThan(smaller))
            return 1;
        if (larger.SmallerWithoutSignThan(smaller))
            return -1;
        return 0;
    }

private:
    // `name` is both the trace's and the failure's.
    template <class Op>
    static REALobject Binary(REALobject me, REALobject other, const char * name, Op op)
    {
        Trace(name);
        return Guarded([&]() -> REALobject {
            Value result = N::ValueOf(me);
            if (op(result, N::ValueOf(other))) {
                RaiseOverflowException(name, N::Ref(me), N::Ref(other));
                return nullptr;
            }
            return N::NewBigNumberZQT(result);
        });
    }

    template <class Op, class AsNumber>
    static REALobject ByInteger(REALobject me, const char * name, Op op, AsNumber asNumber)
    {
        const char * const operation = "Multiply";
        Trace(name);
        return Guarded([&]() -> REALobject {
            Value result = N::ValueOf(me);
            if (op(result)) {
                Value factor;
                asNumber(factor);
                RaiseOverflowException(operation, N::Ref(me), &factor);
                return nullptr;
            }
            return N::NewBigNumberZQT(result);
        });
    }

    template <class Op>
    static REALobject Unfailing(REALobject me, const char * name, Op op)
    {
        Trace(name);
        return Guarded([&]() -> REALobject {
            Value result = N::ValueOf(me);
            op(result);
            return N::NewBigNumberZQT(result);
        });
    }
};

} // namespace zqt
