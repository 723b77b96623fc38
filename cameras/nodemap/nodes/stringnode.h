#pragma once

#include "sourcenode.h"
#include "stringsource.h"

namespace ZetoNodeMap {

/// A text feature.
class StringNode : public SourceNode<GenApi::IString, StringSource>
{
public:
    struct Settings
    {
        std::unique_ptr<StringSource> source;
    };

    StringNode(NodeMap& map, NodeDeclaration&& declaration, Settings&& settings);

    std::string textValue() const override;
    using Node::assign;
    void assign(const std::string& value) override;

    void SetValue(const GenICam::gcstring& Value, bool Verify = true) override;
    StringNode& operator=(const GenICam::gcstring& Value) override;
    GenICam::gcstring GetValue(bool Verify = false, bool IgnoreCache = false) override;
    GenICam::gcstring operator()() override;
    GenICam::gcstring operator*() override;
    int64_t GetMaxLength(ZETO_OPTIONAL_VERIFY) override;

protected:
    GenICam::gcstring valueToText(bool verify, bool ignoreCache) override;
    void valueFromText(const GenICam::gcstring& text, bool verify) override;

private:
    void set(const std::string& value, bool verify);
};

} // namespace ZetoNodeMap
