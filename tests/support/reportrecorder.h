#pragma once

#include <GenApi/GenApi.h>

#include <QStringList>

#include <utility>
#include <vector>

/// Listens to the callbacks of nodes and notes the names of those that reported a change.
class ReportRecorder
{
public:
    template <class Nodes>
    explicit ReportRecorder(const Nodes& nodes)
    {
        for (GenApi::INode* node : nodes)
            m_handles.emplace_back(
                node, GenApi::Register(node, *this, &ReportRecorder::note, GenApi::cbPostOutsideLock));
    }
    ~ReportRecorder()
    {
        for (const auto& [node, handle] : m_handles)
            node->DeregisterCallback(handle);
    }
    Q_DISABLE_COPY(ReportRecorder)

    /// The names since the last call, in the order of the reports.
    QStringList take() { return std::exchange(m_reported, {}); }

private:
    void note(GenApi::INode* node) { m_reported += QString::fromLatin1(node->GetName().c_str()); }

    std::vector<std::pair<GenApi::INode*, GenApi::CallbackHandleType>> m_handles;
    QStringList m_reported;
};
