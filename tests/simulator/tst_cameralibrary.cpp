#include "settings.h"
#include "simulatorcontrol.h"

#include <ZetoCameraApi.h>

#include "testmain.h"

#include <QtTest>

#include <sstream>

using ZetoCameraLibrary::Settings;

/// The shared library as a program meets it: its two functions and its settings.
class TestCameraLibrary : public QObject
{
    Q_OBJECT

private slots:
    void reads_settings_data();
    void reads_settings();
    void prefers_the_environment();
    void opens_the_chosen_cameras_data();
    void opens_the_chosen_cameras();
    void opens_a_camera_through_its_functions();
};

void TestCameraLibrary::reads_settings_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<int>("number");
    QTest::newRow("both") << QByteArray("cameras = a, b\nsimulator.demo=30") << QByteArray("a|b") << 30;
    QTest::newRow("blanks") << QByteArray(" \tcameras =  a   b \r\n simulator.demo = 5\r")
                            << QByteArray("a|b") << 5;
    QTest::newRow("comments") << QByteArray("[x]\n#cameras=c\n;simulator.demo=1\n\nnonsense\n=\n")
                              << QByteArray() << 0;
    QTest::newRow("no number") << QByteArray("simulator.demo=fast") << QByteArray() << 0;
}

void TestCameraLibrary::reads_settings()
{
    QFETCH(QByteArray, file);
    std::istringstream stream(file.toStdString());
    const Settings settings(stream);
    QByteArrayList words;
    for (const std::string& word : settings.list("cameras"))
        words += QByteArray::fromStdString(word);
    QTEST(words.join('|'), "words");
    QTEST(settings.number("simulator.demo"), "number");
}

void TestCameraLibrary::prefers_the_environment()
{
    const QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("cameras.ini")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("simulator.demo = 7\n");
    file.close();
    const ScopedEnvironment ini("ZETO_CAMERAS_INI", QFile::encodeName(file.fileName()));
    QCOMPARE(Settings::ofProcess().number("simulator.demo"), 7);
    const ScopedEnvironment demo("ZETO_SIMULATOR_DEMO", "8");
    QCOMPARE(Settings::ofProcess().number("simulator.demo"), 8);
}

void TestCameraLibrary::opens_the_chosen_cameras_data()
{
    QTest::addColumn<QByteArray>("chosen");
    QTest::addColumn<bool>("hasSimulator");
    QTest::newRow("by default") << QByteArray() << true;
    QTest::newRow("by name") << QByteArray("simulator") << true;
    QTest::newRow("all") << QByteArray("all") << true;
    QTest::newRow("unknown") << QByteArray("no such library") << false;
}

void TestCameraLibrary::opens_the_chosen_cameras()
{
    QFETCH(QByteArray, chosen);
    QFETCH(bool, hasSimulator);
    const ScopedEnvironment cameras("ZETO_CAMERAS", chosen);
    ZetoCam::System* system = ZetoCam_GetSystem();
    QCOMPARE(system != nullptr, hasSimulator);
    QCOMPARE(ZetoSimulator_GetControl() != nullptr, hasSimulator);
    if (system) {
        QCOMPARE(ZetoCam_GetSystem(), system);
        QCOMPARE(system->Close(), 0);
    }
}

void TestCameraLibrary::opens_a_camera_through_its_functions()
{
    ZetoCam::InterfaceList* interfaces = ZetoCam_GetSystem()->GetInterfaceList(255);
    ZetoCam::Interface* first = interfaces->GetFirst();
    QVERIFY(first && interfaces->GetNext());
    first->ReEnumerateDevices(nullptr, 200);
    ZetoCam::DeviceInfoList* cameras = first->GetDeviceInfoList();
    int32_t error = 1;
    ZetoCam::Device* device = ZetoCam_CreateDevice(cameras->GetFirst(), 2, &error);
    QCOMPARE(error, 0);
    QCOMPARE(cameras->GetFirst()->GetInterface(), first);
    QCOMPARE(first->GetSystem(), ZetoCam_GetSystem());
    device->Release();
    QVERIFY(!ZetoCam_CreateDevice(nullptr, 2, &error));
    QCOMPARE(error, -40007);
    QVERIFY(!ZetoCam_CreateDevice(nullptr, 2, nullptr));
    cameras->Release();
    interfaces->Release();
    ZetoCam_GetSystem()->Close();
}

ZETO_TEST_MAIN(TestCameraLibrary)
#include "tst_cameralibrary.moc"
