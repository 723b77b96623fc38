#pragma once

#include <GenApi/GenApi.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

/// Listens to the callbacks of nodes and notes the names of those that reported a change.
class ReportRecorder
{
public:
    explicit ReportRecorder(const std::vector<GenApi::INode*>& nodes);
    ~ReportRecorder();
    ReportRecorder(const ReportRecorder&) = delete;
    ReportRecorder& operator=(const ReportRecorder&) = delete;

    /// The names since the last call.
    std::set<std::string> take() { return std::exchange(m_reported, {}); }

private:
    void note(GenApi::INode* node) { m_reported.insert(node->GetName().c_str()); }

    std::vector<std::pair<GenApi::INode*, GenApi::CallbackHandleType>> m_handles;
    std::set<std::string> m_reported;
};
