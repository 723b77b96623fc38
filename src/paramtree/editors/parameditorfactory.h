#pragma once

#include "controldata.h"
#include "genparamfeature.h"

/// Prepares the editor for a writable \a feature: this is where a type of feature gets its widget.
/// Without \a hasValue, what the model gives in place of the value is no text to start from.
///
/// Limits, entries and the like are asked here, once. What the camera does not tell is left open, since it
/// judges every write anyway. \return nothing for a feature that has no editor of its own. Nothing that
/// GenApi throws passes.
ControlData prepareEditor(const GenParamFeature& feature, bool hasValue);
