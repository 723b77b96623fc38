#include "commandnode.h"

#include "text.h"
#include "valuetext.h"

namespace ZetoNodeMap {

CommandNode::CommandNode(NodeMap& map, NodeDeclaration&& declaration, Settings&& settings)
    : ValueNode(map, std::move(declaration), GenApi::intfICommand)
    , m_source(std::move(settings.source))
{
    m_source->attach(*this);
    setDefaultCachingMode(GenApi::NoCache);
}

/// A camera that fails to say whether it is done is asked again next time: the others are polled anyway.
void CommandNode::poll()
{
    if (!m_busy)
        return;
    try {
        checkDone();
    } catch (const GenICam::GenericException&) {
        return;
    }
}

void CommandNode::Execute(bool Verify)
{
    change("Execute", [&] { execute(Verify); });
}

void CommandNode::operator()()
{
    Execute();
}

bool CommandNode::IsDone(bool)
{
    bool done = false;
    change("IsDone", [&] {
        requireImplemented();
        done = checkDone();
    });
    return done;
}

GenICam::gcstring CommandNode::valueToText(bool, bool)
{
    requireReadable();
    return toGenICam(booleanToText(!m_source->isDone()));
}

void CommandNode::valueFromText(const GenICam::gcstring&, bool verify)
{
    execute(verify);
}

void CommandNode::execute(bool verify)
{
    requireWritable(verify);
    m_source->execute();
    m_busy = true;
    invalidate();
}

/// Going from busy to idle changes the node and what depends on it.
bool CommandNode::checkDone()
{
    const bool done = m_source->isDone();
    if (done && std::exchange(m_busy, false))
        invalidate();
    return done;
}

} // namespace ZetoNodeMap
