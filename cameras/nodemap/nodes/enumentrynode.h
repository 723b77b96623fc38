#pragma once

#include "valuenode.h"

#include <string>

namespace ZetoNodeMap {

class EnumerationNode;

/// One entry of an enumeration, a node named EnumEntry_enumeration_symbolic.
class EnumEntryNode : public ValueNode<GenApi::IEnumEntry>
{
public:
    struct Settings
    {
        std::string enumeration; // its node exists already
        std::string symbolic;
        int64_t value = 0;
        double numericValue = 0;
        bool selfClearing = false;
    };

    EnumEntryNode(NodeMap& map, NodeDeclaration&& declaration, Settings&& settings);

    const std::string& symbolic() const { return m_settings.symbolic; }
    int64_t integerValue() const override { return m_settings.value; }
    double floatValue() const override { return m_settings.numericValue; }
    std::string textValue() const override { return m_settings.symbolic; }
    Node* owner() const override;

    GenICam::gcstring GetDisplayName() const override;
    int64_t GetValue() override;
    GenICam::gcstring GetSymbolic() const override;
    double GetNumericValue() override;
    bool IsSelfClearing() override;

protected:
    GenICam::gcstring valueToText(bool verify, bool ignoreCache) override;
    void valueFromText(const GenICam::gcstring& text, bool verify) override;
    GenApi::EAccessMode sourceAccessMode() const override;
    bool isSourceAccessModeCacheable() const override;

private:
    Settings m_settings;
    EnumerationNode& m_enumeration;
};

} // namespace ZetoNodeMap
