#pragma once

#include "genapiversion.h"

#include <cstdint>
#include <string>

namespace ZetoNodeMap {

/// How a number is meant to be shown.
struct NumberFormat
{
    std::string unit; // UTF-8, may be empty
    GenApi::ERepresentation representation = GenApi::PureNumber;
    GenApi::EDisplayNotation notation = GenApi::fnAutomatic; // of a float
    int64_t precision = 6; // of a float: digits, decimals if fixed or scientific
};

} // namespace ZetoNodeMap
