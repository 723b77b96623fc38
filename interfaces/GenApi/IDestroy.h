#pragma once

// Like that of an SDK this header needs another interface header before it.

namespace GENAPI_NAMESPACE {

/// How the creator of a node map ends it: dynamic_cast the map to this.
struct GENAPI_DECL_ABSTRACT IDestroy
{
    /// Destroys the object and all its nodes.
    virtual void Destroy() = 0;

protected:
    ~IDestroy() = default;
};

} // namespace GENAPI_NAMESPACE
