#pragma once

#include "categorynode.h"
#include "featurebuilder.h"

namespace ZetoNodeMap {

class CategoryBuilder : public FeatureBuilder<CategoryBuilder>
{
public:
    /// Features and categories, in order. One may stand in several categories.
    template <class... Names>
    CategoryBuilder& contains(const Names&... names)
    {
        return contains(std::vector<std::string>{names...});
    }
    CategoryBuilder& contains(const std::vector<std::string>& names)
    {
        return add(m_declaration->references.members, names);
    }

private:
    friend class NodeMapBuilder;
    using Declaration = DeclarationOf<CategoryNode>;

    explicit CategoryBuilder(Declaration& declaration)
        : FeatureBuilder(declaration)
        , m_declaration(&declaration)
    {
    }

    Declaration* m_declaration;
};

} // namespace ZetoNodeMap
