#include <arv.h>

#include "aravisbackend.h"
#include "fakegigecamera.h"
#include "librarysystem.h"
#include "listedinterface.h"
#include "privatenetwork.h"
#include "takelist.h"
#include "testmain.h"
#include "toycamera.h"

#include <GenApi/GenApi.h>
#include <ZetoGenParam.h>

#include <QtTest>

#include <array>
#include <atomic>

using namespace ZetoCameraLibrary;

namespace {

constexpr int lossTimeoutMs = 20'000; // the Aravis library itself takes 7.5 s to notice

/// A system with the cameras of Aravis that a test has to itself.
class AravisFixture
{
public:
    AravisFixture() { m_system.add(std::make_unique<ZetoAravis::AravisBackend>(m_system)); }

    LibrarySystem& system() { return m_system; }

    ZetoCam::Interface* loopback()
    {
        for (ZetoCam::Interface* each :
             takeList(m_system.GetInterfaceList(1U << ZetoCam::InterfaceGigEVision))) {
            if (each->GetID() == std::string("aravis.gev.lo"))
                return each;
        }
        return nullptr;
    }

    /// \return whether the loopback adapter reported a change
    bool search()
    {
        bool changed = false;
        loopback()->ReEnumerateDevices(&changed, 200);
        return changed;
    }

    std::vector<ZetoCam::DeviceInfo*> cameras() { return takeList(loopback()->GetDeviceInfoList()); }

    /// The cameras as "serial number:access status".
    QString listed()
    {
        QStringList texts;
        for (ZetoCam::DeviceInfo* each : cameras())
            texts += QStringLiteral("%1:%2")
                         .arg(QLatin1String(each->GetSerialNumber()))
                         .arg(each->GetAccessStatus());
        return texts.join(QLatin1Char(' '));
    }

    /// Searches and opens the only camera.
    ZetoCam::Device* open(int32_t mode = ZetoCam::AccessControl, int32_t* error = nullptr)
    {
        search();
        return openDevice(cameras().empty() ? nullptr : cameras().front(), mode, error);
    }

private:
    LibrarySystem m_system;
};

/// Counts the events of a device.
class EventCounter
{
public:
    explicit EventCounter(ZetoCam::Device& device)
    {
        device.RegisterEvent(ZetoCam::EventDeviceLost, count, this);
        device.RegisterEvent(ZetoCam::EventDeviceBack, count, this);
    }

    int lost() const { return m_lost; }
    int back() const { return m_back; }

private:
    static void count(int32_t eventId, void* self)
    {
        auto& counter = *static_cast<EventCounter*>(self);
        ++(eventId == ZetoCam::EventDeviceLost ? counter.m_lost : counter.m_back);
    }

    std::atomic<int> m_lost{0};
    std::atomic<int> m_back{0};
};

ZetoGenParam::Int& integer(ZetoCam::Device* device, const char* name)
{
    return *device->GetParameters(nullptr)->GetInt(name, nullptr);
}

ZetoAravis::Gvcp::DiscoveryAnswer toy(const NetworkAddress& address)
{
    return {0x02005e0a0001, address, "Maker", "Toy", "1.2", "T1", "Ger\xC3\xA4t"};
}

bool runIp(const QString& arguments)
{
    return QProcess::execute(QStringLiteral("ip"), arguments.split(QLatin1Char(' '))) == 0;
}

} // namespace

/// The cameras of Aravis, played by its own camera simulator and a toy on the loopback adapter of a network
/// that belongs to this program alone.
class TestAravisCameras : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void finds_cameras();
    void notices_who_comes_and_goes();
    void tells_about_the_selected_camera();
    void opens_several_at_once();
    void refuses_what_the_camera_refuses();
    void opens_for_reading_only();
    void keeps_a_controlled_camera_to_itself();
    void loses_and_regains_a_camera();
    void notices_a_restart();
    void does_not_take_another_camera_for_a_lost_one();
    void closes_with_cameras_open();
    void refuses_an_unusable_description();
    void moves_a_foreign_camera_into_reach();
    void forces_no_address_on_a_held_or_nameless_camera();
    void tells_who_may_open_data();
    void tells_who_may_open();
    void lists_what_the_library_lists();
};

