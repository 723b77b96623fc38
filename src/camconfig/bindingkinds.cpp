#include "bindingkinds.h"

#include "enumentries.h"
#include "izetocamconfigintconverter.h"
#include "qtzetosliderspinbox.h"
#include "qtzetospinbox.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QIntValidator>
#include <QLineEdit>
#include <QSlider>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTabWidget>

#include <algorithm>

namespace ZetoGui {

using ZetoGenParam::EnumEntry;

void ComboBoxToEnum::prepare() const
{
    widget->clear();
    forEachEntry(*param, [this](int, EnumEntry& entry) { widget->addItem(nameOf(entry)); });
}

void ComboBoxToEnum::showNothing() const
{
    widget->clear();
}

void ComboBoxToEnum::refresh() const
{
    if (auto* const rows = qobject_cast<QStandardItemModel*>(widget->model())) {
        forEachEntry(*param, uint64_t(widget->count()),
                     [rows](int row, EnumEntry& entry) { rows->item(row)->setEnabled(entry.IsAvailable()); });
    }
    widget->setCurrentText(currentEntryName(*param));
}

void ComboBoxToEnum::connectEdits(const EditTarget& target) const
{
    QObject::connect(
        widget, qOverload<int>(&QComboBox::currentIndexChanged), target.context,
        [kind = *this, write = target.write](int row) {
            if (row >= 0)
                write(
                    [&] { return kind.param->SetValueStr(kind.widget->itemText(row).toUtf8().constData()); });
        });
}

void CheckBoxToEnum::showNothing() const
{
    widget->setChecked(false);
}

void CheckBoxToEnum::refresh() const
{
    widget->setChecked(currentEntryValue(*param) != 0);
}

void CheckBoxToEnum::connectEdits(const EditTarget& target) const
{
    const auto choice = [param = param](bool checked) {
        EnumEntry* const plain =
            findEntry(*param, [&](EnumEntry& entry) { return entry.GetValue() == (checked ? 1 : 0); });
        return plain || !checked ? plain
                                 : findEntry(*param, [](EnumEntry& entry) { return entry.GetValue() != 0; });
    };
    QObject::connect(widget, &QCheckBox::toggled, target.context,
                     [param = param, choice, write = target.write](bool checked) {
                         write([&] { return choose(*param, choice(checked)); });
                     });
}

void uncheckAll(QButtonGroup& group)
{
    const bool isExclusive = group.exclusive();
    group.setExclusive(false);
    const QList<QAbstractButton*> buttons = group.buttons();
    for (QAbstractButton* const button : buttons)
        button->setChecked(false);
    group.setExclusive(isExclusive);
}

bool hasAutomaticIds(const QButtonGroup& group)
{
    const QList<QAbstractButton*> buttons = group.buttons();
    return std::any_of(buttons.begin(), buttons.end(),
                       [&](QAbstractButton* button) { return group.id(button) < 0; });
}

/// The camera's value may be one that has no button.
void ButtonGroupToEnum::prepare() const
{
    uncheckAll(*widget);
}

/// Gives each button an id as QButtonGroup does: from -2 downwards.
void ButtonGroupToEnum::release() const
{
    int id = -2;
    const QList<QAbstractButton*> buttons = widget->buttons();
    for (QAbstractButton* const button : buttons) {
        if (automaticIds)
            widget->setId(button, id--);
    }
}

void ButtonGroupToEnum::showNothing() const
{
    uncheckAll(*widget);
}

/// An entry that cannot be had now gives its button no id until the next time.
void ButtonGroupToEnum::numberButtons() const
{
    const QList<QAbstractButton*> buttons = widget->buttons();
    forEachEntry(*param, uint64_t(buttons.size()),
                 [&](int index, EnumEntry& entry) { widget->setId(buttons[index], int(entry.GetValue())); });
}

void ButtonGroupToEnum::refresh() const
{
    if (automaticIds)
        numberButtons();
    if (QAbstractButton* const button = widget->button(int(currentEntryValue(*param))))
        button->setChecked(true);
}

void ButtonGroupToEnum::enable(WidgetEnabling& enabling, bool writable) const
{
    const QList<QAbstractButton*> buttons = widget->buttons();
    for (QAbstractButton* const button : buttons) {
        const auto isItsEntry = [&](EnumEntry& entry) { return entry.GetValue() == widget->id(button); };
        EnumEntry* const entry = writable ? findEntry(*param, isItsEntry) : nullptr;
        enabling.setOffered(button, entry && entry->IsAvailable());
    }
}

void ButtonGroupToEnum::connectEdits(const EditTarget& target) const
{
    QObject::connect(widget, qOverload<QAbstractButton*, bool>(&QButtonGroup::buttonToggled), target.context,
                     [kind = *this, write = target.write](QAbstractButton* button, bool checked) {
                         const auto isItsEntry = [&](EnumEntry& entry) {
                             return entry.GetValue() == kind.widget->id(button);
                         };
                         if (checked)
                             write([&] { return choose(*kind.param, findEntry(*kind.param, isItsEntry)); });
                     });
}

int TabWidgetToEnum::tabOf(const QString& entry, int otherwise) const
{
    return indices->value(QString::fromUtf8(param->GetName())).value(entry, otherwise);
}

void TabWidgetToEnum::refresh() const
{
    widget->setCurrentIndex(tabOf(currentEntryName(*param), 0));
    forEachEntry(*param, std::min(param->GetEntriesCount(), uint64_t(widget->count())),
                 [this](int, EnumEntry& entry) {
                     widget->setTabEnabled(tabOf(nameOf(entry), 0), entry.IsAvailable());
                 });
}

void TabWidgetToEnum::connectEdits(const EditTarget& target) const
{
    QObject::connect(
        widget, &QTabWidget::currentChanged, target.context, [kind = *this, write = target.write](int index) {
            const auto hasTab = [&](EnumEntry& entry) { return kind.tabOf(nameOf(entry), -1) == index; };
            if (index >= 0)
                write([&] { return choose(*kind.param, findEntry(*kind.param, hasTab)); });
        });
}

void ButtonToCommand::connectEdits(const EditTarget& target) const
{
    QObject::connect(widget, &QAbstractButton::clicked, target.context,
                     [param = param, write = target.write] { write([&] { return param->Execute(); }); });
}

void ButtonToBoolean::showNothing() const
{
    widget->setChecked(false);
}

void ButtonToBoolean::refresh() const
{
    int32_t ignored = 0;
    widget->setChecked(param->GetValue(&ignored));
}

void ButtonToBoolean::connectEdits(const EditTarget& target) const
{
    QObject::connect(widget, &QAbstractButton::toggled, target.context,
                     [param = param, write = target.write](bool checked) {
                         write([&] { return param->SetValue(checked); });
                     });
}

void LineEditToInt::showNothing() const
{
    widget->clear();
}

void LineEditToInt::refresh() const
{
    const IntView view = viewOf(*param, nullptr, limit);
    if (auto* const validator = qobject_cast<const QIntValidator*>(widget->validator()))
        const_cast<QIntValidator*>(validator)->setRange(view.minimum, view.maximum);
    widget->setText(QString::number(view.value));
}

void LineEditToInt::connectEdits(const EditTarget& target) const
{
    QObject::connect(widget, &QLineEdit::textChanged, target.context, [kind = *this, target] {
        if (!kind.widget->isModified())
            kind.writeText(target);
    });
    QObject::connect(widget, &QLineEdit::editingFinished, target.context, [kind = *this, target] {
        if (!kind.widget->isModified())
            return;
        kind.widget->setModified(false); // an error box takes the focus, which finishes editing again
        kind.writeText(target);
    });
}

void LineEditToInt::writeText(const EditTarget& target) const
{
    bool isNumber = false;
    const qlonglong number = widget->text().toLongLong(&isNumber);
    if (isNumber)
        target.write([&] { return param->SetValue(number); });
}

template <typename Widget>
void NumberToInt<Widget>::prepare() const
{
    if constexpr (std::is_same_v<Widget, QtZetoSpinBox>) {
        this->widget->setKeyboardTracking(false);
        this->widget->setCommitsOnRelease(true);
    }
}

template <typename Widget>
void NumberToInt<Widget>::showNothing() const
{
    this->widget->setRange(std::min(this->widget->minimum(), 0), std::max(this->widget->maximum(), 0));
    this->widget->setValue(0);
}

template <typename Widget>
void NumberToInt<Widget>::refresh() const
{
    const IntView view = viewOf(*this->param, converter, limit);
    this->widget->setRange(view.minimum, view.maximum);
    this->widget->setSingleStep(view.singleStep);
    // One kind ignores what is beyond its range, where the others show the nearer end.
    const int value =
        std::clamp(static_cast<int>(view.value), view.minimum, std::max(view.minimum, view.maximum));
    if (this->widget->value() != value) // leaves text that is being typed alone
        this->widget->setValue(value);
}

template <typename Widget>
void NumberToInt<Widget>::connectEdits(const EditTarget& target) const
{
    QObject::connect(this->widget, qOverload<int>(&Widget::valueChanged), target.context,
                     [kind = *this, write = target.write](int value) {
                         write([&] {
                             return kind.param->SetValue(
                                 kind.converter ? kind.converter->FromWidget(value, kind.param) : value);
                         });
                     });
}

template struct NumberToInt<QSpinBox>;
template struct NumberToInt<QtZetoSpinBox>;
template struct NumberToInt<QSlider>;
template struct NumberToInt<QtZetoSliderSpinBox>;

} // namespace ZetoGui
