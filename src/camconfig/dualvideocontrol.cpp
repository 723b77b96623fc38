#include "dualvideocontrol.h"

#include "frameexcursion.h"
#include "framenames.h"
#include "intview.h"
#include "paramaccess.h"
#include "paramerror.h"
#include "zetocamconfigmapper.h"

#include <QScopedValueRollback>
#include <QSpinBox>

#include <cstring>
#include <limits>

namespace ZetoGui {

DualVideoControl::DualVideoControl(QSpinBox* spinBox, const ZetoCamConfigMapper& mapper)
    : m_spinBox(spinBox)
    , m_mapper(mapper)
{
}

void DualVideoControl::bind(ZetoGenParam::Int* lineTime, ZetoGenParam::Enum* selector, const QObject* binding)
{
    m_lineTime = lineTime;
    m_selector = selector;
    m_spinBox->setMinimum(0);
    m_spinBox->setValue(0); // until a line time can be read
    connect(m_spinBox, qOverload<int>(&QSpinBox::valueChanged), binding, [this](int value) { take(value); });
    show();
}

bool DualVideoControl::isOffered() const
{
    return ZetoGui::isOffered(m_lineTime);
}

void DualVideoControl::show()
{
    if (!m_lineTime || !m_lineTime->IsReadable())
        return;
    const IntView view = viewOf(*m_lineTime, nullptr, std::numeric_limits<int>::max());
    const QScopedValueRollback<bool> showing(m_showing, true);
    m_spinBox->setRange(view.minimum, view.maximum);
    m_spinBox->setSingleStep(view.singleStep);
    if (m_spinBox->value() != view.value) // leaves text that is being typed alone
        m_spinBox->setValue(static_cast<int>(view.value));
}

void DualVideoControl::take(int lineTime)
{
    if (m_showing || !isOffered())
        return;
    if (m_mapper.IsRefreshing()) {
        show();
        return;
    }
    int32_t code = m_lineTime->SetValue(lineTime);
    if (code == ZetoCam::Success && m_selector)
        code = writeToOtherFrame(lineTime);
    show(); // what was refused could not be entered again
    ReportParamError(code, m_spinBox->window(), m_lineTime);
}

int32_t DualVideoControl::writeToOtherFrame(int64_t lineTime)
{
    int32_t error = ZetoCam::Success;
    const char* const home = m_selector->GetValueStr(&error);
    if (error != ZetoCam::Success || !home)
        return error;
    const FrameExcursion excursion(*m_selector, home, std::strcmp(home, FrameA) == 0 ? FrameB : FrameA);
    return excursion.error() ? excursion.error() : m_lineTime->SetValue(lineTime);
}

} // namespace ZetoGui