void TestAravisCameras::initTestCase()
{
    if (!isInPrivateNetwork())
        QSKIP(
            "This system allows no network namespace (unshare -rn): cameras of Aravis are not tested here.");
    QVERIFY(runIp(QStringLiteral("link set lo up")));
    for (const int host : {2, 3})
        QVERIFY(runIp(QStringLiteral("addr add 127.0.0.%1/8 dev lo").arg(host)));
}

void TestAravisCameras::finds_cameras()
{
    AravisFixture fixture;
    ZetoCam::Interface* loopback = fixture.loopback();
    QVERIFY(loopback);
    QCOMPARE(loopback->GetDescription(), "Loopback adapter lo");
    QVERIFY(QString::fromLatin1(loopback->GetVersion()).startsWith(QLatin1String("Aravis 0.8.")));
    QCOMPARE(takeList(fixture.system().GetInterfaceList(1U << ZetoCam::InterfaceUSB3Vision)).size(), 1U);

    FakeGigECamera one(1);
    FakeGigECamera two(2);
    FakeGigECamera three(3);
    QVERIFY(one.start() && two.start() && three.start());
    QVERIFY(fixture.search());
    QCOMPARE(fixture.listed(), QStringLiteral("GV1:1 GV2:1 GV3:1"));
    ZetoCam::DeviceInfo* camera = fixture.cameras()[1];
    QCOMPARE(camera->GetID(), "aravis.gev.lo.Aravis-Fake-GV2");
    QCOMPARE(camera->GetVendor(), "Aravis");
    QCOMPARE(camera->GetModel(), "Fake");
    QCOMPARE(camera->GetDisplayName(), "Aravis Fake (GV2)");
    QCOMPARE(camera->GetUserName(), "");
    QCOMPARE(camera->GetIPAddress(), 0x7F000002U);
    QCOMPARE(camera->GetInterface(), loopback);
}

void TestAravisCameras::notices_who_comes_and_goes()
{
    AravisFixture fixture;
    FakeGigECamera one(1);
    FakeGigECamera two(2);
    QVERIFY(one.start());
    QVERIFY(fixture.search());
    ZetoCam::DeviceInfo* const described = fixture.cameras().front();
    QVERIFY(!fixture.search());
    QVERIFY(two.start());
    QVERIFY(fixture.search());
    one.kill();
    QVERIFY(fixture.search());
    QCOMPARE(fixture.listed(), QStringLiteral("GV2:1"));
    QCOMPARE(described->GetSerialNumber(), "GV1");
    QVERIFY(one.start());
    QVERIFY(fixture.search());
    QCOMPARE(fixture.cameras().front(), described);
}

void TestAravisCameras::tells_about_the_selected_camera()
{
    AravisFixture fixture;
    FakeGigECamera one(1);
    FakeGigECamera two(2);
    QVERIFY(one.start() && two.start());
    fixture.search();
    ZetoGenParam::Array* parameters = fixture.loopback()->GetParameters(nullptr);
    QCOMPARE(parameters->GetInt("GevInterfaceSubnetIPAddress", nullptr)->GetValue(nullptr), 0x7F000001);
    QCOMPARE(parameters->GetInt("GevInterfaceSubnetMask", nullptr)->GetValue(nullptr), 0xFF000000);
    for (const int row : {1, 0}) {
        QCOMPARE(parameters->GetInt("DeviceSelector", nullptr)->SetValue(row), 0);
        QCOMPARE(parameters->GetInt("GevDeviceIPAddress", nullptr)->GetValue(nullptr), 0x7F000001 + row);
    }
    QVERIFY(parameters->GetInt("DeviceSelector", nullptr)->SetValue(2) != 0);
}

