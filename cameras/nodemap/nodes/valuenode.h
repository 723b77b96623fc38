#pragma once

#include "node.h"
#include "nodechange.h"

namespace ZetoNodeMap {

/// A node with a value interface: what IValue asks for, by way of texts that the concrete node makes.
template <class Interface>
class ValueNode : public Node, public Interface
{
public:
    using Interface::operator=; // where the interface has one, it writes the value

    GenApi::IValue* value() override { return this; }

    GenApi::INode* GetNode() override
    {
        const Call call(map(), this, "GetNode");
        return this;
    }

    GenICam::gcstring ToString(bool Verify = false, bool IgnoreCache = false) override
    {
        const Call call(map(), this, "ToString");
        return valueToText(Verify, IgnoreCache);
    }

    void FromString(const GenICam::gcstring& ValueStr, bool Verify = true) override
    {
        change("FromString", [&] { valueFromText(ValueStr, Verify); });
    }

    bool IsValueCacheValid() const override
    {
        const Call call(map(), this, "IsValueCacheValid");
        return isValueCached();
    }

protected:
    using Node::Node;

    virtual GenICam::gcstring valueToText(bool verify, bool ignoreCache) = 0;
    virtual void valueFromText(const GenICam::gcstring& text, bool verify) = 0;
    virtual bool isValueCached() const { return true; }
};

} // namespace ZetoNodeMap
