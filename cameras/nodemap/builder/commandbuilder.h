#pragma once

#include "commandfunctions.h"
#include "commandnode.h"
#include "featurebuilder.h"

namespace ZetoNodeMap {

/// A command is write-only unless access() says otherwise.
class CommandBuilder : public FeatureBuilder<CommandBuilder>
{
public:
    /// \a function(map) or \a function() is what the command does.
    template <class Function>
    CommandBuilder& onExecute(Function function)
    {
        if constexpr (std::is_invocable_v<Function, NodeMap&>)
            m_declaration->functions->onExecute = std::move(function);
        else
            m_declaration->functions->onExecute = [function = std::move(function)](NodeMap&) { function(); };
        return *this;
    }

    /// \a function(map) or \a function() tells whether the last execution is finished. Without: at once.
    template <class Function>
    CommandBuilder& doneWhen(Function function)
    {
        m_declaration->functions->done = takingMap(std::move(function));
        return *this;
    }

    /// Replaces the functions.
    CommandBuilder& source(std::unique_ptr<CommandSource> source)
    {
        m_declaration->settings.source = std::move(source);
        return *this;
    }

private:
    friend class NodeMapBuilder;

    struct Declaration : DeclarationOf<CommandNode>
    {
        std::unique_ptr<Node> createNode(NodeMap& map) override
        {
            if (!settings.source)
                settings.source = std::move(functions);
            return DeclarationOf::createNode(map);
        }

        std::unique_ptr<CommandFunctions> functions = std::make_unique<CommandFunctions>();
    };

    explicit CommandBuilder(Declaration& declaration)
        : FeatureBuilder(declaration)
        , m_declaration(&declaration)
    {
        access(GenApi::WO);
    }

    Declaration* m_declaration;
};

} // namespace ZetoNodeMap
