#pragma once

#include <cstdint>

/// The digital gain, which a camera keeps as a power of two and a fine part in steps of 1/64.
namespace ZetoGui {

struct DigitalGain
{
    int64_t coarse = 0; ///< exponent of two
    int64_t fine = 0;   ///< 1/64 each

    double factor() const;
    /// How much one more step of the fine part adds.
    double step() const;

    bool operator==(const DigitalGain& other) const { return coarse == other.coarse && fine == other.fine; }
    bool operator!=(const DigitalGain& other) const { return !(*this == other); }
};

/// What a camera can be set to; both ends included.
struct DigitalGainRange
{
    DigitalGain minimum;
    DigitalGain maximum;

    /// The setting nearest to \a factor.
    DigitalGain nearest(double factor) const;
    /// As nearest(), but at least one step away from \a present in the direction of \a factor, as long as
    /// there is one: a small step of a slider is not lost.
    DigitalGain towards(double factor, const DigitalGain& present) const;

private:
    DigitalGain limited(DigitalGain gain) const;
};

} // namespace ZetoGui
