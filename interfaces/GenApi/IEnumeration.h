#pragma once

#include <GenApi/IEnumEntry.h>

namespace GENAPI_NAMESPACE {

/// A choice of one among several entries. ToString() and FromString() give and take symbolic names.
struct GENAPI_DECL_ABSTRACT IEnumeration : virtual public IValue
{
    /// Puts the symbolic names of the entries into the empty list \a Symbolics.
    virtual void GetSymbolics(StringList_t& Symbolics) = 0;

    /// Puts the nodes of the entries into the empty list \a Entries, whether available now or not.
    virtual void GetEntries(NodeList_t& Entries) = 0;

    /// Chooses the entry with this symbolic name.
    virtual IEnumeration& operator=(const GENICAM_NAMESPACE::gcstring& ValueStr) = 0;

    /// Chooses the entry with this integer value. AccessException if the enumeration cannot be written or the
    /// entry is not available, InvalidArgumentException if there is no such entry.
    virtual void SetIntValue(int64_t Value, bool Verify = true) = 0;

    /// The symbolic name of the chosen entry, as by ToString().
    virtual GENICAM_NAMESPACE::gcstring operator*() = 0;

    /// The integer value; AccessException if it cannot be read.
    virtual int64_t GetIntValue(bool Verify = false, bool IgnoreCache = false) = 0;

    /// The entry with this symbolic name, or null.
    virtual IEnumEntry* GetEntryByName(const GENICAM_NAMESPACE::gcstring& Symbolic) = 0;

    /// The entry with this integer value, or null.
    virtual IEnumEntry* GetEntry(const int64_t IntValue) = 0;

    /// The chosen entry, or null if the device's value has none. AccessException if it cannot be read.
    virtual IEnumEntry* GetCurrentEntry(bool Verify = false, bool IgnoreCache = false) = 0;
};

} // namespace GENAPI_NAMESPACE
