#pragma once

#include "genparamfeature.h"

#include <QVariant>

/// Writes \a value to \a feature; a command is executed whatever the value.
///
/// An integer takes a text as a dotted IPv4 address and anything else as a 64-bit integer. An enumeration
/// takes what converts to a 64-bit integer as the entry's integer value and anything else as its symbolic
/// name.
///
/// \return false when the kind takes no such value, also for a number beyond 64 bits; nothing is written
/// then. Throws what GenApi throws when the camera refuses.
bool writeParam(const GenParamFeature& feature, const QVariant& value);
