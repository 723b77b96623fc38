#include "qtcomplaints.h"

#include <QWidget>
#include <QtTest>

#include <atomic>

namespace {

std::atomic<int> count{0};

void countMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*text*/)
{
    ++count;
}

} // namespace

QtComplaints::QtComplaints()
    : m_before(qInstallMessageHandler(countMessage))
{
    count = 0;
}

QtComplaints::~QtComplaints()
{
    qInstallMessageHandler(m_before);
}

int QtComplaints::waitForAll()
{
    QWidget last;
    last.show();
    if (!QTest::qWaitForWindowExposed(&last))
        qFatal("A window did not appear, so it is not known what Qt still has to say.");
    return count;
}
