#pragma once

#include <GenApi/INode.h>

namespace GENAPI_NAMESPACE {

/// A value as text, of whichever type it is.
struct GENAPI_DECL_ABSTRACT IValue : virtual public IBase
{
    /// The node that has this value.
    virtual INode* GetNode() { return dynamic_cast<INode*>(this); }

    /// The value as text; AccessException if it cannot be read. \a Verify checks it against its limits,
    /// \a IgnoreCache asks the device in any case.
    virtual GENICAM_NAMESPACE::gcstring ToString(bool Verify = false, bool IgnoreCache = false) = 0;

    /// Writes the value that \a ValueStr says. AccessException if it cannot be written,
    /// InvalidArgumentException if the text is no value, OutOfRangeException if it is outside the limits.
    virtual void FromString(const GENICAM_NAMESPACE::gcstring& ValueStr, bool Verify = true) = 0;

    /// Whether the next read is answered from the cache.
    virtual bool IsValueCacheValid() const = 0;
};

} // namespace GENAPI_NAMESPACE
