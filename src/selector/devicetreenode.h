#pragma once

#include <QVariant>

#include <memory>
#include <vector>

class DeviceTreeModel;

/// A row of the device tree, or its invisible root. It owns the rows below it, which are made when a view
/// asks for them.
class DeviceTreeNode
{
public:
    /// A node belongs to \a model or, without one, to the model of \a parentItem. Throws
    /// std::invalid_argument when both are null. The parent takes the node with append().
    DeviceTreeNode(DeviceTreeNode* parentItem, DeviceTreeModel* model);
    virtual ~DeviceTreeNode();
    Q_DISABLE_COPY(DeviceTreeNode)

    virtual QVariant data(int column, int role) const = 0;
    virtual bool hasChildren() const = 0;
    virtual bool canFetchMore() const = 0;
    virtual void fetchMore() = 0;

    DeviceTreeNode* parent() const { return m_parent; }
    int row() const { return m_row; }
    int childCount() const { return static_cast<int>(m_children.size()); }
    /// Null when there is no such row.
    DeviceTreeNode* child(int row) const;

    void append(std::vector<std::unique_ptr<DeviceTreeNode>> children);

protected:
    DeviceTreeModel& model() const { return *m_model; }

private:
    std::vector<std::unique_ptr<DeviceTreeNode>> m_children;
    DeviceTreeNode* const m_parent; // null for the root
    DeviceTreeModel* const m_model;
    int m_row = 0;
};
