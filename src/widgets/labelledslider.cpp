#include "labelledslider.h"

#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

constexpr int labelSpacing = 6;

/// A label for a number. A number reads from left to right also where text does not.
QLabel* makeLabel(QFrame& frame, const QString& name)
{
    auto* const label = new QLabel(&frame);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setLayoutDirection(Qt::LeftToRight);
    return label;
}

int directionOf(int action)
{
    switch (action) {
    case QAbstractSlider::SliderSingleStepAdd:
    case QAbstractSlider::SliderPageStepAdd:
    case QAbstractSlider::SliderToMaximum:
        return 1;
    case QAbstractSlider::SliderSingleStepSub:
    case QAbstractSlider::SliderPageStepSub:
    case QAbstractSlider::SliderToMinimum:
        return -1;
    default:
        return 0;
    }
}

} // namespace

LabelledSlider::LabelledSlider(QFrame& frame)
    : QObject(&frame)
    , m_labelMax(makeLabel(frame, QStringLiteral("labelMax")))
    , m_labelMin(makeLabel(frame, QStringLiteral("labelMin")))
    , m_slider(new ValueSlider(&frame))
    , m_layout(new QGridLayout(&frame))
{
    m_slider->setObjectName(QStringLiteral("slider"));
    m_slider->installEventFilter(this);
    frame.setFocusProxy(m_slider);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setHorizontalSpacing(labelSpacing);
    m_layout->setVerticalSpacing(0);
    setOrientation(Qt::Vertical);

    connect(m_slider, &QSlider::actionTriggered, this, &LabelledSlider::takeAction);
    connect(m_slider, &QSlider::valueChanged, this, [this](int position) {
        if (!m_setting)
            emit picked(position, 0);
    });
}

void LabelledSlider::setOrientation(Qt::Orientation orientation)
{
    for (QWidget* const widget : {static_cast<QWidget*>(m_labelMax), static_cast<QWidget*>(m_labelMin),
                                  static_cast<QWidget*>(m_slider)})
        m_layout->removeWidget(widget);
    m_slider->setOrientation(orientation);
    if (orientation == Qt::Horizontal) {
        m_layout->addWidget(m_slider, 0, 0, 1, 2);
        m_layout->addWidget(m_labelMin, 1, 0, Qt::AlignLeft);
        m_layout->addWidget(m_labelMax, 1, 1, Qt::AlignRight);
    } else {
        m_layout->addWidget(m_labelMax, 0, 0, Qt::AlignHCenter);
        m_layout->addWidget(m_slider, 1, 0, Qt::AlignHCenter);
        m_layout->addWidget(m_labelMin, 2, 0, Qt::AlignHCenter);
    }
}

void LabelledSlider::setLabels(const QString& minimum, const QString& maximum)
{
    m_labelMin->setText(minimum);
    m_labelMax->setText(maximum);
}

void LabelledSlider::setPositions(int first, int last, int step)
{
    const QScopedValueRollback<bool> setting(m_setting, true);
    m_slider->setRange(first, last);
    m_slider->setSingleStep(step);
    const qint64 tenth = (qint64(last) - first) / 10;
    m_slider->setPageStep(int(std::max<qint64>(tenth, step)));
}

void LabelledSlider::setPosition(int position, const ValueSlider::Reading& reading)
{
    const QScopedValueRollback<bool> setting(m_setting, true);
    m_slider->setReading(reading);
    m_slider->setValue(position);
}

/// Runs before the slider takes the position over as its value: a listener may still correct it.
void LabelledSlider::takeAction(int action)
{
    const int direction = directionOf(action);
    if (direction != 0)
        emit picked(m_slider->sliderPosition(), direction);
}

bool LabelledSlider::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_slider)
        return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::FocusOut:
        m_slider->update(); // the event ends here, so the focus frame is ours to take away
        emit focusOut();
        return true;
    case QEvent::Hide:
        m_slider->setSliderDown(false); // a handle that goes away while dragged sees no mouse release
        return false;
    default:
        return false;
    }
}
