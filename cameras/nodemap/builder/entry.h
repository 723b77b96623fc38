#pragma once

#include "enumentrynode.h"
#include "featurebuilder.h"

#include <memory>
#include <optional>

namespace ZetoNodeMap {

/// An entry of an enumeration, for EnumerationBuilder::entry().
class Entry : public FeatureBuilder<Entry>
{
public:
    Entry(std::string symbolic, int64_t value);

    /// The number it stands for; without: its value.
    Entry& numericValue(double value) { return set(m_declaration->settings.numericValue, value); }

    /// The camera goes on to another entry by itself.
    Entry& selfClearing() { return set(m_declaration->settings.selfClearing, true); }
    /// The same for a value in memory: it becomes \a next.
    Entry& clearsTo(int64_t next);

private:
    friend class EnumerationBuilder;

    struct Declaration : DeclarationOf<EnumEntryNode>
    {
        std::optional<int64_t> next;
    };

    explicit Entry(std::unique_ptr<Declaration> declaration);

    std::unique_ptr<Declaration> m_declaration;
};

} // namespace ZetoNodeMap
