#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <GenApi/GenApi.h>

namespace ZetoAravis {

/// A GenApi node map over a camera description file, without a camera: its registers lie in the memory of
/// this process, its formulas, conditions and limits are evaluated by the Aravis library.
///
///     const auto camera = ZetoAravis::DescriptionNodeMap::open("camera.xml");
///     view.setNodeMap(&camera->nodeMap());
///
/// What the registers hold at first is up to InitialMemory. Commands are done at once and do no more than
/// their register says. Chunk and event features are not available. Descriptions packed into archives are
/// refused.
///
/// The node map may be used from any thread and takes its own lock in every call; different objects share
/// nothing. Destroy the object when nobody uses the node map any more: all nodes die with it.
class DescriptionNodeMap
{
public:
    enum class InitialMemory
    {
        Sensible, ///< values with which the features are present, writable and within their limits
        Zero
    };

    /// Reads the file at \a path (UTF-8). \throws std::runtime_error with the path and the reason when it
    /// cannot be read, is no XML or no camera description.
    static std::unique_ptr<DescriptionNodeMap> open(const std::string& path,
                                                    InitialMemory memory = InitialMemory::Sensible);
    /// Takes the description itself. \throws std::runtime_error with the reason.
    static std::unique_ptr<DescriptionNodeMap> fromXml(std::string_view bytes,
                                                       InitialMemory memory = InitialMemory::Sensible);

    ~DescriptionNodeMap();
    DescriptionNodeMap(const DescriptionNodeMap&) = delete;
    DescriptionNodeMap& operator=(const DescriptionNodeMap&) = delete;

    /// Lives as long as the object.
    GenApi::INodeMap& nodeMap() const;

    /// As the description names them; empty when it does not.
    std::string vendorName() const;
    std::string modelName() const;

    /// What is wrong with the description and was mended or left out, one text each, in English.
    const std::vector<std::string>& problems() const;

private:
    struct Private;

    explicit DescriptionNodeMap(std::unique_ptr<Private> d);

    const std::unique_ptr<Private> d;
};

} // namespace ZetoAravis
