#include "labelledslider.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
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
    , m_column(new QVBoxLayout(&frame))
    , m_row(new QHBoxLayout)
{
    m_slider->setObjectName(QStringLiteral("slider"));
    m_slider->installEventFilter(this);
    frame.setFocusProxy(m_slider);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(0);
    m_column->addWidget(m_slider);
    m_column->addLayout(m_row);
    m_row->setSpacing(labelSpacing);
    m_row->addStretch();
    setOrientation(Qt::Vertical);

    connect(m_slider, &QSlider::actionTriggered, this, &LabelledSlider::takeAction);
    connect(m_slider, &QSlider::valueChanged, this, [this](int position) {
        if (!m_setting)
            emit picked(position, 0);
    });
}

void LabelledSlider::setOrientation(Qt::Orientation orientation)
{
    for (QLabel* const label : {m_labelMin, m_labelMax}) {
        m_row->removeWidget(label);
        m_column->removeWidget(label);
    }
    m_slider->setOrientation(orientation);
    if (orientation == Qt::Horizontal) {
        m_row->insertWidget(0, m_labelMin);
        m_row->addWidget(m_labelMax);
        m_column->setAlignment(m_slider, {});
    } else {
        m_column->insertWidget(0, m_labelMax, 0, Qt::AlignHCenter);
        m_column->insertWidget(2, m_labelMin, 0, Qt::AlignHCenter);
        m_column->setAlignment(m_slider, Qt::AlignHCenter);
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
