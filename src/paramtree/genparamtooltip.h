#pragma once

#include "genparamfeature.h"

#include <QString>

/// The HTML tool tip of a feature: the lines that apply to its type, texts of the camera escaped. What cannot
/// be asked at the moment is left out. Asks the camera for limits and entries; nothing throws.
QString paramToolTip(const GenParamFeature& feature);

/// The feature's long help as plain text, its short help when there is none. Nothing throws.
QString paramDescription(GenApi::IValue& feature);