void TestAravisCameras::opens_several_at_once()
{
    AravisFixture fixture;
    FakeGigECamera one(1);
    FakeGigECamera two(2);
    FakeGigECamera three(3);
    QVERIFY(one.start() && two.start() && three.start());
    fixture.search();
    std::vector<ZetoCam::Device*> devices;
    for (ZetoCam::DeviceInfo* each : fixture.cameras())
        devices.push_back(openDevice(each, ZetoCam::AccessControl, nullptr));
    int64_t width = 100;
    for (ZetoCam::Device* each : devices) {
        QVERIFY(each);
        QCOMPARE(integer(each, "Width").SetValue(++width), 0);
    }
    width = 100;
    for (ZetoCam::Device* each : devices) {
        ++width;
        QCOMPARE(integer(each, "Width").GetValue(nullptr), width);
        QCOMPARE(integer(each, "PayloadSize").GetValue(nullptr),
                 width * integer(each, "Height").GetValue(nullptr));
    }
    GenApi::INode* const serial = devices[2]->GetParameters(nullptr)->GetNodeMap(0)->GetNode("DeviceID");
    QCOMPARE(dynamic_cast<GenApi::IValue*>(serial)->ToString().c_str(), "GV3");
    for (ZetoCam::Device* each : devices)
        each->Release();
}

void TestAravisCameras::refuses_what_the_camera_refuses()
{
    AravisFixture fixture;
    FakeGigECamera camera(1);
    QVERIFY(camera.start());
    ZetoCam::Device* device = fixture.open();
    QVERIFY(device);
    QCOMPARE(integer(device, "Width").SetValue(1'000'000), int32_t(ZetoCam::ErrorGenICamRange));
    QCOMPARE(integer(device, "PayloadSize").SetValue(1), int32_t(ZetoCam::ErrorGenICamAccess));
    int32_t error = 0;
    QVERIFY(!device->GetParameters(nullptr)->GetInt("NoSuchFeature", &error));
    QCOMPARE(error, int32_t(ZetoCam::ErrorGenICamUnknownParam));
    device->Release();
}

void TestAravisCameras::opens_for_reading_only()
{
    AravisFixture fixture;
    FakeGigECamera camera(1);
    QVERIFY(camera.start());
    ZetoCam::Device* reader = fixture.open(ZetoCam::AccessReadOnly);
    QVERIFY(reader);
    const int64_t width = integer(reader, "Width").GetValue(nullptr);
    QVERIFY(width > 0);
    QCOMPARE(integer(reader, "Width").SetValue(width + 1), int32_t(ZetoCam::ErrorGenICamAccess));

    ZetoCam::Device* controller = fixture.open();
    QVERIFY(controller);
    QCOMPARE(integer(controller, "Width").SetValue(width + 1), 0);
    controller->Release();
    reader->Release();
}

void TestAravisCameras::keeps_a_controlled_camera_to_itself()
{
    AravisFixture fixture;
    FakeGigECamera camera(1);
    QVERIFY(camera.start());
    ZetoCam::Device* device = fixture.open();
    QVERIFY(device);

    AravisFixture other;
    int32_t error = 0;
    QVERIFY(!other.open(ZetoCam::AccessControl, &error));
    QCOMPARE(error, int32_t(ZetoCam::ErrorNoDevice));
    QCOMPARE(other.listed(), QStringLiteral("GV1:2"));
    device->Release();
    other.search();
    QCOMPARE(other.listed(), QStringLiteral("GV1:1"));
}

