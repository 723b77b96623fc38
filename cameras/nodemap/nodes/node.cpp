#include "node.h"

#include "errors.h"
#include "nodechange.h"

#include <utility>

namespace ZetoNodeMap {

Node::Node(NodeMap& map, NodeDeclaration&& declaration, GenApi::EInterfaceType type)
    : m_map(map)
    , m_info(std::move(declaration.info))
    , m_access(std::move(declaration.access))
    , m_type(type)
{
}

Node::~Node() = default;

void Node::throwNoSuchValue(const char* kind) const
{
    throwLogicalError(name(), std::string("has no ") + kind + " value");
}

int64_t Node::integerValue() const
{
    throwNoSuchValue("integer");
}

double Node::floatValue() const
{
    return static_cast<double>(integerValue());
}

std::string Node::textValue() const
{
    throwNoSuchValue("text");
}

void Node::assign(int64_t)
{
    throwNoSuchValue("integer");
}

void Node::assign(double)
{
    throwNoSuchValue("float");
}

void Node::assign(const std::string&)
{
    throwNoSuchValue("text");
}

std::vector<int64_t> Node::selectorValues() const
{
    std::vector<int64_t> values;
    values.reserve(m_selectors.size());
    for (const Node* selector : m_selectors)
        values.push_back(selector->integerValue());
    return values;
}

GenApi::EAccessMode Node::effectiveAccessMode() const
{
    if (m_cachedAccessMode != GenApi::_UndefinedAccesMode)
        return m_cachedAccessMode;
    const GenApi::EAccessMode natural = m_access.evaluate(m_map, sourceAccessMode());
    const GenApi::EAccessMode mode = GenApi::Combine(natural, m_imposedAccessMode);
    if (m_accessModeCacheable)
        m_cachedAccessMode = mode;
    return mode;
}

void Node::setDeclaredAccessMode(GenApi::EAccessMode mode)
{
    m_access.declared = mode;
    invalidate();
}

void Node::requireReadable() const
{
    const GenApi::EAccessMode mode = effectiveAccessMode();
    if (!GenApi::IsReadable(mode))
        throwNotReadable(name(), mode);
}

void Node::requireWritable(bool verify) const
{
    if (!verify && ZETO_GENAPI_VERSION < 304)
        return;
    const GenApi::EAccessMode mode = effectiveAccessMode();
    if (!GenApi::IsWritable(mode))
        throwNotWritable(name(), mode);
}

void Node::requireImplemented() const
{
    if (effectiveAccessMode() == GenApi::NI)
        throwNotImplemented(name());
}

void Node::requireAvailableLimits() const
{
#if ZETO_GENAPI_VERSION >= 301
    if (!GenApi::IsAvailable(effectiveAccessMode()))
        throwAccessError(name(), "not available");
#endif
}

void Node::setDefaultCachingMode(GenApi::ECachingMode mode)
{
    if (m_info.cachingMode == GenApi::_UndefinedCachingMode)
        m_info.cachingMode = mode;
}

bool Node::setQueued(bool queued)
{
    return std::exchange(m_queued, queued) != queued;
}

std::vector<Node*> Node::withDependents() const
{
    const unsigned traversal = ++m_map.m_traversal;
    std::vector<Node*> reached{const_cast<Node*>(this)};
    reached.front()->m_traversal = traversal;
    for (size_t next = 0; next < reached.size(); ++next) {
        for (Node* dependent : reached[next]->m_dependents) {
            if (std::exchange(dependent->m_traversal, traversal) != traversal)
                reached.push_back(dependent);
        }
    }
    return reached;
}

void Node::drop()
{
    forgetAccessMode();
    dropCache();
    m_map.m_queue.add(*this);
}

void Node::invalidate()
{
    for (Node* node : withDependents())
        node->drop();
}

} // namespace ZetoNodeMap
