#include "devicetreenodes.h"

#include "devicetreemodel.h"

namespace {

/// The one column's data: a text to show and the library's object.
template <typename Shown>
QVariant dataOf(int column, int role, const char* text, Shown& shown)
{
    if (column == 0 && role == Qt::DisplayRole)
        return QString::fromUtf8(text);
    if (column == 0 && role == DeviceTreeModel::ObjectRole)
        return QVariant::fromValue(&shown);
    return {};
}

template <typename Node, typename Shown>
std::vector<std::unique_ptr<DeviceTreeNode>> nodesOf(DeviceTreeNode& parentItem,
                                                     const std::vector<Shown*>& all)
{
    std::vector<std::unique_ptr<DeviceTreeNode>> nodes;
    nodes.reserve(all.size());
    for (Shown* shown : all)
        nodes.push_back(std::make_unique<Node>(parentItem, *shown));
    return nodes;
}

} // namespace

RootNode::RootNode(DeviceTreeModel& model)
    : DeviceTreeNode(nullptr, &model)
{
}

QVariant RootNode::data(int column, int role) const
{
    return column == 0 && role == Qt::DisplayRole ? DeviceTreeModel::tr("Name") : QVariant();
}

void RootNode::fetchMore()
{
    model().appendRows(*this, nodesOf<InterfaceNode>(*this, model().snapshot()->interfaces));
}

InterfaceNode::InterfaceNode(DeviceTreeNode& parentItem, ZetoCam::Interface& shown)
    : DeviceTreeNode(&parentItem, nullptr)
    , m_interface(shown)
{
}

QVariant InterfaceNode::data(int column, int role) const
{
    return dataOf(column, role, m_interface.GetDescription(), m_interface);
}

void InterfaceNode::fetchMore()
{
    model().appendRows(*this,
                       nodesOf<DeviceInfoNode>(*this, model().snapshot()->camerasOn(idOf(m_interface))));
}

DeviceInfoNode::DeviceInfoNode(DeviceTreeNode& parentItem, ZetoCam::DeviceInfo& shown)
    : DeviceTreeNode(&parentItem, nullptr)
    , m_camera(shown)
{
}

QVariant DeviceInfoNode::data(int column, int role) const
{
    return dataOf(column, role, m_camera.GetDisplayName(), m_camera);
}
