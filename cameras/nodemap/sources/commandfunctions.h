#pragma once

#include "commandsource.h"
#include "node.h"

#include <functional>

namespace ZetoNodeMap {

/// A command made of functions; without any it does nothing and is done at once.
class CommandFunctions : public CommandSource
{
public:
    void attach(Node& node) override { m_node = &node; }
    bool isAccessModeCacheable() const override { return true; }

    void execute() override
    {
        if (onExecute)
            onExecute(m_node->map());
    }

    bool isDone() override { return !done || done(m_node->map()); }

    std::function<void(NodeMap&)> onExecute;
    std::function<bool(const NodeMap&)> done;

private:
    Node* m_node = nullptr;
};

} // namespace ZetoNodeMap
