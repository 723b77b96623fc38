#include "digitalgaincontrol.h"

#include "paramaccess.h"
#include "paramerror.h"
#include "qtzetodoublespinboxval.h"
#include "qtzetogainslider.h"
#include "zetocamconfigmapper.h"

#include <QScopedValueRollback>

#include <array>
#include <utility>

namespace ZetoGui {

DigitalGainControl::DigitalGainControl(QtZetoGainSlider* slider, const ZetoCamConfigMapper& mapper)
    : m_slider(slider)
    , m_mapper(mapper)
{
    m_slider->setSingleStep(DigitalGain().step());
    m_slider->spinBox()->setKeyboardTracking(false);
}

void DigitalGainControl::bind(ZetoGenParam::Int* coarse, ZetoGenParam::Int* fine, const QObject* binding)
{
    m_coarse = coarse;
    m_fine = fine;
    m_slider->setRange(0, m_slider->maximum());
    m_slider->setValue(0); // until a gain can be read
    connect(m_slider, &QtZetoGainSlider::valueChanged, binding, [this](double factor) { take(factor); });
    show();
}

bool DigitalGainControl::isOffered() const
{
    return ZetoGui::isOffered(m_coarse) && ZetoGui::isOffered(m_fine);
}

void DigitalGainControl::show()
{
    if (!m_coarse || !m_fine || !m_coarse->IsReadable() || !m_fine->IsReadable())
        return;
    readCamera();
    const QScopedValueRollback<bool> showing(m_showing, true);
    m_slider->setRange(m_range.minimum.factor(), m_range.maximum.factor());
    m_slider->spinBox()->setSingleStep(m_present.step()); // the least that makes a difference here
    m_slider->setValue(m_present.factor());
}

void DigitalGainControl::readCamera()
{
    int32_t ignored = 0;
    m_present = {m_coarse->GetValue(&ignored), m_fine->GetValue(&ignored)};
    m_range.minimum = {m_coarse->GetMin(&ignored), m_fine->GetMin(&ignored)};
    m_range.maximum = {m_coarse->GetMax(&ignored), m_fine->GetMax(&ignored)};
}

void DigitalGainControl::take(double factor)
{
    if (m_showing || !isOffered())
        return;
    const DigitalGain wanted = m_range.towards(factor, m_present);
    if (wanted == m_present || m_mapper.IsRefreshing())
        show();
    else
        write(wanted);
}

/// The part first that makes the picture darker, so that it does not flash in between.
void DigitalGainControl::write(const DigitalGain& gain)
{
    struct Part
    {
        ZetoGenParam::Int* param;
        int64_t before;
        int64_t after;
    };
    std::array<Part, 2> parts = {
        {{m_coarse, m_present.coarse, gain.coarse}, {m_fine, m_present.fine, gain.fine}}};
    if (gain.coarse > m_present.coarse)
        std::swap(parts[0], parts[1]);
    int32_t code = ZetoCam::Success;
    ZetoGenParam::Int* written = nullptr;
    for (const Part& part : parts) {
        if (code == ZetoCam::Success && part.before != part.after)
            code = (written = part.param)->SetValue(part.after);
    }
    show();
    ReportParamError(code, m_slider->window(), written);
}

} // namespace ZetoGui
