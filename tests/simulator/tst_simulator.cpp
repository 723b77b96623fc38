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

/// The interfaces and what was found on them, for example "gev0[dual:1,held:3] gev1[]".
QString listing(SimulatorFixture& fixture, uint32_t mask = ZetoCam::InterfaceMaskAll)
{
    QStringList interfaces;
    for (ZetoCam::Interface* each : fixture.interfaces(mask)) {
        QStringList cameras;
        for (ZetoCam::DeviceInfo* info : SimulatorFixture::cameras(*each))
            cameras += QString::fromLatin1(info->GetID()).section(QLatin1Char('.'), 2) + QLatin1Char(':') +
                       QString::number(info->GetAccessStatus());
        interfaces += QString::fromLatin1(each->GetID()).section(QLatin1Char('.'), 1) + QLatin1Char('[') +
                      cameras.join(QLatin1Char(',')) + QLatin1Char(']');
    }
    return interfaces.join(QLatin1Char(' '));
}

/// Writes "lost" and "back" into the QString that is the context.
void protocolEvent(int32_t eventId, void* context)
{
    *static_cast<QString*>(context) +=
        eventId == ZetoCam::EventDeviceLost ? QStringLiteral("lost ") : QStringLiteral("back ");
}

} // namespace

/// Interfaces and cameras behave as their makers' do: they are found, opened, moved, lost.
class TestSimulator : public QObject
{
    Q_OBJECT

private slots:
    void lists_interfaces_and_cameras_data();
    void lists_interfaces_and_cameras();
    void moves_a_camera_by_forced_ip_data();
    void moves_a_camera_by_forced_ip();
    void opens_a_camera_once_data();
    void opens_a_camera_once();
    void finds_what_was_plugged();
    void tells_of_the_camera_that_device_selector_chooses();
    void keeps_values_and_names_between_sessions();
    void writes_nothing_in_a_reading_session();
    void refuses_the_next_write_data();
    void refuses_the_next_write();
    void loses_a_camera_in_mid_session();
    void answers_slowly_when_told();
    void lets_cameras_come_and_go();
    void serves_several_threads();
};

void TestSimulator::lists_interfaces_and_cameras_data()
{
    QTest::addColumn<uint>("mask");
    QTest::addColumn<QString>("expected");
    const QString network = QStringLiteral("gev0[dual:1,foreign:1001,held:3,wanderer:1,awkward:1] gev1[]");
    QTest::newRow("all") << 255U << network + QStringLiteral(" u3v0[plain:1] cl0[dual:1]");
    QTest::newRow("network") << (1U << ZetoCam::InterfaceGigEVision) << network;
    QTest::newRow("frame grabbers") << (1U << ZetoCam::InterfaceCameraLink |
                                        1U << ZetoCam::InterfaceCoaXPress)
                                    << QStringLiteral("cl0[dual:1]");
    QTest::newRow("none") << 0U << QString();
}

void TestSimulator::lists_interfaces_and_cameras()
{
    QFETCH(uint, mask);
    SimulatorFixture fixture(SimulatorSetup::standard());
    QTEST(listing(fixture, mask), "expected");
}

void TestSimulator::moves_a_camera_by_forced_ip_data()
{
    QTest::addColumn<QString>("ip");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<bool>("isFound");
    const QString mask = QStringLiteral("255.255.255.0");
    QTest::newRow("right") << "192.168.10.50" << mask << true;
    QTest::newRow("other subnet") << "192.168.11.50" << mask << false;
    QTest::newRow("the adapter's own") << "192.168.10.1" << mask << false;
    QTest::newRow("of the network") << "192.168.10.0" << mask << false;
    QTest::newRow("broadcast") << "192.168.10.255" << mask << false;
    QTest::newRow("other mask") << "192.168.10.50" << QStringLiteral("255.255.0.0") << false;
    QTest::newRow("first octet 0") << "0.168.10.50" << mask << false;
}

