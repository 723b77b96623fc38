#pragma once

#include <GenApi/GenApi.h>

#include <QRegExp>
#include <QString>

#include <vector>

// What the browser's work costs when it is done straight on the node map, without model and view.

/// All features below Root in the order of the tree, categories left out.
std::vector<GenApi::IValue*> featuresOf(const GenApi::INodeMap& nodeMap);

/// Asks every feature below Root, categories included, for name, visibility and access mode and registers a
/// member function as callback that does nothing.
/// \return the callbacks' handles, to be given to GenApi::Deregister()
std::vector<GenApi::CallbackHandleType> walkAndRegister(const GenApi::INodeMap& nodeMap);

/// Reads the value through its typed interface, once.
/// \return false for a feature that has no readable value, such as a command
bool readValue(GenApi::IValue& feature);

/// Reads the value and makes a text of it, with the unit and the precision of a number.
QString valueText(GenApi::IValue& feature);

/// Tests every feature below Root as the filter does: visibility, kind, display name, implementation.
/// \return how many pass
int countMatches(const GenApi::INodeMap& nodeMap, GenApi::EVisibility level, const QRegExp& pattern);
