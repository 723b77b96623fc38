#include "camerafeatures.h"

#include <nodemapbuilder.h>

#include <algorithm>

using namespace ZetoNodeMap;

namespace ZetoSimulator {
namespace {

constexpr int64_t pixelClock = 160;         // MHz
constexpr int64_t blankingLines = 40;       // between two frames
constexpr int64_t mostLines = 1'000'000;    // of a frame
constexpr int64_t leastLineTime10Bit = 800; // pixel clocks
constexpr int64_t leastLineTime12Bit = 1000;

int64_t clocksToMicroseconds(int64_t clocks)
{
    return clocks / pixelClock;
}

bool hasFixedPeriod(const NodeMap& map)
{
    return map.integer("Frame_FixedFramePeriodEnable") != 0;
}

bool isTimed(const NodeMap& map)
{
    return map.text("Frame_ExposureControl") == "Internal";
}

int64_t readOutLines(const NodeMap& map)
{
    return map.integer("Frame_HeightActual") + blankingLines;
}

int64_t exposureClocks(const NodeMap& map)
{
    return map.integer("Frame_ExposureLines") * map.integer("Frame_LineTime") +
           map.integer("Frame_ExposureClocks");
}

/// In pixel clocks: a fixed period, or else as long as the longer one of read-out and exposure takes.
int64_t frameClocks(const NodeMap& map)
{
    const int64_t lineTime = map.integer("Frame_LineTime");
    if (hasFixedPeriod(map))
        return map.integer("Frame_FixedFramePeriodValue") * lineTime;
    return std::max(readOutLines(map) * lineTime, isTimed(map) ? exposureClocks(map) + lineTime : 0);
}

int64_t currentExposureTime(const NodeMap& map)
{
    return clocksToMicroseconds(isTimed(map) ? exposureClocks(map) : frameClocks(map));
}

Setting<bool> isNotTimed()
{
    return Setting<bool>([](const NodeMap& map) { return !isTimed(map); })
        .computedFrom({"Frame_ExposureControl"});
}

/// All that has a value of its own in each of the two frames.
std::vector<std::string> perFrameFeatures()
{
    return {"Frame_ExposureControl",
            "Frame_ExposureLines",
            "Frame_ExposureClocks",
            "Frame_LineTime",
            "Frame_FixedFramePeriodEnable",
            "Frame_FixedFramePeriodValue",
            "CurrentExposureTime",
            "CurrentFrameTime",
            "Frame_Width",
            "Frame_Height",
            "Frame_OffsetX",
            "Frame_OffsetY",
            "Frame_WidthActual",
            "Frame_HeightActual",
            "Width",
            "Height",
            "Frame_DecimationMode",
            "Frame_SubsamplingM",
            "Frame_SubsamplingP",
            "Frame_Averaging",
            "Frame_AnalogGain",
            "Frame_DigitalCourseGain",
            "Frame_DigitalFineGain",
            "Frame_BlackLevel",
            "Frame_WdrEnable",
            "Frame_WdrP1",
            "Frame_WdrP2",
            "Frame_WdrP3",
            "Frame_WdrE1",
            "Frame_WdrE2",
            "Frame_WdrE3"};
}

void addFrameMode(NodeMapBuilder& b)
{
    b.enumeration("FrameMode")
        .in("FrameControl")
        .toolTip("Which of the two frame set-ups make the output")
        .entries({"FrameA", "FrameB", "DualVideo"})
        .lockedIf("AcquisitionActive");
    for (const char* name : {"NumberOfFrameAs", "NumberOfFrameBs"})
        b.integer(name)
            .in("FrameControl")
            .limits(1, 255)
            .availableIf(isEntry("FrameMode", "DualVideo"))
            .value(1);
    b.enumeration("FrameAB_Selector")
        .in("FrameControl")
        .toolTip("The frame whose settings are shown")
        .entries({"FrameA", "FrameB"})
        .selects(perFrameFeatures());
}

/// Twelve bits take more time for each line: the camera lengthens the line time of the selected frame.
void lengthenLineTime(NodeMap& map, int64_t bitDepth)
{
    if (bitDepth == 1 && map.integer("Frame_LineTime") < leastLineTime12Bit)
        map.assign("Frame_LineTime", leastLineTime12Bit);
}

void addSensor(NodeMapBuilder& b)
{
    b.enumeration("ShutterMode")
        .in("FrameControl")
        .entries({"Rolling", "Global"})
        .lockedIf("AcquisitionActive");
    b.enumeration("SensorADCBitDepth")
        .in("FrameControl")
        .entries({"Bits10", "Bits12"})
        .lockedIf("AcquisitionActive")
        .invalidates({"Frame_LineTime"})
        .onWrite(lengthenLineTime);
    b.integer("PixelClock").in("FrameControl").access(GenApi::RO).unit("MHz").value(pixelClock);
}

void addExposure(NodeMapBuilder& b)
{
    b.enumeration("Frame_ExposureControl")
        .in("FrameControl")
        .entry("Off", 0)
        .entry(Entry("Trigger", 1).availableIf(isEntry("TriggerMode", "On")))
        .entry("Internal", 2)
        .value("Internal");
    b.integer("Frame_ExposureLines")
        .in("FrameControl")
        .limits(0, Setting<int64_t>([](const NodeMap& map) {
                       return hasFixedPeriod(map) ? map.integer("Frame_FixedFramePeriodValue") - 1
                                                  : mostLines;
                   }).computedFrom({"Frame_FixedFramePeriodEnable", "Frame_FixedFramePeriodValue"}))
        .lockedIf(isNotTimed())
        .value(1000)
        .valueAt({1}, 250);
    b.integer("Frame_ExposureClocks")
        .in("FrameControl")
        .limits(0, Setting<int64_t>([](const NodeMap& map) {
                       return map.integer("Frame_LineTime") - 1;
                   }).computedFrom({"Frame_LineTime"}))
        .lockedIf(isNotTimed())
        .value(0);
}

void addPeriod(NodeMapBuilder& b)
{
    b.integer("Frame_LineTime")
        .in("FrameControl")
        .unit("pclk")
        .limits(Setting<int64_t>([](const NodeMap& map) {
                    return map.text("SensorADCBitDepth") == "Bits12" ? leastLineTime12Bit
                                                                     : leastLineTime10Bit;
                }).computedFrom({"SensorADCBitDepth"}),
                65535)
        .value(1600);
    b.boolean("Frame_FixedFramePeriodEnable").in("FrameControl").value(false);
    b.integer("Frame_FixedFramePeriodValue")
        .in("FrameControl")
        .toolTip("Frame period in lines")
        .limits(Setting<int64_t>(readOutLines).computedFrom({"Frame_HeightActual"}), mostLines)
        .value(4000);
}

void addTimes(NodeMapBuilder& b)
{
    const std::vector<std::string> settings = {"Frame_ExposureControl",      "Frame_ExposureLines",
                                               "Frame_ExposureClocks",       "Frame_LineTime",
                                               "Frame_HeightActual",         "Frame_FixedFramePeriodEnable",
                                               "Frame_FixedFramePeriodValue"};
    b.integer("CurrentExposureTime")
        .in("FrameControl")
        .access(GenApi::RO)
        .unit("us")
        .invalidatedBy(settings)
        .onRead(currentExposureTime);
    b.integer("CurrentFrameTime")
        .in("FrameControl")
        .access(GenApi::RO)
        .unit("us")
        .invalidatedBy(settings)
        .onRead([](const NodeMap& map) { return clocksToMicroseconds(frameClocks(map)); });
}

} // namespace

void addFrameTimingFeatures(NodeMapBuilder& b)
{
    b.category("FrameControl").in("Root").displayName("Frame Control");
    addFrameMode(b);
    addSensor(b);
    addExposure(b);
    addPeriod(b);
    addTimes(b);
}

} // namespace ZetoSimulator
