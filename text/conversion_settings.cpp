#include "text/conversion_settings.h"

#include <string>

#include "plugin/exceptions.h"
#include "plugin/host_strings.h"
#include "text/conversion_class.h"

namespace zqt {

namespace {

const char * const kNilConversionStart = "The parameter Conversion to method ";
const char * const kNilConversionEnd = " is nil.";

} // namespace

ttmath::uint SeparatorChar(REALstring s)
{
    rbText text(s);
    const signed char first = static_cast<signed char>(text.GetASCII()[0]);
    return static_cast<ttmath::uint>(static_cast<ttmath::sint>(first));
}

bool GetConv(REALobject conversion, ttmath::Conv & target, const char * methodName)
{
    if (!conversion) {
        std::string message = std::string(kNilConversionStart) + methodName + kNilConversionEnd;
        RaiseException(kNilObjectExceptionClass, message.c_str());
        return false;
    }
    const ConversionData & d = ConversionOf(conversion);
    target.base = static_cast<ttmath::uint>(d.base);
    target.scient = d.scientific.value != 0;
    target.scient_from = d.scientificFrom;
    target.base_round = d.baseRound.value != 0;
    target.round = d.round;
    target.trim_zeroes = d.trimZeroes.value != 0;
    target.comma = SeparatorChar(d.comma);
    target.comma2 = SeparatorChar(d.comma2);
    target.group = SeparatorChar(d.group1);
    target.group2 = SeparatorChar(d.group2);
    target.group_digits = static_cast<ttmath::uint>(d.groupDigits);
    return true;
}

} // namespace zqt
