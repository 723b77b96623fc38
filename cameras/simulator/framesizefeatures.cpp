#include "camerafeatures.h"

#include <nodemapbuilder.h>

using namespace ZetoNodeMap;

namespace ZetoSimulator {
namespace {

constexpr int64_t sensorWidth = 4096;
constexpr int64_t sensorHeight = 3072;

/// One direction of a frame: its size and offset share the sensor.
void addExtent(NodeMapBuilder& b, const std::string& size, const std::string& offset, int64_t whole,
               int64_t step)
{
    b.integer(size)
        .in("FrameSize")
        .unit("px")
        .limits(4 * step, restOf(whole, offset))
        .increment(step)
        .lockedIf("AcquisitionActive")
        .value(whole)
        .valueAt({1}, whole / 2);
    b.integer(offset).in("FrameSize").unit("px").limits(0, restOf(whole, size)).increment(step).value(0);
}

/// How many pixels of the sensor make one of the image: subsampling takes M of each P pixels.
struct Reduction
{
    int64_t taken = 1;
    int64_t of = 1;
};

Reduction reduction(const NodeMap& map)
{
    const std::string mode = map.text("Frame_DecimationMode");
    if (mode == "Subsampling")
        return {map.integer("Frame_SubsamplingM"), map.integer("Frame_SubsamplingP")};
    if (mode == "Averaging")
        return {1, map.integer("Frame_Averaging")};
    return {};
}

/// What the camera sends: \a actual, and under the standard's name \a standard.
void addActual(NodeMapBuilder& b, const std::string& size, const std::string& actual,
               const std::string& standard)
{
    const auto read = [size](const NodeMap& map) {
        const Reduction part = reduction(map);
        return map.integer(size) * part.taken / part.of;
    };
    const std::vector<std::string> inputs = {size, "Frame_DecimationMode", "Frame_SubsamplingM",
                                             "Frame_SubsamplingP", "Frame_Averaging"};
    b.integer(actual).in("FrameSize").access(GenApi::RO).unit("px").invalidatedBy(inputs).onRead(read);
    b.integer(standard)
        .in("FrameSize")
        .standard()
        .access(GenApi::RO)
        .unit("px")
        .invalidatedBy(inputs)
        .onRead(read);
}

/// An entry of M, of which there cannot be more than P.
Entry subsamplingEntry(int64_t m)
{
    Entry entry("M" + std::to_string(m), m);
    entry.availableIf(Setting<bool>([m](const NodeMap& map) {
                          return m <= map.integer("Frame_SubsamplingP");
                      }).computedFrom({"Frame_SubsamplingP"}));
    return entry;
}

void addDecimation(NodeMapBuilder& b)
{
    b.enumeration("Frame_DecimationMode")
        .in("FrameSize")
        .entries({"Off", "Subsampling", "Averaging"})
        .lockedIf("AcquisitionActive");
    b.enumeration("Frame_SubsamplingM")
        .in("FrameSize")
        .toolTip("Pixels taken of each P")
        .entry(subsamplingEntry(1))
        .entry(subsamplingEntry(2))
        .entry(subsamplingEntry(4))
        .availableIf(isEntry("Frame_DecimationMode", "Subsampling"));
    b.enumeration("Frame_SubsamplingP")
        .in("FrameSize")
        .entry("P2", 2)
        .entry("P4", 4)
        .entry("P8", 8)
        .availableIf(isEntry("Frame_DecimationMode", "Subsampling"));
    b.enumeration("Frame_Averaging")
        .in("FrameSize")
        .entry("Avg2x2", 2)
        .entry("Avg4x4", 4)
        .availableIf(isEntry("Frame_DecimationMode", "Averaging"));
}

} // namespace

void addFrameSizeFeatures(NodeMapBuilder& b)
{
    b.category("FrameSize").in("Root").displayName("Frame Size");
    addExtent(b, "Frame_Width", "Frame_OffsetX", sensorWidth, 16);
    addExtent(b, "Frame_Height", "Frame_OffsetY", sensorHeight, 2);
    addActual(b, "Frame_Width", "Frame_WidthActual", "Width");
    addActual(b, "Frame_Height", "Frame_HeightActual", "Height");
    addDecimation(b);
}

} // namespace ZetoSimulator