void TestSimulator::moves_a_camera_by_forced_ip()
{
    QFETCH(QString, ip);
    QFETCH(QString, mask);
    QFETCH(bool, isFound);
    SimulatorFixture fixture(SimulatorSetup::standard());
    ZetoCam::DeviceInfo* info = fixture.camera(foreign);
    int32_t code = 0;
    QVERIFY(!fixture.open(foreign, ZetoCam::AccessControl, &code));
    QCOMPARE(code, -40006);

    QCOMPARE(info->ForceIP(address(ip), address(mask), 7), 0);
    QCOMPARE(fixture.search(), !isFound);
    QCOMPARE(fixture.camera(foreign), isFound ? info : nullptr);
    QCOMPARE(info->GetGateway(), 7U);
    if (isFound) {
        QCOMPARE(info->GetAccessStatus(), int32_t{ZetoCam::AccessStatusReadWrite});
        fixture.open(foreign)->Release();
    } else {
        QCOMPARE(info->ForceIP(address(QStringLiteral("192.168.10.50")), address(mask), 0), -40006);
    }

    fixture.control().setCameraPlugged(foreign, false);
    fixture.control().setCameraPlugged(foreign, true);
    fixture.search();
    QCOMPARE(fixture.camera(foreign), info);
    QCOMPARE(info->GetIPAddress(), address(QStringLiteral("10.0.0.7")));
}

void TestSimulator::opens_a_camera_once_data()
{
    QTest::addColumn<QByteArray>("id");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("code");
    QTest::newRow("free") << QByteArray(dualFrame) << 2 << 0;
    QTest::newRow("to read") << QByteArray("sim.u3v0.plain") << 1 << 0;
    QTest::newRow("held by another program") << QByteArray("sim.gev0.held") << 2 << -40006;
    QTest::newRow("mode unknown") << QByteArray(dualFrame) << 7 << -40007;
    QTest::newRow("no description") << QByteArray("nobody") << 2 << -40007;
}

void TestSimulator::opens_a_camera_once()
{
    QFETCH(QByteArray, id);
    QFETCH(int, mode);
    QFETCH(int, code);
    SimulatorFixture fixture(SimulatorSetup::standard());
    int32_t error = 1;
    ZetoCam::Device* device = fixture.open(id.toStdString(), mode, &error);
    QCOMPARE(error, code);
    QCOMPARE(device != nullptr, code == 0);
    if (!device)
        return;
    ZetoCam::DeviceInfo* info = fixture.camera(id.toStdString());
    QCOMPARE(info->GetAccessStatus(), int32_t{ZetoCam::AccessStatusNoAccess});
    QVERIFY(!fixture.open(id.toStdString()));
    QVERIFY(info->ForceIP(1, 2, 3) != 0);
    device->Release();
    QCOMPARE(info->GetAccessStatus(), int32_t{ZetoCam::AccessStatusReadWrite});
}

void TestSimulator::finds_what_was_plugged()
{
    SimulatorFixture fixture(SimulatorSetup::standard());
    SimulatorControl& control = fixture.control();
    QVERIFY(!fixture.search());
    QVERIFY(control.setCameraPlugged("sim.u3v0.wanderer", true));
    QVERIFY(control.setInterfacePlugged("sim.gev0", false));
    QCOMPARE(listing(fixture), QStringLiteral("gev1[] u3v0[plain:1] cl0[dual:1]"));
    QVERIFY(fixture.search());
    QCOMPARE(listing(fixture), QStringLiteral("gev1[] u3v0[plain:1,wanderer:1] cl0[dual:1]"));
    QVERIFY(!control.setCameraPlugged("nobody", true) && !control.setInterfacePlugged("nothing", true));
}

