#pragma once

#include <cstdint>
#include <vector>

namespace ZetoAravis {

class CameraDescription;
class NodeValues;
struct DescriptionNode;

/// Which registers of a description lie on the same memory: a write to one is a write to the others, though
/// no link between them says so.
class AddressMap
{
public:
    AddressMap(const CameraDescription& description, const NodeValues& values);

    /// \return the other registers that share bits with one of \a written, where they lie now. One whose
    /// address cannot be computed right now shares nothing.
    std::vector<int> sharing(const std::vector<int>& written) const;

private:
    struct Place
    {
        int node;
        int port;
        std::uint64_t address;
        std::uint64_t length; // bytes
        std::int64_t firstBit = 0;
        std::int64_t lastBit = -1; // below firstBit: the whole register
    };

    bool locate(int node, Place& place) const;
    std::vector<Place> currentPlaces() const;
    static bool overlap(const Place& one, const Place& other);

    const CameraDescription& m_description;
    const NodeValues& m_values;
    std::vector<Place> m_fixed;
    std::vector<int> m_moving; ///< registers whose address depends on values
};

} // namespace ZetoAravis
