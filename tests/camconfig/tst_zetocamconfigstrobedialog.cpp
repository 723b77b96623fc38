#include "dialogfixture.h"
#include "formlayout.h"

#include <ZetoCameraGuiApi/zetocamconfigstrobedialog.h>

#include "testmain.h"

#include <QComboBox>
#include <QLabel>
#include <QtTest>

using ZetoGui::ZetoCamConfigStrobeDialog;

/// The timing picture of the strobe dialog.
class TestZetoCamConfigStrobeDialog : public QObject
{
    Q_OBJECT

private slots:
    void shows_the_timing_of_the_references_data();
    void shows_the_timing_of_the_references();
    void leaves_the_picture_while_a_reference_cannot_be_set();
    void labels_times_in_microseconds();
    void has_fine_pictures_data() { shows_the_timing_of_the_references_data(); }
    void has_fine_pictures();
};

namespace {

QComboBox* reference(QDialog& dialog, int strobe)
{
    return dialog.findChild<QComboBox*>(QStringLiteral("cmBoxStrobe%1Ref").arg(strobe));
}

/// Name of the picture that is shown.
QString picture(QDialog& dialog)
{
    const QImage shown =
        dialog.findChild<QLabel*>(QStringLiteral("lblStrobeImage"))->pixmap(Qt::ReturnByValue).toImage();
    for (const char* const name :
         {"strobeBothExp", "strobe1Exp_strobe2Read", "strobe1Read_strobe2Exp", "strobeBothRead"}) {
        if (shown == QPixmap(QStringLiteral(":/images/%1.bmp").arg(QLatin1String(name))).toImage())
            return QString::fromLatin1(name);
    }
    return {};
}

} // namespace

void TestZetoCamConfigStrobeDialog::shows_the_timing_of_the_references_data()
{
    QTest::addColumn<QString>("reference1");
    QTest::addColumn<QString>("reference2");
    const QString exposure = QStringLiteral("ExposureStart");
    const QString readout = QStringLiteral("ReadoutStart");
    QTest::newRow("strobeBothExp") << exposure << exposure;
    QTest::newRow("strobe1Exp_strobe2Read") << exposure << readout;
    QTest::newRow("strobe1Read_strobe2Exp") << readout << exposure;
    QTest::newRow("strobeBothRead") << readout << readout;
}

/// Chosen by hand, told by the camera, also to a dialog that is disabled meanwhile, and found in a camera
/// that is set so before.
void TestZetoCamConfigStrobeDialog::shows_the_timing_of_the_references()
{
    QFETCH(QString, reference1);
    QFETCH(QString, reference2);
    const QString expected = QString::fromLatin1(QTest::currentDataTag());
    DialogFixture fixture;
    ZetoCamConfigStrobeDialog dialog(&fixture.device());
    ZetoCamConfigStrobeDialog other(&fixture.device());
    reference(dialog, 1)->setCurrentText(reference1);
    reference(dialog, 2)->setCurrentText(reference2);
    QCOMPARE(picture(dialog), expected);
    QCOMPARE(picture(other), expected);
    other.setEnabled(false);
    reference(dialog, 1)->setCurrentIndex(1 - reference(dialog, 1)->currentIndex());
    QVERIFY(picture(other) != expected);
    reference(dialog, 1)->setCurrentText(reference1);
    QCOMPARE(picture(other), expected);
    QCOMPARE(picture(*std::make_unique<ZetoCamConfigStrobeDialog>(&fixture.device())), expected);
}

/// And shows what was missed once both can be set again.
void TestZetoCamConfigStrobeDialog::leaves_the_picture_while_a_reference_cannot_be_set()
{
    DialogFixture fixture;
    ZetoCamConfigStrobeDialog dialog(&fixture.device());
    for (const GenApi::EAccessMode mode : {GenApi::RO, GenApi::NA, GenApi::NI}) {
        fixture.features().setAccessMode("Strobe2Reference", mode);
        QVERIFY(!reference(dialog, 2)->isEnabled());
        reference(dialog, 1)->setCurrentText(QStringLiteral("ReadoutStart"));
        QCOMPARE(picture(dialog), QStringLiteral("strobeBothExp"));
        fixture.features().setAccessMode("Strobe2Reference", GenApi::RW);
        QCOMPARE(picture(dialog), QStringLiteral("strobe1Read_strobe2Exp"));
        reference(dialog, 1)->setCurrentText(QStringLiteral("ExposureStart"));
    }
    DialogFixture plain("sim.u3v0.plain");
    dialog.SetDevice(&plain.device());
    QCOMPARE(picture(dialog), QStringLiteral("strobeBothExp"));
    dialog.SetDevice(nullptr);
}

/// In one column with the labels above them.
void TestZetoCamConfigStrobeDialog::labels_times_in_microseconds()
{
    ZetoCamConfigStrobeDialog dialog(nullptr);
    dialog.show();
    QStringList texts;
    for (const QLabel* const label : dialog.findChildren<QLabel*>(QStringLiteral("labelLeft"))) {
        texts.append(label->text());
        const QLabel* const above = dialog.findChild<QLabel*>(QStringLiteral("lblStrobe1Mode"));
        QCOMPARE(label->width(), above->width());
    }
    texts.sort();
    const QString delay = QStringLiteral("Delay [\u03bcs]:");
    const QString width = QStringLiteral("Width [\u03bcs]:");
    QCOMPARE(texts, (QStringList{delay, delay, width, width}));
}

/// As large as the plain ones on a screen of twice the resolution.
void TestZetoCamConfigStrobeDialog::has_fine_pictures()
{
    QImage screen(1, 1, QImage::Format_RGB32);
    const QString path = QStringLiteral(":/images/%1.bmp").arg(QLatin1String(QTest::currentDataTag()));
    const QPixmap plain = ZetoGui::pictureFor(screen, path);
    screen.setDevicePixelRatio(2);
    const QPixmap fine = ZetoGui::pictureFor(screen, path);
    QVERIFY(!plain.isNull());
    QCOMPARE(fine.devicePixelRatio(), 2.0);
    QCOMPARE(fine.size(), plain.size() * 2);
}

ZETO_TEST_MAIN(TestZetoCamConfigStrobeDialog)

#include "tst_zetocamconfigstrobedialog.moc"
