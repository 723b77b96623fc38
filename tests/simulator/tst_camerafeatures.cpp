#include "devicepointer.h"
#include "simulatorfixture.h"

#include "testmain.h"
#include "writefeatures.h"

#include <GenICam.h>

#include <QtTest>

using namespace ZetoSimulator;

/// The features of the cameras are there and follow each other.
class TestCameraFeatures : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void follows_its_settings_data();
    void follows_its_settings();
    void drifts_in_temperature();
    void ends_counted_pulses();
    void opens_every_kind_of_camera();

private:
    GenApi::INode* node(const QString& name) const;
    /// Of "Feature" the value, of "Feature.mode", "Feature.min" and "Feature.max" what they say.
    QString seen(const QString& property) const;

    std::chrono::steady_clock::time_point m_now;
    std::unique_ptr<SimulatorFixture> m_fixture;
    DevicePointer m_device;
    GenApi::INodeMap* m_map = nullptr;
};

void TestCameraFeatures::init()
{
    SimulatorSetup setup = SimulatorSetup::standard();
    setup.clock = [this] { return m_now; };
    m_device.reset();
    m_fixture = std::make_unique<SimulatorFixture>(setup);
    m_device.reset(m_fixture->open("sim.gev0.dual"));
    m_map = m_device->GetParameters(nullptr)->GetNodeMap(0);
}

GenApi::INode* TestCameraFeatures::node(const QString& name) const
{
    return m_map->GetNode(name.toUtf8().constData());
}

QString TestCameraFeatures::seen(const QString& property) const
{
    GenApi::INode* const feature = node(property.section(QLatin1Char('.'), 0, 0));
    if (property.endsWith(QLatin1String(".mode")))
        return QStringList{"NI", "NA", "WO", "RO", "RW"}.at(feature->GetAccessMode());
    if (property.endsWith(QLatin1String(".min")))
        return QString::number(GenApi::CIntegerPtr(feature)->GetMin());
    if (property.endsWith(QLatin1String(".max")))
        return QString::number(GenApi::CIntegerPtr(feature)->GetMax());
    return QString::fromUtf8(GenApi::CValuePtr(feature)->ToString().c_str());
}

void TestCameraFeatures::follows_its_settings_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const char* settings, const char* expected) {
        QTest::newRow(name) << QString::fromLatin1(settings) << QString::fromLatin1(expected);
    };
    row("exposure time", "Frame_LineTime=1600 Frame_ExposureLines=10 Frame_ExposureClocks=80",
        "CurrentExposureTime=100");
    row("frame time of the read-out", "Frame_LineTime=1600 Frame_Height=960 Frame_ExposureLines=9",
        "CurrentFrameTime=10000");
    row("frame time of the exposure", "Frame_Height=960 Frame_ExposureLines=1999", "CurrentFrameTime=20000");
    row("fixed period", "Frame_FixedFramePeriodEnable=1 Frame_FixedFramePeriodValue=4000",
        "CurrentFrameTime=40000 Frame_ExposureLines.max=3999");
    row("exposure off", "Frame_ExposureControl=Off", "Frame_ExposureLines.mode=RO CurrentExposureTime=31120");
    row("each frame its own",
        "Frame_ExposureLines=7 FrameAB_Selector=FrameB Frame_ExposureLines=9 "
        "FrameAB_Selector=FrameA",
        "Frame_ExposureLines=7 Frame_Width=4096");
    row("the other frame", "FrameAB_Selector=FrameB",
        "Frame_ExposureLines=250 Width=2048 Frame_OffsetX.max=2048");
    row("size and offset", "Frame_Width=1024 Frame_OffsetX=1600",
        "Frame_Width.max=2496 Frame_OffsetX.max=3072");
    row("subsampling", "Frame_DecimationMode=Subsampling Frame_SubsamplingP=P8 Frame_SubsamplingM=M2",
        "Frame_WidthActual=1024 Height=768 EnumEntry_Frame_SubsamplingM_M4.mode=RO");
    row("entries of M above P", "Frame_DecimationMode=Subsampling Frame_SubsamplingP=P2",
        "EnumEntry_Frame_SubsamplingM_M4.mode=NA Frame_Averaging.mode=NA");
    row("averaging", "Frame_DecimationMode=Averaging Frame_Averaging=Avg4x4",
        "Width=1024 Frame_HeightActual=768");
    row("10 bits", "SensorADCBitDepth=Bits10 Frame_LineTime=800",
        "EnumEntry_PixelFormat_BayerRG12.mode=NA Frame_BlackLevel.max=255");
    row("12 bits lengthen a line", "Frame_LineTime=800 SensorADCBitDepth=Bits12",
        "Frame_LineTime=1000 Frame_LineTime.min=1000 EnumEntry_PixelFormat_BayerRG12.mode=RO "
        "Frame_BlackLevel.max=1023");
    row("trigger off", "", "TriggerSoftware.mode=NA EnumEntry_Frame_ExposureControl_Trigger.mode=NA");
    row("trigger", "TriggerMode=On TriggerSource=Software TriggerSoftware!",
        "TriggerCount=1 TriggerActivation.mode=RO EnumEntry_Frame_ExposureControl_Trigger.mode=RO");
    row("dual video", "FrameMode=DualVideo", "NumberOfFrameAs.mode=RW");
    row("one video", "FrameMode=FrameB", "NumberOfFrameAs.mode=NA");
    row("global shutter", "ShutterMode=Global", "Frame_WdrEnable.mode=NA");
    row("wide dynamic range", "Frame_WdrEnable=1 Frame_WdrE1=600", "Frame_WdrP1.mode=RW Frame_WdrE2.max=600");
    row("acquisition", "AcquisitionStart!",
        "Frame_Width.mode=RO PixelFormat.mode=RO AcquisitionStart.mode=NA");
    row("acquisition over", "AcquisitionStart! AcquisitionStop!", "Frame_Width.mode=RW");
    row("white balance", "BalanceWhiteAuto=Continuous",
        "RedCoefficient.mode=RO RedCoefficient=301 AutoTrackingSpeed.mode=RW");
    row("white balance once", "BalanceWhiteAuto=Once",
        "BalanceWhiteAuto=Off BlueCoefficient=417 BlueCoefficient.mode=RW");
    row("pulses", "PulseGenPeriod=100 PulseGenMode=Continuous",
        "PulseGenWidth.max=99 PulseGenNumPulses.mode=NA");
    row("strobe", "Strobe1Delay=400000", "Strobe1Width.max=600000 Strobe2Width.max=1000000");
    row("trigger on an output", "TriggerMode=On OUT1Selector=TriggerActual TriggerMode=Off",
        "OUT1Selector=TriggerActual EnumEntry_OUT1Selector_TriggerActual.mode=NA");
    row("corrections", "DefectPixelCorrection=Dynamic",
        "DefectPixelThreshold.mode=RW HotPixelThreshold.mode=NA");
}

