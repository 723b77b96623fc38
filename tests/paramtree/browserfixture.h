#pragma once

#include "nodemap.h"

#include <QTreeView>

#include <ZetoCameraGuiApi/zetogenparamtreeview.h>

#include <memory>

/// A small camera: categories, a sub-category and a category at expert level, and features of several kinds.
///
///     Root
///       Device Control: DeviceVendorName (read-only "Vendor"), DeviceTemperature (read-only, polled each
///       second) Analog Control: Gain, GainAuto
///         LUT: LUTEnable
///       Control: ControlWord (expert)
///       Transport (expert): PacketSize (expert)
///         Stream (expert): StreamDelay (expert)
std::unique_ptr<ZetoNodeMap::NodeMap> makeCamera();

/// \a features integers in categories of 20, two levels deep, named "Feature0" and so on.
std::unique_ptr<ZetoNodeMap::NodeMap> makeCamera(int features);

/// The row of \a name in \a column as the view shows it; invalid if it is filtered away.
QModelIndex rowOf(const ZetoGui::ZetoGenParamTreeView& view, const QString& name, int column = 0);

/// The expanded categories that are in the view, in order: "A,B".
QString expandedIn(const ZetoGui::ZetoGenParamTreeView& view);

template <typename Widget>
Widget& childOf(const QWidget& window, const char* name)
{
    return *window.findChild<Widget*>(QLatin1String(name));
}
