#include "featuredialogs.h"
#include "messageboxes.h"

#include "testmain.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QtTest>

/// What all feature dialogs have in common, for each of them.
class TestFeatureDialogs : public QObject
{
    Q_OBJECT

private slots:
    void shows_any_camera_or_none_data() { addDialogs(); }
    void shows_any_camera_or_none();
    void writes_a_typed_number_once_data() { addDialogs(); }
    void writes_a_typed_number_once();
    void writes_nothing_while_the_camera_changes_data() { addDialogs(); }
    void writes_nothing_while_the_camera_changes();
    void changes_cameras_data() { addDialogs(); }
    void changes_cameras();
    void shows_a_camera_as_a_new_dialog_does_data() { addDialogs(); }
    void shows_a_camera_as_a_new_dialog_does();
    void reports_each_refused_write_once_data() { addDialogs(); }
    void reports_each_refused_write_once();
    void shows_the_help_of_the_camera_data() { addDialogs(); }
    void shows_the_help_of_the_camera();
    void survives_any_fault_data() { addDialogs(); }
    void survives_any_fault();
    void survives_the_loss_of_the_camera_data() { addDialogs(); }
    void survives_the_loss_of_the_camera();
    void says_that_it_closes_data() { addDialogs(); }
    void says_that_it_closes();

private:
    static void addDialogs();
    static const DialogKind& kind();
};

namespace {

/// Name, state and content of each control.
QStringList shownIn(const QDialog& dialog)
{
    QStringList shown;
    const auto add = [&shown](const QWidget* control, const QString& content) {
        const QString state = control->isEnabled() ? QStringLiteral("on") : QStringLiteral("off");
        const QString name = control->objectName() + QLatin1Char('/') + control->parent()->objectName();
        shown.append(name + QLatin1Char(' ') + state + QLatin1Char(' ') + content);
    };
    for (const auto* const each : dialog.findChildren<QComboBox*>())
        add(each, each->currentText());
    for (const auto* const each : dialog.findChildren<QLineEdit*>())
        add(each, each->text());
    for (const auto* const each : dialog.findChildren<QLabel*>(QRegularExpression(QStringLiteral("^lbl"))))
        add(each, each->text());
    for (const auto* const each : dialog.findChildren<QAbstractButton*>())
        add(each, each->text() + (each->isChecked() ? QStringLiteral(" checked") : QString()));
    return shown;
}

} // namespace

void TestFeatureDialogs::addDialogs()
{
    QTest::addColumn<int>("index");
    for (std::size_t i = 0; i < featureDialogs().size(); ++i)
        QTest::newRow(featureDialogs()[i].name) << int(i);
}

const DialogKind& TestFeatureDialogs::kind()
{
    QFETCH(int, index);
    return featureDialogs()[std::size_t(index)];
}

void TestFeatureDialogs::shows_any_camera_or_none()
{
    for (const char* const camera : {"sim.gev0.dual", "sim.u3v0.plain"}) {
        DialogFixture fixture(camera);
        const auto dialog = kind().make(&fixture.device());
        QVERIFY(dialog->isEnabled());
        QCOMPARE(dialog->layout()->sizeConstraint(), QLayout::SetFixedSize);
        QCOMPARE(fixture.takeWrites(), QStringList());
        dialog->show();
        QVERIFY(dialog->width() <= dialog->screen()->availableSize().width());
        const auto buttons = dialog->findChildren<QPushButton*>();
        for (const QPushButton* const button : buttons)
            QVERIFY2(!button->autoDefault(), "Enter in a field would press it");
    }
    QVERIFY(!kind().make(nullptr)->isEnabled());
}

void TestFeatureDialogs::writes_a_typed_number_once()
{
    DialogFixture fixture;
    const auto dialog = kind().make(&fixture.device());
    const auto fields = dialog->findChildren<QAbstractSpinBox*>();
    for (const QAbstractSpinBox* const field : fields)
        QVERIFY2(!field->keyboardTracking(), qPrintable(field->parent()->objectName()));
}

void TestFeatureDialogs::writes_nothing_while_the_camera_changes()
{
    DialogFixture fixture;
    const auto dialog = kind().make(&fixture.device());
    dialog->show();
    fixture.takeWrites();
    fixture.moveEverything();
    fixture.moveEverything(); // from where the first round ended
    QCOMPARE(fixture.takeWrites(), QStringList());
}

