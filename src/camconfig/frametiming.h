#pragma once

#include <cstdint>
#include <optional>

/// The times of a frame as the camera counts them, in lines and pixel clocks, and in microseconds. Products
/// that 64 bits cannot hold count as the end of the type.
namespace ZetoGui {

struct LineTiming
{
    int64_t lineTime = 0;     ///< pixel clocks of one line
    int64_t pixelClock = 160; ///< MHz
};

struct Exposure
{
    int64_t lines = 0;
    int64_t clocks = 0; ///< pixel clocks beyond the lines
};

/// Rounded by adding a half and truncating, also when negative. 0 without a pixel clock.
int64_t linesToMicroseconds(int64_t lines, const LineTiming& timing);
/// Rounded as linesToMicroseconds(). 0 without a line time.
int64_t microsecondsToLines(int64_t microseconds, const LineTiming& timing);

/// In microseconds, truncated. 0 without a pixel clock.
int64_t exposureTime(const Exposure& exposure, const LineTiming& timing);
/// As many whole lines as there are in \a microseconds, and the rest in clocks; what is beyond \a maximum is
/// cut off. None without a line time.
std::optional<Exposure> exposureOfTime(int64_t microseconds, const LineTiming& timing,
                                       const Exposure& maximum);

} // namespace ZetoGui
