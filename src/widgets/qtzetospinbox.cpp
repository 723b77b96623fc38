#include "qtzetospinbox.h"

#include "compositelabels.h"
#include "popupplacement.h"
#include "qtzetoslider.h"
#include "qtzetospinboxval64.h"
#include "spinslidercoupling.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QSlider>
#include <QToolButton>

#include <array>

namespace {

constexpr int popupLength = 100;
constexpr int popupThickness = 20;
constexpr int popupMargin = 4;

QHBoxLayout* makeRow(QVBoxLayout* column, const char* name)
{
    auto* const row = new QHBoxLayout;
    row->setObjectName(QLatin1String(name));
    column->addLayout(row);
    return row;
}

} // namespace

class QtZetoSpinBoxPrivate
{
public:
    explicit QtZetoSpinBoxPrivate(QtZetoSpinBox* owner);

    void setUpLayout();
    void setUpPopup();
    void giveUpperRowRoom(bool room);
    void openPopup();
    QSize popupSize() const;
    QRect screenGeometry() const;

    QtZetoSpinBox* q;
    QVBoxLayout* layoutV;
    QHBoxLayout* layoutHH;
    std::array<QSpacerItem*, 2> upperSpacers = {}; // of layoutHH
    QHBoxLayout* layoutH;
    QtZetoSpinBoxVal64* spinBox;
    QToolButton* button;
    QtZetoSlider* slider;
    CompositeLabels labels;
    SpinSliderCoupling<QtZetoSpinBoxVal64, QtZetoSlider> coupling;
};

QtZetoSpinBoxPrivate::QtZetoSpinBoxPrivate(QtZetoSpinBox* owner)
    : q(owner)
    , layoutV(new QVBoxLayout(owner))
    , layoutHH(makeRow(layoutV, "layoutHH"))
    , layoutH(makeRow(layoutV, "layoutH"))
    , spinBox(new QtZetoSpinBoxVal64(owner))
    , button(new QToolButton(owner))
    , slider(new QtZetoSlider(owner))
    , labels(owner, layoutH, layoutHH, 1, {spinBox, button, slider->slider()})
    , coupling(*spinBox, *slider, [owner](int value) { emit owner->valueChanged(value); })
{
    setUpLayout();
    setUpPopup();
    spinBox->setRange(0, 100);
    slider->setRange(0, 100);
    QObject::connect(slider, &QtZetoSlider::rangeChanged, q, &QtZetoSpinBox::rangeChanged);
}

void QtZetoSpinBoxPrivate::setUpLayout()
{
    layoutV->setObjectName(QStringLiteral("layoutV"));
    layoutV->setContentsMargins(0, 0, 0, 0);
    for (QSpacerItem*& spacer : upperSpacers) {
        spacer = new QSpacerItem(0, 0);
        layoutHH->addItem(spacer);
    }
    spinBox->setObjectName(QStringLiteral("spinbox"));
    spinBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    button->setObjectName(QStringLiteral("button"));
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Minimum);
    layoutH->addWidget(spinBox);
    layoutH->addWidget(button);
    q->setFocusProxy(spinBox);
    q->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

/// Spacers take room even where they have nothing to keep apart.
void QtZetoSpinBoxPrivate::giveUpperRowRoom(bool room)
{
    const QSize size = room ? QSize(40, 20) : QSize(0, 0);
    for (QSpacerItem* const spacer : upperSpacers)
        spacer->changeSize(size.width(), size.height(), QSizePolicy::Expanding, QSizePolicy::Minimum);
    layoutHH->invalidate();
}

void QtZetoSpinBoxPrivate::setUpPopup()
{
    slider->setObjectName(QStringLiteral("slider"));
    slider->setWindowFlags(Qt::Popup);
    slider->setAttribute(Qt::WA_WindowPropagation); // font and palette of the dialog
    slider->setAttribute(Qt::WA_NoMouseReplay); // a click on the button closes it and does not open it again
    slider->setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Raised));
    slider->layout()->setContentsMargins(popupMargin, popupMargin, popupMargin, popupMargin);
    QObject::connect(slider, &QtZetoSlider::focusOut, slider, &QWidget::hide);
    QObject::connect(button, &QToolButton::clicked, q, [this] { openPopup(); });
}

