#include "describeddevice.h"

#include "cameradescription.h"
#include "node.h"

#include <algorithm>

namespace ZetoAravis {
namespace {

constexpr int noNode = CameraDescription::noNode;

/// The nodes that are reached from \a start over links that \a isFollowed accepts, \a start first.
template <class Predicate>
std::vector<int> reachable(const CameraDescription& description, int start, Predicate isFollowed)
{
    std::vector<int> reached{start};
    for (std::size_t next = 0; next < reached.size(); ++next) {
        for (const Link& link : description.node(reached[next]).links) {
            if (link.target != noNode && isFollowed(link) &&
                std::find(reached.begin(), reached.end(), link.target) == reached.end())
                reached.push_back(link.target);
        }
    }
    return reached;
}

bool holdsValue(const Link& link)
{
    return link.role == LinkRole::Value || link.role == LinkRole::IndexedValue;
}

bool decidesAccess(const Link& link)
{
    return link.role == LinkRole::Implemented || link.role == LinkRole::Available ||
           link.role == LinkRole::Locked || link.role == LinkRole::Index;
}

/// Nodes whose value is that of their value node, not computed from it.
bool isPlain(const DescriptionNode& node)
{
    return !node.is("Converter") && !node.is("IntConverter");
}

} // namespace

DescribedDevice::DescribedDevice(const CameraDescription& description, ArvDevice& device,
                                 CommandEnd commandEnd)
    : m_description(description)
    , m_values(description, device)
    , m_states(description, m_values)
    , m_addresses(description, m_values)
    , m_commandEnd(commandEnd)
    , m_nodes(description.nodes().size())
{
}

void DescribedDevice::setInteger(int index, std::int64_t value)
{
    const int holder = m_states.valueNode(index);
    if (holder != noNode && m_description.node(holder).kind == NodeKind::Boolean)
        setInteger(holder, value);
    else
        m_values.setInteger(index, value);
}

void DescribedDevice::noteWritten(int index)
{
    std::vector<int> changed = writtenThrough(m_description, index);
    const std::vector<int> sharing = m_addresses.sharing(changed);
    changed.insert(changed.end(), sharing.begin(), sharing.end());
    for (const int node : changed) {
        if (ZetoNodeMap::Node* known = m_nodes[static_cast<std::size_t>(node)])
            known->invalidate();
    }
}

template <class Write>
void DescribedDevice::forEachCopy(int index, Write write)
{
    while (index != noNode && isPlain(m_description.node(index))) {
        for (const Link& link : m_description.node(index).links) {
            if (link.role == LinkRole::ValueCopy && link.target != noNode)
                write(link.target);
        }
        index = m_states.valueNode(index);
    }
}

void DescribedDevice::writeCopies(int index, std::int64_t value)
{
    forEachCopy(index, [&](int copy) { m_values.setInteger(copy, value); });
}

void DescribedDevice::writeCopies(int index, double value)
{
    forEachCopy(index, [&](int copy) { m_values.setReal(copy, value); });
}

bool DescribedDevice::isAccessModeCacheable(int index) const
{
    std::vector<int> holders = reachable(m_description, index, holdsValue);
    const std::vector<int>& entries = m_description.entries(index);
    holders.insert(holders.end(), entries.begin(), entries.end());
    return std::all_of(holders.begin(), holders.end(),
                       [&](int holder) { return areConditionsCacheable(holder); });
}

bool DescribedDevice::areConditionsCacheable(int index) const
{
    const auto isReadLink = [](const Link& link) { return isReadForValue(link.role); };
    const auto isUncached = [&](int node) { return m_description.node(node).text("Cachable") == "NoCache"; };
    const std::vector<Link>& links = m_description.node(index).links;
    return std::none_of(links.begin(), links.end(), [&](const Link& link) {
        if (!decidesAccess(link) || link.target == noNode)
            return false;
        const std::vector<int> read = reachable(m_description, link.target, isReadLink);
        return std::any_of(read.begin(), read.end(), isUncached);
    });
}

std::vector<int> writtenThrough(const CameraDescription& description, int node)
{
    return reachable(description, node,
                     [](const Link& link) { return holdsValue(link) || link.role == LinkRole::ValueCopy; });
}

} // namespace ZetoAravis
