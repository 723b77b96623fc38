#pragma once

#include "registersource.h"
#include "sourcenode.h"

namespace ZetoNodeMap {

/// A block of bytes.
class RegisterNode : public SourceNode<GenApi::IRegister, RegisterSource>
{
public:
    struct Settings
    {
        std::unique_ptr<RegisterSource> source;
    };

    RegisterNode(NodeMap& map, NodeDeclaration&& declaration, Settings&& settings);

    std::string textValue() const override;

    void Set(const uint8_t* pBuffer, int64_t Length, bool Verify = true) override;
    void Get(uint8_t* pBuffer, int64_t Length, bool Verify = false, bool IgnoreCache = false) override;
    int64_t GetLength(ZETO_OPTIONAL_VERIFY) override;
    int64_t GetAddress(ZETO_OPTIONAL_VERIFY) override;

protected:
    GenICam::gcstring valueToText(bool verify, bool ignoreCache) override;
    void valueFromText(const GenICam::gcstring& text, bool verify) override;

private:
    void set(const std::vector<uint8_t>& bytes, bool verify);
    void requireLength(int64_t length) const;
};

} // namespace ZetoNodeMap
