#pragma once

#include <QMetaType>
#include <QString>
#include <QVariant>
#include <QWidget>

#include <memory>

/// An editor widget that the model has prepared for one feature, on its way to the delegate.
///
/// Copies share the widget. It belongs to them until one of them is taken; a widget that nobody takes goes
/// with the last copy.
class ControlData
{
public:
    /// How the delegate treats the widget. A choice (QComboBox) and a button (QPushButton) commit at once.
    enum Kind : quint8
    {
        Choice,
        Button,
        Integer,
        Float,
        Text
    };

    ControlData() = default;
    ControlData(std::unique_ptr<QWidget> widget, Kind kind);

    /// Gives the widget to \a parent. Null when there is none or it has been taken before.
    QWidget* take(QWidget* parent) const;
    Kind kind() const { return m_kind; }

private:
    std::shared_ptr<std::unique_ptr<QWidget>> m_widget;
    Kind m_kind = Text;
};

/// One of the values that a feature can take, as a choice offers it.
struct VariantData
{
    QVariant value;     ///< as the model's setData() takes it
    QVariant editValue; ///< as the model's edit role gives it
    QString text;
    bool isAvailable = true;
};

Q_DECLARE_METATYPE(ControlData)
Q_DECLARE_METATYPE(VariantData)

/// Registers both types under their names; any number of calls is fine.
void registerControlTypes();
