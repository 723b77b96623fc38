#include "widgetgallery.h"

#include "qtzetodoubleslider.h"
#include "qtzetodoublespinboxval.h"
#include "qtzetogainslider.h"
#include "qtzetoslider.h"
#include "qtzetosliderspinbox.h"
#include "qtzetospinbox.h"
#include "qtzetospinboxval.h"
#include "qtzetospinboxval64.h"
#include "samplegroup.h"

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <limits>

namespace {

using Note = SampleGroup::Note;

constexpr int logLines = 1000;
constexpr int mostExposure = 1000000; // microseconds: a range that spans decades

QString translated(const char* text)
{
    return WidgetGallery::tr(text);
}

SampleGroup* make64BitSpinBoxes(const Note& note)
{
    auto* const group = new SampleGroup(translated("Spin box for 64 bits"), Qt::Horizontal, note);
    auto* box = group->add<qint64>(translated("Whole range"), new QtZetoSpinBoxVal64);
    box->setRange(std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max());

    box = group->add<qint64>(translated("Hexadecimal"), new QtZetoSpinBoxVal64);
    box->setPrefix(QStringLiteral("0x"));
    box->setDisplayIntegerBase(16);
    box->setRange(0, 0xffffffff);
    box->setValue(0xc0ffee);

    box = group->add<qint64>(translated("Grid of 16"), new QtZetoSpinBoxVal64);
    box->setRange(0, 4096);
    box->setSingleStep(16);
    box->setSnapToStep(true);

    box = group->add<qint64>(translated("Enter and release"), new QtZetoSpinBoxVal64);
    box->setRange(0, mostExposure);
    box->setSuffix(QStringLiteral(" us"));
    box->setKeyboardTracking(false);
    box->setTrackWhileHeld(false);
    box->setValue(1000);
    return group;
}

SampleGroup* makeSpinBoxes(const Note& note)
{
    auto* const group = new SampleGroup(translated("Spin boxes"), Qt::Horizontal, note);
    group->add<int>(translated("Integer"), new QtZetoSpinBoxVal);

    auto* box = group->add<int>(translated("Grid of 8"), new QtZetoSpinBoxVal);
    box->setRange(4, 99);
    box->setSingleStep(8);
    box->setSnapToStep(true);

    group->add<int>(translated("Typing waits for Enter"), new QtZetoSpinBoxVal)->setAcceptWhileTyping(false);

    auto* number = group->add<double>(translated("Double"), new QtZetoDoubleSpinBoxVal);
    number->setSuffix(QStringLiteral(" dB"));

    number = group->add<double>(translated("Grid of 0.25, Enter"), new QtZetoDoubleSpinBoxVal);
    number->setSingleStep(0.25);
    number->setSnapToStep(true);
    number->setAcceptWhileTyping(false);
    return group;
}

QtZetoSlider* addSlider(SampleGroup* group, const QString& sample, Qt::Orientation orientation, int mode,
                        int maximum)
{
    auto* const slider = group->addSlider<int>(sample, new QtZetoSlider(orientation));
    slider->setScaleMode(mode);
    slider->setRange(0, maximum);
    return slider;
}

SampleGroup* makeSliders(const Note& note)
{
    auto* const group = new SampleGroup(translated("Sliders"), Qt::Horizontal, note);
    addSlider(group, translated("Linear"), Qt::Horizontal, QtZetoSlider::Linear, 100)->setValue(50);
    auto* const grid = addSlider(group, translated("Grid of 10"), Qt::Horizontal, QtZetoSlider::Linear, 96);
    grid->setSingleStep(10);
    grid->setSnapToStep(true);
    addSlider(group, translated("Logarithmic"), Qt::Horizontal, QtZetoSlider::Logarithmic, mostExposure)
        ->setValue(1000);
    addSlider(group, translated("Square root"), Qt::Horizontal, QtZetoSlider::SquareRoot, mostExposure)
        ->setValue(1000);
    auto* const number =
        group->addSlider<double>(translated("Double"), new QtZetoDoubleSlider(Qt::Horizontal));
    number->setSingleStep(0.25);
    number->setRange(-6.0, 24.1);
    return group;
}

SampleGroup* makeUprightSliders(const Note& note)
{
    auto* const group = new SampleGroup(translated("Upright"), Qt::Vertical, note);
    addSlider(group, translated("Linear"), Qt::Vertical, QtZetoSlider::Linear, 100)->setValue(50);
    addSlider(group, translated("Logarithmic"), Qt::Vertical, QtZetoSlider::Logarithmic, mostExposure)
        ->setValue(1000);
    addSlider(group, translated("Square root"), Qt::Vertical, QtZetoSlider::SquareRoot, mostExposure)
        ->setValue(1000);
    auto* const number = group->addSlider<double>(translated("Double"), new QtZetoDoubleSlider);
    number->setSingleStep(0.25);
    number->setRange(-6.0, 24.1);
    auto* const composite = group->add<int>(translated("With spin box"), new QtZetoSliderSpinBox);
    composite->setOrientation(Qt::Vertical);
    composite->setValue(25);
    return group;
}

SampleGroup* makePopups(const Note& note)
{
    auto* const group = new SampleGroup(translated("Spin box with popup slider"), Qt::Horizontal, note);
    group->add<int>(translated("Upright popup"), new QtZetoSpinBox)->setValue(50);

    auto* box = group->add<int>(translated("Logarithmic"), new QtZetoSpinBox);
    box->setOrientation(Qt::Horizontal);
    box->slider()->setScaleMode(QtZetoSlider::Logarithmic);
    box->setRange(0, mostExposure);
    box->setValue(1000);

    box = group->add<int>(translated("Enter and release"), new QtZetoSpinBox);
    box->setOrientation(Qt::Horizontal);
    box->setKeyboardTracking(false);
    box->setCommitsOnRelease(true);
    box->setLabelLeft(translated("&Threshold:"));

    box = group->add<int>(translated("Both labels"), new QtZetoSpinBox);
    box->setLabelUpper(translated("Pulse"));
    box->setLabelLeft(translated("&Width:"));
    return group;
}

SampleGroup* makeSliderRows(const Note& note)
{
    auto* const group = new SampleGroup(translated("Spin box beside slider"), Qt::Horizontal, note);
    group->add<int>(translated("Linear"), new QtZetoSliderSpinBox)->setValue(50);

    auto* const delay = group->add<int>(translated("Logarithmic"), new QtZetoSliderSpinBox);
    delay->slider()->setScaleMode(QtZetoSlider::Logarithmic);
    delay->setRange(0, mostExposure);
    delay->setLabelLeft(translated("&Delay:"));
    delay->setValue(1000);

    auto* const gain = group->add<double>(translated("Gain"), new QtZetoGainSlider);
    gain->setSingleStep(0.1);
    gain->setRange(0.0, 24.0);
    gain->setLabelUpper(translated("Analog gain"));
    gain->setValue(1.5);
    return group;
}

} // namespace

