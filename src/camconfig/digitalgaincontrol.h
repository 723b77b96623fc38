#pragma once

#include "digitalgain.h"

#include <ZetoGenParam.h>

#include <QObject>

class QtZetoGainSlider;

namespace ZetoGui {

class ZetoCamConfigMapper;

/// Shows the two features of the digital gain as one factor and writes what is entered to both.
class DigitalGainControl : public QObject
{
public:
    DigitalGainControl(QtZetoGainSlider* slider, const ZetoCamConfigMapper& mapper);

    /// Shows the gain that \a coarse and \a fine make, null for a feature that the camera lacks, and writes
    /// edits as long as \a binding lives.
    void bind(ZetoGenParam::Int* coarse, ZetoGenParam::Int* fine, const QObject* binding);

    bool isAbout(const ZetoGenParam::Param* param) const { return param == m_coarse || param == m_fine; }

    /// Whether the camera lets both features be written.
    bool isOffered() const;

    /// Shows what the camera holds. Nothing is written.
    void show();

private:
    void readCamera();
    void take(double factor);
    void write(const DigitalGain& gain);

    QtZetoGainSlider* const m_slider;
    const ZetoCamConfigMapper& m_mapper;
    ZetoGenParam::Int* m_coarse = nullptr;
    ZetoGenParam::Int* m_fine = nullptr;
    DigitalGain m_present;
    DigitalGainRange m_range;
    bool m_showing = false;
};

} // namespace ZetoGui
