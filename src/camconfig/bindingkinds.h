#pragma once

#include "intview.h"
#include "widgetenabling.h"

#include <ZetoGenParam.h>

#include <QHash>
#include <QString>

#include <functional>

class QAbstractButton;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QTabWidget;

namespace ZetoGui {

class IZetoCamConfigIntConverter;

/// Where the edits of a widget go: \a context ends the connections, \a write runs the write that it is given
/// if the edit is the person's or the dialog's own, and reports its code.
struct EditTarget
{
    QObject* context;
    std::function<void(const std::function<int32_t()>& write)> write;
};

// One struct for each kind of binding: a feature, its widget and what is done to them. They are copied freely
// and own nothing.
//   prepare()       once, before anything is shown
//   refresh()       shows what the camera holds
//   enable()        offers the widget while the feature is writable
//   connectEdits()  has the widget's edits written
//   release()       undoes what would mislead the next binding
//   showNothing()   for a camera without the feature: forgets what another camera held

/// The functions that most kinds have in common. \a Feature and \a Widget are the types of the two.
template <typename Feature, typename Widget>
struct KindOfBinding
{
    Feature* param;
    Widget* widget;

    void prepare() const {}
    void release() const {}
    void showNothing() const {}
    void enable(WidgetEnabling& enabling, bool writable) const { enabling.setOffered(widget, writable); }
};

/// One row for each entry.
struct ComboBoxToEnum : KindOfBinding<ZetoGenParam::Enum, QComboBox>
{
    void prepare() const;
    void showNothing() const;
    void refresh() const;
    void connectEdits(const EditTarget& target) const;
};

/// Checked for any entry whose value is not 0. Checking chooses the entry of value 1 or else the first that
/// is not 0.
struct CheckBoxToEnum : KindOfBinding<ZetoGenParam::Enum, QCheckBox>
{
    void showNothing() const;
    void refresh() const;
    void connectEdits(const EditTarget& target) const;
};

/// One button for each entry. A button stands for the entry whose value is its id; the n-th button of a group
/// with automatic ids gets the value of the n-th entry.
struct ButtonGroupToEnum : KindOfBinding<ZetoGenParam::Enum, QButtonGroup>
{
    bool automaticIds = false;

    void prepare() const;
    void release() const;
    void showNothing() const;
    void refresh() const;
    void enable(WidgetEnabling& enabling, bool writable) const;
    void connectEdits(const EditTarget& target) const;

private:
    void numberButtons() const;
};

/// Leaves no button checked, also in an exclusive group.
void uncheckAll(QButtonGroup& group);

/// Whether QButtonGroup itself has numbered the buttons.
bool hasAutomaticIds(const QButtonGroup& group);

/// Feature name to entry name to index of the tab.
using TabIndices = QHash<QString, QHash<QString, int>>;

/// One tab for each entry. An entry that has no index stands for the first tab.
struct TabWidgetToEnum : KindOfBinding<ZetoGenParam::Enum, QTabWidget>
{
    const TabIndices* indices;

    void refresh() const;
    void connectEdits(const EditTarget& target) const;

private:
    int tabOf(const QString& entry, int otherwise) const;
};

/// A click executes the command.
struct ButtonToCommand : KindOfBinding<ZetoGenParam::Command, QAbstractButton>
{
    void refresh() const {}
    void connectEdits(const EditTarget& target) const;
};

struct ButtonToBoolean : KindOfBinding<ZetoGenParam::Boolean, QAbstractButton>
{
    void showNothing() const;
    void refresh() const;
    void connectEdits(const EditTarget& target) const;
};

/// Typed text is written by Enter or when the focus leaves, text that is set at once.
struct LineEditToInt : KindOfBinding<ZetoGenParam::Int, QLineEdit>
{
    int64_t limit;

    void showNothing() const;
    void refresh() const;
    void connectEdits(const EditTarget& target) const;

private:
    void writeText(const EditTarget& target) const;
};

/// QSpinBox, QtZetoSpinBox, QSlider or QtZetoSliderSpinBox.
template <typename Widget>
struct NumberToInt : KindOfBinding<ZetoGenParam::Int, Widget>
{
    IZetoCamConfigIntConverter* converter;
    int64_t limit;

    void prepare() const;
    void showNothing() const;
    void refresh() const;
    void connectEdits(const EditTarget& target) const;
};

} // namespace ZetoGui
