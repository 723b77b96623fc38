#include "strobepicture.h"

namespace ZetoGui {

QString strobePicture(const QString& reference1, const QString& reference2)
{
    const QLatin1String exposure("ExposureStart");
    if (reference1 == exposure)
        return reference2 == exposure ? QStringLiteral(":/images/strobeBothExp.bmp")
                                      : QStringLiteral(":/images/strobe1Exp_strobe2Read.bmp");
    return reference2 == exposure ? QStringLiteral(":/images/strobe1Read_strobe2Exp.bmp")
                                  : QStringLiteral(":/images/strobeBothRead.bmp");
}

} // namespace ZetoGui
