#pragma once

#include <QChar>
#include <QSize>
#include <QVector>

class QPixmap;
class QPaintDevice;
class QString;
class QWidget;
class QtZetoSpinBox;

namespace ZetoGui {

/// The prefix micro of a unit.
constexpr QChar micro(0x03BC);

/// Gives all widgets of a column the width of the widest, where no common layout does.
void alignColumn(const QVector<QWidget*>& column);

/// The size of \a composite, as it wants to be or else as it is, less the width of its popup button.
QSize fieldSize(const QtZetoSpinBox& composite);

/// A picture of the resources that has a second one ("@2x") for screens of high resolution, as it suits
/// \a device.
QPixmap pictureFor(const QPaintDevice& device, const QString& path);

} // namespace ZetoGui
