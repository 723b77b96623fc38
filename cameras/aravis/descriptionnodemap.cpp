#include "descriptionnodemap.h"

#include "cameradescription.h"
#include "describeddevice.h"
#include "memorydevice.h"
#include "memoryseed.h"
#include "nodemap.h"
#include "nodemapmaker.h"
#include "sparsedevicememory.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace ZetoAravis {

/// In the order in which one stands on the other.
struct DescriptionNodeMap::Private
{
    explicit Private(std::string_view bytes)
        : description(bytes)
        , memoryDevice(makeMemoryDevice(memory))
        , device(description, *memoryDevice, DescribedDevice::CommandEnd::AtOnce)
    {
    }

    CameraDescription description;
    SparseDeviceMemory memory;
    GObjectPointer<ArvDevice> memoryDevice;
    DescribedDevice device;
    std::unique_ptr<ZetoNodeMap::NodeMap> nodeMap;
};

static std::string readFile(const std::string& path)
{
    if (std::filesystem::is_directory(std::filesystem::u8path(path)))
        throw std::runtime_error("it is a directory");
    std::ifstream file(std::filesystem::u8path(path), std::ios::binary);
    if (!file)
        throw std::runtime_error(std::strerror(errno));
    std::ostringstream contents;
    contents << file.rdbuf();
    return contents.str();
}

static void refuseArchive(std::string_view bytes)
{
    if (bytes.substr(0, 2) == "PK")
        throw std::runtime_error("the description is packed into an archive; unpack it first");
}

DescriptionNodeMap::DescriptionNodeMap(std::unique_ptr<Private> owned)
    : d(std::move(owned))
{
}

DescriptionNodeMap::~DescriptionNodeMap() = default;

std::unique_ptr<DescriptionNodeMap> DescriptionNodeMap::open(const std::string& path, InitialMemory memory)
{
    try {
        return fromXml(readFile(path), memory);
    } catch (const std::runtime_error& error) {
        throw std::runtime_error(path + ": " + error.what());
    }
}

std::unique_ptr<DescriptionNodeMap> DescriptionNodeMap::fromXml(std::string_view bytes, InitialMemory memory)
{
    refuseArchive(bytes);
    auto d = std::make_unique<Private>(bytes);
    if (memory == InitialMemory::Sensible)
        seedMemory(d->description, d->device.values(), d->device.states());
    d->nodeMap = makeNodeMap(d->device);
    return std::unique_ptr<DescriptionNodeMap>(new DescriptionNodeMap(std::move(d)));
}

GenApi::INodeMap& DescriptionNodeMap::nodeMap() const
{
    return *d->nodeMap;
}

std::string DescriptionNodeMap::vendorName() const
{
    return d->description.root().attribute("VendorName");
}

std::string DescriptionNodeMap::modelName() const
{
    return d->description.root().attribute("ModelName");
}

const std::vector<std::string>& DescriptionNodeMap::problems() const
{
    return d->description.problems();
}

} // namespace ZetoAravis
