#include "enumerationbuilder.h"

#include "nodemapbuilder.h"

#include <stdexcept>

namespace ZetoNodeMap {

EnumerationBuilder::EnumerationBuilder(Declaration& declaration, NodeMapBuilder& builder)
    : ValueBuilder(declaration)
    , m_builder(&builder)
    , m_enumeration(&declaration)
{
}

EnumerationBuilder& EnumerationBuilder::entry(std::string symbolic, int64_t value)
{
    return entry(Entry(std::move(symbolic), value));
}

EnumerationBuilder& EnumerationBuilder::entry(Entry&& taken)
{
    return entry(taken);
}

EnumerationBuilder& EnumerationBuilder::entry(Entry& entry)
{
    Entry::Declaration& declaration = *entry.m_declaration;
    EnumEntryNode::Settings& settings = declaration.settings;
    settings.enumeration = m_enumeration->info.name;
    declaration.info.name = "EnumEntry_" + settings.enumeration + "_" + settings.symbolic;
    if (m_entries.empty())
        memory().setInitial(settings.value);
    if (declaration.next)
        memory().setCleared(settings.value, *declaration.next);
    m_entries.emplace_back(settings.symbolic, settings.value);
    m_builder->add(std::move(entry.m_declaration));
    return *this;
}

EnumerationBuilder& EnumerationBuilder::entries(const std::vector<std::string>& symbolics)
{
    for (const std::string& symbolic : symbolics)
        entry(symbolic, static_cast<int64_t>(m_entries.size()));
    return *this;
}

EnumerationBuilder& EnumerationBuilder::value(const std::string& symbolic)
{
    for (const auto& [name, value] : m_entries) {
        if (name == symbolic)
            return ValueBuilder::value(value);
    }
    throw std::invalid_argument(m_enumeration->info.name + " has no entry " + symbolic);
}

} // namespace ZetoNodeMap
