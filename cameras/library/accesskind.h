#pragma once

#include <string_view>

namespace ZetoCameraLibrary {

/// What a GenApi function does with the camera, as far as the value of a feature is concerned.
enum class AccessKind
{
    None,
    Read,
    Write
};

/// \a call is the name of a function of the GenApi interface, as an access hook of a node map gets it.
AccessKind accessKind(std::string_view call);

} // namespace ZetoCameraLibrary
