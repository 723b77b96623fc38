#pragma once

#include "nodemap.h"

#include <QLineEdit>
#include <QTreeView>

#include <ZetoCameraGuiApi/zetogenparamtreeview.h>

#include <memory>

/// A small camera: categories, a sub-category and a category at expert level, and features of several kinds.
///
/// - Device Control: DeviceVendorName (read-only "Vendor"), DeviceTemperature (read-only, polled each second)
/// - Analog Control: Gain, GainAuto and the category LUT: LUTEnable
/// - Control: ControlWord (expert)
/// - Transport (expert): PacketSize (expert) and the category Stream (expert): StreamDelay (expert)
std::unique_ptr<ZetoNodeMap::NodeMap> makeCamera();

/// \a features integers in categories of 20, two levels deep, named "Feature0" and so on.
std::unique_ptr<ZetoNodeMap::NodeMap> makeCamera(int features);

/// A browser on the screen over a camera of its own.
struct Browser
{
    explicit Browser(std::unique_ptr<ZetoNodeMap::NodeMap> nodeMap = makeCamera());

    template <typename Widget>
    Widget& child(const char* name) const
    {
        return *view.findChild<Widget*>(QLatin1String(name));
    }
    QTreeView& tree() const { return *view.treeView(); }
    QLineEdit& filter() const { return child<QLineEdit>("filterLineEdit"); }
    void click(const char* button);

    /// The row of \a name in \a column as the view shows it; invalid if it is filtered away.
    QModelIndex row(const char* name, int column = 0) const;
    bool isShown(const char* name) const { return row(name).isValid(); }
    QString current() const { return tree().currentIndex().siblingAtColumn(0).data().toString(); }
    /// Makes the row the current one and gives the tree the keyboard.
    void select(const char* name, int column = 0);
    /// The expanded categories that are in the view, in order: "A,B".
    QString expanded() const;

    std::unique_ptr<ZetoNodeMap::NodeMap> camera;
    ZetoGui::ZetoGenParamTreeView view;
};
