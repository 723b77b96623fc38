#include "booleannode.h"

#include "errors.h"
#include "text.h"
#include "valuetext.h"

namespace ZetoNodeMap {

BooleanNode::BooleanNode(NodeMap& map, NodeDeclaration&& declaration, Settings&& settings)
    : SourceNode(map, std::move(declaration), GenApi::intfIBoolean, std::move(settings.source))
{
}

int64_t BooleanNode::integerValue() const
{
    return cachedValue() ? 1 : 0;
}

std::string BooleanNode::textValue() const
{
    return booleanToText(cachedValue());
}

void BooleanNode::assign(int64_t value)
{
    storeValue(value != 0);
}

void BooleanNode::SetValue(bool Value, bool Verify)
{
    change("SetValue", [&] { set(Value, Verify); });
}

bool BooleanNode::GetValue(bool Verify, bool IgnoreCache) const
{
    const Call call(map(), this, "GetValue");
    return readValue(Verify, IgnoreCache);
}

GenICam::gcstring BooleanNode::valueToText(bool verify, bool ignoreCache)
{
    return toGenICam(booleanToText(readValue(verify, ignoreCache)));
}

void BooleanNode::valueFromText(const GenICam::gcstring& text, bool verify)
{
    const std::optional<bool> value = booleanFromText(fromGenICam(text));
    if (!value)
        throwInvalidArgument(name(), "'" + fromGenICam(text) + "' is neither true nor false");
    set(*value, verify);
}

void BooleanNode::set(bool value, bool verify)
{
    requireWritable(verify);
    writeValue(value);
}

} // namespace ZetoNodeMap
