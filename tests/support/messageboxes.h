#pragma once

#include <QMessageBox>
#include <QStringList>
#include <QTimer>

#include <functional>

/// Closes every message box that comes up, as a person who presses OK, and keeps their texts.
class MessageBoxes : public QObject
{
public:
    MessageBoxes();

    /// The texts of the boxes since the last call.
    QStringList take() { return std::exchange(m_texts, {}); }

    /// Called for each box before it is closed.
    std::function<void(QMessageBox&)> onBox;

private:
    void closeBox();

    QStringList m_texts;
    QTimer m_timer;
};
