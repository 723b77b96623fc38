#include "genparamfeature.h"

#include "genapiguard.h"

#include <algorithm>
#include <cstring>
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

GenParamFeature declaredFeature(GenApi::IValue& value)
{
    GenParamFeature feature;
    feature.value = &value;
    switch (nodeOf(value).GetPrincipalInterfaceType()) {
    case GenApi::intfIInteger:
        feature.integer = &dynamic_cast<GenApi::IInteger&>(value);
        feature.kind = integerKind(feature.integer->GetRepresentation());
        break;
    case GenApi::intfIBoolean:
        feature.boolean = &dynamic_cast<GenApi::IBoolean&>(value);
        feature.kind = GenParamKind::Boolean;
        break;
    case GenApi::intfICommand:
        feature.command = &dynamic_cast<GenApi::ICommand&>(value);
        feature.kind = GenParamKind::Command;
        break;
    case GenApi::intfIFloat:
        feature.real = &dynamic_cast<GenApi::IFloat&>(value);
        feature.kind = GenParamKind::Float;
        break;
    case GenApi::intfIString:
        feature.string = &dynamic_cast<GenApi::IString&>(value);
        feature.kind = GenParamKind::String;
        break;
    case GenApi::intfIEnumeration:
        feature.enumeration = &dynamic_cast<GenApi::IEnumeration&>(value);
        feature.kind = GenParamKind::Enumeration;
        break;
    case GenApi::intfICategory:
        feature.kind = GenParamKind::Category;
        break;
    default:
        feature.kind = GenParamKind::Other;
    }
    return feature;
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
    if (std::strncmp(name.c_str(), "Gev", 3) != 0)
        return GenParamKind::Unknown;
    if (name == "GevMACAddress")
        return GenParamKind::MacAddress;
    const bool isIPv4 = std::any_of(std::begin(ipv4Names), std::end(ipv4Names),
                                    [&name](const char* known) { return name == known; });
    return isIPv4 ? GenParamKind::IPv4Address : GenParamKind::Unknown;
}

GenParamFeature featureInUse(GenApi::IValue& value, bool trustRepresentation)
{
    GenParamFeature feature = declaredFeature(value);
    if (trustRepresentation || !isIntegerKind(feature.kind))
        return feature;
    const GenParamKind named = namedAddressKind(nodeOf(value).GetName());
    if (named != GenParamKind::Unknown)
        feature.kind = named;
    return feature;
}