/// No camera keeps anything of a dialog that has left it; the sanitizers would tell.
void TestFeatureDialogs::changes_cameras()
{
    auto full = std::make_unique<DialogFixture>();
    auto plain = std::make_unique<DialogFixture>("sim.u3v0.plain");
    auto dialog = kind().make(&full->device());
    ZetoCam::Device* const first = &full->device();
    ZetoCam::Device* const second = &plain->device();
    for (ZetoCam::Device* const device :
         {first, first, second, static_cast<ZetoCam::Device*>(nullptr), second}) {
        kind().setDevice(*dialog, device);
        QCOMPARE(dialog->isEnabled(), device != nullptr);
    }
    full->moveEverything();
    full.reset();
    plain->moveEverything();
    useEveryControl(*dialog);
    dialog.reset();
    plain->moveEverything();
}

/// Whatever it has shown of another one before.
void TestFeatureDialogs::shows_a_camera_as_a_new_dialog_does()
{
    DialogFixture used; // not shown again: its pulse generator stops by itself
    DialogFixture plain("sim.u3v0.plain");
    DialogFixture other;
    const auto dialog = kind().make(&used.device());
    useEveryControl(*dialog);
    dialog->show();
    for (ZetoCam::Device* const device : {&plain.device(), &other.device()}) {
        kind().setDevice(*dialog, device);
        const auto fresh = kind().make(device);
        fresh->show();
        QCOMPARE(shownIn(*dialog), shownIn(*fresh));
    }
    kind().setDevice(*dialog, nullptr);
}

void TestFeatureDialogs::reports_each_refused_write_once()
{
    DialogFixture fixture;
    MessageBoxes boxes;
    const auto dialog = kind().make(&fixture.device());
    fixture.refuseNextWrite(ZetoCam::ErrorFlashErase);
    useEveryControl(*dialog);
    QVERIFY(!fixture.takeWrites().isEmpty());
    QCOMPARE(boxes.take().filter(QStringLiteral("Flash erase error")).size(), 1);
}

void TestFeatureDialogs::shows_the_help_of_the_camera()
{
    DialogFixture fixture;
    const auto dialog = kind().make(&fixture.device());
    const auto toolTips = [&] {
        QStringList texts;
        const auto widgets = dialog->findChildren<QWidget*>();
        for (const QWidget* const widget : widgets)
            texts.append(widget->toolTip());
        texts.removeAll(QString());
        return texts;
    };
    QVERIFY(!toolTips().filter(QStringLiteral("<qt>")).isEmpty());
    kind().setDevice(*dialog, nullptr);
    QVERIFY(toolTips().filter(QStringLiteral("<qt>")).isEmpty());
}

void TestFeatureDialogs::survives_any_fault()
{
    DialogFixture fixture;
    MessageBoxes boxes;
    const auto dialog = kind().make(nullptr);
    const auto use = [&] {
        kind().setDevice(*dialog, &fixture.device());
        useEveryControl(*dialog);
        kind().setDevice(*dialog, nullptr);
    };
    fixture.faults().stop();
    use();
    const int calls = fixture.faults().calls();
    const int codes[] = {-40001, -40006, -40051, -40202, -40204, -40206};
    const int stride = 1 + calls / 300; // of the calls of a large dialog, samples
    for (int call = 0; call < calls; call += stride) {
        for (const int code : {0, codes[call % std::size(codes)]}) {
            fixture.faults().failAt(call, code);
            fixture.takeWrites();
            boxes.take();
            use();
            QVERIFY(boxes.take().size() <= fixture.takeWrites().size());
        }
    }
    fixture.faults().stop();
    kind().setDevice(*dialog, &fixture.device());
    useEveryControl(*dialog);
    QVERIFY(!fixture.takeWrites().isEmpty());
    kind().setDevice(*dialog, nullptr);
}

void TestFeatureDialogs::survives_the_loss_of_the_camera()
{
    DialogFixture fixture;
    MessageBoxes boxes;
    auto dialog = kind().make(&fixture.device());
    fixture.plug(false);
    useEveryControl(*dialog);
    QVERIFY(boxes.take().size() <= fixture.takeWrites().size());
    fixture.plug(true);
    fixture.moveEverything();
    useEveryControl(*dialog);
    fixture.plug(false);
    dialog.reset();
}

void TestFeatureDialogs::says_that_it_closes()
{
    const auto dialog = kind().make(nullptr);
    const QSignalSpy closing(dialog.get(), SIGNAL(closing()));
    dialog->show();
    dialog->close();
    QCOMPARE(closing.size(), 1);
    dialog->show();
    dialog->setEnabled(true); // a camera is there
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    QCOMPARE(closing.size(), 2);
    QVERIFY(!dialog->isVisible());
}

ZETO_TEST_MAIN(TestFeatureDialogs)

#include "tst_featuredialogs.moc"
