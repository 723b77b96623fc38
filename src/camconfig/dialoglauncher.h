#pragma once

#include <QDialog>

#include <ZetoCameraApi.h>

#include <functional>
#include <vector>

class QAction;
class QGridLayout;
class QPushButton;

namespace ZetoGui {

/// The dialogs that the main window opens: each has a button, and an entry of the view menu that shows or
/// hides the button.
class DialogLauncher : public QObject
{
    Q_OBJECT

public:
    /// \param buttons the layout in which the buttons that are shown close up
    DialogLauncher(QWidget& window, QGridLayout& buttons);

    /// Adds a dialog of a class with the constructor (ZetoCam::Device*, QWidget*) and
    /// SetDevice(ZetoCam::Device*).
    template <typename Dialog>
    void add(QPushButton* button, QAction* action)
    {
        const auto setDevice = [](QDialog* dialog, ZetoCam::Device* device) {
            static_cast<Dialog*>(dialog)->SetDevice(device);
        };
        add({button, action, [this] { return new Dialog(nullptr, &m_window); }, setDevice, nullptr});
    }

    /// Shows the features of \a device in the open dialogs and those opened later; null unbinds them all.
    void setDevice(ZetoCam::Device* device);

    /// Whether the open dialogs can be used.
    void setEnabled(bool enabled);

    /// Shows or hides the entry \a action and, with it, its button.
    void setOffered(QAction* action, bool offered);

    void closeAll();

    /// Gives the keyboard to the first button that is shown.
    void focusFirstButton();

private:
    struct Entry
    {
        QPushButton* button;
        QAction* action;
        std::function<QDialog*()> make;
        std::function<void(QDialog*, ZetoCam::Device*)> setDevice;
        QDialog* dialog; ///< child of the window; null until it is opened for the first time
    };

    void add(Entry entry);
    void open(std::size_t index);
    void make(Entry& entry, std::size_t index);
    void unbind(std::size_t index);
    void arrangeButtons();
    void place(QDialog& dialog) const;
    static bool isOpen(const Entry& entry);
    int openCount() const;

    QWidget& m_window;
    QGridLayout& m_buttons;
    ZetoCam::Device* m_device = nullptr;
    std::vector<Entry> m_entries;
};

} // namespace ZetoGui
