#pragma once

#include <memory>

namespace ZetoNodeMap {
class NodeMap;
}

namespace ZetoAravis {

class DescribedDevice;

/// \return a node map with every node of the device's description, features or not, each with its value on
/// the device and invalidated by all that it is computed from. References to nodes that do not exist are left
/// out. \a device must outlive it.
std::unique_ptr<ZetoNodeMap::NodeMap> makeNodeMap(DescribedDevice& device);

} // namespace ZetoAravis
