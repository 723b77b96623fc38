#pragma once

#include <QString>
#include <QVector>

#include <ZetoCameraApi.h>

/// A line of what is known about a camera or an interface.
struct InfoLine
{
    QString name;
    QString value;          ///< empty when it cannot be read
    bool isWarning = false; ///< why the camera cannot be opened
};

/// Reads cost an access to the interface's parameters each.
QVector<InfoLine> cameraInfo(ZetoCam::DeviceInfo& camera);
QVector<InfoLine> interfaceInfo(ZetoCam::Interface& shown);

/// Whether a camera of that ZetoCam::AccessStatus can be opened, as far as is known.
bool isOpenable(int32_t accessStatus);

/// Whether the camera is on a GigE Vision interface.
bool isOnNetwork(ZetoCam::DeviceInfo& camera);

QString accessStatusText(int32_t accessStatus);
QString interfaceTypeText(int32_t interfaceType);

/// As macText(), with capital digits.
QString capitalMacText(quint64 address);
