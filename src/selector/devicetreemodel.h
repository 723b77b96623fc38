#pragma once

#include "camerasnapshot.h"

#include <QAbstractItemModel>
#include <QMetaType>

#include <memory>

class DeviceTreeNode;
class RootNode;

Q_DECLARE_METATYPE(ZetoCam::DeviceInfo*)
Q_DECLARE_METATYPE(ZetoCam::Interface*)

/// The cameras that the camera library sees, as a tree of one column: interfaces, and below each the cameras
/// found on it.
///
/// The tree shows one scan until refresh() or applyChanges() brings another, which resets it. Rows are made
/// when a view fetches them. No camera is opened.
///
/// Thread: that of the model, but for hasChanged(), which may run on one other thread at any time. A snapshot
/// passes between the two as a whole.
///
/// Errors of the library are not reported: what it does not list is not there.
class DeviceTreeModel : public QAbstractItemModel
{
    Q_OBJECT
    Q_DISABLE_COPY(DeviceTreeModel)

public:
    enum Role
    {
        ObjectRole = Qt::UserRole, ///< the row's ZetoCam::Interface* or ZetoCam::DeviceInfo*
    };

    /// Scans \a system, which may be null and must outlive the model.
    explicit DeviceTreeModel(ZetoCam::System* system, QObject* parent = nullptr);
    ~DeviceTreeModel() override;

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Scans now and shows what is found.
    void refresh();

    /// Scans and keeps the result for applyChanges(). Only ids and their order count as a change.
    /// \return whether it differs from what is shown
    bool hasChanged();

    /// Shows the result of the last hasChanged().
    void applyChanges();

    /// The first interface, once it was fetched.
    QModelIndex firstIndex() const;

    /// The id of the camera or interface at \a index, empty for none.
    QString idOf(const QModelIndex& index) const;

    /// The row with that id, among those that were fetched.
    QModelIndex indexOf(const QString& id) const;

    /// For the nodes: what is shown, and rows to add at the end.
    std::shared_ptr<const CameraSnapshot> snapshot() const;
    void appendRows(DeviceTreeNode& parentItem, std::vector<std::unique_ptr<DeviceTreeNode>> rows);

private:
    DeviceTreeNode& nodeAt(const QModelIndex& index) const;
    QModelIndex indexOf(const DeviceTreeNode& node) const;
    QModelIndex childWithId(const QModelIndex& parent, const QString& id) const;
    void show(const std::shared_ptr<const CameraSnapshot>& found);

    ZetoCam::System* const m_system;
    std::unique_ptr<RootNode> m_root;

    // Shared with the thread that calls hasChanged(): read and replaced by std::atomic_load() and
    // std::atomic_store() alone.
    std::shared_ptr<const CameraSnapshot> m_current;
    std::shared_ptr<const CameraSnapshot> m_pending = std::make_shared<const CameraSnapshot>();
};
