#pragma once

#include <QString>

namespace ZetoGui {

/// The picture of the resources for two strobes with these references. A reference other than
/// "ExposureStart" is the readout.
QString strobePicture(const QString& reference1, const QString& reference2);

} // namespace ZetoGui
