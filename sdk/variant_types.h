// Type codes that VarType reports for a variant's content.
#pragma once

#include <cstdint>

enum : int32_t {
    kVariantTypeNil = 0,
    kVariantTypeInt32 = 2,    // also the smaller and the unsigned 32-bit integers
    kVariantTypeInt64 = 3,    // signed or unsigned
    kVariantTypeSingle = 4,
    kVariantTypeDouble = 5,
    kVariantTypeCurrency = 6,
    kVariantTypeDate = 7,
    kVariantTypeString = 8,
    kVariantTypeObject = 9,
    kVariantTypeBoolean = 11,
    kVariantTypeColor = 16,
    kVariantTypeCString = 18,
    kVariantTypeWString = 19,
    kVariantTypePString = 20,
    kVariantTypeCFStringRef = 21,
    kVariantTypeWindowPtr = 22,
    kVariantTypeOSType = 23,
    kVariantTypePtr = 26,
    kVariantTypeStructure = 36,
    kVariantTypeText = 37,
    kVariantTypeDateTime = 38,
    kVariantTypeArrayFlag = 4096,
};
