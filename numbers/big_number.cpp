// BigNumberZQT: 256-bit mantissa, 64-bit exponent.
#include "numbers/class_traits.h"
#include "numbers/classes.h"
#include "numbers/number_class.h"

namespace zqt {

REALclassDefinition & BigNumberRecord()
{
    return NumberObject<BigNumberTraits>::Record();
}

} // namespace zqt
