#pragma once

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <type_traits>

/// Arithmetic on the values that a spin box or slider steps through: minimum, minimum + step, ... maximum.
/// It holds for the whole range of the integer types and of double: nothing overflows, a sum or product that
/// the type cannot hold is std::nullopt. Infinite doubles are no overflow, they compare as any other value.
namespace StepGrid {

template <typename T>
std::optional<T> sum(T a, T b)
{
    if constexpr (std::is_integral_v<T>) {
        using Limits = std::numeric_limits<T>;
        if (b > 0 ? a > Limits::max() - b : a < Limits::min() - b)
            return std::nullopt;
    }
    return a + b;
}

template <typename T>
std::optional<T> product(T a, T b)
{
    if constexpr (std::is_integral_v<T>) {
        using Limits = std::numeric_limits<T>;
        if (a > 0 && (b > 0 ? a > Limits::max() / b : b < Limits::min() / a))
            return std::nullopt;
        if (a < 0 && (b > 0 ? a < Limits::min() / b : b < Limits::max() / a))
            return std::nullopt;
    }
    return a * b;
}

/// \a value moved by \a count steps, whatever the range.
template <typename T>
std::optional<T> stepped(T value, T step, int count)
{
    const std::optional<T> distance = product<T>(step, count);
    return distance ? sum(value, *distance) : std::nullopt;
}

/// As stepped(), but a value beyond one end of the range becomes the other end.
template <typename T>
T steppedAround(T value, T step, int count, T minimum, T maximum)
{
    const std::optional<T> target = stepped(value, step, count);
    if (!target)
        return (step > 0) == (count > 0) ? minimum : maximum;
    if (*target < minimum)
        return maximum;
    return *target > maximum ? minimum : *target;
}

/// What is left of the way from \a minimum to \a value after whole steps: negative below the minimum.
template <typename T>
T remainder(T value, T minimum, T step)
{
    if constexpr (std::is_integral_v<T>) {
        using Unsigned = std::make_unsigned_t<T>;
        const auto from = static_cast<Unsigned>(std::min(value, minimum));
        const auto to = static_cast<Unsigned>(std::max(value, minimum));
        const auto rest = static_cast<T>((to - from) % static_cast<Unsigned>(step));
        return value < minimum ? -rest : rest;
    } else {
        T wholeSteps = 0;
        return std::modf((value - minimum) / step, &wholeSteps) * step;
    }
}

/// \a value moved to the nearest value of the grid and limited to \a maximum. Both ends of the range are
/// kept, on the grid or not, and so is every value when \a step is not positive, since there is no grid then.
/// Of two equally near values the upper is taken; an odd integer step already rounds up just below its
/// middle.
template <typename T>
T snapped(T value, T minimum, T maximum, T step)
{
    if (value == minimum || value == maximum || !(step > 0))
        return std::min(value, maximum);
    const T rest = remainder(value, minimum, step);
    const T below = value - rest;
    if (rest == 0 || rest < step / 2)
        return std::min(below, maximum);
    return std::min(sum(below, step).value_or(maximum), maximum);
}

} // namespace StepGrid
