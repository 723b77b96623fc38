#include "devicetreemodel.h"

#include "devicetreenodes.h"

#include <atomic>

namespace {

std::shared_ptr<const CameraSnapshot> scan(ZetoCam::System* system)
{
    return std::make_shared<const CameraSnapshot>(scanCameras(system));
}

} // namespace

DeviceTreeModel::DeviceTreeModel(ZetoCam::System* system, QObject* parent)
    : QAbstractItemModel(parent)
    , m_system(system)
    , m_root(std::make_unique<RootNode>(*this))
    , m_current(scan(system))
{
}

DeviceTreeModel::~DeviceTreeModel() = default;

QModelIndex DeviceTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, nodeAt(parent).child(row));
}

QModelIndex DeviceTreeModel::parent(const QModelIndex& child) const
{
    return child.isValid() ? indexOf(*nodeAt(child).parent()) : QModelIndex();
}

int DeviceTreeModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : nodeAt(parent).childCount();
}

int DeviceTreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return 1;
}

bool DeviceTreeModel::hasChildren(const QModelIndex& parent) const
{
    return nodeAt(parent).hasChildren();
}

bool DeviceTreeModel::canFetchMore(const QModelIndex& parent) const
{
    return nodeAt(parent).canFetchMore();
}

void DeviceTreeModel::fetchMore(const QModelIndex& parent)
{
    if (canFetchMore(parent))
        nodeAt(parent).fetchMore();
}

QVariant DeviceTreeModel::data(const QModelIndex& index, int role) const
{
    return index.isValid() ? nodeAt(index).data(index.column(), role) : QVariant();
}

QVariant DeviceTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return m_root->data(section, role);
}

Qt::ItemFlags DeviceTreeModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? QAbstractItemModel::flags(index) : Qt::NoItemFlags;
}

void DeviceTreeModel::refresh()
{
    beginResetModel();
    show(scan(m_system));
    endResetModel();
}

bool DeviceTreeModel::hasChanged()
{
    const auto found = scan(m_system);
    std::atomic_store(&m_pending, found);
    return !listSameCameras(*snapshot(), *found);
}

void DeviceTreeModel::applyChanges()
{
    beginResetModel();
    show(std::atomic_load(&m_pending));
    endResetModel();
}

QModelIndex DeviceTreeModel::firstIndex() const
{
    return index(0, 0);
}

QString DeviceTreeModel::idOf(const QModelIndex& index) const
{
    const QVariant object = data(index, ObjectRole);
    if (auto* const camera = object.value<ZetoCam::DeviceInfo*>())
        return ::idOf(*camera);
    if (auto* const owner = object.value<ZetoCam::Interface*>())
        return ::idOf(*owner);
    return {};
}

QModelIndex DeviceTreeModel::indexOf(const QString& id) const
{
    for (int row = 0; row < rowCount(); ++row) {
        const QModelIndex candidate = index(row, 0);
        if (idOf(candidate) == id)
            return candidate;
        const QModelIndex camera = childWithId(candidate, id);
        if (camera.isValid())
            return camera;
    }
    return {};
}

std::shared_ptr<const CameraSnapshot> DeviceTreeModel::snapshot() const
{
    return std::atomic_load(&m_current);
}

void DeviceTreeModel::appendRows(DeviceTreeNode& parentItem,
                                 std::vector<std::unique_ptr<DeviceTreeNode>> rows)
{
    if (rows.empty())
        return;
    const int first = parentItem.childCount();
    beginInsertRows(indexOf(parentItem), first, first + static_cast<int>(rows.size()) - 1);
    parentItem.append(std::move(rows));
    endInsertRows();
}

DeviceTreeNode& DeviceTreeModel::nodeAt(const QModelIndex& index) const
{
    return index.isValid() ? *static_cast<DeviceTreeNode*>(index.internalPointer()) : *m_root;
}

QModelIndex DeviceTreeModel::indexOf(const DeviceTreeNode& node) const
{
    return &node == m_root.get() ? QModelIndex()
                                 : createIndex(node.row(), 0, const_cast<DeviceTreeNode*>(&node));
}

QModelIndex DeviceTreeModel::childWithId(const QModelIndex& parent, const QString& id) const
{
    for (int row = 0; row < rowCount(parent); ++row) {
        const QModelIndex candidate = index(row, 0, parent);
        if (idOf(candidate) == id)
            return candidate;
    }
    return {};
}

void DeviceTreeModel::show(const std::shared_ptr<const CameraSnapshot>& found)
{
    std::atomic_store(&m_current, found);
    m_root = std::make_unique<RootNode>(*this);
}
