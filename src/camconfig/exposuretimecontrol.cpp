#include "exposuretimecontrol.h"

#include "paramaccess.h"
#include "qtzetoslider.h"
#include "qtzetosliderspinbox.h"
#include "qtzetospinbox.h"
#include "qtzetospinboxval.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <limits>

namespace ZetoGui {
namespace {

int64_t maximumOf(ZetoGenParam::Int* param)
{
    int32_t ignored = 0;
    return param ? param->GetMax(&ignored) : 0;
}

int forWidget(int64_t value)
{
    return static_cast<int>(std::clamp<int64_t>(value, 0, std::numeric_limits<int>::max()));
}

} // namespace

ExposureTimeControl::ExposureTimeControl(const SpinBoxes& spinBoxes, const LineTiming& timing,
                                         std::function<void(ZetoGenParam::Param*)> showAgain)
    : m_spinBoxes(spinBoxes)
    , m_timing(timing)
    , m_showAgain(std::move(showAgain))
{
    m_spinBoxes.time->spinBox()->setKeyboardTracking(false);
    for (QtZetoSlider* const slider :
         {m_spinBoxes.time->slider(), m_spinBoxes.lines->slider(), m_spinBoxes.clocks->slider()})
        slider->setScaleMode(QtZetoSlider::Logarithmic);
}

void ExposureTimeControl::bind(ZetoGenParam::Int* lines, ZetoGenParam::Int* clocks, QObject* binding)
{
    m_lines = lines;
    m_clocks = clocks;
    m_binding = binding;
    connect(m_spinBoxes.time, &QtZetoSliderSpinBox::valueChanged, binding, [this](int microseconds) {
        if (!m_showing)
            write(microseconds);
    });
    readCamera();
}

bool ExposureTimeControl::isOffered() const
{
    return m_timing.lineTime > 0 && m_timing.pixelClock > 0 && ZetoGui::isOffered(m_lines) &&
           ZetoGui::isOffered(m_clocks);
}

void ExposureTimeControl::readCamera()
{
    m_present = {valueOf(m_lines).value_or(0), valueOf(m_clocks).value_or(0)};
    m_longest = {maximumOf(m_lines), maximumOf(m_clocks)};
}

void ExposureTimeControl::show(std::optional<int> framePeriod)
{
    m_framePeriod = framePeriod;
    const QScopedValueRollback<bool> showing(m_showing, true);
    m_spinBoxes.time->setRange(0, framePeriod.value_or(forWidget(exposureTime(m_longest, m_timing))));
    m_spinBoxes.time->setValue(forWidget(exposureTime(m_present, m_timing)));
}

/// The person may close an error box only after the dialog has got another camera: then there is nothing more
/// to write. What was refused does not stay in the spin boxes: the same time could not be entered again.
void ExposureTimeControl::write(int microseconds)
{
    const std::optional<Exposure> wanted = exposureOfTime(microseconds, m_timing, m_longest);
    const QPointer<QObject> binding = m_binding;
    if (wanted && isOffered()) {
        m_spinBoxes.lines->setValue(forWidget(wanted->lines));
        if (binding && m_present.lines == wanted->lines)
            m_spinBoxes.clocks->setValue(forWidget(wanted->clocks));
        for (ZetoGenParam::Int* const part : {m_lines, m_clocks}) {
            if (binding)
                m_showAgain(part);
        }
    }
    if (binding)
        show(m_framePeriod);
}

} // namespace ZetoGui
