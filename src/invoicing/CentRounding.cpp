#include "CentRounding.h"

#include <cmath>

double CentRounding::halfUp(double amount)
{
    return std::trunc(amount * 100.0 + 0.5) / 100.0;
}
