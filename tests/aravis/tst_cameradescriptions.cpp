#include <arv.h>

#include "descriptionnodemap.h"
#include "featurestate.h"
#include "gobjectpointer.h"
#include "reportrecorder.h"
#include "testmain.h"

#include <QtTest>

#include <map>

using ZetoAravis::DescriptionNodeMap;
using namespace GenApi;

namespace {

using States = std::map<INode*, std::string>;

States statesOf(const std::vector<INode*>& features)
{
    States states;
    for (INode* feature : features)
        states[feature] = stateOf(*feature);
    return states;
}

/// The states as the camera has them, whatever is cached.
States freshStatesOf(const DescriptionNodeMap& camera, const std::vector<INode*>& features)
{
    camera.nodeMap().InvalidateNodes();
    return statesOf(features);
}

/// The description of the camera that the Aravis library simulates.
std::string fakeCameraDescription()
{
    const ZetoAravis::GObjectPointer<ArvFakeCamera> camera(arv_fake_camera_new("1"));
    std::size_t size = 0;
    const char* const xml = arv_fake_camera_get_genicam_xml(camera.get(), &size);
    return {xml, size};
}

QByteArray realDescription(const char* name)
{
    return qgetenv("ZETO_TEST_DESCRIPTIONS") + '/' + name;
}

} // namespace

/// Whole descriptions: the ones that come with the project and the library, and those of real cameras where
/// the folder that ZETO_TEST_DESCRIPTIONS names has them.
class TestCameraDescriptions : public QObject
{
    Q_OBJECT

private slots:
    void opens_data();
    void opens();
    void reportsWhatWritesChange_data() { opens_data(); }
    void reportsWhatWritesChange();

private:
    void openCamera();
    static void writeTwice(INode& feature);

    std::unique_ptr<DescriptionNodeMap> m_camera;
    std::vector<INode*> m_features;
};

void TestCameraDescriptions::opens_data()
{
    QTest::addColumn<QByteArray>("path"); // empty: the camera that the library simulates
    QTest::addColumn<int>("featureCount");
    QTest::addColumn<int>("leastReadable");
    QTest::newRow("demo") << QByteArray(ZETO_DEMO_XML) << 151 << 125;
    QTest::newRow("corners") << QByteArray(ZETO_CORNERS_XML) << 98 << 75;
    QTest::newRow("simulated by the library") << QByteArray() << 25 << 20;
    QTest::newRow("usb3-a") << realDescription("usb3-a.xml") << 178 << 140;
    QTest::newRow("gige-a") << realDescription("gige-a.xml") << 508 << 440;
    QTest::newRow("gige-b") << realDescription("gige-b.xml") << 142 << 120;
    QTest::newRow("coaxpress-a") << realDescription("coaxpress-a.xml") << 160 << 120;
}

void TestCameraDescriptions::openCamera()
{
    QFETCH(QByteArray, path);
    m_features.clear();
    m_camera.reset();
    if (!path.isEmpty() && !QFile::exists(QFile::decodeName(path)))
        QSKIP("The descriptions of real cameras are not here");
    m_camera = path.isEmpty() ? DescriptionNodeMap::fromXml(fakeCameraDescription())
                              : DescriptionNodeMap::open(path.toStdString());
    m_features = featuresOf(m_camera->nodeMap());
}

void TestCameraDescriptions::opens()
{
    QFETCH(int, leastReadable);
    openCamera();
    if (QTest::currentTestFailed() || !m_camera)
        return;
    QTEST(int(m_features.size()), "featureCount");
    const auto isReadableWithoutError = [](INode* feature) {
        const std::string state = stateOf(*feature);
        return state[0] == 'R' && state.find("error") == std::string::npos;
    };
    const auto readable = std::count_if(m_features.begin(), m_features.end(), isReadableWithoutError);
    QVERIFY2(readable >= leastReadable, qPrintable(QString::number(readable)));
}

/// Writes to every writable feature the value it has and then another one. Whatever changes anywhere must
/// have been reported, and must be seen without asking the camera anew.
void TestCameraDescriptions::reportsWhatWritesChange()
{
    openCamera();
    if (!m_camera)
        return;
    ReportRecorder recorder(m_features);
    States before = freshStatesOf(*m_camera, m_features);
    int changes = 0;
    for (INode* feature : m_features) {
        if (!IsWritable(feature) || !IsReadable(feature) ||
            before.at(feature).find("error") != std::string::npos)
            continue;
        recorder.take();
        writeTwice(*feature);
        const QStringList reported = recorder.take();
        const States seen = statesOf(m_features);
        States after = freshStatesOf(*m_camera, m_features);
        changes += after == before ? 0 : 1;
        for (INode* other : m_features) {
            const QByteArray place = QByteArray(feature->GetName().c_str()) + ": " +
                                     other->GetName().c_str() + ' ' + before.at(other).c_str() + " -> " +
                                     after.at(other).c_str() + ", seen as " + seen.at(other).c_str();
            const bool isReported = reported.contains(QLatin1String(other->GetName().c_str()));
            QVERIFY2(after.at(other) == before.at(other) || isReported, place.constData());
            QVERIFY2(after.at(other) == seen.at(other), place.constData());
        }
        before = std::move(after);
    }
    QVERIFY(changes > 10);
}

void TestCameraDescriptions::writeTwice(INode& feature)
{
    const CValuePtr value(&feature);
    try {
        value->FromString(value->ToString());
        if (const std::string other = otherValueOf(feature); !other.empty())
            value->FromString(other.c_str());
    } catch (const GenICam::GenericException&) {
        return; // the value it has is off its limits or increment, or the device refuses it
    }
}

ZETO_TEST_MAIN(TestCameraDescriptions)
#include "tst_cameradescriptions.moc"