void TestSimulator::tells_of_the_camera_that_device_selector_chooses()
{
    SimulatorFixture fixture(SimulatorSetup::standard());
    ZetoCam::Interface* network = fixture.interfaces().front();
    int32_t code = 1;
    ZetoGenParam::Array* parameters = network->GetParameters(&code);
    QCOMPARE(code, 0);
    ZetoGenParam::Int* selector = parameters->GetInt("DeviceSelector", nullptr);
    const auto cameras = SimulatorFixture::cameras(*network);
    for (std::size_t row = 0; row < cameras.size(); ++row) {
        QCOMPARE(selector->SetValue(static_cast<int64_t>(row)), 0);
        QCOMPARE(parameters->GetInt("GevDeviceMACAddress", nullptr)->GetValue(nullptr),
                 static_cast<int64_t>(cameras[row]->GetMACAddress()));
        QCOMPARE(parameters->GetString("DeviceID", nullptr)->GetValue(nullptr), cameras[row]->GetID());
    }
    QCOMPARE(selector->SetValue(static_cast<int64_t>(cameras.size())), -40204);
    QCOMPARE(parameters->GetInt("GevInterfaceSubnetMask", nullptr)->GetValue(nullptr), int64_t{0xffffff00});

    fixture.control().setCameraPlugged("sim.gev0.awkward", false);
    fixture.search();
    parameters->GetInt("GevDeviceMACAddress", nullptr)->GetValue(&code);
    QCOMPARE(code, -40005);

    ZetoGenParam::Array* usb =
        fixture.interfaces(1U << ZetoCam::InterfaceUSB3Vision).front()->GetParameters(nullptr);
    QCOMPARE(usb->GetString("DeviceUSBVersionDetected", nullptr)->GetValue(nullptr), "3.2");
    ZetoGenParam::Array* empty = fixture.interfaces()[1]->GetParameters(nullptr);
    QVERIFY(!empty->GetInt("DeviceSelector", nullptr)->IsAvailable());
}

void TestSimulator::keeps_values_and_names_between_sessions()
{
    SimulatorFixture fixture(SimulatorSetup::standard());
    const char* before = fixture.camera(dualFrame)->GetUserName();
    ZetoCam::Device* device = fixture.open(dualFrame);
    QCOMPARE(device->GetParameters(nullptr)->GetString("DeviceUserID", nullptr)->SetValue("Right"), 0);
    QCOMPARE(device->GetParameters(nullptr)->GetInt("PulseGenPeriod", nullptr)->SetValue(77), 0);
    device->Release();
    QCOMPARE(fixture.camera(dualFrame)->GetUserName(), "Right");
    QCOMPARE(before, "Left");
    device = fixture.open(dualFrame);
    QCOMPARE(device->GetParameters(nullptr)->GetInt("PulseGenPeriod", nullptr)->GetValue(nullptr),
             int64_t{77});
    device->Release();
}

void TestSimulator::writes_nothing_in_a_reading_session()
{
    SimulatorFixture fixture(SimulatorSetup::standard());
    for (const bool reading : {true, false}) {
        ZetoCam::Device* device =
            fixture.open(dualFrame, reading ? ZetoCam::AccessReadOnly : ZetoCam::AccessControl);
        ZetoGenParam::Int* period = device->GetParameters(nullptr)->GetInt("PulseGenPeriod", nullptr);
        QVERIFY(period->IsReadable());
        QCOMPARE(period->IsWritable(), !reading);
        QCOMPARE(period->SetValue(80), reading ? -40202 : 0);
        device->Release();
    }
}

void TestSimulator::refuses_the_next_write_data()
{
    QTest::addColumn<int>("code");
    for (const int code : {-40001, -40002, -40003, -40004, -40005, -40006, -40007, -40051, -40101, -40200,
                           -40201, -40202, -40203, -40204, -40205, -40206, -1})
        QTest::newRow(QByteArray::number(code).constData()) << code;
}

void TestSimulator::refuses_the_next_write()
{
    QFETCH(int, code);
    SimulatorFixture fixture(SimulatorSetup::standard());
    ZetoCam::Device* device = fixture.open(dualFrame);
    ZetoGenParam::Array* parameters = device->GetParameters(nullptr);
    ZetoGenParam::Enum* mode = parameters->GetEnum("TriggerMode", nullptr);
    QVERIFY(fixture.control().refuseNextWrite(dualFrame, code));
    QCOMPARE(mode->GetValueStr(nullptr), "Off");
    QCOMPARE(mode->SetValueStr("On"), code);
    QCOMPARE(mode->GetValueStr(nullptr), "Off");
    QCOMPARE(mode->SetValueStr("On"), 0);
    fixture.control().refuseNextWrite(dualFrame, code);
    QCOMPARE(parameters->GetCommand("TimestampLatch", nullptr)->Execute(), code);
    device->Release();
}

