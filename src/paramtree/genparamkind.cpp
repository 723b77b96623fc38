#include "genparamkind.h"

#include <algorithm>
#include <iterator>

namespace {

GenParamKind integerKind(GenApi::ERepresentation representation)
{
    switch (representation) {
    case GenApi::HexNumber:
        return GenParamKind::HexInteger;
    case GenApi::IPV4Address:
        return GenParamKind::IPv4Address;
    case GenApi::MACAddress:
        return GenParamKind::MacAddress;
    default:
        return GenParamKind::Integer;
    }
}

} // namespace

bool isIntegerKind(GenParamKind kind)
{
    return kind >= GenParamKind::Integer && kind <= GenParamKind::MacAddress;
}

GenParamKind declaredKind(GenApi::IValue& feature)
{
    switch (dynamic_cast<GenApi::INode&>(feature).GetPrincipalInterfaceType()) {
    case GenApi::intfIInteger:
        return integerKind(dynamic_cast<GenApi::IInteger&>(feature).GetRepresentation());
    case GenApi::intfIBoolean:
        return GenParamKind::Boolean;
    case GenApi::intfICommand:
        return GenParamKind::Command;
    case GenApi::intfIFloat:
        return GenParamKind::Float;
    case GenApi::intfIString:
        return GenParamKind::String;
    case GenApi::intfIEnumeration:
        return GenParamKind::Enumeration;
    case GenApi::intfICategory:
        return GenParamKind::Category;
    default:
        return GenParamKind::Other;
    }
}

GenParamKind namedAddressKind(const GenICam::gcstring& name)
{
    static const char* const ipv4Names[] = {"GevCurrentIPAddress",
                                            "GevCurrentSubnetMask",
                                            "GevCurrentDefaultGateway",
                                            "GevPersistentIPAddress",
                                            "GevPersistentSubnetMask",
                                            "GevPersistentDefaultGateway",
                                            "GevPrimaryApplicationIPAddress",
                                            "GevMCDA",
                                            "GevSCDA"};
    if (name == "GevMACAddress")
        return GenParamKind::MacAddress;
    const bool isIPv4 = std::any_of(std::begin(ipv4Names), std::end(ipv4Names),
                                    [&name](const char* known) { return name == known; });
    return isIPv4 ? GenParamKind::IPv4Address : GenParamKind::Unknown;
}

GenParamKind paramKind(GenApi::IValue& feature, bool trustRepresentation)
{
    const GenParamKind declared = declaredKind(feature);
    if (trustRepresentation || !isIntegerKind(declared))
        return declared;
    const GenParamKind named = namedAddressKind(dynamic_cast<GenApi::INode&>(feature).GetName());
    return named == GenParamKind::Unknown ? declared : named;
}
