#pragma once

#include <QPointer>

#include <utility>

/// A dialog that is made for one exec() and that its parent may take down before the scope does.
template <typename Dialog>
class ScopedDialog
{
public:
    template <typename... Arguments>
    explicit ScopedDialog(Arguments&&... arguments)
        : m_dialog(new Dialog(std::forward<Arguments>(arguments)...))
    {
    }
    ~ScopedDialog() { delete m_dialog.data(); }
    Q_DISABLE_COPY(ScopedDialog)

    Dialog* operator->() const { return m_dialog.data(); }
    Dialog& operator*() const { return *m_dialog; }

    /// \return whether it still exists
    explicit operator bool() const { return !m_dialog.isNull(); }

private:
    const QPointer<Dialog> m_dialog;
};
