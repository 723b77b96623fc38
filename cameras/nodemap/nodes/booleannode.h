#pragma once

#include "booleansource.h"
#include "sourcenode.h"

namespace ZetoNodeMap {

/// A boolean feature.
class BooleanNode : public SourceNode<GenApi::IBoolean, BooleanSource>
{
public:
    struct Settings
    {
        std::unique_ptr<BooleanSource> source;
    };

    BooleanNode(NodeMap& map, NodeDeclaration&& declaration, Settings&& settings);

    int64_t integerValue() const override;
    std::string textValue() const override;
    using Node::assign;
    void assign(int64_t value) override;

    using SourceNode::operator=;
    void SetValue(bool Value, bool Verify = true) override;
    bool GetValue(bool Verify = false, bool IgnoreCache = false) const override;

protected:
    GenICam::gcstring valueToText(bool verify, bool ignoreCache) override;
    void valueFromText(const GenICam::gcstring& text, bool verify) override;

private:
    void set(bool value, bool verify);
};

} // namespace ZetoNodeMap
