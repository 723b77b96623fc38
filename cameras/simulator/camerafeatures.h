#pragma once

#include <setting.h>

#include <memory>

namespace ZetoNodeMap {
class NodeMap;
class NodeMapBuilder;
} // namespace ZetoNodeMap

namespace ZetoSimulator {

class SimulatedCamera;

/// The features of a camera as its kind has them. They refer to \a camera, which must outlive them.
std::unique_ptr<ZetoNodeMap::NodeMap> makeCameraFeatures(SimulatedCamera& camera);

/// The limit of what shares \a whole with the feature \a other.
ZetoNodeMap::Setting<int64_t> restOf(int64_t whole, const std::string& other);

// The groups they are made of; each adds one category or a few below "Root".

/// Who the camera is. The plain kind says less of itself.
void addDeviceFeatures(ZetoNodeMap::NodeMapBuilder& b, SimulatedCamera& camera);
/// Addresses and packets, for a camera on a network.
void addNetworkFeatures(ZetoNodeMap::NodeMapBuilder& b, SimulatedCamera& camera);
/// Start, stop and what they lock.
void addAcquisitionFeatures(ZetoNodeMap::NodeMapBuilder& b);
/// Image, exposure and gain of a plain camera.
void addPlainImageFeatures(ZetoNodeMap::NodeMapBuilder& b);
/// The trigger; \a hasAllFeatures adds debouncing.
void addTriggerFeatures(ZetoNodeMap::NodeMapBuilder& b, bool hasAllFeatures);

// Of a dual-frame camera only.

/// Size, subsampling and position of the two frames.
void addFrameSizeFeatures(ZetoNodeMap::NodeMapBuilder& b);
/// Frame mode, shutter, exposure and the times that follow from them.
void addFrameTimingFeatures(ZetoNodeMap::NodeMapBuilder& b);
/// Gain, black level and wide dynamic range.
void addFrameVideoFeatures(ZetoNodeMap::NodeMapBuilder& b);
void addPulseFeatures(ZetoNodeMap::NodeMapBuilder& b, const SimulatedCamera& camera);
void addStrobeFeatures(ZetoNodeMap::NodeMapBuilder& b);
/// Pixel format, look-up table, corrections, flipping, test pattern.
void addOutputFeatures(ZetoNodeMap::NodeMapBuilder& b);
/// White balance.
void addColourFeatures(ZetoNodeMap::NodeMapBuilder& b);

} // namespace ZetoSimulator
