// A number class put together: its handlers, its tables made from the shared list of
// rows, and its registration record.
#pragma once

#include "numbers/member_tables.h"
#include "numbers/number_object.h"
#include "plugin/debugging_property.h"
#include "plugin/host_version.h"
#include "plugin/registration.h"

namespace zqt {

template <class Traits>
REALclassDefinition & NumberObject<Traits>::Record()
{
    using N = NumberObject<Traits>;
    static MethodTable methods(NumberMethods<N>(), kName);
    static MethodTable sharedMethods(NumberSharedMethods<N>(), kName);
    static PropertyTable properties(NumberProperties<N>());
    static REALclassDefinition record = [] {
        REALclassDefinition d{};
        d.version = CurrentREALControlVersion;
        d.name = kName;
        d.dataSize = sizeof(NumberData);
        d.destructor = Handler(&Lifecycle<N>::Destructor);
        d.properties = properties.rows();
        d.propertyCount = properties.count();
        d.methods = methods.rows();
        d.methodCount = methods.count();
        d.mFlags = kClassFlags;
        d.sharedProperties = DebuggingSharedProperties;
        d.sharedPropertyCount = 1;
        d.sharedMethods = sharedMethods.rows();
        d.sharedMethodCount = sharedMethods.count();
        return d;
    }();
    return record;
}

} // namespace zqt
