// Handlers for the exact operations: each runs one vector line through the numeric core
// and formats what it produced in the vector's own tokens; the line passes when every
// field equals the expected output.
#ifndef GOLDEN_EXACT_OPS_H
#define GOLDEN_EXACT_OPS_H

#include <map>
#include <string>
#include <vector>

#include "outcome.h"
#include "vector_line.h"

namespace golden {

template<class Big>
struct ExactOps {
    typedef Outputs (*Compute)(const Line &);

    // Runs the line and compares field for field.
    template<Compute compute>
    static Outcome Exact(const Line & l)
    {
        return CompareOutputs(l, compute(l));
    }

    static Big In(const Line & l, std::size_t i)
    {
        if (i >= l.inputs.size())
            throw std::runtime_error("missing input " + std::to_string(i + 1));
        return ParseValue<Big>(l.inputs[i]);
    }

    static Outputs CodeAndValue(ttmath::uint c, const Big & x) { return {FormatCode("c:", c), FormatValue(x)}; }
    static Outputs ErrorAndValue(ttmath::ErrorCode e, const Big & x)
    {
        return {FormatCode("e:", static_cast<std::uint64_t>(e)), FormatValue(x)};
    }

    template<ttmath::uint (Big::*op)(const Big &, bool)>
    static Outputs Rounded(const Line & l)
    {
        Big a = In(l, 0);
        ttmath::uint c = (a.*op)(In(l, 1), ParseBool(l.inputs.at(2)));
        return CodeAndValue(c, a);
    }

    static Outputs Add(const Line & l)
    {
        Big a = In(l, 0);
        ttmath::uint c = a.Add(In(l, 1), ParseBool(l.inputs.at(2)));
        return CodeAndValue(c, a);
    }

    template<ttmath::uint (Big::*op)(Big)>
    static Outputs ByValue(const Line & l)
    {
        Big a = In(l, 0);
        ttmath::uint c = (a.*op)(In(l, 1));
        return CodeAndValue(c, a);
    }

    template<void (Big::*op)()>
    static Outputs InPlace(const Line & l)
    {
        Big a = In(l, 0);
        (a.*op)();
        return {FormatValue(a)};
    }

    static Outputs Mod(const Line & l)
    {
        Big a = In(l, 0);
        ttmath::uint c = a.Mod(In(l, 1));
        return CodeAndValue(c, a);
    }

    static Outputs Round(const Line & l)
    {
        Big a = In(l, 0);
        ttmath::uint c = a.Round();
        return CodeAndValue(c, a);
    }

    static Outputs MulInt(const Line & l)
    {
        Big a = In(l, 0);
        ttmath::uint c = a.MulInt(ParseSigned(l.inputs.at(1)));
        return CodeAndValue(c, a);
    }

    static Outputs MulUInt(const Line & l)
    {
        Big a = In(l, 0);
        ttmath::uint c = a.MulUInt(ParseUnsigned(l.inputs.at(1)));
        return CodeAndValue(c, a);
    }

    static Outputs Compare(const Line & l)
    {
        Big a = In(l, 0), b = In(l, 1);
        return {FormatBool(a < b), FormatBool(a > b), FormatBool(a == b), FormatBool(a.SmallerWithoutSignThan(b)),
                FormatBool(a.GreaterWithoutSignThan(b)), FormatBool(a.EqualWithoutSign(b))};
    }

    static Outputs IsInteger(const Line & l) { return {FormatBool(In(l, 0).IsInteger())}; }

    static Outputs FromInt(const Line & l)
    {
        Big x;
        ttmath::uint c = x.FromInt(ParseSigned(l.inputs.at(0)));
        return CodeAndValue(c, x);
    }

    static Outputs FromUInt(const Line & l)
    {
        Big x;
        ttmath::uint c = x.FromUInt(ParseUnsigned(l.inputs.at(0)));
        return CodeAndValue(c, x);
    }

    static Outputs FromDouble(const Line & l)
    {
        Big x;
        ttmath::uint c = x.FromDouble(ParseDouble(l.inputs.at(0)));
        return CodeAndValue(c, x);
    }

    static Outputs ToInt(const Line & l)
    {
        ttmath::sint v;
        ttmath::uint c = In(l, 0).ToInt(v);
        return {FormatCode("c:", c), FormatSigned(v)};
    }

    static Outputs ToUInt(const Line & l)
    {
        ttmath::uint v;
        ttmath::uint c = In(l, 0).ToUInt(v);
        return {FormatCode("c:", c), FormatUnsigned(v)};
    }

    static Outputs ToDouble(const Line & l)
    {
        double d;
        Big a = In(l, 0);
        ttmath::uint c = a.ToDouble(d);
        Outputs out = {FormatCode("c:", c), FormatDouble(d)};
        double plain = a.ToDouble();
        if (std::memcmp(&plain, &d, sizeof d) != 0)
            out.push_back(FormatDouble(plain));
        return out;
    }

