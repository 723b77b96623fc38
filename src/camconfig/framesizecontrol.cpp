#include "framesizecontrol.h"

#include "bindingkinds.h"
#include "paramaccess.h"
#include "paramerror.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QScopedValueRollback>

#include <algorithm>

namespace ZetoGui {
namespace {

/// What a camera says of itself, as far as it can be a number of pixels: sums of two cannot overflow.
int64_t pixels(int64_t value)
{
    return std::clamp<int64_t>(value, 0, 2147483647);
}

/// The first write that a camera has refused.
struct Refusal
{
    ZetoGenParam::Int* param = nullptr;
    int32_t code = ZetoCam::Success;

    void set(ZetoGenParam::Int* target, int64_t value)
    {
        int32_t ignored = 0;
        if (code != ZetoCam::Success || !target || target->GetValue(&ignored) == value)
            return;
        param = target;
        code = target->SetValue(value);
    }

    void set(const ExtentFeatures& features, const FrameExtent& target)
    {
        for (const ExtentPart part : writeOrder(features.present(), target)) {
            if (part == ExtentPart::Size)
                set(features.size, target.size);
            else
                set(features.offset, target.offset);
        }
    }
};

} // namespace

bool ExtentFeatures::isReadable() const
{
    return size && size->IsReadable() && (!offset || offset->IsReadable());
}

bool ExtentFeatures::isWritable() const
{
    return isOffered(size) && (!offset || isOffered(offset));
}

FrameExtent ExtentFeatures::present() const
{
    int32_t ignored = 0;
    return {pixels(size->GetValue(&ignored)), offset ? pixels(offset->GetValue(&ignored)) : 0};
}

ExtentLimits ExtentFeatures::limits(const FrameExtent& present) const
{
    int32_t ignored = 0;
    ExtentLimits limits;
    limits.minimumSize = pixels(size->GetMin(&ignored));
    limits.sizeStep = pixels(size->GetIncrement(&ignored));
    limits.minimumOffset = offset ? pixels(offset->GetMin(&ignored)) : 0;
    limits.offsetStep = offset ? pixels(offset->GetIncrement(&ignored)) : 1;
    limits.whole = sensorSize(present, pixels(size->GetMax(&ignored)),
                              offset ? pixels(offset->GetMax(&ignored)) : limits.minimumOffset);
    return limits;
}

FrameSizeControl::FrameSizeControl(const Buttons& buttons)
    : m_buttons(buttons)
{
}

void FrameSizeControl::bind(const ExtentFeatures& horizontal, const ExtentFeatures& vertical,
                            const QObject* binding)
{
    m_horizontal = horizontal;
    m_vertical = vertical;
    uncheckAll(*m_buttons.custom->group());
    for (QAbstractButton* const button : {m_buttons.fullFrame, m_buttons.qfhd, m_buttons.custom}) {
        connect(button, &QAbstractButton::toggled, binding, [this, button](bool checked) {
            if (checked && !m_showing)
                choose(button);
        });
    }
    showOtherFrame();
}

bool FrameSizeControl::isAbout(const ZetoGenParam::Param* param) const
{
    return m_horizontal.isAbout(param) || m_vertical.isAbout(param);
}

bool FrameSizeControl::isOffered() const
{
    return m_horizontal.isWritable() && m_vertical.isWritable();
}

void FrameSizeControl::show()
{
    if (m_showing || !m_horizontal.isReadable() || !m_vertical.isReadable())
        return;
    readCamera();
    const QScopedValueRollback<bool> showing(m_showing, true);
    buttonOfCamera()->setChecked(true);
}

void FrameSizeControl::showOtherFrame()
{
    m_custom.reset();
    show();
}

void FrameSizeControl::readCamera()
{
    m_present = {m_horizontal.present(), m_vertical.present()};
    const ExtentLimits horizontal = m_horizontal.limits(m_present.horizontal);
    const ExtentLimits vertical = m_vertical.limits(m_present.vertical);
    m_full = {horizontal.full(), vertical.full()};
    m_qfhd = {horizontal.centred(qfhdWidth), vertical.centred(qfhdHeight)};
    m_hasQfhd = horizontal.holds(qfhdWidth) && vertical.holds(qfhdHeight);
}

QAbstractButton* FrameSizeControl::buttonOfCamera() const
{
    if (m_custom && *m_custom == m_present)
        return m_buttons.custom;
    if (m_present == m_full)
        return m_buttons.fullFrame;
    return m_hasQfhd && m_present == m_qfhd ? m_buttons.qfhd : m_buttons.custom;
}

void FrameSizeControl::choose(const QAbstractButton* button)
{
    m_custom.reset();
    if (button == m_buttons.custom)
        m_custom = m_present;
    if (button == m_buttons.custom || !isOffered())
        show();
    else
        write(button == m_buttons.fullFrame ? m_full : m_qfhd);
}

void FrameSizeControl::write(const FrameArea& area)
{
    Refusal refusal;
    {
        const QScopedValueRollback<bool> waiting(m_showing, true); // the sizes on the way are nobody's choice
        refusal.set(m_horizontal, area.horizontal);
        refusal.set(m_vertical, area.vertical);
    }
    show();
    ReportParamError(refusal.code, m_buttons.custom->window(), refusal.param);
}

} // namespace ZetoGui
