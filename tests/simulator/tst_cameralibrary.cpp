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
    void reads_settings();
    void prefers_the_environment();
    void opens_the_chosen_cameras();
    void opens_a_camera_through_its_functions();
};

void TestCameraLibrary::reads_settings()
{
    struct File
    {
        const char* contents;
        std::vector<std::string> words;
        int number;
    };
    const File files[] = {{"cameras = a, b\nsimulator.demo=30", {"a", "b"}, 30},
                          {" \tcameras =  a   b \r\n simulator.demo = 5\r", {"a", "b"}, 5},
                          {"[x]\n#cameras=c\n;simulator.demo=1\n\nnonsense\n=\n", {}, 0},
                          {"simulator.demo=fast", {}, 0}};
    for (const File& file : files) {
        std::istringstream stream(file.contents);
        const Settings settings(stream);
        QCOMPARE(settings.list("cameras"), file.words);
        QCOMPARE(settings.number("simulator.demo"), file.number);
    }
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

void TestCameraLibrary::opens_the_chosen_cameras()
{
    const QByteArray unknown = "no such library";
    for (const QByteArray& chosen : {QByteArray(), QByteArray("simulator"), QByteArray("all"), unknown}) {
        const bool hasSimulator = chosen != unknown;
        const ScopedEnvironment cameras("ZETO_CAMERAS", chosen);
        ZetoCam::System* system = ZetoCam_GetSystem();
        QCOMPARE(system != nullptr, hasSimulator);
        QCOMPARE(ZetoSimulator_GetControl() != nullptr, hasSimulator);
        if (system) {
            QCOMPARE(ZetoCam_GetSystem(), system);
            QCOMPARE(system->Close(), 0);
        }
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
