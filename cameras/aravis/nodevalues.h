#pragma once

#include "gobjectpointer.h"

#include <cstdint>
#include <mutex>
#include <string>
#include <vector>

// The library's own names for its types, so that its header need not be included here.
// NOLINTBEGIN(bugprone-reserved-identifier)
using ArvDevice = struct _ArvDevice;
using ArvGc = struct _ArvGc;
using ArvGcNode = struct _ArvGcNode;
// NOLINTEND(bugprone-reserved-identifier)

namespace ZetoAravis {

class CameraDescription;

/// Reads and writes the values of a description's nodes on a device, through the GenICam evaluation of the
/// Aravis library. Nodes are told by their index in the description.
///
/// Nothing is cached and neither access nor limits are checked here: every call goes to the device. All calls
/// throw GenICam::GenericException when the device or the evaluation fails. Not thread-safe, reading
/// included: one lock for all calls on one object.
class NodeValues
{
public:
    /// \a device must outlive the object. \throws std::runtime_error when the library refuses the
    /// description.
    NodeValues(const CameraDescription& description, ArvDevice& device);

    /// The value of anything that counts: a boolean as 1 or 0, an enumeration's number, a float without
    /// fraction.
    std::int64_t integer(int node) const;
    void setInteger(int node, std::int64_t value);
    /// The value of a float or of anything that counts.
    double real(int node) const;
    /// Rounds to the nearest integer where the node is one.
    void setReal(int node, double value);
    std::string text(int node) const;
    void setText(int node, const std::string& value);
    /// In bytes.
    std::int64_t maximumLength(int node) const;
    void execute(int node);

    std::uint64_t address(int node) const;
    std::uint64_t length(int node) const; ///< of a register, in bytes
    std::vector<std::uint8_t> bytes(int node) const;
    void setBytes(int node, const std::vector<std::uint8_t>& bytes);

    /// The limits that a converter makes of those of its value, extremes of the type when it cannot.
    std::int64_t convertedMinimum(int node) const;
    std::int64_t convertedMaximum(int node) const;
    double convertedRealMinimum(int node) const;
    double convertedRealMaximum(int node) const;

    /// The library parses one description at a time in the whole process: hold this wherever it is made to.
    static std::mutex& parserMutex();

private:
    const std::string& name(int node) const;
    ArvGcNode* found(int node) const;
    template <typename Interface>
    Interface* as(int node, bool isOfThatKind) const;

    const CameraDescription& m_description;
    GObjectPointer<ArvGc> m_genicam;
    std::vector<ArvGcNode*> m_nodes; ///< owned by m_genicam; null where the library knows no such node
};

} // namespace ZetoAravis
