#pragma once

#include "errors.h"
#include "nodechange.h"
#include "registerbytes.h"

#include <algorithm>

namespace ZetoNodeMap {

/// Where a value lies in the camera.
struct RegisterPlace
{
    int64_t address;
    int64_t length; // in bytes
};

/// An integer, float or string that lies in a register: the same object is its value and its bytes, as with
/// the IntReg, FloatReg and StringReg of a description. Its principal interface is the value's.
template <class NodeType>
class InRegister : public NodeType, public GenApi::IRegister
{
public:
    using NodeType::operator=;

    InRegister(NodeMap& map, NodeDeclaration&& declaration, typename NodeType::Settings&& settings,
               RegisterPlace place)
        : NodeType(map, std::move(declaration), std::move(settings))
        , m_place(place)
    {
    }

    void Set(const uint8_t* pBuffer, int64_t Length, bool Verify = true) override
    {
        this->change("Set", [&] {
            requireLength(Length);
            this->set(fromBytes(std::vector<uint8_t>(pBuffer, pBuffer + Length), typename NodeType::Value()),
                      Verify);
        });
    }

    void Get(uint8_t* pBuffer, int64_t Length, bool Verify = false, bool IgnoreCache = false) override
    {
        const Call call(this->map(), this, "Get");
        requireLength(Length);
        const std::vector<uint8_t> bytes = toBytes(this->readValue(Verify, IgnoreCache), Length);
        std::copy(bytes.begin(), bytes.end(), pBuffer);
    }

    int64_t GetLength(ZETO_OPTIONAL_VERIFY) override
    {
        const Call call(this->map(), this, "GetLength");
        return m_place.length;
    }

    int64_t GetAddress(ZETO_OPTIONAL_VERIFY) override
    {
        const Call call(this->map(), this, "GetAddress");
        return m_place.address;
    }

private:
    void requireLength(int64_t length) const
    {
        if (length != m_place.length)
            throwInvalidArgument(this->name(), "has " + std::to_string(m_place.length) + " bytes");
    }

    RegisterPlace m_place;
};

} // namespace ZetoNodeMap
