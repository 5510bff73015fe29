// Compiled on its own with only the engine folder on the include path.
#include <ttmath/ttmath.h>

int main()
{
    ttmath::Big<1, 4> a, b;
    a.SetPi();
    b.SetE();
    a.Mul(b);
    ttmath::Big<8, 32> c;
    c.SetLn2();
    return a.IsNan() || c.IsNan();
}
