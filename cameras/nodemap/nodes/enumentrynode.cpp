#include "enumentrynode.h"

#include "enumerationnode.h"
#include "errors.h"
#include "text.h"

namespace ZetoNodeMap {

EnumEntryNode::EnumEntryNode(NodeMap& map, NodeDeclaration&& declaration, Settings&& settings)
    : ValueNode(map, std::move(declaration), GenApi::intfIEnumEntry)
    , m_settings(std::move(settings))
    , m_enumeration(dynamic_cast<EnumerationNode&>(*map.find(m_settings.enumeration)))
{
    m_enumeration.addEntry(*this);
}

Node* EnumEntryNode::owner() const
{
    return &m_enumeration;
}

GenICam::gcstring EnumEntryNode::GetDisplayName() const
{
    const Call call(map(), this, "GetDisplayName");
    return toGenICam(info().displayName.empty() ? symbolic() : info().displayName);
}

int64_t EnumEntryNode::GetValue()
{
    const Call call(map(), this, "GetValue");
    return m_settings.value;
}

GenICam::gcstring EnumEntryNode::GetSymbolic() const
{
    const Call call(map(), this, "GetSymbolic");
    return toGenICam(symbolic());
}

double EnumEntryNode::GetNumericValue()
{
    const Call call(map(), this, "GetNumericValue");
    return m_settings.numericValue;
}

bool EnumEntryNode::IsSelfClearing()
{
    const Call call(map(), this, "IsSelfClearing");
    return m_settings.selfClearing;
}

GenICam::gcstring EnumEntryNode::valueToText(bool, bool)
{
    requireReadable();
    return toGenICam(symbolic());
}

void EnumEntryNode::valueFromText(const GenICam::gcstring&, bool)
{
    throwNotWritable(name(), effectiveAccessMode());
}

GenApi::EAccessMode EnumEntryNode::sourceAccessMode() const
{
    return GenApi::Combine(GenApi::RO, m_enumeration.entryAccessMode(m_settings.value));
}

bool EnumEntryNode::isSourceAccessModeCacheable() const
{
    return m_enumeration.isEntryAccessModeCacheable();
}

} // namespace ZetoNodeMap
