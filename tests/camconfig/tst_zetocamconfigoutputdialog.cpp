#include "dialogfixture.h"
#include "qtzetospinbox.h"
#include "qtzetospinboxval64.h"

#include <ZetoCameraGuiApi/zetocamconfigoutputdialog.h>

#include "testmain.h"

#include <QComboBox>
#include <QToolButton>
#include <QtTest>

using ZetoGui::ZetoCamConfigOutputDialog;

/// What is particular to the data output dialog.
class TestZetoCamConfigOutputDialog : public QObject
{
    Q_OBJECT

private slots:
    void has_taps_only_of_their_own_feature();
    void offers_what_the_camera_allows();
    void exchanges_width_and_height_of_the_thresholds();
};

namespace {

/// The sizes that a widget is given.
class Sizes : public QObject
{
public:
    explicit Sizes(QWidget* widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Resize)
            m_sizes.append(static_cast<QResizeEvent*>(event)->size());
        return false;
    }

    QVector<QSize> take() { return std::exchange(m_sizes, {}); }

private:
    QVector<QSize> m_sizes;
};

} // namespace

void TestZetoCamConfigOutputDialog::has_taps_only_of_their_own_feature()
{
    DialogFixture fixture;
    fixture.features().setAccessMode("SensorADCBitDepth11", GenApi::NI);
    ZetoCamConfigOutputDialog dialog(&fixture.device());
    QVERIFY(!childOf<QComboBox>(dialog, "cmBoxTaps").isEnabled());
    QVERIFY(childOf<QComboBox>(dialog, "cmBoxDepth").isEnabled());
    QVERIFY(!dialog.windowIcon().availableSizes().isEmpty());
}

/// Pixels of 12 bits only from a sensor that has them, thresholds only for dynamic corrections.
void TestZetoCamConfigOutputDialog::offers_what_the_camera_allows()
{
    DialogFixture fixture;
    ZetoCamConfigOutputDialog dialog(&fixture.device());
    const auto& format = childOf<QComboBox>(dialog, "cmBoxPixelFormat");
    const auto isOffered = [&format](const char* entry) {
        const QModelIndex index = format.model()->index(format.findText(QLatin1String(entry)), 0);
        return index.flags().testFlag(Qt::ItemIsEnabled);
    };
    QVERIFY(isOffered("BayerRG10"));
    childOf<QComboBox>(dialog, "cmBoxDepth").setCurrentText(QStringLiteral("Bits10"));
    QVERIFY(!isOffered("BayerRG12"));
    childOf<QComboBox>(dialog, "cmBoxDepth").setCurrentText(QStringLiteral("Bits12"));
    QVERIFY(isOffered("BayerRG12"));

    const auto& threshold = childOf<QtZetoSpinBox>(dialog, "spBoxHpcDynThres");
    QVERIFY(!threshold.isEnabled());
    childOf<QComboBox>(dialog, "cmBoxHpc").setCurrentText(QStringLiteral("Dynamic"));
    QVERIFY(threshold.isEnabled());
    QVERIFY(!childOf<QtZetoSpinBox>(dialog, "spBoxDpcDynThres").isEnabled());
}

/// Each time it is shown; the layout then makes it usable again.
void TestZetoCamConfigOutputDialog::exchanges_width_and_height_of_the_thresholds()
{
    DialogFixture fixture;
    ZetoCamConfigOutputDialog dialog(&fixture.device());
    const auto& threshold = childOf<QtZetoSpinBox>(dialog, "spBoxDpcDynThres");
    Sizes sizes(threshold.spinBox());
    for (int i = 0; i < 2; ++i) {
        dialog.show();
        const QSize hint = threshold.sizeHint();
        const QSize exchanged(hint.height(), hint.width() - threshold.button()->width());
        QVERIFY(sizes.take().contains(exchanged));
        QCoreApplication::processEvents();
        QVERIFY(threshold.rect().contains(threshold.spinBox()->geometry()));
        QVERIFY(threshold.spinBox()->width() > threshold.spinBox()->height());
        dialog.hide();
        sizes.take();
    }
}

ZETO_TEST_MAIN(TestZetoCamConfigOutputDialog)

#include "tst_zetocamconfigoutputdialog.moc"