void TestAravisCameras::loses_and_regains_a_camera()
{
    AravisFixture fixture;
    FakeGigECamera camera(1);
    QVERIFY(camera.start());
    ZetoCam::Device* device = fixture.open();
    QVERIFY(device);
    EventCounter events(*device);
    ZetoGenParam::Int& width = integer(device, "Width");
    QCOMPARE(width.SetValue(100), 0);

    camera.kill();
    QTRY_COMPARE_WITH_TIMEOUT(events.lost(), 1, lossTimeoutMs);
    int32_t error = 0;
    width.GetValue(&error);
    QCOMPARE(error, int32_t(ZetoCam::ErrorNoDevice));
    QCOMPARE(width.SetValue(101), int32_t(ZetoCam::ErrorNoDevice));
    QCOMPARE(events.back(), 0);

    QVERIFY(camera.start());
    QTRY_COMPARE_WITH_TIMEOUT(events.back(), 1, lossTimeoutMs);
    QVERIFY(width.GetValue(&error) != 100); // the new program knows nothing of the old one's values
    QCOMPARE(error, 0);
    QCOMPARE(width.SetValue(102), 0);
    QCOMPARE(width.GetValue(nullptr), 102);
    QCOMPARE(events.lost(), 1);
    device->Release();
}

/// The camera answers all the time, but knows nothing of the session any more.
void TestAravisCameras::notices_a_restart()
{
    AravisFixture fixture;
    FakeGigECamera camera(1);
    QVERIFY(camera.start());
    ZetoCam::Device* device = fixture.open();
    QVERIFY(device);
    EventCounter events(*device);
    camera.kill();
    QVERIFY(camera.start());
    QTRY_COMPARE_WITH_TIMEOUT(events.back(), 1, lossTimeoutMs);
    QCOMPARE(events.lost(), 1);
    QCOMPARE(integer(device, "Width").SetValue(100), 0);
    device->Release();
}

void TestAravisCameras::does_not_take_another_camera_for_a_lost_one()
{
    AravisFixture fixture;
    FakeGigECamera camera(1);
    QVERIFY(camera.start());
    ZetoCam::Device* device = fixture.open();
    QVERIFY(device);
    EventCounter events(*device);
    camera.kill();
    ToyCamera toyCamera(toy({0x7F000001, 0xFF000000, 0}));
    QVERIFY(toyCamera.listen());
    QTRY_COMPARE_WITH_TIMEOUT(events.lost(), 1, lossTimeoutMs);
    device->Release();
    QCOMPARE(events.back(), 0);
}

void TestAravisCameras::closes_with_cameras_open()
{
    FakeGigECamera camera(1);
    QVERIFY(camera.start());
    {
        AravisFixture fixture;
        QVERIFY(fixture.open());
        fixture.system().Close();
    }
    AravisFixture fixture;
    fixture.search();
    QCOMPARE(fixture.listed(), QStringLiteral("GV1:1")); // it was told farewell
}

void TestAravisCameras::refuses_an_unusable_description()
{
    const QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("broken.xml")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<RegisterDescription><Category");
    file.close();
    AravisFixture fixture;
    FakeGigECamera camera(1, file.fileName());
    QVERIFY(camera.start());
    int32_t error = 0;
    QVERIFY(!fixture.open(ZetoCam::AccessControl, &error));
    QCOMPARE(error, int32_t(ZetoCam::ErrorGenICamTree));
}

void TestAravisCameras::moves_a_foreign_camera_into_reach()
{
    ToyCamera camera(toy({0x0A000007, 0xFF000000, 0x0A000001}));
    QVERIFY(camera.listen());
    AravisFixture fixture;
    int32_t error = 0;
    QVERIFY(!fixture.open(ZetoCam::AccessControl, &error));
    QCOMPARE(error, int32_t(ZetoCam::ErrorNoDevice));
    QCOMPARE(fixture.listed(), QStringLiteral("T1:1001"));
    ZetoCam::DeviceInfo* const info = fixture.cameras().front();
    QCOMPARE(info->GetUserName(), "Ger\xC3\xA4t");
    QCOMPARE(info->GetMACAddress(), uint64_t(0x02005e0a0001));
    QCOMPARE(info->GetGateway(), 0x0A000001U);

    QCOMPARE(info->ForceIP(0x7F000009, 0xFF000000, 0), 0);
    QTRY_COMPARE((fixture.search(), fixture.listed()), QStringLiteral("T1:1"));
    QCOMPARE(fixture.cameras().front(), info);
    QCOMPARE(info->GetIPAddress(), 0x7F000009U);
}

