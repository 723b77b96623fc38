#include "handsonkeys.h"

#include <QApplication>
#include <QKeySequence>
#include <QtTest>

void typeText(QWidget* widget, const QString& text)
{
    for (const QChar character : text)
        QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(character), Qt::NoModifier);
}

void pressKeys(const QString& actions)
{
    for (const QString& action : actions.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        QWidget* focus = QApplication::focusWidget();
        QVERIFY2(focus, qPrintable(action));
        if (action.startsWith(QLatin1Char('\'')))
            typeText(focus, action.mid(1));
        else
            QTest::keySequence(focus, QKeySequence::fromString(action));
    }
}
