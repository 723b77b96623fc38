#include "camerafeatures.h"

#include <nodemapbuilder.h>

using namespace ZetoNodeMap;

namespace ZetoSimulator {
namespace {

/// Of a plain camera's sensor.
constexpr int64_t sensorWidth = 2048;
constexpr int64_t sensorHeight = 1536;

void addSize(NodeMapBuilder& b, const std::string& size, const std::string& offset, int64_t whole)
{
    b.integer(size)
        .in("ImageFormatControl")
        .standard()
        .unit("px")
        .limits(64, restOf(whole, offset))
        .increment(8)
        .lockedIf("AcquisitionActive")
        .value(whole);
    b.integer(offset)
        .in("ImageFormatControl")
        .standard()
        .visibility(GenApi::Expert)
        .unit("px")
        .limits(0, restOf(whole, size))
        .increment(2)
        .value(0);
}

/// Microseconds: the exposure and the read-out follow each other.
double frameTime(const NodeMap& map)
{
    constexpr double lineTime = 8.5; // us
    return map.number("ExposureTime") + lineTime * map.number("Height");
}

void addFrameRate(NodeMapBuilder& b)
{
    b.boolean("AcquisitionFrameRateEnable").in("AcquisitionControl").standard().value(false);
    b.floating("AcquisitionFrameRate")
        .in("AcquisitionControl")
        .standard()
        .unit("Hz")
        .limits(0.1, Setting<double>([](const NodeMap& map) {
                         return 1e6 / frameTime(map);
                     }).computedFrom({"ExposureTime", "Height"}))
        .lockedIf(Setting<bool>([](const NodeMap& map) {
                      return !map.integer("AcquisitionFrameRateEnable");
                  }).computedFrom({"AcquisitionFrameRateEnable"}))
        .value(10);
}

void addExposureAndGain(NodeMapBuilder& b)
{
    b.floating("ExposureTime")
        .in("AcquisitionControl")
        .standard()
        .unit("us")
        .representation(GenApi::Logarithmic)
        .limits(20, 1e6)
        .value(10000);
    b.category("AnalogControl").in("Root").displayName("Analog Control");
    b.enumeration("GainAuto").in("AnalogControl").standard().entries({"Off", "Continuous"});
    b.floating("Gain")
        .in("AnalogControl")
        .standard()
        .unit("dB")
        .limits(0, 24)
        .increment(0.1)
        .lockedIf(isEntry("GainAuto", "Continuous"))
        .value(0);
}

} // namespace

void addAcquisitionFeatures(NodeMapBuilder& b)
{
    b.category("AcquisitionControl").in("Root").displayName("Acquisition Control");
    b.boolean("AcquisitionActive").in("AcquisitionControl").access(GenApi::RO).value(false);
    b.command("AcquisitionStart")
        .in("AcquisitionControl")
        .standard()
        .lockedIf("AcquisitionActive")
        .onExecute([](NodeMap& map) { map.assign("AcquisitionActive", true); });
    b.command("AcquisitionStop").in("AcquisitionControl").standard().onExecute([](NodeMap& map) {
        map.assign("AcquisitionActive", false);
    });
}

void addPlainImageFeatures(NodeMapBuilder& b)
{
    b.category("ImageFormatControl").in("Root").displayName("Image Format Control");
    addSize(b, "Width", "OffsetX", sensorWidth);
    addSize(b, "Height", "OffsetY", sensorHeight);
    b.enumeration("PixelFormat")
        .in("ImageFormatControl")
        .standard()
        .entries({"Mono8", "Mono10", "Mono12"})
        .lockedIf("AcquisitionActive");
    b.boolean("ReverseX").in("ImageFormatControl").standard().value(false);
    addFrameRate(b);
    addExposureAndGain(b);
}

} // namespace ZetoSimulator
