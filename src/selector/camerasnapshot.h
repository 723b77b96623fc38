#pragma once

#include <QString>

#include <ZetoCameraApi.h>

#include <map>
#include <vector>

/// What one scan found. A snapshot is handed from thread to thread as a whole and not changed any more. The
/// objects in it belong to the camera library.
struct CameraSnapshot
{
    std::vector<ZetoCam::Interface*> interfaces;                  ///< in the library's order
    std::map<QString, std::vector<ZetoCam::DeviceInfo*>> cameras; ///< by the id of their interface

    /// In the library's order.
    const std::vector<ZetoCam::DeviceInfo*>& camerasOn(const QString& interfaceId) const;
};

/// Searches on every interface, one after the other; each may take 200 ms or what the library makes of it.
/// What the library does not give is not in the snapshot. A null \a system has no interfaces.
///
/// Thread: any.
CameraSnapshot scanCameras(ZetoCam::System* system);

/// The cameras that \a owner lists since its last search, in the library's order.
std::vector<ZetoCam::DeviceInfo*> camerasListedBy(ZetoCam::Interface& owner);

/// Whether both list interfaces and cameras with the same ids in the same order. Texts do not count.
bool listSameCameras(const CameraSnapshot& one, const CameraSnapshot& other);

/// The identifying text of an interface or a camera.
template <typename Identified>
QString idOf(Identified& identified)
{
    return QString::fromLatin1(identified.GetID());
}
