#include "fakegigecamera.h"

#include "gigesearch.h"

#include <QtTest>

namespace {

constexpr quint32 loopback = 0x7F000000;

} // namespace

FakeGigECamera::FakeGigECamera(int host, const QString& descriptionFile)
    : m_arguments({QStringLiteral("-i"), QStringLiteral("127.0.0.%1").arg(host), QStringLiteral("-s"),
                   QStringLiteral("GV%1").arg(host)})
    , m_address(loopback + quint32(host))
{
    if (!descriptionFile.isEmpty())
        m_arguments << QStringLiteral("-g") << descriptionFile;
}

FakeGigECamera::~FakeGigECamera()
{
    kill();
}

bool FakeGigECamera::start()
{
    m_program.start(QStringLiteral("arv-fake-gv-camera-0.8"), m_arguments);
    return m_program.waitForStarted() &&
           QTest::qWaitFor([this] { return ZetoAravis::askCamera(loopback + 1, m_address).has_value(); });
}

void FakeGigECamera::kill()
{
    m_program.kill();
    m_program.waitForFinished();
}
