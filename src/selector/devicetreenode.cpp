#include "devicetreenode.h"

#include <stdexcept>

namespace {

DeviceTreeModel* given(DeviceTreeModel* model)
{
    if (!model)
        throw std::invalid_argument("Both parentItem and model should not be null");
    return model;
}

} // namespace

DeviceTreeNode::DeviceTreeNode(DeviceTreeNode* parentItem, DeviceTreeModel* model)
    : m_parent(parentItem)
    , m_model(given(model || !parentItem ? model : parentItem->m_model))
{
}

DeviceTreeNode::~DeviceTreeNode() = default;

DeviceTreeNode* DeviceTreeNode::child(int row) const
{
    return row >= 0 && row < childCount() ? m_children[static_cast<std::size_t>(row)].get() : nullptr;
}

void DeviceTreeNode::append(std::vector<std::unique_ptr<DeviceTreeNode>> children)
{
    for (auto& each : children) {
        each->m_row = childCount();
        m_children.push_back(std::move(each));
    }
}
