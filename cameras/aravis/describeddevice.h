#pragma once

#include "addressmap.h"
#include "nodestates.h"
#include "nodevalues.h"

#include <cstdint>
#include <vector>

namespace ZetoNodeMap {
class Node;
}

namespace ZetoAravis {

/// A device seen through its description: what the sources of all nodes of one node map share. Not
/// thread-safe; the node map's lock covers every call.
class DescribedDevice
{
public:
    /// Who ends a command that stays in a readable register.
    enum class CommandEnd
    {
        ByDevice, ///< the device changes the register when it is done
        AtOnce    ///< the device is plain memory: the bridge takes the command back right after it was given
    };

    /// \a description and \a device must outlive the object. \throws std::runtime_error as NodeValues does.
    DescribedDevice(const CameraDescription& description, ArvDevice& device, CommandEnd commandEnd);

    const CameraDescription& description() const { return m_description; }
    NodeValues& values() { return m_values; }
    const NodeStates& states() const { return m_states; }
    CommandEnd commandEnd() const { return m_commandEnd; }

    /// Makes the node map's node known that stands for the node \a index of the description.
    void setNode(int index, ZetoNodeMap::Node& node) { m_nodes[static_cast<std::size_t>(index)] = &node; }

    /// Writes to anything that counts. A boolean below is written itself, which the library leaves out.
    void setInteger(int index, std::int64_t value);

    /// To be called after a write to the node \a index: every node that may look different now is
    /// invalidated.
    void noteWritten(int index);

    /// Writes to the copies that the description wants kept equal to the node's value.
    void writeCopies(int index, std::int64_t value);
    void writeCopies(int index, double value);

    /// Whether the access mode of the node changes with writes through the node map alone, so that it can be
    /// remembered between them: no memory that must not be cached has a say in it or in that of its entries.
    bool isAccessModeCacheable(int index) const;

private:
    template <class Write>
    void forEachCopy(int index, Write write);

    bool areConditionsCacheable(int index) const;

    const CameraDescription& m_description;
    NodeValues m_values;
    NodeStates m_states;
    AddressMap m_addresses;
    CommandEnd m_commandEnd;
    std::vector<ZetoNodeMap::Node*> m_nodes; // null where the node map has none
};

/// What a write to \a node writes to: the node itself and everything down its values, copies included.
std::vector<int> writtenThrough(const CameraDescription& description, int node);

} // namespace ZetoAravis
