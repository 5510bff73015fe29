#include "text/conversion_class.h"

#include <cstddef>

#include "numbers/classes.h"
#include "plugin/handler_guard.h"
#include "plugin/host_strings.h"
#include "plugin/host_version.h"
#include "plugin/registration.h"
#include "sdk/encodings.h"
#include "sdk/flags.h"

namespace zqt {

namespace {

// Defaults of a new object.
const RBInteger kDefaultBase = 10;
const RBInteger kDefaultScientificFrom = 15;
const RBInteger kNoRounding = -1;
const RBInteger kDefaultGroupDigits = 3;
const char kDefaultComma[] = ".";

void Store(REALstring & slot, REALstring value)
{
    REALstring old = slot;
    slot = value;
    if (old)
        REALUnlockString(old);
}

// Sets every setting to its default; a string the slot held before is released.
void Constructor(REALobject me)
{
    Guarded([&] {
        ConversionData & d = ConversionOf(me);
        d.base = kDefaultBase;
        d.scientific = BooleanSlot{};
        d.scientificFrom = kDefaultScientificFrom;
        d.baseRound = BooleanSlot{1, {}};
        d.round = kNoRounding;
        d.trimZeroes = BooleanSlot{1, {}};
        Store(d.comma, REALBuildUnicodeString(kDefaultComma, sizeof kDefaultComma - 1, kREALTextEncodingASCII));
        Store(d.comma2, nullptr);
        Store(d.group1, nullptr);
        Store(d.group2, nullptr);
        d.groupDigits = kDefaultGroupDigits;
    });
}

// Releases the strings, in the order Group1, Group2, Comma, Comma2.
void Destructor(REALobject me)
{
    Guarded([&] {
        ConversionData & d = ConversionOf(me);
        for (REALstring * slot : {&d.group1, &d.group2, &d.comma, &d.comma2})
            Store(*slot, nullptr);
    });
}

#define FIELD(name, type, field)                                                                        \
    {                                                                                                   \
        nullptr, name, type, kPropertyFlags, REALstandardGetter, REALstandardSetter,                    \
            static_cast<int32_t>(offsetof(ConversionData, field)), nullptr, 0, nullptr, 0, nullptr      \
    }

REALproperty gProperties[kConversionSlots] = {
    FIELD("Base", "Integer", base),
    FIELD("Scientific", "Boolean", scientific),
    FIELD("ScientificFrom", "Integer", scientificFrom),
    FIELD("BaseRound", "Boolean", baseRound),
    FIELD("Round", "Integer", round),
    FIELD("TrimZeroes", "Boolean", trimZeroes),
    FIELD("Comma", "String", comma),
    FIELD("Comma2", "String", comma2),
    FIELD("Group1", "String", group1),
    FIELD("Group2", "String", group2),
    FIELD("GroupDigits", "Integer", groupDigits),
};
#undef FIELD

REALmethodDefinition gMethods[] = {
    {reinterpret_cast<REALproc>(&Constructor), nullptr, "Constructor", kMemberFlags, 0, nullptr},
};

} // namespace

REALclassDefinition & ConversionRecord()
{
    static REALclassDefinition record = [] {
        REALclassDefinition d{};
        d.version = CurrentREALControlVersion;
        d.name = kConversionClass;
        d.dataSize = sizeof(ConversionData);
        d.destructor = reinterpret_cast<REALproc>(&Destructor);
        d.properties = gProperties;
        d.propertyCount = kConversionSlots;
        d.methods = gMethods;
        d.methodCount = sizeof gMethods / sizeof gMethods[0];
        d.mFlags = kClassFlags;
        return d;
    }();
    return record;
}

ConversionData & ConversionOf(REALobject conversion)
{
    return *reinterpret_cast<ConversionData *>(reinterpret_cast<char *>(conversion) + ConversionRecord().forSystemUse);
}

} // namespace zqt
