// Handlers for the elementary functions. Their lines are judged against the correctly
// rounded reference R and the library's result T (code and value), by four rules:
//   1. R exists, T succeeded: we succeed with R ("exact"); one ulp from R passes but is
//      counted ("one ulp").
//   2. R exists, T failed: we fail with T's code ("library failure kept") or succeed
//      with R ("library failure replaced"). Where the failure is a rule users rely on
//      (sinh, cosh, tanh, coth beyond the range of e^|x|), failing is required.
//   3. R is none, T succeeded: we match T exactly ("no reference, library value"),
//      except that a NaN returned with code 0, or a sin/cos/tan/cot argument beyond the
//      reduction limit, must be a failure with code 8 ("no reference, failure").
//   4. R is none, T failed: we fail with T's code ("no reference, failure").
// ATan and ACot have no error code: their failure is a NaN value.
#ifndef GOLDEN_FUNCTION_OPS_H
#define GOLDEN_FUNCTION_OPS_H

#include <string>

#include "outcome.h"
#include "vector_line.h"

namespace golden {

template<class Big>
struct FunctionOps {
    // What a call produced: its code (c: or e:) and value.
    struct Result {
        std::string code; // "c:0", "e:8", ...
        Big value;
    };
    typedef Result (*Call)(const Line &);

    static Big In(const Line & l, std::size_t i)
    {
        if (i >= l.inputs.size())
            throw std::runtime_error("missing input " + std::to_string(i + 1));
        return ParseValue<Big>(l.inputs[i]);
    }

    static Result FromError(ttmath::ErrorCode e, const Big & v)
    {
        return {FormatCode("e:", static_cast<std::uint64_t>(e)), v};
    }

    template<Big (*fn)(const Big &, ttmath::ErrorCode *)>
    static Result Unary(const Line & l)
    {
        ttmath::ErrorCode e = ttmath::err_ok;
        Big r = fn(In(l, 0), &e);
        return FromError(e, r);
    }

    template<Big (*fn)(Big, ttmath::ErrorCode *)>
    static Result UnaryByValue(const Line & l)
    {
        ttmath::ErrorCode e = ttmath::err_ok;
        Big r = fn(In(l, 0), &e);
        return FromError(e, r);
    }

    // ATan and ACot report no code; a NaN result is their failure.
    template<Big (*fn)(const Big &)>
    static Result NoCode(const Line & l)
    {
        return {FormatCode("e:", 0), fn(In(l, 0))};
    }

    template<Big (*fn)(Big)>
    static Result NoCodeByValue(const Line & l)
    {
        return {FormatCode("e:", 0), fn(In(l, 0))};
    }

    static Result Log(const Line & l)
    {
        ttmath::ErrorCode e = ttmath::err_ok;
        Big r = ttmath::Log(In(l, 0), In(l, 1), &e);
        return FromError(e, r);
    }

    static Result Root(const Line & l)
    {
        ttmath::ErrorCode e = ttmath::err_ok;
        Big r = ttmath::Root(In(l, 0), In(l, 1), &e);
        return FromError(e, r);
    }

    static Result Sqrt(const Line & l)
    {
        Big a = In(l, 0);
        ttmath::uint c = a.Sqrt();
        return {FormatCode("c:", c), a};
    }

    static Result Pow(const Line & l)
    {
        Big a = In(l, 0);
        ttmath::uint c = a.Pow(In(l, 1));
        return {FormatCode("c:", c), a};
    }

    static bool Succeeded(const std::string & code) { return code == "c:0" || code == "e:0"; }

    // The neighbours of a normalised non-zero value, one ulp away.
    static Big Neighbour(const Big & r, bool up)
    {
        Big x(r);
        const bool away = up != x.IsSign();
        const std::size_t man = x.mantissa.Size();
        if (away) {
            if (x.mantissa.AddOne()) {
                x.mantissa.table[man - 1] = TTMATH_UINT_HIGHEST_BIT;
                x.exponent.AddOne();
            }
        } else if (x.mantissa.IsOnlyTheHighestBitSet()) {
            x.mantissa.SetMax();
            x.exponent.SubOne();
        } else {
            x.mantissa.SubOne();
        }
        return x;
    }

    static bool SameWords(const Big & a, const Big & b) { return FormatValue(a) == FormatValue(b); }

    // Failing is required for sinh, cosh, tanh and coth wherever the library failed on
    // large arguments: that is their overflow rule (e^|x| or e^-|x| out of range).
    // Other failures (tiny coth arguments, odd words) are its own rounding.
    static bool FailureRequired(const Line & l)
    {
        if (l.op != "sinh" && l.op != "cosh" && l.op != "tanh" && l.op != "coth")
            return false;
        Big x = In(l, 0), large;
        large.SetOne();
        large.exponent.AddInt(x.exponent.Size() * 64 - 3);
        return !x.IsNan() && !x.IsZero() && x.mantissa.IsTheHighestBitSet() && !x.SmallerWithoutSignThan(large);
    }

