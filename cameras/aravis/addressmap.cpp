#include "addressmap.h"

#include "cameradescription.h"
#include "literal.h"
#include "nodevalues.h"

#include <Base/GCException.h>

#include <algorithm>

namespace ZetoAravis {
namespace {

bool isMoving(const DescriptionNode& node)
{
    return std::any_of(node.links.begin(), node.links.end(), [](const Link& link) {
        return link.role == LinkRole::Address || link.role == LinkRole::Index ||
               link.role == LinkRole::Length || link.role == LinkRole::Variable;
    });
}

} // namespace

AddressMap::AddressMap(const CameraDescription& description, const NodeValues& values)
    : m_description(description)
    , m_values(values)
{
    for (int index = 0; index < static_cast<int>(description.nodes().size()); ++index) {
        const DescriptionNode& node = description.node(index);
        Place place{};
        if (!node.isRegister())
            continue;
        if (isMoving(node))
            m_moving.push_back(index);
        else if (locate(index, place))
            m_fixed.push_back(place);
    }
}

std::vector<int> AddressMap::sharing(const std::vector<int>& written) const
{
    const auto isWritten = [&](int node) {
        return std::find(written.begin(), written.end(), node) != written.end();
    };
    const std::vector<Place> places = currentPlaces();
    std::vector<Place> writtenPlaces;
    std::copy_if(places.begin(), places.end(), std::back_inserter(writtenPlaces),
                 [&](const Place& place) { return isWritten(place.node); });

    std::vector<int> found;
    for (const Place& place : places) {
        const auto overlapsIt = [&](const Place& other) { return overlap(place, other); };
        if (!isWritten(place.node) && std::any_of(writtenPlaces.begin(), writtenPlaces.end(), overlapsIt))
            found.push_back(place.node);
    }
    return found;
}

bool AddressMap::locate(int index, Place& place) const
try {
    const DescriptionNode& node = m_description.node(index);
    const Link* port = node.link(LinkRole::Port);
    place = {index, port ? port->target : CameraDescription::noNode, m_values.address(index),
             m_values.length(index)};
    if (node.has("Bit"))
        place.firstBit = place.lastBit = integerLiteral(node.text("Bit"));
    else if (node.has("MSB") && node.has("LSB"))
        std::tie(place.firstBit, place.lastBit) =
            std::minmax({integerLiteral(node.text("MSB")), integerLiteral(node.text("LSB"))});
    return true;
} catch (const GenICam::GenericException&) {
    return false;
}

std::vector<AddressMap::Place> AddressMap::currentPlaces() const
{
    std::vector<Place> places = m_fixed;
    for (const int node : m_moving) {
        Place place{};
        if (locate(node, place))
            places.push_back(place);
    }
    return places;
}

bool AddressMap::overlap(const Place& one, const Place& other)
{
    if (one.port != other.port)
        return false;
    const bool apart = one.address < other.address ? other.address - one.address >= one.length
                                                   : one.address - other.address >= other.length;
    const bool areFieldsOfOneRegister = one.address == other.address && one.length == other.length &&
                                        one.firstBit <= one.lastBit && other.firstBit <= other.lastBit;
    return !apart &&
           (!areFieldsOfOneRegister || (one.firstBit <= other.lastBit && other.firstBit <= one.lastBit));
}

} // namespace ZetoAravis