void TestCameraFeatures::follows_its_settings()
{
    QFETCH(QString, settings);
    QFETCH(QString, expected);
    writeFeatures(*m_map, settings.toLatin1());
    for (const QString& each : expected.split(QLatin1Char(' '))) {
        const QString left = each.section(QLatin1Char('='), 0, 0);
        QCOMPARE(left + QLatin1Char('=') + seen(left), each);
    }
}

void TestCameraFeatures::drifts_in_temperature()
{
    QSet<QString> temperatures;
    for (int quarter = 0; quarter < 4; ++quarter) {
        temperatures += seen(QStringLiteral("CurrentTemperature"));
        m_now += std::chrono::seconds(30);
    }
    QCOMPARE(temperatures, (QSet<QString>{QStringLiteral("42"), QStringLiteral("46"), QStringLiteral("38")}));
}

void TestCameraFeatures::ends_counted_pulses()
{
    GenApi::CBooleanPtr enable(node(QStringLiteral("PulseGenEnable")));
    enable->SetValue(true);
    m_now += std::chrono::hours(1);
    QVERIFY(enable->GetValue());
    GenApi::CEnumerationPtr(node(QStringLiteral("PulseGenMode")))->FromString("NumPulses");
    enable->SetValue(true);
    m_now += std::chrono::microseconds(9999);
    QVERIFY(enable->GetValue());
    m_now += std::chrono::microseconds(1);
    QVERIFY(!enable->GetValue());
}

/// Every feature of them can be read or says that it cannot.
void TestCameraFeatures::opens_every_kind_of_camera()
{
    const std::pair<const char*, const char*> lackingFeatures[] = {
        {"sim.u3v0.plain",
         "FrameAB_Selector CurrentTemperature TriggerDebounce DeviceFamilyName GevMACAddress"},
        {"sim.cl0.dual", "GevCurrentIPAddress"},
        {"sim.gev0.awkward", "SensorType"}};
    for (const auto& [id, lacking] : lackingFeatures) {
        const DevicePointer device(m_fixture->open(id));
        QVERIFY2(device, id);
        GenApi::INodeMap* map = device->GetParameters(nullptr)->GetNodeMap(0);
        GenApi::NodeList_t nodes;
        map->GetNodes(nodes);
        QVERIFY(nodes.size() > 40);
        for (GenApi::INode* each : nodes) {
            const GenApi::CValuePtr value(each);
            if (value && GenApi::IsReadable(each))
                value->ToString();
        }
        for (const QByteArray& name : QByteArray(lacking).split(' '))
            QVERIFY2(!map->GetNode(name.constData()), name.constData());
    }
}

ZETO_TEST_MAIN(TestCameraFeatures)
#include "tst_camerafeatures.moc"