WidgetGallery::WidgetGallery(QWidget* parent)
    : QWidget(parent)
    , m_log(new QPlainTextEdit(this))
    , m_samples(makeSamples())
{
    setWindowTitle(translated("Value widgets"));
    m_log->clear(); // the making of the samples is not of interest
    m_log->setReadOnly(true);
    m_log->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_log->setMaximumBlockCount(logLines);
    m_log->setPlaceholderText(translated("Signals appear here"));
    m_log->setAccessibleName(translated("Signals"));

    auto* const side = new QVBoxLayout;
    side->addWidget(makeSwitches());
    side->addWidget(m_log);
    auto* const layout = new QHBoxLayout(this);
    layout->addWidget(m_samples, 3);
    layout->addLayout(side, 1);
}

QWidget* WidgetGallery::makeSamples()
{
    const Note note = [this](const QString& sample, const QString& signal) { this->note(sample, signal); };
    auto* const samples = new QWidget(this);
    auto* const grid = new QGridLayout(samples);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(make64BitSpinBoxes(note), 0, 0);
    grid->addWidget(makeSpinBoxes(note), 1, 0);
    grid->addWidget(makePopups(note), 2, 0);
    grid->addWidget(makeSliders(note), 0, 1);
    grid->addWidget(makeSliderRows(note), 1, 1);
    grid->addWidget(makeUprightSliders(note), 2, 1);
    grid->setColumnStretch(1, 1);
    return samples;
}

QWidget* WidgetGallery::makeSwitches()
{
    auto* const switches = new QWidget(this);
    auto* const enabled = new QCheckBox(translated("&Enabled"), switches);
    auto* const rightToLeft = new QCheckBox(translated("&Right to left"), switches);
    auto* const clear = new QPushButton(translated("&Clear"), switches);
    enabled->setChecked(true);
    rightToLeft->setChecked(isRightToLeft());
    connect(enabled, &QCheckBox::toggled, m_samples, &QWidget::setEnabled);
    connect(rightToLeft, &QCheckBox::toggled, this,
            [this](bool on) { setLayoutDirection(on ? Qt::RightToLeft : Qt::LeftToRight); });
    connect(clear, &QPushButton::clicked, m_log, &QPlainTextEdit::clear);

    auto* const row = new QHBoxLayout(switches);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(enabled);
    row->addWidget(rightToLeft);
    row->addStretch();
    row->addWidget(clear);
    return switches;
}

void WidgetGallery::note(const QString& sample, const QString& signal)
{
    m_log->appendPlainText(translated("%1: %2").arg(sample, signal));
}
