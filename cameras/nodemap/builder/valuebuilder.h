#pragma once

#include "featurebuilder.h"
#include "memory.h"

#include <memory>
#include <type_traits>

namespace ZetoNodeMap {

/// The declaration of a node with a value: in memory unless there is another source.
template <class NodeType, class MemoryType>
struct ValueDeclaration : DeclarationOf<NodeType>
{
    std::unique_ptr<Node> createNode(NodeMap& map) override
    {
        if (!this->settings.source)
            this->settings.source = std::move(memory);
        return DeclarationOf<NodeType>::createNode(map);
    }

    std::unique_ptr<MemoryType> memory = std::make_unique<MemoryType>();
};

/// What can be said about any node with a value. The value lives in memory unless source() is given.
template <class Self, class NodeType, class MemoryType>
class ValueBuilder : public FeatureBuilder<Self>
{
public:
    using Value = typename MemoryType::Value;
    using SourceType = typename decltype(NodeType::Settings::source)::element_type;

    Self& value(Value value)
    {
        m_declaration->memory->setInitial(std::move(value));
        return this->self();
    }

    /// The value while the selectors of this feature, in the order of their declaration, have \a
    /// selectorValues.
    Self& valueAt(const std::vector<int64_t>& selectorValues, Value value)
    {
        m_declaration->memory->setInstance(selectorValues, std::move(value));
        return this->self();
    }

    /// \a function(map) or \a function() makes the value instead of memory. It is read at each access unless
    /// a caching mode says otherwise.
    template <class Function>
    Self& onRead(Function function)
    {
        m_declaration->memory->setReadFunction(takingMap(std::move(function)));
        return this->self();
    }

    /// \a function(map, value) takes part in each write by a client: it may change other nodes, throw to
    /// refuse and return the value that the camera makes of it (or nothing: the value as it is).
    template <class Function>
    Self& onWrite(Function function)
    {
        using Result = std::invoke_result_t<Function, NodeMap&, const Value&>;
        if constexpr (std::is_void_v<Result>) {
            m_declaration->memory->setWriteFunction(
                [function = std::move(function)](NodeMap& map, const Value& value) {
                    function(map, value);
                    return value;
                });
        } else {
            m_declaration->memory->setWriteFunction(std::move(function));
        }
        return this->self();
    }

    /// Takes the value and all that goes with it (limits, increment, valid values, length) from \a source.
    /// What was said about the memory is forgotten.
    Self& source(std::unique_ptr<SourceType> source)
    {
        m_declaration->settings.source = std::move(source);
        return this->self();
    }

protected:
    using Declaration = ValueDeclaration<NodeType, MemoryType>;

    explicit ValueBuilder(Declaration& declaration)
        : FeatureBuilder<Self>(declaration)
        , m_declaration(&declaration)
    {
    }

    typename NodeType::Settings& settings() { return m_declaration->settings; }
    MemoryType& memory() { return *m_declaration->memory; }

private:
    Declaration* m_declaration;
};

} // namespace ZetoNodeMap
