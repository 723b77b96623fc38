#pragma once

#include <GenApi/Types.h>

namespace GENAPI_NAMESPACE {

/// The base of all node interfaces. A node has one IBase, whichever of its interfaces is at hand.
///
/// Unless a function says otherwise, it can be called from any thread, waits for the node map's lock, and
/// throws a GenericException when the device that it needs fails.
struct GENAPI_DECL_ABSTRACT IBase
{
    /// What can be done with the node at the moment; can ask the device.
    virtual EAccessMode GetAccessMode() const = 0;

    /// Nodes belong to their node map, which alone destroys them.
    virtual ~IBase() = 0;
};

inline IBase::~IBase() = default;

} // namespace GENAPI_NAMESPACE
