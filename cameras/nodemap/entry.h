#pragma once

#include "enumentrynode.h"
#include "featurebuilder.h"

#include <memory>

namespace ZetoNodeMap {

/// An entry of an enumeration, for EnumerationBuilder::entry().
class Entry : public FeatureBuilder<Entry>
{
public:
    Entry(std::string symbolic, int64_t value);

    /// The number it stands for; without: its value.
    Entry& numericValue(double value) { return set(m_declaration->settings.numericValue, value); }

    /// The camera goes on to the entry with the value \a next by itself.
    Entry& clearsTo(int64_t next);

private:
    friend class EnumerationBuilder;

    struct Declaration : DeclarationOf<EnumEntryNode>
    {
        int64_t next = 0;
    };

    explicit Entry(std::unique_ptr<Declaration> declaration);

    std::unique_ptr<Declaration> m_declaration;
};

} // namespace ZetoNodeMap
