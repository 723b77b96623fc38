#pragma once

#include "bindingkinds.h"
#include "changerelay.h"
#include "widgetenabling.h"

#include <ZetoGenParam.h>

#include <QHash>
#include <QPointer>
#include <QVector>

class QAbstractButton;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QSlider;
class QSpinBox;
class QTabWidget;
class QtZetoSliderSpinBox;
class QtZetoSpinBox;

namespace ZetoGui {

class IZetoCamConfigIntConverter;

/// Binds widgets to camera features: range, value and enabled state follow the camera, edits are written, and
/// a refused write is told in a message box over the widget's window.
///
/// - A binding operation drops every connection of the widget's signals, so a dialog connects its own rules
///   afterwards. It returns false, with the widget disabled and at 0, off or empty, when the camera lacks
///   the feature (\a param is null). A feature has one main widget and a widget one feature: binding either
///   again replaces the former binding.
/// - What the camera tells is shown and never written back, though the widget's signals fire as ever and a
///   dialog's rules run on them. Everything else that changes the widget is written: the person or the
///   dialog.
/// - Rules of a dialog enable widgets through SetAllowed() only, so that none enables what the camera
///   does not offer.
/// - Widgets may die before the mapper. The array and its features must live until Clear().
///
/// For the GUI thread; only OnParamChanged() may come on any thread.
class ZetoCamConfigMapper : public ZetoGenParam::ParamEventSink
{
public:
    ZetoCamConfigMapper();
    ~ZetoCamConfigMapper() override;
    Q_DISABLE_COPY(ZetoCamConfigMapper)

    void OnParamChanged(ZetoGenParam::Param* param) override;

    /// A row for each entry; entries that cannot be chosen now are disabled.
    bool MapEnum(ZetoGenParam::Enum* param, QComboBox* combo);
    /// Checked while the value is not 0.
    bool MapEnum(ZetoGenParam::Enum* param, QCheckBox* checkBox);
    /// A button stands for the entry whose value is its id. In a group with automatic ids, as QButtonGroup
    /// gives them, the n-th button gets the value of the n-th entry as its id.
    bool MapEnum(ZetoGenParam::Enum* param, QButtonGroup* group);
    /// A tab stands for the entries that have its index in TabIndex(), which is to be filled before.
    bool MapEnum(ZetoGenParam::Enum* param, QTabWidget* tabs);
    /// A click executes the command.
    bool MapCommand(ZetoGenParam::Command* param, QAbstractButton* button);
    bool MapBoolean(ZetoGenParam::Boolean* param, QAbstractButton* button);

    // Integers. Maxima and values are cut to 2147483647. Spin boxes write what is typed with each key unless
    // their keyboardTracking() is off.
    bool MapInt(ZetoGenParam::Int* param, QLineEdit* edit);
    bool MapInt(ZetoGenParam::Int* param, QSpinBox* spinBox);
    /// Switches the spin box to telling only values that were committed. \a companions are enabled and
    /// disabled with the feature.
    bool MapInt(ZetoGenParam::Int* param, QtZetoSpinBox* spinBox, const QVector<QWidget*>& companions = {});
    /// \param converter into the units of the widget, or null; it must live until Clear()
    bool MapInt(ZetoGenParam::Int* param, QSlider* slider, IZetoCamConfigIntConverter* converter = nullptr);
    bool MapInt(ZetoGenParam::Int* param, QtZetoSliderSpinBox* spinBox,
                IZetoCamConfigIntConverter* converter = nullptr);

    /// The tab that stands for an entry; 0 until it is assigned.
    int& TabIndex(const QString& featureName, const QString& entryName);

    /// Whether the dialog's rules allow \a widget: it is enabled if the camera offers it as well. Unbinding
    /// a widget takes back what its rules said.
    void SetAllowed(QWidget* widget, bool allowed);

    /// Whether a widget's signal comes of what the camera told rather than of an edit.
    bool IsRefreshing() const { return m_refreshing; }

    /// Calls \a visit for the main widget of each bound feature, for a group for each of its buttons.
    void ForEachWidget(const std::function<void(const QString& featureName, QWidget* widget)>& visit) const;

    /// Unbinds everything; bound widgets are left disabled and without connections. \a array is where the
    /// features came from: with null the mapper stays registered on them, which is right only when they are
    /// gone or nothing is bound.
    void Clear(ZetoGenParam::Array* array);

private:
    /// A bound widget. Its first one is the feature's main widget, the others are companions.
    struct Binding
    {
        ZetoGenParam::Param* param;
        QPointer<QObject> target; ///< the widget or the button group
        std::function<void()> refresh;
        std::function<void(bool writable)> enable;
        std::function<void()> release;
    };
    using Bindings = QVector<Binding>;

    template <typename Kind>
    bool bind(const Kind& kind, const QVector<QWidget*>& companions = {});
    Binding companion(ZetoGenParam::Param* param, QWidget* widget);
    void unbind(const QObject* widget);
    void release(const Bindings& feature);

    void update(ZetoGenParam::Param* param);
    void refresh(const Bindings& feature);
    static void offer(const Bindings& feature, bool writable);
    void write(ZetoGenParam::Param* param, QObject* target, const std::function<int32_t()>& writeValue);

    QHash<QString, Bindings> m_bindings; ///< by feature name
    TabIndices m_tabIndices;
    const int64_t m_intLimit = 2147483647;
    WidgetEnabling m_enabling;
    bool m_refreshing = false;
    ChangeRelay m_relay; ///< also ends the connections to the widgets
};

} // namespace ZetoGui
