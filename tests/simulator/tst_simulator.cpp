#include "devicepointer.h"
#include "simulatorfixture.h"

#include "testmain.h"

#include <QtTest>

#include <atomic>
#include <chrono>
#include <thread>

using namespace ZetoSimulator;

namespace {

const char* const dualFrame = "sim.gev0.dual";
const char* const foreign = "sim.gev0.foreign";

uint32_t address(const QString& text)
{
    uint32_t value = 0;
    for (const QString& part : text.split(QLatin1Char('.')))
        value = value << 8 | part.toUInt();
    return value;
}

/// Writes "lost" and "back" into the QString that is the context.
void protocolEvent(int32_t eventId, void* context)
{
    *static_cast<QString*>(context) +=
        eventId == ZetoCam::EventDeviceLost ? QStringLiteral("lost ") : QStringLiteral("back ");
}

ZetoGenParam::Int* integer(const DevicePointer& device, const char* name)
{
    return device->GetParameters(nullptr)->GetInt(name, nullptr);
}

} // namespace

/// Interfaces and cameras behave as their makers' do: they are found, opened, moved, lost.
class TestSimulator : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void lists_interfaces_and_cameras();
    void moves_a_camera_by_forced_ip();
    void opens_a_camera_once();
    void finds_what_was_plugged();
    void tells_of_the_camera_that_device_selector_chooses();
    void keeps_values_and_names_between_sessions();
    void writes_nothing_in_a_reading_session();
    void refuses_the_next_write();
    void loses_a_camera_in_mid_session();
    void answers_slowly_when_told();
    void lets_cameras_come_and_go();
    void serves_several_threads();

private:
    QString listing(uint32_t mask = ZetoCam::InterfaceMaskAll);
    SimulatorControl& control() { return m_fixture->control(); }
    DevicePointer openDual(int32_t mode = ZetoCam::AccessControl)
    {
        return DevicePointer(m_fixture->open(dualFrame, mode));
    }

    std::unique_ptr<SimulatorFixture> m_fixture;
};

void TestSimulator::init()
{
    m_fixture = std::make_unique<SimulatorFixture>(SimulatorSetup::standard());
}

/// The interfaces and what was found on them, for example "gev0[dual:1,held:3] gev1[]".
QString TestSimulator::listing(uint32_t mask)
{
    QStringList interfaces;
    for (ZetoCam::Interface* each : m_fixture->interfaces(mask)) {
        QStringList cameras;
        for (ZetoCam::DeviceInfo* info : SimulatorFixture::cameras(*each))
            cameras += QString::fromLatin1(info->GetID()).section(QLatin1Char('.'), 2) + QLatin1Char(':') +
                       QString::number(info->GetAccessStatus());
        interfaces += QString::fromLatin1(each->GetID()).section(QLatin1Char('.'), 1) + QLatin1Char('[') +
                      cameras.join(QLatin1Char(',')) + QLatin1Char(']');
    }
    return interfaces.join(QLatin1Char(' '));
}

void TestSimulator::lists_interfaces_and_cameras()
{
    const QString network = QStringLiteral("gev0[dual:1,foreign:1001,held:3,wanderer:1,awkward:1] gev1[]");
    QCOMPARE(listing(), QString(network + QStringLiteral(" u3v0[plain:1] cl0[dual:1]")));
    QCOMPARE(listing(1U << ZetoCam::InterfaceGigEVision), network);
    QCOMPARE(listing(1U << ZetoCam::InterfaceCameraLink | 1U << ZetoCam::InterfaceCoaXPress),
             QStringLiteral("cl0[dual:1]"));
    QCOMPARE(listing(0), QString());
}

void TestSimulator::moves_a_camera_by_forced_ip()
{
    const uint32_t mask = address(QStringLiteral("255.255.255.0"));
    const uint32_t right = address(QStringLiteral("192.168.10.50"));
    ZetoCam::DeviceInfo* info = m_fixture->camera(foreign);
    int32_t code = 0;
    QVERIFY(!m_fixture->open(foreign, ZetoCam::AccessControl, &code));
    QCOMPARE(code, -40006);

    // another subnet, the adapter's own, the network's, everyone's, first octet 0
    for (const char* ip :
         {"192.168.11.50", "192.168.10.1", "192.168.10.0", "192.168.10.255", "0.168.10.50"}) {
        QCOMPARE(info->ForceIP(address(QLatin1String(ip)), mask, 7), 0);
        QVERIFY2(m_fixture->search() && !m_fixture->camera(foreign), ip);
        QCOMPARE(info->ForceIP(right, mask, 0), -40006);
        control().setCameraPlugged(foreign, false);
        control().setCameraPlugged(foreign, true);
        m_fixture->search();
        QCOMPARE(m_fixture->camera(foreign), info);
        QCOMPARE(info->GetIPAddress(), address(QStringLiteral("10.0.0.7")));
    }
    QCOMPARE(info->ForceIP(right, mask, 7), 0);
    QVERIFY(!m_fixture->search());
    QCOMPARE(m_fixture->camera(foreign), info);
    QCOMPARE(info->GetGateway(), 7U);
    QCOMPARE(info->GetAccessStatus(), int32_t{ZetoCam::AccessStatusReadWrite});
    QVERIFY(DevicePointer(m_fixture->open(foreign)));
    QCOMPARE(info->ForceIP(right, address(QStringLiteral("255.255.0.0")), 7), 0); // another mask
    QVERIFY(m_fixture->search() && !m_fixture->camera(foreign));
}

