#include "hostwindow.h"
#include "qtcomplaints.h"
#include "simulatorfixture.h"
#include "testmain.h"

#include <ZetoCameraGuiApi/ZetoCameraGuiApi.h>
#include <ZetoCameraGuiApi/izetogenparamtreeview.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

using ZetoGui::IZetoGenParamTreeView;
using ZetoSimulator::SimulatorSetup;

namespace {

struct Destroy
{
    void operator()(IZetoGenParamTreeView* view) const { DestroyGenParamTreeView(view); }
};
using View = std::unique_ptr<IZetoGenParamTreeView, Destroy>;

QDialog& windowOf(const View& view)
{
    return *dynamic_cast<QDialog*>(view.get());
}

/// Does \a work in the next modal dialog.
void inModalDialog(const std::function<void(QDialog&)>& work)
{
    QTimer::singleShot(0, qApp, [work] { work(*qobject_cast<QDialog*>(QApplication::activeModalWidget())); });
}

void chooseFirstCamera(QDialog& selector)
{
    auto* const cameras = selector.findChild<QAbstractItemView*>(QStringLiteral("cameraTreeView"));
    const QAbstractItemModel& model = *cameras->model();
    cameras->setCurrentIndex(model.index(0, 0, model.index(0, 0)));
    selector.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
}

/// The windows that are shown while it exists, each by its class and its parent's object name.
class ShownWindows : public QObject
{
public:
    ShownWindows() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && watched->isWidgetType() &&
            static_cast<QWidget*>(watched)->isWindow())
            names << QString::fromLatin1(watched->metaObject()->className()) +
                         (watched->parent() ? QLatin1Char('@') + watched->parent()->objectName() : QString());
        return false;
    }

    QStringList names;
};

/// A camera library in which searching fails in the worst way.
class ThrowingSystem : public ZetoCam::System
{
public:
    int32_t Close() override { return 0; }
    ZetoCam::InterfaceList* GetInterfaceList(uint32_t /*typeMask*/) override { throw 1; }
};

/// What may not grow: windows on the display, and widgets and native windows of Qt.
QVector<int> inUse(const HostWindow& native)
{
    QGuiApplication::sync();
    return {native.windowCount(), QApplication::allWidgets().size(), QGuiApplication::allWindows().size()};
}

bool hasGrown(const HostWindow& native, const QVector<int>& before)
{
    const QVector<int> now = inUse(native);
    return !std::equal(now.begin(), now.end(), before.begin(), std::less_equal<>());
}

/// Sanitizers, and Wine, which runs what MinGW builds, slow a window down some ten times.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) || defined(__MINGW32__)
constexpr int ManyTimes = 100;
#else
constexpr int ManyTimes = 1000;
#endif

using ShowFunction = std::function<void(ZetoCam::Device*, HWND)>;

} // namespace

Q_DECLARE_METATYPE(ShowFunction)

class CFunctionsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void takesTitlesInAnyLanguage_data();
    void takesTitlesInAnyLanguage();
    void opensTheBrowserOverTheNativeWindow();
    void opensTheBrowserWithoutAParent_data();
    void opensTheBrowserWithoutAParent();
    void destroysNoBrowser();
    void returnsTheChosenCamera();
    void returnsNoCamera_data();
    void returnsNoCamera();
    void returnsWhenTheNativeWindowGoes_data();
    void returnsWhenTheNativeWindowGoes();
    void survivesALibraryThatThrows();
    void leavesNothingOfManyBrowsers();
    void leavesNothingOfManySelectors();
    void showsConfigurationDialogsDuringTheCall_data();
    void showsConfigurationDialogsDuringTheCall();

private:
    const QCoreApplication* m_application = nullptr;
    SimulatorFixture m_hardware{SimulatorSetup::standard()};
};

void CFunctionsTest::initTestCase()
{
    m_application = QCoreApplication::instance();
}

/// A host's own application is the one that is used.
void CFunctionsTest::cleanup()
{
    QCOMPARE(QCoreApplication::instance(), m_application);
}

void CFunctionsTest::takesTitlesInAnyLanguage_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("ASCII") << "Features";
    QTest::newRow("accents, Greek, Japanese") << QString::fromUtf8("Gr\xc3\xb6\xc3\x9f"
                                                                   "e \xce\xbb \xe8\xa8\xad\xe5\xae\x9a");
    QTest::newRow("outside the 16-bit range") << QString::fromUtf8("\xf0\x9f\x93\xb7 \xf0\x9d\x84\x9e");
    QTest::newRow("percent and ampersand") << "100 %1 & more";
    QTest::newRow("empty") << "";
    QTest::newRow("null") << QString();
}

