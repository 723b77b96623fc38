#pragma once

#include "genparamvalue.h"

#include <atomic>

/// One row of the parameter tree. A feature that stands in several categories has a row in each; what was
/// read of it is kept in the first of them, see GenParamTreeItems::primary().
struct GenParamTreeItem
{
    static constexpr quint8 unknownUnit = 255;

    GenParamFeature feature;
    GenParamTreeItem* parent = nullptr;   ///< null at the top level
    GenParamTreeItem* children = nullptr; ///< the rows below a category, side by side in memory
    GenParamReading reading;              ///< what is shown, unread until it is asked for

    qint32 childCount = 0;
    quint8 unit = unknownUnit; ///< of a number, see GenParamTreeItems::format()
    quint8 decimals = 0;       ///< of a float
    bool isRepeated = false;   ///< the feature has other rows too

    /// The feature may have changed since it was read. Set by any thread, taken by the model's.
    std::atomic<bool> isMarked{false};
};
