#pragma once

#include <GenApi/IValue.h>

namespace GENAPI_NAMESPACE {

/// A group of features and of other categories.
struct GENAPI_DECL_ABSTRACT ICategory : virtual public IValue
{
    /// Puts the direct members into the empty list \a Features, in their order. A feature can be a member of
    /// several categories.
    virtual void GetFeatures(FeatureList_t& Features) const = 0;
};

} // namespace GENAPI_NAMESPACE
