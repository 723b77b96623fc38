#pragma once

#include "frametiming.h"

#include <ZetoGenParam.h>

#include <QObject>
#include <QPointer>

#include <functional>
#include <optional>

class QtZetoSliderSpinBox;
class QtZetoSpinBox;

namespace ZetoGui {

/// Shows the exposure, which the camera keeps in lines and clocks, as a time. What is entered goes to the
/// spin boxes of the lines and the clocks, which are bound to the camera.
class ExposureTimeControl : public QObject
{
public:
    struct SpinBoxes
    {
        QtZetoSliderSpinBox* time; ///< microseconds
        QtZetoSpinBox* lines;
        QtZetoSpinBox* clocks;
    };

    /// \a timing must outlive the control. \a showAgain has the lines and the clocks shown as the camera
    /// holds them.
    ExposureTimeControl(const SpinBoxes& spinBoxes, const LineTiming& timing,
                        std::function<void(ZetoGenParam::Param*)> showAgain);

    /// Edits are written as long as \a binding lives. Null for a feature that the camera lacks.
    void bind(ZetoGenParam::Int* lines, ZetoGenParam::Int* clocks, QObject* binding);

    bool isAbout(const ZetoGenParam::Param* param) const { return param == m_lines || param == m_clocks; }

    /// Whether a time can be written: the camera takes both features and has a line time and a pixel clock.
    bool isOffered() const;

    void readCamera();

    /// Shows what was read last. Nothing is written.
    /// \param framePeriod microseconds that the exposure cannot exceed, when it is fixed
    void show(std::optional<int> framePeriod);

private:
    void write(int microseconds);

    const SpinBoxes m_spinBoxes;
    const LineTiming& m_timing;
    const std::function<void(ZetoGenParam::Param*)> m_showAgain;
    ZetoGenParam::Int* m_lines = nullptr;
    ZetoGenParam::Int* m_clocks = nullptr;
    QPointer<QObject> m_binding;
    Exposure m_present;
    Exposure m_longest;
    std::optional<int> m_framePeriod;
    bool m_showing = false;
};

} // namespace ZetoGui
