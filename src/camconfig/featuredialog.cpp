#include "featuredialog.h"

#include "applicationlanguage.h"
#include "featuretooltip.h"
#include "screenfit.h"

#include <QAbstractSpinBox>
#include <QKeyEvent>
#include <QLayout>
#include <QPushButton>

namespace ZetoGui {

FeatureDialog::FeatureDialog(QDialog* dialog)
    : dialog(dialog)
    , m_watch([this](ZetoGenParam::Param* param) { featureChanged(param); })
{
}

FeatureDialog::~FeatureDialog()
{
    m_connections.reset(); // the rules of the derived class are gone
    mapper.Clear(array);
    mapper.Clear(nullptr);
}

bool FeatureDialog::SetDevice(ZetoCam::Device* newDevice)
{
    if (!m_formBuilt)
        build();
    unbind();
    int32_t error = 0;
    device = newDevice;
    array = device ? device->GetParameters(&error) : nullptr;
    if (error != ZetoCam::Success)
        array = nullptr;
    dialog->setEnabled(array);
    if (!array)
        return false;
    bindFeatures();
    describe();
    return true;
}

/// A tool tip of the form itself stays.
void FeatureDialog::describe()
{
    mapper.ForEachWidget([this](const QString& feature, QWidget* widget) {
        if (!widget->toolTip().isEmpty())
            return;
        widget->setToolTip(featureToolTip(*array, feature));
        m_described.append(widget);
    });
}

/// Escape closes the window as its frame does: QDialog would only hide it. What is half typed is given up. A
/// window finds its place when it is shown, by its size.
bool FeatureDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && !event->spontaneous())
        fitToScreen(*dialog);
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel)) {
        if (auto* const field = qobject_cast<QAbstractSpinBox*>(dialog->focusWidget()))
            field->setProperty("value", field->property("value"));
        dialog->close();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void FeatureDialog::build()
{
    m_formBuilt = true;
    useApplicationLanguage();
    buildForm();
    dialog->layout()->setSizeConstraint(QLayout::SetFixedSize);
    dialog->installEventFilter(this);
    // Enter commits a number, it presses no button.
    const QList<QPushButton*> buttons = dialog->findChildren<QPushButton*>();
    for (QPushButton* const button : buttons)
        button->setAutoDefault(false);
}

void FeatureDialog::unbind()
{
    m_watch.clear();
    m_connections = std::make_unique<QObject>(); // no rule runs on what is being unbound
    mapper.Clear(array);
    array = nullptr;
    for (const QPointer<QWidget>& widget : qAsConst(m_described)) {
        if (widget)
            widget->setToolTip({});
    }
    m_described.clear();
}

ZetoGenParam::Enum* FeatureDialog::findEnum(const char* name) const
{
    int32_t error = 0;
    return array->GetEnum(name, &error);
}

ZetoGenParam::Int* FeatureDialog::findInt(const char* name) const
{
    int32_t error = 0;
    return array->GetInt(name, &error);
}

ZetoGenParam::Boolean* FeatureDialog::findBoolean(const char* name) const
{
    int32_t error = 0;
    return array->GetBoolean(name, &error);
}

ZetoGenParam::Command* FeatureDialog::findCommand(const char* name) const
{
    int32_t error = 0;
    return array->GetCommand(name, &error);
}

} // namespace ZetoGui
