#pragma once

#include "genparamvalue.h"

#include <utility>

/// One row of the parameter tree and the feature in it. A feature that stands in several categories has a row
/// in each; what was read of it is kept in the first of them, see GenParamTreeItems::primary().
///
/// Small members fill the space that the feature and the value leave: a device has thousands of rows.
struct GenParamTreeItem : GenParamFeature
{
    static constexpr quint8 unknownUnit = 255;

    quint8 unit = unknownUnit; ///< of a number, see GenParamTreeItems::format()
    quint8 decimals = 0;       ///< of a float
    bool isRepeated = false;   ///< the feature has other rows too

    /// What is shown, unread until it is asked for.
    GenParamReading reading() const { return {state, accessMode, shown}; }
    void setReading(GenParamReading reading);
    GenParamState state = GenParamState::Unread;
    quint8 accessMode = GenApi::NA; ///< GenApi::EAccessMode in one byte
    GenParamValue shown;

    qint32 parent = -1;    ///< the number of the row above, -1 at the top level
    qint32 firstChild = 0; ///< the number at which the rows below begin, if there are any
};

inline void GenParamTreeItem::setReading(GenParamReading reading)
{
    state = reading.state;
    accessMode = reading.accessMode;
    shown = std::move(reading.value);
}
