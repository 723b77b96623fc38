#pragma once

#include "devicetreenode.h"

#include <ZetoCameraApi.h>

/// The root: its rows are the interfaces, its text is the header's.
class RootNode final : public DeviceTreeNode
{
public:
    explicit RootNode(DeviceTreeModel& model);

    QVariant data(int column, int role) const override;
    bool hasChildren() const override { return true; }
    bool canFetchMore() const override { return childCount() == 0; }
    void fetchMore() override;
};

/// An interface; its rows are the cameras on it. It can be opened even when there are none.
class InterfaceNode final : public DeviceTreeNode
{
public:
    InterfaceNode(DeviceTreeNode& parentItem, ZetoCam::Interface& shown);

    QVariant data(int column, int role) const override;
    bool hasChildren() const override { return true; }
    bool canFetchMore() const override { return childCount() == 0; }
    void fetchMore() override;

private:
    ZetoCam::Interface& m_interface;
};

/// A camera.
class DeviceInfoNode final : public DeviceTreeNode
{
public:
    DeviceInfoNode(DeviceTreeNode& parentItem, ZetoCam::DeviceInfo& shown);

    QVariant data(int column, int role) const override;
    bool hasChildren() const override { return false; }
    bool canFetchMore() const override { return false; }
    void fetchMore() override {}

private:
    ZetoCam::DeviceInfo& m_camera;
};
