#include "connectionstatus.h"

#include "elidedlabel.h"

#include <QStatusBar>

namespace ZetoGui {

ConnectionStatus::ConnectionStatus(QStatusBar& bar)
    : m_connected(QStringLiteral(":/icons/connected.ico"))
    , m_disconnected(QStringLiteral(":/icons/disconnected.ico"))
    , m_text(new ElidedLabel(&bar))
    , m_picture(new QLabel(&bar))
{
    constexpr int margin = 6; // pixels
    m_text->setContentsMargins(margin, 0, margin, 0);
    m_picture->setContentsMargins(0, 0, margin, 0);
    m_text->setObjectName(QStringLiteral("statusText"));
    m_picture->setObjectName(QStringLiteral("statusPicture"));
    bar.addWidget(m_text, 1);
    bar.addPermanentWidget(m_picture);
}

void ConnectionStatus::show(State state, const QString& model)
{
    const bool isThere = state == Connected || state == Slow;
    m_text->setText(text(state, model));
    m_picture->setPixmap(isThere ? m_connected : m_disconnected);
    m_picture->setAccessibleName(isThere ? tr("Connected") : tr("Disconnected"));
}

QString ConnectionStatus::text(State state, const QString& model)
{
    switch (state) {
    case Connected:
        return model;
    case Slow:
        return tr("%1 answers slowly").arg(model);
    case NotAnswering:
        return tr("%1 does not answer").arg(model);
    case Lost:
        return tr("Connection to %1 lost").arg(model);
    case Disconnected:
        break;
    }
    return tr("Disconnected");
}

} // namespace ZetoGui
