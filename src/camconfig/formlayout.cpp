#include "formlayout.h"

#include "qtzetospinbox.h"

#include <QPixmap>
#include <QString>
#include <QToolButton>

#include <algorithm>

namespace ZetoGui {

void alignColumn(const QVector<QWidget*>& column)
{
    int width = 0;
    for (const QWidget* const widget : column)
        width = std::max(width, widget->sizeHint().width());
    for (QWidget* const widget : column)
        widget->setMinimumWidth(width);
}

QSize fieldSize(const QtZetoSpinBox& composite)
{
    const QSize hint = composite.sizeHint();
    const QSize size = hint.isValid() ? hint : composite.size();
    return {size.width() - composite.button()->width(), size.height()};
}

QPixmap pictureFor(const QPaintDevice& device, const QString& path)
{
    if (device.devicePixelRatioF() <= 1)
        return QPixmap(path);
    QString fine = path;
    return QPixmap(fine.insert(path.lastIndexOf(QLatin1Char('.')), QLatin1String("@2x")));
}

} // namespace ZetoGui
