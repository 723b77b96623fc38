#pragma once

#include "cameraroute.h"

#include <string>
#include <vector>

namespace ZetoAravis {

/// A camera as the library lists it.
struct ListedCamera
{
    std::string id;
    std::string vendor;
    std::string model;
    std::string serialNumber;
};

/// Has the library search one of its interfaces. Thread: any; its lists have no lock of their own.
std::vector<ListedCamera> listedCameras(ArvInterface& lister);

/// Opens the camera \a id. \throws as openDevice().
GObjectPointer<ArvDevice> openListed(ArvInterface& lister, const std::string& id);

} // namespace ZetoAravis
