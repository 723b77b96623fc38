#pragma once

#include "entry.h"
#include "enumerationmemory.h"
#include "enumerationnode.h"
#include "valuebuilder.h"

namespace ZetoNodeMap {

class NodeMapBuilder;

/// Its value is that of its first entry; value() comes after the entries.
class EnumerationBuilder : public ValueBuilder<EnumerationBuilder, EnumerationNode, EnumerationMemory>
{
public:
    EnumerationBuilder& entry(std::string symbolic, int64_t value);
    /// Takes \a entry with all that was said about it.
    EnumerationBuilder& entry(Entry& entry);
    EnumerationBuilder& entry(Entry&& entry);
    /// Entries with the values 0, 1, ...
    EnumerationBuilder& entries(const std::vector<std::string>& symbolics);

    using ValueBuilder::value;
    /// \a symbolic is one of the entries declared before; throws std::invalid_argument.
    EnumerationBuilder& value(const std::string& symbolic);

private:
    friend class NodeMapBuilder;

    EnumerationBuilder(Declaration& declaration, NodeMapBuilder& builder);

    NodeMapBuilder* m_builder;
    Declaration* m_enumeration;
    std::vector<std::pair<std::string, int64_t>> m_entries;
};

} // namespace ZetoNodeMap
