#include "dialoglauncher.h"

#include "dialogplacement.h"

#include <QAction>
#include <QGridLayout>
#include <QPushButton>
#include <QScreen>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace ZetoGui {
namespace {

/// The size that the layout gives the dialog once it is on the screen: before, styles and ranges are missing.
QSize shownSize(QDialog& dialog)
{
    dialog.setAttribute(Qt::WA_DontShowOnScreen, true);
    dialog.show();
    dialog.hide();
    dialog.setAttribute(Qt::WA_DontShowOnScreen, false);
    return dialog.size();
}

/// A disabled dialog takes the message boxes over it along; they must stay usable.
void keepBoxesUsable(const QDialog& dialog)
{
    const QList<QDialog*> boxes = dialog.findChildren<QDialog*>();
    for (QDialog* const box : boxes)
        box->setEnabled(true);
}

} // namespace

DialogLauncher::DialogLauncher(QWidget& window, QGridLayout& buttons)
    : m_window(window)
    , m_buttons(buttons)
{
}

void DialogLauncher::add(Entry entry)
{
    const std::size_t index = m_entries.size();
    connect(entry.button, &QPushButton::clicked, this, [this, index] { open(index); });
    connect(entry.action, &QAction::toggled, this, [this, index](bool checked) {
        if (!checked && isOpen(m_entries[index]))
            m_entries[index].dialog->close();
        arrangeButtons();
    });
    m_entries.push_back(std::move(entry));
    arrangeButtons();
}

void DialogLauncher::setDevice(ZetoCam::Device* device)
{
    m_device = device;
    for (const Entry& entry : m_entries) {
        if (!isOpen(entry))
            continue;
        entry.setDevice(entry.dialog, m_device);
        keepBoxesUsable(*entry.dialog);
    }
}

void DialogLauncher::setEnabled(bool enabled)
{
    for (const Entry& entry : m_entries) {
        if (!isOpen(entry))
            continue;
        entry.dialog->setEnabled(enabled);
        keepBoxesUsable(*entry.dialog);
    }
}

void DialogLauncher::setOffered(QAction* action, bool offered)
{
    action->setVisible(offered);
    arrangeButtons();
}

void DialogLauncher::closeAll()
{
    for (const Entry& entry : m_entries) {
        if (isOpen(entry))
            entry.dialog->close();
    }
}

void DialogLauncher::focusFirstButton()
{
    const auto shown = std::find_if(m_entries.begin(), m_entries.end(),
                                    [](const Entry& entry) { return entry.button->isVisible(); });
    if (shown != m_entries.end())
        shown->button->setFocus();
}

/// A dialog that was closed is kept: a box over it may still be on the way back to its controls.
void DialogLauncher::open(std::size_t index)
{
    Entry& entry = m_entries[index];
    const bool isNew = !entry.dialog;
    if (isNew)
        make(entry, index);
    if (!isOpen(entry))
        entry.setDevice(entry.dialog, m_device);
    if (isNew)
        place(*entry.dialog);
    entry.dialog->show();
    entry.dialog->raise();
    entry.dialog->activateWindow();
}

void DialogLauncher::make(Entry& entry, std::size_t index)
{
    entry.dialog = entry.make();
    entry.dialog->setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    connect(entry.dialog, &QDialog::finished, this, [this, index] { unbind(index); });
}

/// A closed dialog asks nothing of the camera.
void DialogLauncher::unbind(std::size_t index)
{
    m_entries[index].setDevice(m_entries[index].dialog, nullptr);
}

/// Two in a row.
void DialogLauncher::arrangeButtons()
{
    int place = 0;
    for (const Entry& entry : m_entries) {
        const bool isShown = entry.action->isVisible() && entry.action->isChecked();
        entry.button->setVisible(isShown);
        if (isShown) {
            m_buttons.addWidget(entry.button, place / 2, place % 2);
            ++place;
        }
    }
}

void DialogLauncher::place(QDialog& dialog) const
{
    const int shift = openCount() * m_window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const QSize frame = m_window.frameGeometry().size() - m_window.size(); // a new window has none yet
    const QRect screen = m_window.screen()->availableGeometry();
    dialog.move(placeBeside(m_window.frameGeometry(), shownSize(dialog) + frame, screen, shift));
}

bool DialogLauncher::isOpen(const Entry& entry)
{
    return entry.dialog && entry.dialog->isVisible();
}

int DialogLauncher::openCount() const
{
    return static_cast<int>(std::count_if(m_entries.begin(), m_entries.end(), isOpen));
}

} // namespace ZetoGui
