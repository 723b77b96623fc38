#pragma once

#include <cmath>

/// The nearest whole number; halves go up. Unlike std::round(), which takes them away from 0.
inline double rounded(double value)
{
    return std::floor(value + 0.5);
}
