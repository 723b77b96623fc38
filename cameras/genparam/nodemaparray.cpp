#include "nodemaparray.h"

#include "enumparam.h"
#include "genparamerror.h"
#include "valueparams.h"

using namespace GENAPI_NAMESPACE;

namespace ZetoGenParam {
namespace {

/// A parameter of class \a Param over the interface \a Value of \a node, or null when the node lacks it.
template <typename Param, typename Value>
std::unique_ptr<NodeParam> wrap(INode& node)
{
    auto* value = dynamic_cast<Value*>(&node);
    return value ? std::make_unique<Param>(node, *value) : nullptr;
}

} // namespace

NodeMapArray::NodeMapArray(INodeMap& nodeMap)
    : m_nodeMap(nodeMap)
{
}

NodeMapArray::~NodeMapArray() = default;

Param* NodeMapArray::GetParam(const char* name, int32_t* error)
{
    return get<Param>(name, error);
}

Enum* NodeMapArray::GetEnum(const char* name, int32_t* error)
{
    return get<Enum>(name, error);
}

Int* NodeMapArray::GetInt(const char* name, int32_t* error)
{
    return get<Int>(name, error);
}

Float* NodeMapArray::GetFloat(const char* name, int32_t* error)
{
    return get<Float>(name, error);
}

Boolean* NodeMapArray::GetBoolean(const char* name, int32_t* error)
{
    return get<Boolean>(name, error);
}

String* NodeMapArray::GetString(const char* name, int32_t* error)
{
    return get<String>(name, error);
}

Command* NodeMapArray::GetCommand(const char* name, int32_t* error)
{
    return get<Command>(name, error);
}

INodeMap* NodeMapArray::GetNodeMap(uint32_t index)
{
    return index == 0 ? &m_nodeMap : nullptr;
}

template <typename Kind>
Kind* NodeMapArray::get(const char* name, int32_t* error)
{
    return guardedGet(error, static_cast<Kind*>(nullptr), [&] {
        const AutoLock guard(m_nodeMap.GetLock());
        INode* node = m_nodeMap.GetNode(name ? name : "");
        if (!node)
            throw CodeException(ZetoCam::ErrorGenICamUnknownParam);
        auto* kind = dynamic_cast<Kind*>(paramOf(*node));
        if (!kind)
            throw CodeException(ZetoCam::ErrorGenICamType);
        return kind;
    });
}

NodeParam* NodeMapArray::paramOf(INode& node)
{
    auto known = m_params.find(&node);
    if (known == m_params.end())
        known = m_params.emplace(&node, makeParam(node)).first;
    return known->second.get();
}

std::unique_ptr<NodeParam> NodeMapArray::makeParam(INode& node)
{
    std::unique_ptr<NodeParam> param;
    switch (node.GetPrincipalInterfaceType()) {
    case intfIInteger:
        param = wrap<IntParam, IInteger>(node);
        break;
    case intfIFloat:
        param = wrap<FloatParam, IFloat>(node);
        break;
    case intfIBoolean:
        param = wrap<BooleanParam, IBoolean>(node);
        break;
    case intfIString:
        param = wrap<StringParam, IString>(node);
        break;
    case intfICommand:
        param = wrap<CommandParam, ICommand>(node);
        break;
    case intfIEnumEntry:
        param = wrap<EnumEntryParam, IEnumEntry>(node);
        break;
    case intfIEnumeration:
        if (auto* enumeration = dynamic_cast<IEnumeration*>(&node))
            param = std::make_unique<EnumParam>(node, *enumeration, entriesOf(*enumeration));
        break;
    default:
        break;
    }
    return param ? std::move(param) : std::make_unique<NodeParam>(node, TypeUnknown);
}

std::vector<EnumEntryParam*> NodeMapArray::entriesOf(IEnumeration& enumeration)
{
    NodeList_t nodes;
    enumeration.GetEntries(nodes);
    std::vector<EnumEntryParam*> entries;
    for (INode* node : nodes) {
        if (auto* entry = dynamic_cast<EnumEntryParam*>(paramOf(*node)))
            entries.push_back(entry);
    }
    return entries;
}

} // namespace ZetoGenParam
