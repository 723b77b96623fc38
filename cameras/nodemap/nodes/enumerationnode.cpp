#include "enumerationnode.h"

#include "enumentrynode.h"
#include "errors.h"
#include "text.h"

#include <algorithm>

namespace ZetoNodeMap {

EnumerationNode::EnumerationNode(NodeMap& map, NodeDeclaration&& declaration, Settings&& settings)
    : SourceNode(map, std::move(declaration), GenApi::intfIEnumeration, std::move(settings.source))
{
}

void EnumerationNode::addEntry(EnumEntryNode& entry)
{
    m_entries.push_back(&entry);
    const auto isLess = [](const EnumEntryNode* a, const EnumEntryNode* b) {
        return a->integerValue() < b->integerValue();
    };
    m_byValue.insert(std::upper_bound(m_byValue.begin(), m_byValue.end(), &entry, isLess), &entry);
}

GenApi::EAccessMode EnumerationNode::entryAccessMode(int64_t value) const
{
    return source().entryAccessMode(value);
}

EnumEntryNode* EnumerationNode::findEntry(int64_t value) const
{
    const auto isLess = [](const EnumEntryNode* entry, int64_t wanted) {
        return entry->integerValue() < wanted;
    };
    const auto found = std::lower_bound(m_byValue.begin(), m_byValue.end(), value, isLess);
    return found != m_byValue.end() && (*found)->integerValue() == value ? *found : nullptr;
}

EnumEntryNode* EnumerationNode::findEntry(const std::string& symbolic) const
{
    const auto isWanted = [&](const EnumEntryNode* entry) { return entry->symbolic() == symbolic; };
    const auto found = std::find_if(m_entries.begin(), m_entries.end(), isWanted);
    return found == m_entries.end() ? nullptr : *found;
}

EnumEntryNode& EnumerationNode::entry(const std::string& symbolic) const
{
    EnumEntryNode* entry = findEntry(symbolic);
    if (!entry)
        throwInvalidArgument(name(), "has no entry '" + symbolic + "'");
    return *entry;
}

int64_t EnumerationNode::integerValue() const
{
    return cachedValue();
}

std::string EnumerationNode::textValue() const
{
    const EnumEntryNode* current = findEntry(cachedValue());
    return current ? current->symbolic() : std::to_string(cachedValue());
}

void EnumerationNode::assign(int64_t value)
{
    storeValue(value);
}

void EnumerationNode::assign(const std::string& symbolic)
{
    storeValue(entry(symbolic).integerValue());
}

void EnumerationNode::dropCache()
{
    SourceNode::dropCache();
    for (EnumEntryNode* entry : m_entries)
        entry->forgetAccessMode();
}

void EnumerationNode::GetSymbolics(GenApi::StringList_t& Symbolics)
{
    const Call call(map(), this, "GetSymbolics");
    Symbolics.clear();
    for (const EnumEntryNode* entry : m_entries) {
        if (GenApi::IsImplemented(entry->effectiveAccessMode()))
            Symbolics.push_back(toGenICam(entry->symbolic()));
    }
}

void EnumerationNode::GetEntries(GenApi::NodeList_t& Entries)
{
    const Call call(map(), this, "GetEntries");
    Entries.clear();
    for (EnumEntryNode* entry : m_entries)
        Entries.push_back(entry);
}

EnumerationNode& EnumerationNode::operator=(const GenICam::gcstring& ValueStr)
{
    FromString(ValueStr);
    return *this;
}

void EnumerationNode::SetIntValue(int64_t Value, bool Verify)
{
    change("SetIntValue", [&] {
        EnumEntryNode* entry = findEntry(Value);
        if (!entry)
            throwInvalidArgument(name(), "has no entry with the value " + std::to_string(Value));
        set(*entry, Verify);
    });
}

GenICam::gcstring EnumerationNode::operator*()
{
    return ToString();
}

int64_t EnumerationNode::GetIntValue(bool Verify, bool IgnoreCache)
{
    const Call call(map(), this, "GetIntValue");
    return readValue(Verify, IgnoreCache);
}

GenApi::IEnumEntry* EnumerationNode::GetEntryByName(const GenICam::gcstring& Symbolic)
{
    const Call call(map(), this, "GetEntryByName");
    return findEntry(fromGenICam(Symbolic));
}

GenApi::IEnumEntry* EnumerationNode::GetEntry(const int64_t IntValue)
{
    const Call call(map(), this, "GetEntry");
    return findEntry(IntValue);
}

GenApi::IEnumEntry* EnumerationNode::GetCurrentEntry(bool Verify, bool IgnoreCache)
{
    const Call call(map(), this, "GetCurrentEntry");
    return findEntry(readValue(Verify, IgnoreCache));
}

GenICam::gcstring EnumerationNode::valueToText(bool verify, bool ignoreCache)
{
    const int64_t value = readValue(verify, ignoreCache);
    const EnumEntryNode* current = findEntry(value);
    if (!current)
        throwRuntimeError(name(), "has no entry for the value " + std::to_string(value));
    return toGenICam(current->symbolic());
}

void EnumerationNode::valueFromText(const GenICam::gcstring& text, bool verify)
{
    set(entry(fromGenICam(text)), verify);
}

void EnumerationNode::set(EnumEntryNode& entry, bool verify)
{
    requireWritable(verify);
    if (verify && !GenApi::IsAvailable(entry.effectiveAccessMode()))
        throwAccessError(name(), "entry '" + entry.symbolic() + "' is not available");
    writeValue(entry.integerValue());
}

} // namespace ZetoNodeMap
