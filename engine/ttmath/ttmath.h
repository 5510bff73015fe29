// The numeric core: arbitrary-precision binary floating-point numbers Big<exp, man>,
// with the integer types UInt and Int they are built from. Header-only; it needs
// nothing but the C++ standard library.
#ifndef TTMATH_TTMATH_H
#define TTMATH_TTMATH_H

#include "types.h"
#include "conv.h"
#include "uint.h"
#include "int.h"
#include "big.h"
#include "big_mul_one_word.h"
#include "big_to_string.h"
#include "big_from_string.h"
#include "basic_functions.h"
#include "angles.h"
#include "functions_exp_log.h"
#include "functions_power.h"
#include "functions_root.h"
#include "functions_trig.h"
#include "functions_inverse_trig.h"
#include "functions_hyperbolic.h"

#endif
