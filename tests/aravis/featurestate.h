#pragma once

#include <GenApi/GenApi.h>

#include <string>
#include <vector>

/// The nodes that are no categories and stand anywhere under Root, each once, in the order of the tree.
std::vector<GenApi::INode*> featuresOf(GenApi::INodeMap& nodeMap);

/// Everything that a client can see of a feature right now: access mode, value, limits, increment, entries.
/// What throws a GenICam exception stands as "error".
std::string stateOf(GenApi::INode& feature);

/// "minimum maximum increment" of an integer or a float, "-" for no increment.
std::string limitsOf(GenApi::INode& feature);

/// "RW", "NA" and so on.
std::string modeOf(const GenApi::INode& node);

/// Another value that the feature can be written with now, as text; empty if there is none or it cannot be
/// read.
std::string otherValueOf(GenApi::INode& feature);
