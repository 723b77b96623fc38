#include "featurestate.h"

#include <GenApi/EnumClasses.h>

#include <algorithm>
#include <cstdio>

using namespace GenApi;

namespace {

void collect(INode* node, std::vector<INode*>& features, std::vector<INode*>& categories)
{
    const CCategoryPtr category(node);
    std::vector<INode*>& known = category ? categories : features;
    if (!node || std::find(known.begin(), known.end(), node) != known.end())
        return;
    known.push_back(node);
    if (!category)
        return;
    FeatureList_t members;
    category->GetFeatures(members);
    for (IValue* member : members)
        collect(member->GetNode(), features, categories);
}

template <class Action>
std::string attempt(Action action)
{
    try {
        return action();
    } catch (const GenICam::GenericException&) {
        return "error";
    }
}

std::string number(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.17g", value);
    return text;
}

std::string numberOrStep(IFloat& feature)
{
    return feature.HasInc() ? number(feature.GetInc()) : "-";
}

std::string entriesOf(INode& node)
{
    const CEnumerationPtr enumeration(&node);
    if (!enumeration)
        return {};
    NodeList_t entries;
    enumeration->GetEntries(entries);
    std::string text;
    for (const INode* entry : entries)
        text += ' ' + attempt([&] { return modeOf(*entry); });
    return text;
}

std::string otherEntryOf(IEnumeration& enumeration)
{
    NodeList_t entries;
    enumeration.GetEntries(entries);
    const std::int64_t value = enumeration.GetIntValue();
    for (INode* node : entries) {
        const CEnumEntryPtr entry(node);
        if (IsAvailable(node) && entry->GetValue() != value)
            return entry->GetSymbolic().c_str();
    }
    return {};
}

std::string otherIntegerOf(IInteger& integer)
{
    const std::int64_t value = integer.GetValue();
    const std::int64_t step = integer.GetInc();
    if (step > 0 && value >= integer.GetMin() && integer.GetMax() - step >= value)
        return std::to_string(value + step);
    return value == integer.GetMin() ? std::string() : std::to_string(integer.GetMin());
}

std::string otherFloatOf(IFloat& real)
{
    return number(real.GetValue() == real.GetMax() ? real.GetMin() : real.GetMax());
}

} // namespace

std::vector<INode*> featuresOf(INodeMap& nodeMap)
{
    std::vector<INode*> features;
    std::vector<INode*> categories;
    collect(nodeMap.GetNode("Root"), features, categories);
    return features;
}

std::string modeOf(const INode& node)
{
    return EAccessModeClass::ToString(node.GetAccessMode()).c_str();
}

std::string limitsOf(INode& feature)
{
    if (const CIntegerPtr integer(&feature); integer)
        return std::to_string(integer->GetMin()) + ' ' + std::to_string(integer->GetMax()) + ' ' +
               std::to_string(integer->GetInc());
    if (const CFloatPtr real(&feature); real)
        return number(real->GetMin()) + ' ' + number(real->GetMax()) + ' ' + numberOrStep(*real);
    return {};
}

std::string stateOf(INode& feature)
{
    const CValuePtr value(&feature);
    const std::string text =
        attempt([&] { return std::string(IsReadable(&feature) ? value->ToString().c_str() : ""); });
    return attempt([&] { return modeOf(feature); }) + '|' + text + '|' +
           attempt([&] { return limitsOf(feature); }) + '|' + entriesOf(feature);
}

std::string otherValueOf(INode& feature)
{
    if (!IsReadable(&feature))
        return {};
    if (const CEnumerationPtr enumeration(&feature); enumeration)
        return otherEntryOf(*enumeration);
    if (const CIntegerPtr integer(&feature); integer)
        return otherIntegerOf(*integer);
    if (const CFloatPtr real(&feature); real)
        return otherFloatOf(*real);
    if (const CBooleanPtr boolean(&feature); boolean)
        return boolean->GetValue() ? "0" : "1";
    return feature.GetPrincipalInterfaceType() == intfIString ? "x" : std::string();
}
