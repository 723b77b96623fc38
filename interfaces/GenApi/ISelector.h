#pragma once

// Like that of an SDK this header needs another interface header before it.

namespace GENAPI_NAMESPACE {

/// The relation between a feature and those that it selects an instance of. Every node has this interface:
/// ask IsSelector().
struct GENAPI_DECL_ABSTRACT ISelector : virtual public IBase
{
    /// Whether the node selects anything.
    virtual bool IsSelector() const = 0;

    /// Puts the features that this one selects into the empty list.
    virtual void GetSelectedFeatures(FeatureList_t&) const = 0;

    /// Puts the features that select this one into the empty list.
    virtual void GetSelectingFeatures(FeatureList_t&) const = 0;
};

} // namespace GENAPI_NAMESPACE
