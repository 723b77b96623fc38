#include "registernode.h"

#include "errors.h"
#include "text.h"
#include "valuetext.h"

#include <algorithm>

namespace ZetoNodeMap {

RegisterNode::RegisterNode(NodeMap& map, NodeDeclaration&& declaration, Settings&& settings)
    : SourceNode(map, std::move(declaration), GenApi::intfIRegister, std::move(settings.source))
{
}

std::string RegisterNode::textValue() const
{
    return bytesToText(cachedValue());
}

void RegisterNode::Set(const uint8_t* pBuffer, int64_t Length, bool Verify)
{
    change("Set", [&] {
        requireLength(Length);
        set(std::vector<uint8_t>(pBuffer, pBuffer + Length), Verify);
    });
}

void RegisterNode::Get(uint8_t* pBuffer, int64_t Length, bool Verify, bool IgnoreCache)
{
    const Call call(map(), this, "Get");
    const std::vector<uint8_t>& bytes = readValue(Verify, IgnoreCache);
    requireLength(Length);
    std::copy_n(bytes.begin(), std::min(bytes.size(), static_cast<size_t>(Length)), pBuffer);
}

int64_t RegisterNode::GetLength(ZETO_OPTIONAL_VERIFY)
{
    const Call call(map(), this, "GetLength");
    return source().length();
}

int64_t RegisterNode::GetAddress(ZETO_OPTIONAL_VERIFY)
{
    const Call call(map(), this, "GetAddress");
    return source().address();
}

GenICam::gcstring RegisterNode::valueToText(bool verify, bool ignoreCache)
{
    return toGenICam(bytesToText(readValue(verify, ignoreCache)));
}

void RegisterNode::valueFromText(const GenICam::gcstring& text, bool verify)
{
    const std::optional<std::vector<uint8_t>> bytes = bytesFromText(fromGenICam(text));
    if (!bytes)
        throwInvalidArgument(name(), "'" + fromGenICam(text) + "' are no hexadecimal bytes");
    requireLength(static_cast<int64_t>(bytes->size()));
    set(*bytes, verify);
}

void RegisterNode::set(const std::vector<uint8_t>& bytes, bool verify)
{
    requireWritable(verify);
    writeValue(bytes);
}

void RegisterNode::requireLength(int64_t length) const
{
    if (length != source().length())
        throwInvalidArgument(name(), "takes " + std::to_string(source().length()) + " bytes, not " +
                                         std::to_string(length));
}

} // namespace ZetoNodeMap
