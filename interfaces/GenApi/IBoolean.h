#pragma once

#include <GenApi/IValue.h>

namespace GENAPI_NAMESPACE {

/// A switch.
struct GENAPI_DECL_ABSTRACT IBoolean : virtual public IValue
{
    /// Writes the value; AccessException if it cannot be written.
    virtual void SetValue(bool Value, bool Verify = true) = 0;

    /// SetValue(). Later versions return the object: do not use the result, do not override it.
    virtual void operator=(bool Value) { SetValue(Value); }

    /// Reads the value; AccessException if it cannot be read. \a IgnoreCache asks the device in any case.
    virtual bool GetValue(bool Verify = false, bool IgnoreCache = false) const = 0;

    /// GetValue().
    virtual bool operator()() const { return GetValue(); }
};

} // namespace GENAPI_NAMESPACE