void CFunctionsTest::takesTitlesInAnyLanguage()
{
    QFETCH(QString, title);
    const QByteArray utf8 = title.toUtf8();
    const std::wstring wideText = title.toStdWString();
    const char* const narrow = title.isNull() ? nullptr : utf8.constData();
    const wchar_t* const wide = title.isNull() ? nullptr : wideText.c_str();
    const View views[] = {View(CreateGenParamTreeViewForNodemapA(nullptr, narrow, nullptr)),
                          View(CreateGenParamTreeViewForNodemapW(nullptr, wide, nullptr)),
                          View(CreateGenParamTreeViewForArrayA(nullptr, narrow, nullptr)),
                          View(CreateGenParamTreeViewForArrayW(nullptr, wide, nullptr))};
    for (const View& view : views)
        QCOMPARE(windowOf(view).windowTitle(), title);

    QString ofSelector;
    QVector<bool> polling;
    const auto look = [&](QDialog& selector) {
        ofSelector += selector.windowTitle();
        polling << selector.findChild<QCheckBox*>(QStringLiteral("chPoll"))->isChecked();
        selector.reject();
    };
    inModalDialog(look);
    SelectCameraA(&m_hardware.system(), narrow, nullptr, true);
    inModalDialog(look);
    SelectCameraW(&m_hardware.system(), wide, nullptr, false);
    QCOMPARE(ofSelector, title + title);
    QCOMPARE(polling, QVector<bool>({true, false}));
}

void CFunctionsTest::opensTheBrowserOverTheNativeWindow()
{
    const HostWindow native(QRect(400, 300, 600, 500));
    View view(CreateGenParamTreeViewForNodemapA(nullptr, "Features", native.handle()));
    QDialog& window = windowOf(view);
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(!window.isModal());
    QVERIFY(native.isEnabled());
    const QPoint off = window.geometry().center() - QPoint(700, 550);
    QVERIFY2(off.manhattanLength() < 60, qPrintable(QString::number(off.manhattanLength())));

    const int windows = native.childCount();
    view.reset();
    QCoreApplication::processEvents();
    QCOMPARE(native.childCount(), windows - 1); // the host went, too
}

void CFunctionsTest::opensTheBrowserWithoutAParent_data()
{
    QTest::addColumn<quintptr>("handle");
    QTest::newRow("null") << quintptr(0);
    QTest::newRow("no window") << quintptr(0x7ffffff0);
    QTest::newRow("more than 32 bits") << ~quintptr(0) / 2;
}

void CFunctionsTest::opensTheBrowserWithoutAParent()
{
    QFETCH(quintptr, handle);
    const View view(CreateGenParamTreeViewForNodemapA(nullptr, "Features", reinterpret_cast<HWND>(handle)));
    QVERIFY(windowOf(view).isVisible());
    QVERIFY(!windowOf(view).parent());
}

void CFunctionsTest::destroysNoBrowser()
{
    DestroyGenParamTreeView(nullptr);
}

void CFunctionsTest::returnsTheChosenCamera()
{
    const HostWindow native(QRect(400, 300, 600, 500));
    bool wasEnabled = true;
    inModalDialog([&](QDialog& selector) {
        wasEnabled = native.isEnabled();
        chooseFirstCamera(selector);
    });
    const ZetoCam::DeviceInfo* const chosen =
        SelectCameraA(&m_hardware.system(), "Choose", native.handle(), false);
    QVERIFY(!wasEnabled);
    QVERIFY(native.isEnabled());
    QCOMPARE(chosen, SimulatorFixture::cameras(*m_hardware.interfaces().front()).front());
}

void CFunctionsTest::returnsNoCamera_data()
{
    QTest::addColumn<bool>("isAtCamera");
    QTest::addColumn<bool>("isAccepted");
    QTest::newRow("closed at a camera") << true << false;
    QTest::newRow("accepted at an interface") << false << true;
}

void CFunctionsTest::returnsNoCamera()
{
    QFETCH(bool, isAtCamera);
    QFETCH(bool, isAccepted);
    inModalDialog([&](QDialog& selector) {
        auto* const cameras = selector.findChild<QAbstractItemView*>(QStringLiteral("cameraTreeView"));
        const QModelIndex owner = cameras->model()->index(0, 0);
        cameras->setCurrentIndex(isAtCamera ? cameras->model()->index(0, 0, owner) : owner);
        if (isAccepted)
            selector.accept();
        else
            selector.close();
    });
    QVERIFY(!SelectCameraA(&m_hardware.system(), "Choose", nullptr, false));
}

void CFunctionsTest::returnsWhenTheNativeWindowGoes_data()
{
    QTest::addColumn<bool>("isAddressAsked");
    QTest::newRow("selector") << false;
    QTest::newRow("dialog of the selector") << true;
}