void TestSimulator::loses_a_camera_in_mid_session()
{
    SimulatorFixture fixture(SimulatorSetup::standard());
    SimulatorControl& control = fixture.control();
    ZetoCam::Device* device = fixture.open(dualFrame);
    ZetoGenParam::Int* period = device->GetParameters(nullptr)->GetInt("PulseGenPeriod", nullptr);
    QString protocol;
    for (const int32_t id : {1003, 1004, 1004})
        QCOMPARE(device->RegisterEvent(id, protocolEvent, &protocol), 0);
    QCOMPARE(device->RegisterEvent(1, protocolEvent, &protocol), -40007);
    QCOMPARE(device->RegisterEvent(1003, nullptr, &protocol), -40007);

    control.setAnswering(dualFrame, false);
    int32_t code = 0;
    period->GetValue(&code);
    QCOMPARE(code, -40006);
    QCOMPARE(period->SetValue(500), -40006);
    fixture.search();
    QVERIFY(!fixture.camera(dualFrame));
    control.setAnswering(dualFrame, true);
    QCOMPARE(period->SetValue(500), 0);
    QCOMPARE(protocol, QStringLiteral("lost back "));

    control.setInterfacePlugged("sim.gev0", false);
    control.setCameraPlugged(dualFrame, false);
    control.setInterfacePlugged("sim.gev0", true);
    QCOMPARE(protocol, QStringLiteral("lost back lost "));
    device->UnregisterEvent(1004, protocolEvent, &protocol);
    control.setCameraPlugged(dualFrame, true);
    QCOMPARE(protocol, QStringLiteral("lost back lost "));
    device->Release();
}

void TestSimulator::answers_slowly_when_told()
{
    SimulatorFixture fixture(SimulatorSetup::standard());
    ZetoCam::Device* device = fixture.open(dualFrame);
    fixture.control().setAccessDelay(dualFrame, 20);
    fixture.control().setSearchDelay("sim.gev1", 20);
    QElapsedTimer timer;
    timer.start();
    device->GetParameters(nullptr)->GetInt("PulseGenPeriod", nullptr)->GetValue(nullptr);
    QVERIFY(timer.restart() >= 20);
    fixture.search();
    QVERIFY(timer.elapsed() >= 20);
    device->Release();
}

void TestSimulator::lets_cameras_come_and_go()
{
    SimulatorFixture fixture(SimulatorSetup::standard());
    ZetoCam::Device* inUse = fixture.open("sim.gev0.wanderer");
    fixture.control().setDemo(2);
    int changes = 0;
    QTRY_VERIFY((changes += fixture.search() ? 1 : 0) > 3);
    QVERIFY(fixture.camera("sim.gev0.wanderer"));
    fixture.control().setDemo(0);
    fixture.search();
    QTest::qWait(20);
    QVERIFY(!fixture.search());
    inUse->Release();
}

/// Worth running under ThreadSanitizer.
void TestSimulator::serves_several_threads()
{
    SimulatorFixture fixture(SimulatorSetup::standard());
    std::atomic<bool> isOver{false};
    std::atomic<int> searches{0};
    std::thread searching([&] {
        while (!isOver) {
            fixture.search();
            ++searches;
        }
    });
    std::thread plugging([&] {
        for (int i = 0; !isOver; ++i) {
            fixture.control().setCameraPlugged("sim.gev0.wanderer", i % 2);
            fixture.control().setAnswering(dualFrame, i % 3);
        }
    });
    QString protocol;
    ZetoGenParam::Array* network = fixture.interfaces().front()->GetParameters(nullptr);
    for (int opened = 0; opened < 50 || searches < 50;) {
        listing(fixture);
        network->GetInt("DeviceSelector", nullptr)->SetValue(0);
        network->GetInt("GevDeviceMACAddress", nullptr)->GetValue(nullptr);
        ZetoCam::Device* device = fixture.open(dualFrame);
        if (!device)
            continue;
        ++opened;
        ZetoCam::DeviceInfo* info = fixture.camera("sim.gev0.awkward");
        QVERIFY(info && info->GetUserName());
        device->RegisterEvent(1003, protocolEvent, &protocol);
        device->GetParameters(nullptr)->GetInt("CurrentTemperature", nullptr)->GetValue(nullptr);
        device->UnregisterEvent(1003, protocolEvent, &protocol);
        device->Release();
    }
    isOver = true;
    searching.join();
    plugging.join();
}

ZETO_TEST_MAIN(TestSimulator)
#include "tst_simulator.moc"