    template<Big (*fn)(const Big &, ttmath::ErrorCode *)>
    static Outputs Angle(const Line & l)
    {
        ttmath::ErrorCode err = ttmath::err_ok;
        Big r = fn(In(l, 0), &err);
        return ErrorAndValue(err, r);
    }

    template<Big (*fn1)(const Big &, ttmath::ErrorCode *),
             Big (*fn3)(const Big &, const Big &, const Big &, ttmath::ErrorCode *)>
    static Outputs Angle1or3(const Line & l)
    {
        ttmath::ErrorCode err = ttmath::err_ok;
        Big r = l.inputs.size() == 3 ? fn3(In(l, 0), In(l, 1), In(l, 2), &err) : fn1(In(l, 0), &err);
        return ErrorAndValue(err, r);
    }

    // setX on a fresh object, or on a copy of the input
    template<void (Big::*setter)()>
    static Outputs Setter(const Line & l)
    {
        Big x;
        if (!l.inputs.empty())
            x = In(l, 0);
        (x.*setter)();
        return {FormatValue(x)};
    }

    static const HandlerMap & Table()
    {
        using namespace ttmath;
        static const HandlerMap table = {
            {"add", &Exact<&Add>},
            {"sub", &Exact<&Rounded<&Big::Sub>>},
            {"mul", &Exact<&Rounded<&Big::Mul>>},
            {"div", &Exact<&Rounded<&Big::Div>>},
            {"mulint", &Exact<&MulInt>},
            {"muluint", &Exact<&MulUInt>},
            {"mod", &Exact<&Mod>},
            {"round", &Exact<&Round>},
            {"skipfraction", &Exact<&InPlace<&Big::SkipFraction>>},
            {"remainfraction", &Exact<&InPlace<&Big::RemainFraction>>},
            {"changesign", &Exact<&InPlace<&Big::ChangeSign>>},
            {"abs", &Exact<&InPlace<&Big::Abs>>},
            {"sgn", &Exact<&InPlace<&Big::Sgn>>},
            {"bitand", &Exact<&ByValue<&Big::BitAnd>>},
            {"bitor", &Exact<&ByValue<&Big::BitOr>>},
            {"bitxor", &Exact<&ByValue<&Big::BitXor>>},
            {"cmp", &Exact<&Compare>},
            {"isinteger", &Exact<&IsInteger>},
            {"fromint", &Exact<&FromInt>},
            {"fromuint", &Exact<&FromUInt>},
            {"fromdouble", &Exact<&FromDouble>},
            {"toint", &Exact<&ToInt>},
            {"touint", &Exact<&ToUInt>},
            {"todouble", &Exact<&ToDouble>},
            {"degtodeg", &Exact<&AngleDms<&DegToDeg<Big>>>},
            {"degtorad", &Exact<&Angle1or3<&DegToRad<Big>, &DegToRad<Big>>>},
            {"degtograd", &Exact<&Angle1or3<&DegToGrad<Big>, &DegToGrad<Big>>>},
            {"gradtodeg", &Exact<&Angle<&GradToDeg<Big>>>},
            {"gradtorad", &Exact<&Angle<&GradToRad<Big>>>},
            {"radtograd", &Exact<&Angle<&RadToGrad<Big>>>},
            {"radtodeg", &Exact<&Angle<&RadToDeg<Big>>>},
            {"setpi", &Exact<&Setter<&Big::SetPi>>},
            {"set05pi", &Exact<&Setter<&Big::Set05Pi>>},
            {"set2pi", &Exact<&Setter<&Big::Set2Pi>>},
            {"sete", &Exact<&Setter<&Big::SetE>>},
            {"setln2", &Exact<&Setter<&Big::SetLn2>>},
            {"setln10", &Exact<&Setter<&Big::SetLn10>>},
            {"setmin", &Exact<&Setter<&Big::SetMin>>},
            {"setmax", &Exact<&Setter<&Big::SetMax>>},
            {"setzero", &Exact<&Setter<&Big::SetZero>>},
            {"setone", &Exact<&Setter<&Big::SetOne>>},
            {"setnan", &Exact<&Setter<&Big::SetNan>>},
            {"set05", &Exact<&Setter<&Big::Set05>>},
        };
        return table;
    }

    template<Big (*fn)(const Big &, const Big &, const Big &, ttmath::ErrorCode *)>
    static Outputs AngleDms(const Line & l)
    {
        ttmath::ErrorCode err = ttmath::err_ok;
        Big r = fn(In(l, 0), In(l, 1), In(l, 2), &err);
        return ErrorAndValue(err, r);
    }
};

} // namespace golden

#endif
