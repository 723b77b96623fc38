#include "enumparam.h"

#include "genparamerror.h"

#include <algorithm>
#include <cstring>
#include <utility>

using namespace GENAPI_NAMESPACE;

namespace ZetoGenParam {
namespace {

template <typename Matches>
EnumEntryParam* findEntry(const std::vector<EnumEntryParam*>& entries, Matches matches)
{
    const auto found = std::find_if(entries.begin(), entries.end(), matches);
    return found == entries.end() ? nullptr : *found;
}

EnumEntryParam* entryOfValue(const std::vector<EnumEntryParam*>& entries, int64_t value)
{
    return findEntry(entries, [value](EnumEntryParam* entry) { return entry->GetValue() == value; });
}

} // namespace

EnumEntryParam::EnumEntryParam(INode& node, IEnumEntry& entry)
    : NodeParam(node, TypeEnumEntry)
    , m_value(entry.GetValue())
    , m_symbolic(entry.GetSymbolic().c_str())
{
}

int64_t EnumEntryParam::GetValue()
{
    return m_value;
}

const char* EnumEntryParam::GetSymbolic()
{
    return m_symbolic.c_str();
}

EnumParam::EnumParam(INode& node, IEnumeration& value, std::vector<EnumEntryParam*> entries)
    : NodeParam(node, TypeEnum)
    , m_value(value)
    , m_entries(std::move(entries))
{
}

uint64_t EnumParam::GetEntriesCount()
{
    return m_entries.size();
}

EnumEntry* EnumParam::GetEntry(uint64_t index)
{
    return index < m_entries.size() ? m_entries[index] : nullptr;
}

int64_t EnumParam::GetValue(int32_t* error)
{
    return guardedGet(error, int64_t{0}, [&] { return m_value.GetIntValue(); });
}

const char* EnumParam::GetValueStr(int32_t* error)
{
    int32_t code = ZetoCam::Success;
    EnumEntryParam* entry = entryOfValue(m_entries, GetValue(&code));
    if (code == ZetoCam::Success && !entry)
        code = ZetoCam::ErrorGenICamGeneric;
    setError(error, code);
    return code == ZetoCam::Success ? entry->GetSymbolic() : "";
}

int32_t EnumParam::SetValueStr(const char* symbolic)
{
    if (!symbolic)
        return ZetoCam::ErrorGenICamInvalidArgument;
    return choose(findEntry(
        m_entries, [&](EnumEntryParam* entry) { return std::strcmp(entry->GetSymbolic(), symbolic) == 0; }));
}

int32_t EnumParam::SetValue(int64_t value)
{
    return choose(entryOfValue(m_entries, value));
}

int32_t EnumParam::choose(EnumEntryParam* entry)
{
    if (!entry)
        return ZetoCam::ErrorGenICamInvalidArgument;
    if (!entry->IsAvailable())
        return ZetoCam::ErrorGenICamAccess;
    return guardedCall([&] { m_value.SetIntValue(entry->GetValue()); });
}

} // namespace ZetoGenParam