void TestSimulator::opens_a_camera_once()
{
    struct Attempt
    {
        const char* id;
        int mode, code;
    };
    for (const Attempt& attempt : {Attempt{dualFrame, 2, 0},
                                   {"sim.u3v0.plain", 1, 0},
                                   {"sim.gev0.held", 2, -40006},
                                   {dualFrame, 7, -40007},
                                   {"nobody", 2, -40007}}) {
        int32_t error = 1;
        DevicePointer device(m_fixture->open(attempt.id, attempt.mode, &error));
        QCOMPARE(error, attempt.code);
        QCOMPARE(device != nullptr, attempt.code == 0);
        if (!device)
            continue;
        ZetoCam::DeviceInfo* info = m_fixture->camera(attempt.id);
        QCOMPARE(info->GetAccessStatus(), int32_t{ZetoCam::AccessStatusNoAccess});
        QVERIFY(!m_fixture->open(attempt.id));
        QVERIFY(info->ForceIP(1, 2, 3) != 0);
        device.reset();
        QCOMPARE(info->GetAccessStatus(), int32_t{ZetoCam::AccessStatusReadWrite});
    }
}

void TestSimulator::finds_what_was_plugged()
{
    QVERIFY(!m_fixture->search());
    QVERIFY(control().setCameraPlugged("sim.u3v0.wanderer", true));
    QVERIFY(control().setInterfacePlugged("sim.gev0", false));
    QCOMPARE(listing(), QStringLiteral("gev1[] u3v0[plain:1] cl0[dual:1]"));
    QVERIFY(m_fixture->search());
    QCOMPARE(listing(), QStringLiteral("gev1[] u3v0[plain:1,wanderer:1] cl0[dual:1]"));
    QVERIFY(!control().setCameraPlugged("nobody", true) && !control().setInterfacePlugged("nothing", true));
}

void TestSimulator::tells_of_the_camera_that_device_selector_chooses()
{
    ZetoCam::Interface* network = m_fixture->interfaces().front();
    int32_t code = 1;
    ZetoGenParam::Array* parameters = network->GetParameters(&code);
    QCOMPARE(code, 0);
    ZetoGenParam::Int* selector = parameters->GetInt("DeviceSelector", nullptr);
    ZetoGenParam::Int* mac = parameters->GetInt("GevDeviceMACAddress", nullptr);
    const auto cameras = SimulatorFixture::cameras(*network);
    for (std::size_t row = 0; row < cameras.size(); ++row) {
        QCOMPARE(selector->SetValue(static_cast<int64_t>(row)), 0);
        QCOMPARE(mac->GetValue(nullptr), static_cast<int64_t>(cameras[row]->GetMACAddress()));
        QCOMPARE(parameters->GetString("DeviceID", nullptr)->GetValue(nullptr), cameras[row]->GetID());
    }
    QCOMPARE(selector->SetValue(static_cast<int64_t>(cameras.size())), -40204);
    QCOMPARE(parameters->GetInt("GevInterfaceSubnetMask", nullptr)->GetValue(nullptr), int64_t{0xffffff00});

    control().setCameraPlugged("sim.gev0.awkward", false);
    m_fixture->search();
    mac->GetValue(&code);
    QCOMPARE(code, -40005);

    ZetoGenParam::Array* usb =
        m_fixture->interfaces(1U << ZetoCam::InterfaceUSB3Vision).front()->GetParameters(nullptr);
    QCOMPARE(usb->GetString("DeviceUSBVersionDetected", nullptr)->GetValue(nullptr), "3.2");
    ZetoGenParam::Array* empty = m_fixture->interfaces()[1]->GetParameters(nullptr);
    QVERIFY(!empty->GetInt("DeviceSelector", nullptr)->IsAvailable());
}

void TestSimulator::keeps_values_and_names_between_sessions()
{
    const char* before = m_fixture->camera(dualFrame)->GetUserName();
    DevicePointer device = openDual();
    QCOMPARE(device->GetParameters(nullptr)->GetString("DeviceUserID", nullptr)->SetValue("Right"), 0);
    QCOMPARE(integer(device, "PulseGenPeriod")->SetValue(77), 0);
    device.reset();
    QCOMPARE(m_fixture->camera(dualFrame)->GetUserName(), "Right");
    QCOMPARE(before, "Left");
    QCOMPARE(integer(openDual(), "PulseGenPeriod")->GetValue(nullptr), int64_t{77});
}