    // sin, cos, tan and cot fail beyond the reduction limit.
    static bool BeyondReduction(const Line & l)
    {
        if (l.op != "sin" && l.op != "cos" && l.op != "tan" && l.op != "cot")
            return false;
        Big x = In(l, 0);
        if (x.IsNan() || x.IsZero())
            return false;
        Big limit;
        limit.SetOne();
        limit.exponent.AddInt(ttmath::wide::trig_reduction_limit_bits);
        return !x.SmallerWithoutSignThan(limit);
    }

    template<Call call>
    static Outcome Judge(const Line & l)
    {
        Outcome o;
        if (l.outputs.size() != 2)
            throw std::runtime_error("expected a code and a value");
        const std::string & t_code = l.outputs[0];
        const bool t_ok = Succeeded(t_code);
        const Big t_value = ParseValue<Big>(l.outputs[1]);
        const bool t_nan = t_value.IsNan();
        const bool no_code = l.op == "atan" || l.op == "acot";
        Result got = call(l);
        const bool ok = Succeeded(got.code) && !(no_code && got.value.IsNan());
        const std::string shown = got.code + "\t" + FormatValue(got.value);
        auto fail = [&](const std::string & why) {
            o.pass = false;
            o.detail = why + "\n    got      " + shown;
        };
        if (l.ref.empty())
            throw std::runtime_error("function line without ref:");
        if (l.ref != "none") {
            const Big r = ParseValue<Big>(l.ref);
            if (!ok) {
                if (t_ok)
                    fail("rule 1: expected success with ref " + l.ref);
                else if (got.code == t_code)
                    o.category = "library failure kept";
                else
                    fail("rule 2: expected " + t_code + " or ref " + l.ref);
                return o;
            }
            bool exact = SameWords(got.value, r);
            bool near = !exact && !r.IsZero() && (SameWords(got.value, Neighbour(r, true)) ||
                                                  SameWords(got.value, Neighbour(r, false)));
            if (!exact && !near) {
                fail("rule " + std::string(t_ok ? "1" : "2") + ": expected ref " + l.ref);
                return o;
            }
            if (!t_ok && FailureRequired(l)) {
                fail("rule 2: this failure is the library's rule (" + t_code + ")");
                return o;
            }
            o.category = t_ok ? (exact ? "exact" : "one ulp")
                              : (exact ? "library failure replaced" : "library failure replaced, one ulp");
            return o;
        }
        // no reference
        const bool must_fail = !t_ok || (t_nan && !no_code) || BeyondReduction(l);
        if (no_code && t_nan) {
            if (got.value.IsNan())
                o.category = "no reference, failure";
            else
                fail("rule 3: expected a NaN value");
            return o;
        }
        if (must_fail) {
            const std::string want = t_ok ? "e:8" : t_code;
            if (!ok && got.code == want)
                o.category = "no reference, failure";
            else
                fail("rule " + std::string(t_ok ? "3" : "4") + ": expected failure " + want);
            return o;
        }
        if (got.code == t_code && SameWords(got.value, t_value))
            o.category = "no reference, library value";
        else
            fail("rule 3: expected " + t_code + "\t" + l.outputs[1]);
        return o;
    }

    static const HandlerMap & Table()
    {
        using namespace ttmath;
        static const HandlerMap table = {
            {"sqrt", &Judge<&Sqrt>},
            {"pow", &Judge<&Pow>},
            {"root", &Judge<&Root>},
            {"ln", &Judge<&Unary<&ttmath::Ln<Big>>>},
            {"log", &Judge<&Log>},
            {"exp", &Judge<&Unary<&ttmath::Exp<Big>>>},
            {"sin", &Judge<&UnaryByValue<&ttmath::Sin<Big>>>},
            {"cos", &Judge<&UnaryByValue<&ttmath::Cos<Big>>>},
            {"tan", &Judge<&Unary<&ttmath::Tan<Big>>>},
            {"cot", &Judge<&Unary<&ttmath::Cot<Big>>>},
            {"asin", &Judge<&UnaryByValue<&ttmath::ASin<Big>>>},
            {"acos", &Judge<&Unary<&ttmath::ACos<Big>>>},
            {"atan", &Judge<&NoCodeByValue<&ttmath::ATan<Big>>>},
            {"acot", &Judge<&NoCode<&ttmath::ACot<Big>>>},
            {"sinh", &Judge<&Unary<&ttmath::Sinh<Big>>>},
            {"cosh", &Judge<&Unary<&ttmath::Cosh<Big>>>},
            {"tanh", &Judge<&Unary<&ttmath::Tanh<Big>>>},
            {"coth", &Judge<&Unary<&ttmath::Coth<Big>>>},
            {"asinh", &Judge<&Unary<&ttmath::ASinh<Big>>>},
            {"acosh", &Judge<&Unary<&ttmath::ACosh<Big>>>},
            {"atanh", &Judge<&Unary<&ttmath::ATanh<Big>>>},
            {"acoth", &Judge<&Unary<&ttmath::ACoth<Big>>>},
        };
        return table;
    }
};

} // namespace golden

#endif
