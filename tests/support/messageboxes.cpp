#include "messageboxes.h"

#include <QApplication>
#include <QPointer>

MessageBoxes::MessageBoxes()
{
    connect(&m_timer, &QTimer::timeout, this, [this] { closeBox(); });
    m_timer.start(0);
}

void MessageBoxes::closeBox()
{
    const QPointer<QMessageBox> box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box)
        return;
    m_texts.append(box->text());
    if (onBox)
        onBox(*box);
    if (box)
        box->accept();
}
