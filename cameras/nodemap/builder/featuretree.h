#pragma once

namespace ZetoNodeMap {

class NodeMapBuilder;

/// Declares a tree of \a featureCount features for measurements: Root, groups of 20 categories, categories
/// of 20 features named Feature0, Feature1, ... of all types in turn (integer, float, enumeration, boolean,
/// string, command).
void declareFeatureTree(NodeMapBuilder& builder, int featureCount);

} // namespace ZetoNodeMap
