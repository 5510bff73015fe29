#include "text/conversion_class.h"

#include "numbers/classes.h"
#include "plugin/host_version.h"
#include "plugin/registration.h"

namespace zqt {

REALclassDefinition & ConversionRecord()
{
    static REALclassDefinition record = [] {
        REALclassDefinition d{};
        d.version = CurrentREALControlVersion;
        d.name = "BigNumberConversionZQT";
        d.dataSize = sizeof(ConversionData);
        d.mFlags = kClassFlags;
        return d;
    }();
    return record;
}

} // namespace zqt
