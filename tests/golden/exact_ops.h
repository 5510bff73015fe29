// Handlers for the exact operations: each runs one vector line through the numeric core
// and formats what it produced in the vector's own tokens, to be compared field for
// field with the expected outputs.
#ifndef GOLDEN_EXACT_OPS_H
#define GOLDEN_EXACT_OPS_H

#include <map>
#include <string>
#include <vector>

#include "vector_line.h"

namespace golden {

typedef std::vector<std::string> Outputs;

template<class Big>
struct ExactOps {
    typedef Outputs (*Handler)(const Line &);

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

    static const std::map<std::string, Handler> & Table()
    {
        using namespace ttmath;
        static const std::map<std::string, Handler> table = {
            {"add", &Add},
            {"sub", &Rounded<&Big::Sub>},
            {"mul", &Rounded<&Big::Mul>},
            {"div", &Rounded<&Big::Div>},
            {"mulint", &MulInt},
            {"muluint", &MulUInt},
            {"mod", &Mod},
            {"round", &Round},
            {"skipfraction", &InPlace<&Big::SkipFraction>},
            {"remainfraction", &InPlace<&Big::RemainFraction>},
            {"changesign", &InPlace<&Big::ChangeSign>},
            {"abs", &InPlace<&Big::Abs>},
            {"sgn", &InPlace<&Big::Sgn>},
            {"bitand", &ByValue<&Big::BitAnd>},
            {"bitor", &ByValue<&Big::BitOr>},
            {"bitxor", &ByValue<&Big::BitXor>},
            {"cmp", &Compare},
            {"isinteger", &IsInteger},
            {"fromint", &FromInt},
            {"fromuint", &FromUInt},
            {"fromdouble", &FromDouble},
            {"toint", &ToInt},
            {"touint", &ToUInt},
            {"todouble", &ToDouble},
            {"degtodeg", &AngleDms<&DegToDeg<Big>>},
            {"degtorad", &Angle1or3<&DegToRad<Big>, &DegToRad<Big>>},
            {"degtograd", &Angle1or3<&DegToGrad<Big>, &DegToGrad<Big>>},
            {"gradtodeg", &Angle<&GradToDeg<Big>>},
            {"gradtorad", &Angle<&GradToRad<Big>>},
            {"radtograd", &Angle<&RadToGrad<Big>>},
            {"radtodeg", &Angle<&RadToDeg<Big>>},
            {"setpi", &Setter<&Big::SetPi>},
            {"set05pi", &Setter<&Big::Set05Pi>},
            {"set2pi", &Setter<&Big::Set2Pi>},
            {"sete", &Setter<&Big::SetE>},
            {"setln2", &Setter<&Big::SetLn2>},
            {"setln10", &Setter<&Big::SetLn10>},
            {"setmin", &Setter<&Big::SetMin>},
            {"setmax", &Setter<&Big::SetMax>},
            {"setzero", &Setter<&Big::SetZero>},
            {"setone", &Setter<&Big::SetOne>},
            {"setnan", &Setter<&Big::SetNan>},
            {"set05", &Setter<&Big::Set05>},
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
