#pragma once

#include "enumerationsource.h"
#include "sourcenode.h"

#include <vector>

namespace ZetoNodeMap {

class EnumEntryNode;

/// An enumeration. Its entries are nodes of their own that add themselves.
class EnumerationNode : public SourceNode<GenApi::IEnumeration, EnumerationSource>
{
public:
    struct Settings
    {
        std::unique_ptr<EnumerationSource> source;
    };

    EnumerationNode(NodeMap& map, NodeDeclaration&& declaration, Settings&& settings);

    void addEntry(EnumEntryNode& entry);
    GenApi::EAccessMode entryAccessMode(int64_t value) const;
    bool isEntryAccessModeCacheable() const { return source().isAccessModeCacheable(); }

    int64_t integerValue() const override;
    std::string textValue() const override;
    using Node::assign;
    void assign(int64_t value) override;
    void assign(const std::string& symbolic) override;

    void GetSymbolics(GenApi::StringList_t& Symbolics) override;
    void GetEntries(GenApi::NodeList_t& Entries) override;
    EnumerationNode& operator=(const GenICam::gcstring& ValueStr) override;
    void SetIntValue(int64_t Value, bool Verify = true) override;
    GenICam::gcstring operator*() override;
    int64_t GetIntValue(bool Verify = false, bool IgnoreCache = false) override;
    GenApi::IEnumEntry* GetEntryByName(const GenICam::gcstring& Symbolic) override;
    GenApi::IEnumEntry* GetEntry(const int64_t IntValue) override;
    GenApi::IEnumEntry* GetCurrentEntry(bool Verify = false, bool IgnoreCache = false) override;

protected:
    GenICam::gcstring valueToText(bool verify, bool ignoreCache) override;
    void valueFromText(const GenICam::gcstring& text, bool verify) override;
    void dropCache() override;

private:
    EnumEntryNode* findEntry(int64_t value) const;
    EnumEntryNode* findEntry(const std::string& symbolic) const;
    EnumEntryNode& entry(const std::string& symbolic) const;
    void set(EnumEntryNode& entry, bool verify);

    std::vector<EnumEntryNode*> m_entries; // in the order of declaration
    std::vector<EnumEntryNode*> m_byValue; // ascending
};

} // namespace ZetoNodeMap
