#pragma once

#include "node.h"

#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace ZetoNodeMap {

/// The source of a node that nobody gave another one: a value in memory, one for each combination of the
/// values of the node's selectors. Functions can stand in for reading and take part in writing.
template <class SourceType>
class Memory : public SourceType
{
public:
    using Value = typename SourceType::Value;
    using ReadFunction = std::function<Value(const NodeMap&)>;

    /// Gets what the client wrote and returns what the camera makes of it; throws to refuse.
    using WriteFunction = std::function<Value(NodeMap&, const Value&)>;

    void setInitial(Value value) { m_initial = std::move(value); }
    void setInstance(const std::vector<int64_t>& selectorValues, Value value)
    {
        instances()[selectorValues] = std::move(value);
    }
    void setReadFunction(ReadFunction function) { functions().read = std::move(function); }
    void setWriteFunction(WriteFunction function) { functions().write = std::move(function); }

    void attach(Node& node) override { m_node = &node; }
    bool isAccessModeCacheable() const override { return true; }

    Value read() override
    {
        if (m_functions && m_functions->read)
            return m_functions->read(m_node->map());
        return stored();
    }

    void write(const Value& value) override
    {
        if (m_functions && m_functions->write)
            store(m_functions->write(m_node->map(), value));
        else
            store(value);
    }

    void store(const Value& value) override
    {
        if (m_node->hasSelectors())
            instances()[m_node->selectorValues()] = value;
        else
            m_initial = value;
    }

    /// Plain memory keeps what is written, so the cache may, too. A write function may change the value, and
    /// what a read function returns may change at any time.
    GenApi::ECachingMode defaultCachingMode() const override
    {
        if (!m_functions)
            return GenApi::WriteThrough;
        return m_functions->read ? GenApi::NoCache : GenApi::WriteAround;
    }

protected:
    const NodeMap& map() const { return m_node->map(); }

    const Value& stored() const
    {
        if (!m_instances || !m_node->hasSelectors())
            return m_initial;
        const auto instance = m_instances->find(m_node->selectorValues());
        return instance == m_instances->end() ? m_initial : instance->second;
    }

private:
    using Instances = std::map<std::vector<int64_t>, Value>;

    struct Functions
    {
        ReadFunction read;
        WriteFunction write;
    };

    Instances& instances()
    {
        if (!m_instances)
            m_instances = std::make_unique<Instances>();
        return *m_instances;
    }

    Functions& functions()
    {
        if (!m_functions)
            m_functions = std::make_unique<Functions>();
        return *m_functions;
    }

    Node* m_node = nullptr;
    Value m_initial{};
    std::unique_ptr<Instances> m_instances;
    std::unique_ptr<Functions> m_functions;
};

} // namespace ZetoNodeMap