void TestSimulator::writes_nothing_in_a_reading_session()
{
    for (const bool reading : {true, false}) {
        const DevicePointer device = openDual(reading ? ZetoCam::AccessReadOnly : ZetoCam::AccessControl);
        ZetoGenParam::Int* period = integer(device, "PulseGenPeriod");
        QVERIFY(period->IsReadable());
        QCOMPARE(period->IsWritable(), !reading);
        QCOMPARE(period->SetValue(80), reading ? -40202 : 0);
    }
}

void TestSimulator::refuses_the_next_write()
{
    const DevicePointer device = openDual();
    ZetoGenParam::Enum* mode = device->GetParameters(nullptr)->GetEnum("TriggerMode", nullptr);
    for (const int code : {-40001, -40006, -40051, -40101, -40206, -1}) {
        QVERIFY(control().refuseNextWrite(dualFrame, code));
        QCOMPARE(mode->GetValueStr(nullptr), "Off");
        QCOMPARE(mode->SetValueStr("On"), code);
        QCOMPARE(mode->GetValueStr(nullptr), "Off");
        QCOMPARE(mode->SetValueStr("Off"), 0);
        control().refuseNextWrite(dualFrame, code);
        QCOMPARE(device->GetParameters(nullptr)->GetCommand("TimestampLatch", nullptr)->Execute(), code);
    }
}

void TestSimulator::loses_a_camera_in_mid_session()
{
    QString protocol; // outlives the device
    const DevicePointer device = openDual();
    ZetoGenParam::Int* period = integer(device, "PulseGenPeriod");
    for (const int32_t id : {1003, 1004, 1004})
        QCOMPARE(device->RegisterEvent(id, protocolEvent, &protocol), 0);
    QCOMPARE(device->RegisterEvent(1, protocolEvent, &protocol), -40007);
    QCOMPARE(device->RegisterEvent(1003, nullptr, &protocol), -40007);

    control().setAnswering(dualFrame, false);
    int32_t code = 0;
    period->GetValue(&code);
    QCOMPARE(code, -40006);
    QCOMPARE(period->SetValue(500), -40006);
    m_fixture->search();
    QVERIFY(!m_fixture->camera(dualFrame));
    control().setAnswering(dualFrame, true);
    QCOMPARE(period->SetValue(500), 0);
    QCOMPARE(protocol, QStringLiteral("lost back "));

    control().setInterfacePlugged("sim.gev0", false);
    control().setCameraPlugged(dualFrame, false);
    control().setInterfacePlugged("sim.gev0", true);
    QCOMPARE(protocol, QStringLiteral("lost back lost "));
    device->UnregisterEvent(1004, protocolEvent, &protocol);
    control().setCameraPlugged(dualFrame, true);
    QCOMPARE(protocol, QStringLiteral("lost back lost "));
}

void TestSimulator::answers_slowly_when_told()
{
    const DevicePointer device = openDual();
    control().setAccessDelay(dualFrame, 20);
    control().setSearchDelay("sim.gev1", 20);
    QElapsedTimer timer;
    timer.start();
    integer(device, "PulseGenPeriod")->GetValue(nullptr);
    QVERIFY(timer.restart() >= 20);
    m_fixture->search();
    QVERIFY(timer.elapsed() >= 20);
}

void TestSimulator::lets_cameras_come_and_go()
{
    const DevicePointer inUse(m_fixture->open("sim.gev0.wanderer"));
    control().setDemo(2);
    int changes = 0;
    QTRY_VERIFY((changes += m_fixture->search() ? 1 : 0) > 3);
    QVERIFY(m_fixture->camera("sim.gev0.wanderer"));
    control().setDemo(0);
    m_fixture->search();
    QTest::qWait(20);
    QVERIFY(!m_fixture->search());
}

/// Worth running under ThreadSanitizer.
void TestSimulator::serves_several_threads()
{
    std::atomic<bool> isOver{false};
    std::atomic<int> searches{0};
    std::thread searching([&] {
        while (!isOver) {
            m_fixture->search();
            ++searches;
        }
    });
    std::thread plugging([&] {
        for (int i = 0; !isOver; ++i) {
            control().setCameraPlugged("sim.gev0.wanderer", i % 2);
            control().setAnswering(dualFrame, i % 3);
        }
    });
    QString protocol;
    ZetoGenParam::Array* network = m_fixture->interfaces().front()->GetParameters(nullptr);
    for (int opened = 0; opened < 50 || searches < 50;) {
        listing();
        network->GetInt("DeviceSelector", nullptr)->SetValue(0);
        network->GetInt("GevDeviceMACAddress", nullptr)->GetValue(nullptr);
        const DevicePointer device = openDual();
        if (!device)
            continue;
        ++opened;
        device->RegisterEvent(1003, protocolEvent, &protocol);
        integer(device, "CurrentTemperature")->GetValue(nullptr);
        device->UnregisterEvent(1003, protocolEvent, &protocol);
    }
    isOver = true;
    searching.join();
    plugging.join();
}

ZETO_TEST_MAIN(TestSimulator)
#include "tst_simulator.moc"
