#pragma once

#include "valuenode.h"

namespace ZetoNodeMap {

/// A category: its members in order. It is not implemented when no member is.
class CategoryNode : public ValueNode<GenApi::ICategory>
{
public:
    struct Settings
    {
    };

    CategoryNode(NodeMap& map, NodeDeclaration&& declaration, Settings&&);

    void GetFeatures(GenApi::FeatureList_t& Features) const override;

protected:
    GenICam::gcstring valueToText(bool verify, bool ignoreCache) override;
    void valueFromText(const GenICam::gcstring& text, bool verify) override;
    GenApi::EAccessMode sourceAccessMode() const override;
    bool isSourceAccessModeCacheable() const override { return false; }

private:
    bool hasImplementedMember() const;

    mutable int m_visits = 0;
};

} // namespace ZetoNodeMap
