#include "zetocamconfigmapper.h"

#include "frameexcursion.h"
#include "paramerror.h"
#include "qtzetosliderspinbox.h"
#include "qtzetospinbox.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMetaMethod>
#include <QScopedValueRollback>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>

#include <algorithm>

namespace ZetoGui {

namespace {

QString featureName(ZetoGenParam::Param& param)
{
    return QString::fromUtf8(param.GetName());
}

/// Drops the connections of all signals but QObject's own: Qt itself watches the end of widgets.
void disconnectSignals(const QObject& sender)
{
    const QMetaObject* const type = sender.metaObject();
    for (int i = QObject::staticMetaObject.methodCount(); i < type->methodCount(); ++i) {
        if (type->method(i).methodType() == QMetaMethod::Signal)
            QObject::disconnect(&sender, type->method(i), nullptr, QMetaMethod());
    }
}

QList<QWidget*> widgetsOf(QObject* target)
{
    QList<QWidget*> widgets;
    if (const auto* const group = qobject_cast<QButtonGroup*>(target)) {
        const QList<QAbstractButton*> buttons = group->buttons();
        for (QAbstractButton* const button : buttons)
            widgets.append(button);
    } else if (auto* const widget = qobject_cast<QWidget*>(target)) {
        widgets.append(widget);
    }
    return widgets;
}

QWidget* windowOf(QObject* target)
{
    const QList<QWidget*> widgets = widgetsOf(target);
    return widgets.isEmpty() ? nullptr : widgets.first()->window();
}

} // namespace

ZetoCamConfigMapper::ZetoCamConfigMapper()
    : m_relay([this](ZetoGenParam::Param* param) { update(param); })
{
}

ZetoCamConfigMapper::~ZetoCamConfigMapper() = default;

bool ZetoCamConfigMapper::MapEnum(ZetoGenParam::Enum* param, QComboBox* combo)
{
    return bind(ComboBoxToEnum{{param, combo}});
}

bool ZetoCamConfigMapper::MapEnum(ZetoGenParam::Enum* param, QCheckBox* checkBox)
{
    return bind(CheckBoxToEnum{{param, checkBox}});
}

bool ZetoCamConfigMapper::MapEnum(ZetoGenParam::Enum* param, QButtonGroup* group)
{
    unbind(group); // gives it its automatic ids back
    return bind(ButtonGroupToEnum{{param, group}, hasAutomaticIds(*group)});
}

bool ZetoCamConfigMapper::MapEnum(ZetoGenParam::Enum* param, QTabWidget* tabs)
{
    return bind(TabWidgetToEnum{{param, tabs}, &m_tabIndices});
}

bool ZetoCamConfigMapper::MapCommand(ZetoGenParam::Command* param, QAbstractButton* button)
{
    return bind(ButtonToCommand{{param, button}});
}

bool ZetoCamConfigMapper::MapBoolean(ZetoGenParam::Boolean* param, QAbstractButton* button)
{
    return bind(ButtonToBoolean{{param, button}});
}

bool ZetoCamConfigMapper::MapInt(ZetoGenParam::Int* param, QLineEdit* edit)
{
    return bind(LineEditToInt{{param, edit}, m_intLimit});
}

bool ZetoCamConfigMapper::MapInt(ZetoGenParam::Int* param, QSpinBox* spinBox)
{
    return bind(NumberToInt<QSpinBox>{{param, spinBox}, nullptr, m_intLimit});
}

bool ZetoCamConfigMapper::MapInt(ZetoGenParam::Int* param, QtZetoSpinBox* spinBox,
                                 const QVector<QWidget*>& companions)
{
    return bind(NumberToInt<QtZetoSpinBox>{{param, spinBox}, nullptr, m_intLimit}, companions);
}

bool ZetoCamConfigMapper::MapInt(ZetoGenParam::Int* param, QSlider* slider,
                                 IZetoCamConfigIntConverter* converter)
{
    return bind(NumberToInt<QSlider>{{param, slider}, converter, m_intLimit});
}

bool ZetoCamConfigMapper::MapInt(ZetoGenParam::Int* param, QtZetoSliderSpinBox* spinBox,
                                 IZetoCamConfigIntConverter* converter)
{
    return bind(NumberToInt<QtZetoSliderSpinBox>{{param, spinBox}, converter, m_intLimit});
}

int& ZetoCamConfigMapper::TabIndex(const QString& featureName, const QString& entryName)
{
    return m_tabIndices[featureName][entryName];
}

void ZetoCamConfigMapper::SetAllowed(QWidget* widget, bool allowed)
{
    m_enabling.setAllowed(widget, allowed);
}

void ZetoCamConfigMapper::ForEachWidget(
    const std::function<void(const QString& featureName, QWidget* widget)>& visit) const
{
    for (auto it = m_bindings.cbegin(); it != m_bindings.cend(); ++it) {
        const QList<QWidget*> widgets = widgetsOf(it->first().target);
        for (QWidget* const widget : widgets)
            visit(it.key(), widget);
    }
}

void ZetoCamConfigMapper::Clear(ZetoGenParam::Array* array)
{
    for (auto it = m_bindings.cbegin(); array && it != m_bindings.cend(); ++it) {
        int32_t ignored = 0;
        ZetoGenParam::Param* const found = array->GetParam(it.key().toUtf8().constData(), &ignored);
        (found ? found : it->first().param)->UnregisterEventSink(this);
    }
    m_relay.drop();
    for (const Bindings& feature : qAsConst(m_bindings))
        release(feature);
    m_bindings.clear();
    m_tabIndices.clear();
}

void ZetoCamConfigMapper::OnParamChanged(ZetoGenParam::Param* param)
{
    if (!FrameExcursion::postpones(this, param))
        m_relay.take(param);
}

template <typename Kind>
bool ZetoCamConfigMapper::bind(const Kind& kind, const QVector<QWidget*>& companions)
{
    unbind(kind.widget);
    if (!kind.param) {
        const QList<QWidget*> widgets = widgetsOf(kind.widget) + companions.toList();
        for (QWidget* const widget : widgets)
            m_enabling.setOffered(widget, false);
        kind.showNothing();
        return false;
    }
    kind.param->UnregisterEventSink(this);
    release(m_bindings.take(featureName(*kind.param)));
    disconnectSignals(*kind.widget);

    Bindings feature{{kind.param, kind.widget, [kind] { kind.refresh(); },
                      [this, kind](bool writable) { kind.enable(m_enabling, writable); },
                      [kind] { kind.release(); }}};
    for (QWidget* const widget : companions)
        feature.append(companion(kind.param, widget));
    m_bindings.insert(featureName(*kind.param), feature);

    kind.prepare();
    kind.param->RegisterEventSink(this); // before the first reading: another thread may write right after it
    refresh(feature);
    offer(feature, kind.param->IsAvailable() && kind.param->IsWritable());
    kind.connectEdits({&m_relay, [this, kind](const std::function<int32_t()>& writeValue) {
                           write(kind.param, kind.widget, writeValue);
                       }});
    return true;
}

ZetoCamConfigMapper::Binding ZetoCamConfigMapper::companion(ZetoGenParam::Param* param, QWidget* widget)
{
    return {param, widget, [] {}, [this, widget](bool writable) { m_enabling.setOffered(widget, writable); },
            [] {}};
}

/// Takes a main widget from the feature that it was bound to.
void ZetoCamConfigMapper::unbind(const QObject* widget)
{
    const auto bound = std::find_if(m_bindings.begin(), m_bindings.end(), [&](const Bindings& feature) {
        return feature.first().target == widget;
    });
    if (bound == m_bindings.end())
        return;
    bound->first().param->UnregisterEventSink(this);
    release(*bound);
    m_bindings.erase(bound);
}

/// A widget that is disabled commits what is half typed: nobody's edit any more.
void ZetoCamConfigMapper::release(const Bindings& feature)
{
    const QScopedValueRollback<bool> guard(m_refreshing, true);
    for (const Binding& binding : feature) {
        const QList<QWidget*> widgets = widgetsOf(binding.target);
        for (QWidget* const widget : widgets)
            m_enabling.release(widget);
        if (binding.target)
            binding.release();
    }
    if (!feature.isEmpty() && feature.first().target)
        disconnectSignals(*feature.first().target);
}

void ZetoCamConfigMapper::update(ZetoGenParam::Param* param)
{
    const Bindings feature = m_bindings.value(featureName(*param)); // a rule may bind anew meanwhile
    if (feature.isEmpty())
        return;
    const bool available = param->IsAvailable();
    if (available && param->IsReadable())
        refresh(feature);
    offer(feature, available && param->IsWritable());
}

void ZetoCamConfigMapper::refresh(const Bindings& feature)
{
    const QScopedValueRollback<bool> guard(m_refreshing, true);
    for (const Binding& binding : feature) {
        if (binding.target)
            binding.refresh();
    }
}

void ZetoCamConfigMapper::offer(const Bindings& feature, bool writable)
{
    for (const Binding& binding : feature) {
        if (binding.target)
            binding.enable(writable);
    }
}

/// Writes what was edited, not what the camera itself has told. The camera answers with OnParamChanged().
void ZetoCamConfigMapper::write(ZetoGenParam::Param* param, QObject* target,
                                const std::function<int32_t()>& writeValue)
{
    if (m_refreshing || !param->IsWritable())
        return;
    const int32_t code = writeValue();
    ReportParamError(code, windowOf(target), param);
}

} // namespace ZetoGui