void CFunctionsTest::returnsWhenTheNativeWindowGoes()
{
    QFETCH(bool, isAddressAsked);
    HostWindow native(QRect(400, 300, 600, 500));
    const QtComplaints complaints;
    inModalDialog([&](QDialog& selector) {
        auto* const cameras = selector.findChild<QAbstractItemView*>(QStringLiteral("cameraTreeView"));
        cameras->setCurrentIndex(cameras->model()->index(0, 0, cameras->model()->index(0, 0)));
        if (!isAddressAsked)
            return native.destroy();
        inModalDialog([&native](QDialog& /*asking*/) { native.destroy(); });
        selector.findChild<QPushButton*>(QStringLiteral("setIpBtn"))->click();
    });
    const ZetoCam::DeviceInfo* const chosen =
        SelectCameraA(&m_hardware.system(), "Choose", native.handle(), false);
    QVERIFY(QtComplaints::waitForAll() > 0);
    QVERIFY(!chosen);
}

void CFunctionsTest::survivesALibraryThatThrows()
{
    ThrowingSystem system;
    QTimer::singleShot(0, qApp, [] {
        if (QWidget* const selector = QApplication::activeModalWidget())
            selector->close();
    });
    QVERIFY(!SelectCameraA(&system, "Choose", nullptr, false));
}

namespace {

/// Has the X server destroy what Qt destroys before it destroys a host's window with all that is still in it.
void settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QGuiApplication::sync();
}

} // namespace

void CFunctionsTest::leavesNothingOfManyBrowsers()
{
    const HostWindow native(QRect(400, 300, 600, 500));
    View(CreateGenParamTreeViewForNodemapA(nullptr, "Features", native.handle())).reset();
    const QVector<int> before = inUse(native);
    for (int i = 0; i < ManyTimes; ++i) {
        View(CreateGenParamTreeViewForNodemapA(nullptr, "Features", native.handle())).reset();
        QCoreApplication::processEvents();
    }
    QTRY_VERIFY(!hasGrown(native, before));
    settle();
}

void CFunctionsTest::leavesNothingOfManySelectors()
{
    const HostWindow native(QRect(400, 300, 600, 500));
    const auto cancel = [this, &native] {
        inModalDialog([](QDialog& selector) { selector.reject(); });
        SelectCameraA(&m_hardware.system(), "Choose", native.handle(), false);
    };
    cancel();
    const QVector<int> before = inUse(native);
    for (int i = 0; i < ManyTimes; ++i)
        cancel();
    QTRY_VERIFY(!hasGrown(native, before));
    settle();
}

void CFunctionsTest::showsConfigurationDialogsDuringTheCall_data()
{
    QTest::addColumn<ShowFunction>("show");
    QTest::addColumn<QString>("name");
    QTest::newRow("window") << ShowFunction(ShowCamConfigDialog) << "ZetoGui::ZetoCamConfig";
    QTest::newRow("colour") << ShowFunction(ShowColorDialog) << "ZetoGui::ZetoCamConfigColorDialog";
    QTest::newRow("frames, deliberately colour")
        << ShowFunction(ShowFrameABDialog) << "ZetoGui::ZetoCamConfigColorDialog";
    QTest::newRow("output") << ShowFunction(ShowOutputDialog) << "ZetoGui::ZetoCamConfigOutputDialog";
    QTest::newRow("pulse") << ShowFunction(ShowPulseDialog) << "ZetoGui::ZetoCamConfigPulseDialog";
    QTest::newRow("strobe") << ShowFunction(ShowStrobeDialog) << "ZetoGui::ZetoCamConfigStrobeDialog";
    QTest::newRow("trigger") << ShowFunction(ShowTriggerDialog) << "ZetoGui::ZetoCamConfigTriggerDialog";
}

void CFunctionsTest::showsConfigurationDialogsDuringTheCall()
{
    QFETCH(ShowFunction, show);
    QFETCH(QString, name);
    QWidget parent;
    parent.setObjectName(QStringLiteral("parent"));
    const auto handle = reinterpret_cast<HWND>(parent.winId());
    const HostWindow native(QRect(400, 300, 600, 500));
    ZetoCam::Device* const device =
        m_hardware.open(SimulatorFixture::cameras(*m_hardware.interfaces().front()).front()->GetID());
    QVERIFY(device);
    const int widgets = QApplication::allWidgets().size();
    const ShownWindows shown;
    show(device, handle);
    show(device, native.handle());
    show(device, nullptr);
    QCOMPARE(shown.names.join(QLatin1Char(' ')),
             name + QLatin1String("@parent ") + name + QLatin1Char(' ') + name);
    QCOMPARE(QApplication::allWidgets().size(), widgets);
    device->Release();
}

ZETO_TEST_MAIN(CFunctionsTest)
#include "tst_cfunctions.moc"