void TestAravisCameras::forces_no_address_on_a_held_or_nameless_camera()
{
    AravisFixture fixture;
    auto camera = std::make_unique<ToyCamera>(toy({0x7F000009, 0xFF000000, 0}));
    camera->setControlPrivilege(ZetoAravis::Gvcp::controlAccess);
    QVERIFY(camera->listen());
    QVERIFY(fixture.search());
    ZetoCam::DeviceInfo* const info = fixture.cameras().front();
    QCOMPARE(info->ForceIP(0x7F00000A, 0xFF000000, 0), int32_t(ZetoCam::ErrorGenICamAccess));
    camera.reset();
    QCOMPARE(info->ForceIP(0x7F00000A, 0xFF000000, 0), int32_t(ZetoCam::ErrorNoDevice));

    FakeGigECamera nameless(1); // has no MAC address
    QVERIFY(nameless.start());
    QVERIFY(fixture.search());
    QCOMPARE(fixture.cameras().front()->ForceIP(0x7F00000A, 0xFF000000, 0),
             int32_t(ZetoCam::ErrorInvalidState));
}

void TestAravisCameras::tells_who_may_open_data()
{
    QTest::addColumn<quint32>("privilege");
    QTest::addColumn<int>("status");
    QTest::newRow("free") << 0u << 1;
    QTest::newRow("controlled") << 2u << 2;
    QTest::newRow("controlled, may be taken over") << 6u << 2;
    QTest::newRow("exclusive") << 1u << 3;
}

void TestAravisCameras::tells_who_may_open()
{
    QFETCH(quint32, privilege);
    ToyCamera camera(toy({0x7F000009, 0xFF000000, 0}));
    camera.setControlPrivilege(privilege);
    QVERIFY(camera.listen());
    AravisFixture fixture;
    fixture.search();
    QCOMPARE(fixture.cameras().size(), 1U);
    QTEST(fixture.cameras().front()->GetAccessStatus(), "status");
}

/// USB3 Vision needs a camera; the library's built-in one is listed and opened in the same way.
void TestAravisCameras::lists_what_the_library_lists()
{
    AravisFixture fixture;
    ZetoAravis::ListedInterface listed(fixture.system(), *arv_fake_interface_get_instance(),
                                       ZetoCam::InterfaceUSB3Vision, "fake", "Fake");
    QCOMPARE(listed.ReEnumerateDevices(nullptr, 0), 0);
    ZetoCam::DeviceInfo* const info = takeList(listed.GetDeviceInfoList()).at(0);
    QCOMPARE(info->GetID(), "fake.Fake_1");
    QCOMPARE(info->GetVendor(), "Aravis");
    QCOMPARE(info->GetIPAddress(), 0U);
    QCOMPARE(info->ForceIP(1, 1, 1), int32_t(ZetoCam::ErrorInvalidState));
    QCOMPARE(info->GetAccessStatus(), 0);
    int32_t error = 0;
    QVERIFY(!listed.GetParameters(nullptr)->GetString("DeviceUSBVersionDetected", &error));
    QCOMPARE(error, int32_t(ZetoCam::ErrorGenICamUnknownParam));

    ZetoCam::Device* device = openDevice(info, ZetoCam::AccessControl, &error);
    QCOMPARE(error, 0);
    QCOMPARE(info->GetAccessStatus(), int32_t(ZetoCam::AccessStatusNoAccess));
    QCOMPARE(integer(device, "Width").SetValue(100), 0);
    device->Release();
}

int main(int argc, char** argv)
{
    enterPrivateNetwork(argv);
    TestAravisCameras test;
    return runTestProgram(test, argc, argv);
}
#include "tst_araviscameras.moc"
