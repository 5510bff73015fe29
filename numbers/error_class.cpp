// BigNumberErrorExceptionZQT: the exception of failed number operations, a subclass of
// the host's RuntimeException that adds nothing but its identity.
#include "numbers/classes.h"
#include "numbers/operation_error.h"
#include "plugin/exceptions.h"
#include "plugin/host_version.h"
#include "plugin/registration.h"

namespace zqt {

REALclassDefinition & ErrorExceptionRecord()
{
    static REALclassDefinition record = [] {
        REALclassDefinition d{};
        d.version = CurrentREALControlVersion;
        d.name = kErrorExceptionClass;
        d.superName = kRuntimeExceptionClass;
        d.mFlags = kClassFlags;
        return d;
    }();
    return record;
}

} // namespace zqt
