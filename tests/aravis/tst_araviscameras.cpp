#include <arv.h>

#include "aravisbackend.h"
#include "devicepointer.h"
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

#include <atomic>
#include <optional>

using namespace ZetoCameraLibrary;

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

    /// Searches and opens the first camera.
    DevicePointer open(int32_t mode = ZetoCam::AccessControl, int32_t* error = nullptr)
    {
        search();
        return DevicePointer(openDevice(cameras().empty() ? nullptr : cameras().front(), mode, error));
    }

private:
    LibrarySystem m_system;
};

/// Counts the events of a device.
struct EventCounter
{
    explicit EventCounter(const DevicePointer& device)
    {
        for (const int32_t id : {ZetoCam::EventDeviceLost, ZetoCam::EventDeviceBack})
            device->RegisterEvent(id, count, this);
    }

    static void count(int32_t eventId, void* self)
    {
        auto& counter = *static_cast<EventCounter*>(self);
        ++(eventId == ZetoCam::EventDeviceLost ? counter.lost : counter.back);
    }

    std::atomic<int> lost{0};
    std::atomic<int> back{0};
};

namespace {

constexpr int lossTimeoutMs = 20'000; // the Aravis library itself takes 7.5 s to notice

ZetoGenParam::Int& integer(const DevicePointer& device, const char* name)
{
    return *device->GetParameters(nullptr)->GetInt(name, nullptr);
}

ZetoAravis::Gvcp::DiscoveryAnswer toyAt(quint32 ip)
{
    return {0x02005e0a0001, {ip, 0xFF000000, 0x0A000001}, "Maker", "Toy", "1.2", "T1", "Ger\xC3\xA4t"};
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
    void init();
    void cleanup();

    void finds_cameras();
    void opens_several_at_once();
    void opens_for_reading_only();
    void keeps_a_controlled_camera_to_itself();
    void loses_and_regains_a_camera();
    void notices_a_restart();
    void does_not_take_another_camera_for_a_lost_one();
    void closes_with_cameras_open();
    void refuses_an_unusable_description();
    void moves_a_foreign_camera_into_reach();
    void forces_no_address_on_a_held_or_nameless_camera();
    void tells_who_may_open();
    void lists_what_the_library_lists();

private:
    bool startAll() { return m_one.start() && m_two.start() && m_three.start() && m_fixture->search(); }
    bool openCamera();

    FakeGigECamera m_one{1};
    FakeGigECamera m_two{2};
    FakeGigECamera m_three{3};
    std::unique_ptr<AravisFixture> m_fixture;
    std::optional<EventCounter> m_events; ///< of the first camera, outlive the device
    DevicePointer m_device;
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

void TestAravisCameras::init()
{
    m_fixture = std::make_unique<AravisFixture>();
}

void TestAravisCameras::cleanup()
{
    m_device.reset();
    m_fixture.reset();
    for (FakeGigECamera* each : {&m_one, &m_two, &m_three})
        each->kill();
}

bool TestAravisCameras::openCamera()
{
    if (m_one.start())
        m_device = m_fixture->open();
    if (m_device)
        m_events.emplace(m_device);
    return m_device != nullptr;
}

void TestAravisCameras::finds_cameras()
{
    ZetoCam::Interface* loopback = m_fixture->loopback();
    QCOMPARE(loopback->GetDescription(), "Loopback adapter lo");
    QVERIFY(QString::fromLatin1(loopback->GetVersion()).startsWith(QLatin1String("Aravis 0.8.")));
    QCOMPARE(takeList(m_fixture->system().GetInterfaceList(1U << ZetoCam::InterfaceUSB3Vision)).size(), 1U);

    QVERIFY(startAll());
    QCOMPARE(m_fixture->listed(), QStringLiteral("GV1:1 GV2:1 GV3:1"));
    ZetoCam::DeviceInfo* const camera = m_fixture->cameras()[1];
    QCOMPARE(camera->GetID(), "aravis.gev.lo.Aravis-Fake-GV2");
    QCOMPARE(camera->GetVendor(), "Aravis");
    QCOMPARE(camera->GetModel(), "Fake");
    QCOMPARE(camera->GetDisplayName(), "Aravis Fake (GV2)");
    QCOMPARE(camera->GetIPAddress(), 0x7F000002U);
    QCOMPARE(camera->GetInterface(), loopback);
    ZetoGenParam::Array* const parameters = loopback->GetParameters(nullptr);
    QCOMPARE(parameters->GetInt("GevInterfaceSubnetIPAddress", nullptr)->GetValue(nullptr), 0x7F000001);
    QCOMPARE(parameters->GetInt("GevInterfaceSubnetMask", nullptr)->GetValue(nullptr), 0xFF000000);

    QVERIFY(!m_fixture->search());
    m_two.kill();
    QVERIFY(m_fixture->search());
    QCOMPARE(m_fixture->listed(), QStringLiteral("GV1:1 GV3:1"));
    QCOMPARE(camera->GetSerialNumber(), "GV2");
    QVERIFY(m_two.start());
    QVERIFY(m_fixture->search());
    QCOMPARE(m_fixture->cameras()[1], camera);
}

void TestAravisCameras::opens_several_at_once()
{
    QVERIFY(startAll());
    std::vector<DevicePointer> devices;
    for (ZetoCam::DeviceInfo* each : m_fixture->cameras()) {
        devices.emplace_back(openDevice(each, ZetoCam::AccessControl, nullptr));
        QVERIFY(devices.back());
        QCOMPARE(integer(devices.back(), "Width").SetValue(100 + int64_t(devices.size())), 0);
    }
    for (std::size_t i = 0; i < devices.size(); ++i)
        QCOMPARE(integer(devices[i], "Width").GetValue(nullptr), 101 + int64_t(i));
    GenApi::INode* const serial = devices[2]->GetParameters(nullptr)->GetNodeMap(0)->GetNode("DeviceID");
    QCOMPARE(dynamic_cast<GenApi::IValue*>(serial)->ToString().c_str(), "GV3");
}

void TestAravisCameras::opens_for_reading_only()
{
    QVERIFY(m_one.start());
    const DevicePointer reader = m_fixture->open(ZetoCam::AccessReadOnly);
    QVERIFY(reader);
    const int64_t width = integer(reader, "Width").GetValue(nullptr);
    QVERIFY(width > 0);
    QCOMPARE(integer(reader, "Width").SetValue(width + 1), int32_t(ZetoCam::ErrorGenICamAccess));

    m_device = m_fixture->open();
    QVERIFY(m_device);
    QCOMPARE(integer(m_device, "Width").SetValue(width + 1), 0);
}

void TestAravisCameras::keeps_a_controlled_camera_to_itself()
{
    QVERIFY(openCamera());
    AravisFixture other;
    int32_t error = 0;
    QVERIFY(!other.open(ZetoCam::AccessControl, &error));
    QCOMPARE(error, int32_t(ZetoCam::ErrorNoDevice));
    QCOMPARE(other.listed(), QStringLiteral("GV1:2"));
    m_device.reset();
    other.search();
    QCOMPARE(other.listed(), QStringLiteral("GV1:1"));
}

void TestAravisCameras::loses_and_regains_a_camera()
{
    QVERIFY(openCamera());
    ZetoGenParam::Int& width = integer(m_device, "Width");
    QCOMPARE(width.SetValue(100), 0);

    m_one.kill();
    QTRY_COMPARE_WITH_TIMEOUT(m_events->lost.load(), 1, lossTimeoutMs);
    int32_t error = 0;
    width.GetValue(&error);
    QCOMPARE(error, int32_t(ZetoCam::ErrorNoDevice));
    QCOMPARE(width.SetValue(101), int32_t(ZetoCam::ErrorNoDevice));
    QCOMPARE(m_events->back.load(), 0);

    QVERIFY(m_one.start());
    QTRY_COMPARE_WITH_TIMEOUT(m_events->back.load(), 1, lossTimeoutMs);
    QVERIFY(width.GetValue(&error) != 100); // the new program knows nothing of the old one's values
    QCOMPARE(error, 0);
    QCOMPARE(width.SetValue(102), 0);
    QCOMPARE(width.GetValue(nullptr), 102);
    QCOMPARE(m_events->lost.load(), 1);
}

/// The camera answers all the time, but knows nothing of the session any more.
void TestAravisCameras::notices_a_restart()
{
    QVERIFY(openCamera());
    m_one.kill();
    QVERIFY(m_one.start());
    QTRY_COMPARE_WITH_TIMEOUT(m_events->back.load(), 1, lossTimeoutMs);
    QCOMPARE(m_events->lost.load(), 1);
    QCOMPARE(integer(m_device, "Width").SetValue(100), 0);
}

void TestAravisCameras::does_not_take_another_camera_for_a_lost_one()
{
    QVERIFY(openCamera());
    m_one.kill();
    ToyCamera toyCamera(toyAt(0x7F000001));
    QVERIFY(toyCamera.listen());
    QTRY_COMPARE_WITH_TIMEOUT(m_events->lost.load(), 1, lossTimeoutMs);
    m_device.reset();
    QCOMPARE(m_events->back.load(), 0);
}

void TestAravisCameras::closes_with_cameras_open()
{
    QVERIFY(openCamera());
    m_fixture->system().Close();
    (void)m_device.release(); // closed with the system
    AravisFixture other;
    other.search();
    QCOMPARE(other.listed(), QStringLiteral("GV1:1")); // it was told farewell
}

void TestAravisCameras::refuses_an_unusable_description()
{
    const QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("broken.xml")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<RegisterDescription><Category");
    file.close();
    FakeGigECamera camera(1, file.fileName());
    QVERIFY(camera.start());
    int32_t error = 0;
    QVERIFY(!m_fixture->open(ZetoCam::AccessControl, &error));
    QCOMPARE(error, int32_t(ZetoCam::ErrorGenICamTree));
}

void TestAravisCameras::moves_a_foreign_camera_into_reach()
{
    ToyCamera camera(toyAt(0x0A000007));
    QVERIFY(camera.listen());
    int32_t error = 0;
    QVERIFY(!m_fixture->open(ZetoCam::AccessControl, &error));
    QCOMPARE(error, int32_t(ZetoCam::ErrorNoDevice));
    QCOMPARE(m_fixture->listed(), QStringLiteral("T1:1001"));
    ZetoCam::DeviceInfo* const info = m_fixture->cameras().front();
    QCOMPARE(info->GetUserName(), "Ger\xC3\xA4t");
    QCOMPARE(info->GetMACAddress(), uint64_t(0x02005e0a0001));
    QCOMPARE(info->GetGateway(), 0x0A000001U);

    QCOMPARE(info->ForceIP(0x7F000009, 0xFF000000, 0), 0);
    QTRY_COMPARE((m_fixture->search(), m_fixture->listed()), QStringLiteral("T1:1"));
    QCOMPARE(m_fixture->cameras().front(), info);
    QCOMPARE(info->GetIPAddress(), 0x7F000009U);
}

void TestAravisCameras::forces_no_address_on_a_held_or_nameless_camera()
{
    auto camera = std::make_unique<ToyCamera>(toyAt(0x7F000009));
    camera->setControlPrivilege(ZetoAravis::Gvcp::controlAccess);
    QVERIFY(camera->listen());
    QVERIFY(m_fixture->search());
    const auto force = [this] { return m_fixture->cameras().front()->ForceIP(0x7F00000A, 0xFF000000, 0); };
    QCOMPARE(force(), int32_t(ZetoCam::ErrorGenICamAccess));
    camera.reset();
    QCOMPARE(force(), int32_t(ZetoCam::ErrorNoDevice));

    QVERIFY(m_one.start()); // has no MAC address
    QVERIFY(m_fixture->search());
    QCOMPARE(force(), int32_t(ZetoCam::ErrorInvalidState));
}

void TestAravisCameras::tells_who_may_open()
{
    ToyCamera camera(toyAt(0x7F000009));
    QVERIFY(camera.listen());
    const std::pair<quint32, ZetoCam::AccessStatus> expected[] = {
        {0, ZetoCam::AccessStatusReadWrite},
        {2, ZetoCam::AccessStatusReadOnly}, // controlled
        {6, ZetoCam::AccessStatusReadOnly}, // controlled, but may be taken over
        {1, ZetoCam::AccessStatusNoAccess}, // exclusive
    };
    for (const auto& [privilege, status] : expected) {
        camera.setControlPrivilege(privilege);
        m_fixture->search();
        QCOMPARE(m_fixture->listed(), QStringLiteral("T1:%1").arg(status));
    }
}

/// USB3 Vision needs a camera; the library's built-in one is listed and opened in the same way.
void TestAravisCameras::lists_what_the_library_lists()
{
    ZetoAravis::ListedInterface listed(m_fixture->system(), *arv_fake_interface_get_instance(),
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

    const DevicePointer device(openDevice(info, ZetoCam::AccessControl, &error));
    QCOMPARE(error, 0);
    QCOMPARE(info->GetAccessStatus(), int32_t(ZetoCam::AccessStatusNoAccess));
    QCOMPARE(integer(device, "Width").SetValue(100), 0);
}

int main(int argc, char** argv)
{
    enterPrivateNetwork(argv);
    TestAravisCameras test;
    return runTestProgram(test, argc, argv);
}
#include "tst_araviscameras.moc"
