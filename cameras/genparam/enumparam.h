#pragma once

#include "nodeparam.h"

#include <vector>

namespace ZetoGenParam {

class EnumEntryParam final : public EnumEntry, public NodeParam
{
public:
    EnumEntryParam(GENAPI_NAMESPACE::INode& node, GENAPI_NAMESPACE::IEnumEntry& entry);

    int64_t GetValue() override;
    const char* GetSymbolic() override;

private:
    const int64_t m_value;
    const std::string m_symbolic;
};

/// An enumeration over a node. Its entries are those the node lists when it is built, in that order.
class EnumParam final : public Enum, public NodeParam
{
public:
    /// \a entries in the node's order, not owned.
    EnumParam(GENAPI_NAMESPACE::INode& node, GENAPI_NAMESPACE::IEnumeration& value,
              std::vector<EnumEntryParam*> entries);

    uint64_t GetEntriesCount() override;
    EnumEntry* GetEntry(uint64_t index) override;
    int64_t GetValue(int32_t* error) override;
    const char* GetValueStr(int32_t* error) override;
    int32_t SetValueStr(const char* symbolic) override;
    int32_t SetValue(int64_t value) override;

private:
    int32_t choose(EnumEntryParam* entry);

    GENAPI_NAMESPACE::IEnumeration& m_value;
    const std::vector<EnumEntryParam*> m_entries;
};

} // namespace ZetoGenParam
