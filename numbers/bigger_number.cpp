// BiggerNumberZQT: 2048-bit mantissa, 512-bit exponent.
#include "numbers/class_traits.h"
#include "numbers/classes.h"
#include "numbers/number_class.h"

namespace zqt {

REALclassDefinition & BiggerNumberRecord()
{
    return NumberObject<BiggerNumberTraits>::Record();
}

} // namespace zqt
