// The registration records of the plugin's classes, in the order they are registered.
#pragma once

#include "sdk/records.h"

namespace zqt {

REALclassDefinition & BigNumberRecord();
REALclassDefinition & BiggerNumberRecord();
REALclassDefinition & ConversionRecord();
REALclassDefinition & ErrorExceptionRecord();

} // namespace zqt