QSize QtZetoSpinBoxPrivate::popupSize() const
{
    const QSize nominal = slider->orientation() == Qt::Horizontal ? QSize(popupLength, popupThickness)
                                                                  : QSize(popupThickness, popupLength);
    slider->ensurePolished();
    return nominal.expandedTo(slider->minimumSizeHint());
}

/// Of the screen that holds the button, wherever most of the window may be.
QRect QtZetoSpinBoxPrivate::screenGeometry() const
{
    const QScreen* screen = QGuiApplication::screenAt(button->mapToGlobal(button->rect().center()));
    return (screen ? screen : button->screen())->availableGeometry();
}

void QtZetoSpinBoxPrivate::openPopup()
{
    slider->setLayoutDirection(q->layoutDirection());
    const QRect buttonGeometry(button->mapToGlobal(QPoint(0, 0)), button->size());
    slider->setGeometry(popupGeometry(buttonGeometry, popupSize(), slider->orientation(),
                                      q->layoutDirection(), screenGeometry()));
    slider->show();
    slider->setFocus(Qt::PopupFocusReason);
}

QtZetoSpinBox::QtZetoSpinBox(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<QtZetoSpinBoxPrivate>(this))
{
    setOrientation(Qt::Vertical);
}

QtZetoSpinBox::~QtZetoSpinBox() = default;

int QtZetoSpinBox::value() const
{
    return d->coupling.value();
}

void QtZetoSpinBox::setValue(int value)
{
    if (value != d->spinBox->value())
        d->spinBox->setValue(value);
}

int QtZetoSpinBox::minimum() const
{
    return d->slider->minimum();
}

int QtZetoSpinBox::maximum() const
{
    return d->slider->maximum();
}

void QtZetoSpinBox::setRange(int min, int max)
{
    d->spinBox->setRange(min, max);
    d->slider->setRange(min, max);
}

int QtZetoSpinBox::singleStep() const
{
    return d->slider->singleStep();
}

void QtZetoSpinBox::setSingleStep(int step)
{
    d->spinBox->setSingleStep(step);
    d->slider->setSingleStep(step);
}

Qt::Orientation QtZetoSpinBox::orientation() const
{
    return d->slider->orientation();
}

void QtZetoSpinBox::setOrientation(Qt::Orientation orientation)
{
    d->slider->setOrientation(orientation);
    d->button->setText(orientation == Qt::Horizontal ? QStringLiteral(">") : QStringLiteral("^"));
}

QString QtZetoSpinBox::labelLeft() const
{
    return d->labels.left();
}

void QtZetoSpinBox::setLabelLeft(const QString& text)
{
    d->labels.setLeft(text);
}

QString QtZetoSpinBox::labelUpper() const
{
    return d->labels.upper();
}

void QtZetoSpinBox::setLabelUpper(const QString& text)
{
    d->labels.setUpper(text);
    d->giveUpperRowRoom(!text.isEmpty());
}

void QtZetoSpinBox::setKeyboardTracking(bool track)
{
    d->spinBox->setKeyboardTracking(track);
}

void QtZetoSpinBox::setCommitsOnRelease(bool commit)
{
    d->coupling.setWaitsForRelease(commit);
    if (commit)
        d->spinBox->setTrackWhileHeld(false);
}

void QtZetoSpinBox::fitSpinBox(const QSize& size)
{
    d->spinBox->resize(size);
    d->spinBox->updateGeometry();
}

QtZetoSpinBoxVal64* QtZetoSpinBox::spinBox() const
{
    return d->spinBox;
}

QtZetoSlider* QtZetoSpinBox::slider() const
{
    return d->slider;
}

QToolButton* QtZetoSpinBox::button() const
{
    return d->button;
}

void QtZetoSpinBox::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        d->slider->hide();
    QWidget::changeEvent(event);
}

void QtZetoSpinBox::hideEvent(QHideEvent* event)
{
    d->slider->hide(); // a popup is a window of its own, it does not go with this one
    QWidget::hideEvent(event);
}

void QtZetoSpinBox::showEvent(QShowEvent* event)
{
    d->labels.nameParts();
    QWidget::showEvent(event);
}
