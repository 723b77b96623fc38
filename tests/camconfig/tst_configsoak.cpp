#include "peakmemory.h"
#include "randomuser.h"
#include "testmain.h"

#include <ZetoCameraApi.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QtTest>

namespace {

int setting(const char* variable, int otherwise)
{
    bool isNumber = false;
    const int value = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? value : otherwise;
}

} // namespace

/// Nothing that a person or a camera does in any order takes the configuration tool down. By hand and for
/// long:
///
///     ZETO_SOAK_ACTIONS=100000 ZETO_SOAK_SEED=7 build/dev/bin/tst_configsoak
class TestConfigSoak : public QObject
{
    Q_OBJECT

private slots:
    void survives_random_users();
};

void TestConfigSoak::survives_random_users()
{
    const int actions = setting("ZETO_SOAK_ACTIONS", 1500);
    const int seed = setting("ZETO_SOAK_SEED", 1);
    const int64_t before = peakMemory();
    QElapsedTimer time;
    time.start();
    {
        RandomUser user(static_cast<unsigned>(seed));
        for (int i = 0; i < actions; ++i)
            user.act();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(!QApplication::activeModalWidget());
    constexpr double megabyte = 1e6;
    qInfo("%d actions with seed %d in %.1f s, peak memory %.1f MB, %.1f MB before", actions, seed,
          static_cast<double>(time.elapsed()) / 1000, static_cast<double>(peakMemory()) / megabyte,
          static_cast<double>(before) / megabyte);
}

ZETO_TEST_MAIN(TestConfigSoak)
#include "tst_configsoak.moc"
