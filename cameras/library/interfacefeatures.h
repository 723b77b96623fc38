#pragma once

#include <memory>

namespace ZetoNodeMap {
class NodeMap;
}

namespace ZetoCameraLibrary {

class SearchedInterface;

/// The features of an interface: what it is, and about the camera that `DeviceSelector` chooses among those
/// found by the last search. They refer to \a owner, which must outlive them.
std::unique_ptr<ZetoNodeMap::NodeMap> makeInterfaceFeatures(SearchedInterface& owner);

} // namespace ZetoCameraLibrary
