#pragma once

#include <GenApi/IValue.h>

namespace GENAPI_NAMESPACE {

/// A text.
struct GENAPI_DECL_ABSTRACT IString : virtual public IValue
{
    /// Writes the text. AccessException if it cannot be written; a text that is too long is refused, too.
    virtual void SetValue(const GENICAM_NAMESPACE::gcstring& Value, bool Verify = true) = 0;

    /// SetValue().
    virtual IString& operator=(const GENICAM_NAMESPACE::gcstring& Value) = 0;

    /// Reads the text; AccessException if it cannot be read.
    virtual GENICAM_NAMESPACE::gcstring GetValue(bool Verify = false, bool IgnoreCache = false) = 0;

    /// GetValue().
    virtual GENICAM_NAMESPACE::gcstring operator()() = 0;

    /// GetValue().
    virtual GENICAM_NAMESPACE::gcstring operator*() = 0;

    /// The greatest length in bytes. For a text that cannot be written it is the length of the present one,
    /// which is read for it.
    virtual int64_t GetMaxLength() = 0;
};

} // namespace GENAPI_NAMESPACE
