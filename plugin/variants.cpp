#include "plugin/variants.h"

#include "plugin/host_services.h"

namespace zqt {

namespace {

// A host class found by name once; a class the host lacks is remembered as none.
struct ClassLookup {
    const char * name;
    bool looked;
    REALclassRef found;

    REALclassRef Find()
    {
        if (!looked) {
            found = REALGetClassRef(name);
            looked = true;
        }
        return found;
    }
};

bool IsOfClass(REALobject o, ClassLookup & lookup)
{
    REALclassRef c = lookup.Find();
    return c && REALObjectIsA(o, c);
}

// The host's entry when it has one, else the variant's property read into a zeroed value.
template <class Proc, class T, class PropertyReader>
T ReadVariant(HostEntry & p, REALobject variant, PropertyReader readProperty, const char * property)
{
    if (auto entry = reinterpret_cast<Proc>(p.Find()))
        return entry(variant);
    T value{};
    readProperty(variant, property, &value);
    return value;
}

} // namespace

RBInteger GetVariantType(REALobject variant)
{
    static FrameworkEntry p{"VarType(value As Variant) As Integer", nullptr};
    static ClassLookup cVariantUInt32{"_VariantUInt32", false, nullptr};
    static ClassLookup cVariantUInt64{"_VariantUInt64", false, nullptr};
    RBInteger type = 0;
    if (auto varType = reinterpret_cast<VarTypeProc>(p.Find()))
        type = varType(variant);
    else
        REALGetPropValueInteger(variant, "Type", &type);
    // The host reports unsigned integers with the signed codes; their classes tell them apart.
    if (type == kVariantTypeInt64 && IsOfClass(variant, cVariantUInt64))
        return kVariantTypeUInt64;
    if (type == kVariantTypeInt32 && IsOfClass(variant, cVariantUInt32))
        return kVariantTypeUInt32;
    return type;
}

int32_t GetVariantInt32(REALobject variant)
{
    static HostEntry p{"VariantToInt32", nullptr};
    return ReadVariant<VariantToInt32Proc, int32_t>(p, variant, &REALGetPropValueInt32, "Int32Value");
}

uint32_t GetVariantUInt32(REALobject variant)
{
    static HostEntry p{"VariantToUInt32", nullptr};
    return ReadVariant<VariantToUInt32Proc, uint32_t>(p, variant, &REALGetPropValueUInt32, "UInt32Value");
}

RBInt64 GetVariantInt64(REALobject variant)
{
    static HostEntry p{"VariantToInt64", nullptr};
    return ReadVariant<VariantToInt64Proc, RBInt64>(p, variant, &REALGetPropValueInt64, "LongValue");
}

RBUInt64 GetVariantUInt64(REALobject variant)
{
    static HostEntry p{"VariantToUInt64", nullptr};
    return ReadVariant<VariantToUInt64Proc, RBUInt64>(p, variant, &REALGetPropValueUInt64, "UInt64Value");
}

float GetVariantSingle(REALobject variant)
{
    static HostEntry p{"VariantToSingle", nullptr};
    return ReadVariant<VariantToSingleProc, float>(p, variant, &REALGetPropValueSingle, "SingleValue");
}

double GetVariantDouble(REALobject variant)
{
    static HostEntry p{"VariantToDouble", nullptr};
    return ReadVariant<VariantToDoubleProc, double>(p, variant, &REALGetPropValueDouble, "DoubleValue");
}

REALstring GetVariantString(REALobject variant)
{
    static HostEntry p{"VariantToString", nullptr};
    return ReadVariant<VariantToStringProc, REALstring>(p, variant, &REALGetPropValueString, "StringValue");
}

} // namespace zqt
