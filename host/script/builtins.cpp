// Functions of the language itself: Str, CStr, Val and Len.
#include "host/framework/framework.h"
#include "host/lang/lexer.h"
#include "host/runtime/conversions.h"
#include "host/runtime/formatting.h"
#include "host/script/interpreter.h"
#include "sdk/encodings.h"

namespace hostsim {

namespace {

const unsigned char kUtf8ContinuationMask = 0xC0;
const unsigned char kUtf8Continuation = 0x80;

} // namespace

bool Interpreter::TryBuiltin(const std::string & name, std::vector<Argument> & args, SourcePosition where, Value & out)
{
    bool str = EqualsIgnoringCase(name, "Str") || EqualsIgnoringCase(name, "CStr");
    bool val = EqualsIgnoringCase(name, "Val");
    bool len = EqualsIgnoringCase(name, "Len");
    if (!str && !val && !len)
        return false;
    if (args.size() != 1)
        throw ScriptError(where, name + " takes one argument");
    const Value & arg = args[0].value;
    if (str) {
        out = Value::AdoptString(TypeKind::String, rt_.NewString(TextForPrint(arg), kREALTextEncodingUTF8));
        return true;
    }
    if (!IsStringKind(arg.kind()) && arg.kind() != TypeKind::Variant)
        throw ScriptError(args[0].where, name + " needs a String, found " + arg.type().Name());
    std::string text = TextOf(ConvertLoosely(rt_, arg.kind() == TypeKind::Variant ? VariantContent(arg.object()) : arg,
                                             TypeKind::String));
    if (val) {
        out = Value::Real(TypeKind::Double, ParseReal(text));
    } else {
        int64_t characters = 0;
        for (char c : text)
            if ((static_cast<unsigned char>(c) & kUtf8ContinuationMask) != kUtf8Continuation)
                ++characters;
        out = Value::Signed(TypeKind::Int64, characters);
    }
    return true;
}

} // namespace hostsim
