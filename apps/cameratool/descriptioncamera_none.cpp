#include "descriptioncamera.h"

#include <QCoreApplication>

#include <stdexcept>

std::unique_ptr<BrowsedCamera> openDescription(const QString&)
{
    throw std::runtime_error(
        QCoreApplication::translate(
            "DescriptionCamera", "Camera descriptions cannot be opened: the tool was built without Aravis.")
            .toStdString());
}
