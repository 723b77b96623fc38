#pragma once

#include <GenApi/IValue.h>

namespace GENAPI_NAMESPACE {

/// Bytes of the device's memory, in the device's order.
struct GENAPI_DECL_ABSTRACT IRegister : virtual public IValue
{
    /// Writes \a Length bytes, which must be GetLength(). AccessException if they cannot be written.
    virtual void Set(const uint8_t* pBuffer, int64_t Length, bool Verify = true) = 0;

    /// Reads \a Length bytes, which must be GetLength(). AccessException if they cannot be read.
    virtual void Get(uint8_t* pBuffer, int64_t Length, bool Verify = false, bool IgnoreCache = false) = 0;

    /// The number of bytes.
    virtual int64_t GetLength() = 0;

    /// The place in the device's memory.
    virtual int64_t GetAddress() = 0;
};

} // namespace GENAPI_NAMESPACE
