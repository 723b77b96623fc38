#include "selectorfixture.h"

#include <QApplication>
#include <QtTest>

#include <algorithm>

QString idsOf(const DeviceTreeModel& model, const QModelIndex& parent)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString below = idsOf(model, index);
        rows += below.isEmpty() ? model.idOf(index) : QStringLiteral("%1(%2)").arg(model.idOf(index), below);
    }
    return rows.join(QLatin1Char(' '));
}

Selector::Selector(ZetoCam::System* system, bool poll)
    : dialog(system, nullptr, poll)
{
}

void Selector::show()
{
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
}

QPushButton& Selector::button(const char* text) const
{
    const QList<QPushButton*> all = dialog.findChildren<QPushButton*>();
    return **std::find_if(all.begin(), all.end(), [text](const QPushButton* each) {
        return each->text().remove(QLatin1Char('&')) == QString::fromLatin1(text).remove(QLatin1Char('&'));
    });
}

QString linesOf(const InfoView& view)
{
    QStringList lines;
    for (int row = 0; row < view.model()->rowCount(); ++row)
        lines += view.model()->index(row, 0).data().toString() + QLatin1Char('=') +
                 view.model()->index(row, 1).data().toString();
    return lines.join(QLatin1Char('|'));
}

ModalScript::ModalScript(const QVector<Action>& actions)
    : m_actions(actions)
{
    QObject::connect(&m_timer, &QTimer::timeout, [this] { look(); });
    m_timer.start(0);
}

void ModalScript::look()
{
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog || dialog == m_last || isDone())
        return;
    m_last = dialog;
    m_actions.at(m_next++)(*dialog);
}
