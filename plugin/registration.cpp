#include "plugin/registration.h"

#include "plugin/host_services.h"
#include "plugin/host_version.h"

namespace zqt {

namespace {

// Console, web, desktop and iOS targets.
const uint32_t kTargetMask = 0x708;
// Every target but iOS, as newer tables say it.
const uint32_t kTargetsWithoutIOS = 0x308;
// What an older host must not see of that combination: console, web, desktop, all.
const uint32_t kNewerTargetBits = 0x30C;
const uint32_t kAllTargets = 0x4;
// A marker the plugin's own tables may carry; no host knows it.
const uint32_t kPrivateMarker = 0x40000;

template <class Row, uint32_t Row::*Flags>
void FixRows(Row * entries, int64_t count)
{
    if (!entries || count < 1)
        return;
    for (int64_t i = 0; i < count; ++i)
        entries[i].*Flags = FixedFlags(entries[i].*Flags, rbversion_rbversion);
}

} // namespace

uint32_t FixedFlags(uint32_t flags, double hostVersion)
{
    if (hostVersion < kHostKnowsTargetBits && (flags & kTargetMask) == kTargetsWithoutIOS)
        flags = (flags & ~kNewerTargetBits) | kAllTargets;
    if (flags & kPrivateMarker) {
        flags &= ~kPrivateMarker;
        if (hostVersion >= kHostKnowsAllTargetsBit)
            flags |= kAllTargets;
    }
    return flags;
}

void FixFlags(REALmethodDefinition * entries, int64_t count, const char *)
{
    FixRows<REALmethodDefinition, &REALmethodDefinition::mFlags>(entries, count);
}

void FixFlags(REALproperty * entries, int64_t count, const char *)
{
    FixRows<REALproperty, &REALproperty::flags>(entries, count);
}

size_t RoundedDataSize(size_t size)
{
    if (size % kDataSizeGranule == 0)
        return size;
    return (size | (kDataSizeGranule - 1)) + 1;
}

RBInteger MyREALRegisterClass(REALclassDefinition * record)
{
    record->mFlags = FixedFlags(record->mFlags, rbversion_rbversion);
    FixFlags(record->methods, static_cast<int64_t>(record->methodCount), record->name);
    FixFlags(record->sharedMethods, static_cast<int64_t>(record->sharedMethodCount), record->name);
    FixFlags(record->properties, static_cast<int64_t>(record->propertyCount), record->name);
    FixFlags(record->sharedProperties, static_cast<int64_t>(record->sharedPropertyCount), record->name);
    record->dataSize = RoundedDataSize(record->dataSize);
    record->version = CurrentREALControlVersion;
    return REALRegisterClass(record);
}

} // namespace zqt
