#pragma once

#include "commandsource.h"
#include "valuenode.h"

#include <memory>

namespace ZetoNodeMap {

/// A command. While one with a polling time is busy, the polling watches for its end.
class CommandNode : public ValueNode<GenApi::ICommand>
{
public:
    struct Settings
    {
        std::unique_ptr<CommandSource> source;
    };

    CommandNode(NodeMap& map, NodeDeclaration&& declaration, Settings&& settings);

    void poll() override;

    void Execute(bool Verify = true) override;
    void operator()() override;
    bool IsDone(bool Verify = true) override;

protected:
    GenICam::gcstring valueToText(bool verify, bool ignoreCache) override;
    void valueFromText(const GenICam::gcstring& text, bool verify) override;
    bool isValueCached() const override { return false; }
    GenApi::EAccessMode sourceAccessMode() const override { return m_source->accessMode(); }
    bool isSourceAccessModeCacheable() const override { return m_source->isAccessModeCacheable(); }

private:
    void execute(bool verify);
    bool checkDone();

    std::unique_ptr<CommandSource> m_source;
    bool m_busy = false;
};

} // namespace ZetoNodeMap
