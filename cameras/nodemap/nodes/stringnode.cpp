#include "stringnode.h"

#include "errors.h"
#include "text.h"

namespace ZetoNodeMap {

StringNode::StringNode(NodeMap& map, NodeDeclaration&& declaration, Settings&& settings)
    : SourceNode(map, std::move(declaration), GenApi::intfIString, std::move(settings.source))
{
}

std::string StringNode::textValue() const
{
    return cachedValue();
}

void StringNode::assign(const std::string& value)
{
    storeValue(value);
}

void StringNode::SetValue(const GenICam::gcstring& Value, bool Verify)
{
    change("SetValue", [&] { valueFromText(Value, Verify); });
}

StringNode& StringNode::operator=(const GenICam::gcstring& Value)
{
    SetValue(Value);
    return *this;
}

GenICam::gcstring StringNode::GetValue(bool Verify, bool IgnoreCache)
{
    const Call call(map(), this, "GetValue");
    return valueToText(Verify, IgnoreCache);
}

GenICam::gcstring StringNode::operator()()
{
    return GetValue();
}

GenICam::gcstring StringNode::operator*()
{
    return GetValue();
}

int64_t StringNode::GetMaxLength(ZETO_OPTIONAL_VERIFY)
{
    const Call call(map(), this, "GetMaxLength");
    if (!GenApi::IsWritable(effectiveAccessMode()))
        return static_cast<int64_t>(readValue(false, false).size());
    return source().maxLength();
}

GenICam::gcstring StringNode::valueToText(bool verify, bool ignoreCache)
{
    return toGenICam(readValue(verify, ignoreCache));
}

void StringNode::valueFromText(const GenICam::gcstring& text, bool verify)
{
    set(fromGenICam(text), verify);
}

void StringNode::set(const std::string& value, bool verify)
{
    requireWritable(verify);
    if (static_cast<int64_t>(value.size()) > source().maxLength())
        throwInvalidArgument(name(),
                             "text is longer than " + std::to_string(source().maxLength()) + " bytes");
    writeValue(value);
}

} // namespace ZetoNodeMap
