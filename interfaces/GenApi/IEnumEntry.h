#pragma once

#include <GenApi/IValue.h>

namespace GENAPI_NAMESPACE {

/// One entry of an enumeration. Its access mode tells whether it can be chosen now.
struct GENAPI_DECL_ABSTRACT IEnumEntry : virtual public IValue
{
    /// The integer value, which never changes.
    virtual int64_t GetValue() = 0;

    /// The name by which programs choose the entry.
    virtual GENICAM_NAMESPACE::gcstring GetSymbolic() const = 0;

    /// The number that the entry stands for.
    virtual double GetNumericValue() = 0;

    /// Whether the device goes back to another entry by itself.
    virtual bool IsSelfClearing() = 0;
};

} // namespace GENAPI_NAMESPACE
