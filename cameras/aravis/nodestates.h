#pragma once

#include <GenApi/GenApi.h>

#include <cstdint>
#include <optional>

namespace ZetoAravis {

class CameraDescription;
class NodeValues;
struct DescriptionNode;
enum class LinkRole;

/// What a node allows right now: access mode, limits and steps, followed from the node down its values to the
/// memory of the device. All calls may read the device and throw as NodeValues does.
class NodeStates
{
public:
    NodeStates(const CameraDescription& description, const NodeValues& values);

    /// NI where the node or anything its value stands on is not implemented, else NA where not available,
    /// else what the memory and the imposed modes grant, without writing where anything on the way is locked.
    GenApi::EAccessMode accessMode(int node) const;

    /// \return the node that holds the node's value right now, CameraDescription::noNode when the value
    /// stands in the description itself.
    int valueNode(int node) const;

    std::int64_t min(int node) const;
    std::int64_t max(int node) const;
    /// As stated, so possibly 0 or negative in a faulty description; 1 where nothing is stated.
    std::int64_t inc(int node) const;

    double realMin(int node) const;
    double realMax(int node) const;
    std::optional<double> realInc(int node) const;

private:
    bool holds(const DescriptionNode& node, LinkRole condition, bool otherwise) const;
    GenApi::EAccessMode naturalMode(int index) const;
    GenApi::EAccessMode memoryMode(const DescriptionNode& node) const;
    GenApi::EAccessMode valueMode(int index) const;
    std::optional<std::int64_t> stated(const DescriptionNode& node, const char* tag, LinkRole role) const;
    std::optional<double> statedReal(const DescriptionNode& node, const char* tag, LinkRole role) const;
    int bits(int index) const;
    std::int64_t fieldMin(int index) const;
    std::int64_t fieldMax(int index) const;

    const CameraDescription& m_description;
    const NodeValues& m_values;
};

} // namespace ZetoAravis
