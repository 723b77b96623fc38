#pragma once

#include <QString>

namespace ZetoGui {

// What follows from the settings of a pulse generator, as the dialog shows it. Times are in microseconds.

/// How long no pulse is given in each period.
inline QString pulseDelayText(int period, int width)
{
    return QString::number(qint64(period) - width);
}

/// Pulses in a second, 0 without a period.
inline QString pulseFrequencyText(int period)
{
    return QString::number(period == 0 ? 0.0 : 1e6 / period, 'f', 6);
}

} // namespace ZetoGui
