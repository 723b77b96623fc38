#include "reportrecorder.h"

ReportRecorder::ReportRecorder(const std::vector<GenApi::INode*>& nodes)
{
    for (GenApi::INode* node : nodes)
        m_handles.emplace_back(
            node, GenApi::Register(node, *this, &ReportRecorder::note, GenApi::cbPostOutsideLock));
}

ReportRecorder::~ReportRecorder()
{
    for (const auto& [node, handle] : m_handles)
        node->DeregisterCallback(handle);
}
