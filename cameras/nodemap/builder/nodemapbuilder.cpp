#include "nodemapbuilder.h"

#include "nodelinker.h"
#include "plainnode.h"
#include "portnode.h"

#include <numeric>
#include <stdexcept>

namespace ZetoNodeMap {

NodeMapBuilder::NodeMapBuilder(std::string deviceName)
    : m_deviceName(std::move(deviceName))
{
}

NodeMapBuilder::~NodeMapBuilder() = default;

template <class Declaration>
Declaration& NodeMapBuilder::declare(const std::string& name)
{
    auto declaration = std::make_unique<Declaration>();
    Declaration& declared = *declaration;
    declared.info.name = name;
    add(std::move(declaration));
    return declared;
}

void NodeMapBuilder::add(std::unique_ptr<NodeDeclaration> declaration)
{
    m_declarations.push_back(std::move(declaration));
}

CategoryBuilder NodeMapBuilder::category(const std::string& name)
{
    return CategoryBuilder(declare<CategoryBuilder::Declaration>(name));
}

IntegerBuilder NodeMapBuilder::integer(const std::string& name)
{
    return IntegerBuilder(declare<IntegerBuilder::Declaration>(name));
}

FloatBuilder NodeMapBuilder::floating(const std::string& name)
{
    return FloatBuilder(declare<FloatBuilder::Declaration>(name));
}

BooleanBuilder NodeMapBuilder::boolean(const std::string& name)
{
    return BooleanBuilder(declare<BooleanBuilder::Declaration>(name));
}

EnumerationBuilder NodeMapBuilder::enumeration(const std::string& name)
{
    return EnumerationBuilder(declare<EnumerationBuilder::Declaration>(name), *this);
}

CommandBuilder NodeMapBuilder::command(const std::string& name)
{
    return CommandBuilder(declare<CommandBuilder::Declaration>(name));
}

StringBuilder NodeMapBuilder::string(const std::string& name)
{
    return StringBuilder(declare<StringBuilder::Declaration>(name));
}

RegisterBuilder NodeMapBuilder::bytes(const std::string& name)
{
    return RegisterBuilder(declare<RegisterBuilder::Declaration>(name));
}

PlainBuilder NodeMapBuilder::node(const std::string& name)
{
    return PlainBuilder(declare<DeclarationOf<PlainNode>>(name));
}

PlainBuilder NodeMapBuilder::port(const std::string& name)
{
    return PlainBuilder(declare<DeclarationOf<PortNode>>(name));
}

static std::string joined(const std::vector<std::string>& texts)
{
    return std::accumulate(texts.begin(), texts.end(), std::string(),
                           [](const std::string& all, const std::string& text) { return all + " " + text; });
}

std::unique_ptr<NodeMap> NodeMapBuilder::build(MissingNodes missing)
{
    const auto declarations =
        std::move(m_declarations); // their references are needed until the nodes are linked
    m_declarations.clear();
    std::unique_ptr<NodeMap> map(new NodeMap(m_deviceName));
    std::vector<std::pair<Node*, const NodeReferences*>> declared;
    for (const auto& declaration : declarations) {
        const std::string name = declaration->info.name;
        if (!map->add(declaration->createNode(*map)))
            throw std::invalid_argument("Two nodes are called " + name);
        declared.emplace_back(map->find(name), &declaration->references);
    }
    NodeLinker linker(*map);
    linker.link(declared);
    if (missing == MissingNodes::Refuse && !linker.missing().empty())
        throw std::invalid_argument("There are no such nodes:" + joined(linker.missing()));
    return map;
}

} // namespace ZetoNodeMap
