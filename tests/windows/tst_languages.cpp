#include "allwindows.h"

#include "applicationlanguage.h"
#include "devicepointer.h"
#include "simulatorfixture.h"
#include "testmain.h"

#include <QAbstractButton>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QMultiHash>
#include <QPushButton>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QXmlStreamReader>

namespace {

/// The texts of a language, whatever class they belong to, by the English one.
QMultiHash<QString, QString> translationsInto(const QString& language)
{
    QFile file(QStringLiteral(ZETO_TRANSLATIONS_DIR "/zeto_%1.ts").arg(language));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QMultiHash<QString, QString> texts;
    QXmlStreamReader xml(&file);
    for (QString source; !xml.atEnd(); xml.readNext()) {
        if (xml.isStartElement() && xml.name() == QLatin1String("source"))
            source = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        else if (xml.isStartElement() && xml.name() == QLatin1String("translation"))
            texts.insert(source, xml.readElementText(QXmlStreamReader::IncludeChildElements));
    }
    return texts;
}

constexpr const char* languages[] = {"de", "ja", "zh_CN"};

/// The texts that a window shows in none but other languages than \a language, English included.
QSet<QString> textsOfOtherLanguages(const QString& language)
{
    const QMultiHash<QString, QString> own = translationsInto(language);
    QSet<QString> texts(own.keyBegin(), own.keyEnd());
    for (const char* other : languages) {
        for (const QString& text : translationsInto(QLatin1String(other)))
            texts.insert(text);
    }
    return texts.subtract(QSet<QString>(own.cbegin(), own.cend()));
}

QStringList textsOf(const QWidget& widget)
{
    if (const auto* const label = qobject_cast<const QLabel*>(&widget))
        return {label->text()};
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget))
        return {button->text(), button->toolTip()};
    if (const auto* const group = qobject_cast<const QGroupBox*>(&widget))
        return {group->title()};
    if (const auto* const tabs = qobject_cast<const QTabBar*>(&widget)) {
        QStringList texts;
        for (int i = 0; i < tabs->count(); ++i)
            texts.append(tabs->tabText(i));
        return texts;
    }
    return {};
}

bool isText(const QWidget& part)
{
    if (const auto* const label = qobject_cast<const QLabel*>(&part))
        return !label->text().isEmpty();
    return qobject_cast<const QAbstractButton*>(&part) || qobject_cast<const QGroupBox*>(&part);
}

/// What a part needs for its text. A style makes buttons wider than that.
QSize leastSize(const QWidget& part)
{
    if (const auto* const button = qobject_cast<const QPushButton*>(&part)) {
        constexpr int frames = 6;
        return button->fontMetrics().size(Qt::TextShowMnemonic, button->text()) + QSize(frames, 0);
    }
    return part.minimumSizeHint();
}

/// Whether everything of a text is seen. What is elided or scrolled asks for no room of its own.
bool hasRoom(const QWidget& part)
{
    const QSize least = leastSize(part);
    return !isText(part) || (part.width() >= least.width() && part.height() >= least.height());
}

QString nameOf(const QWidget& part)
{
    return QStringLiteral("%1 \"%2\" (%3x%4, wants %5x%6)")
        .arg(part.objectName(), textsOf(part).join(QLatin1Char('|')))
        .arg(part.width())
        .arg(part.height())
        .arg(leastSize(part).width())
        .arg(leastSize(part).height());
}

} // namespace

/// Every window in every language.
class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void speaksTheLanguageWithRoomForIt_data();
    void speaksTheLanguageWithRoomForIt();
    void followsTheLocaleFromWindowToWindow();

private:
    SimulatorFixture m_simulator;
    const DevicePointer m_device{m_simulator.open("sim.gev0.dual")};
};

void TestLanguages::speaksTheLanguageWithRoomForIt_data()
{
    QTest::addColumn<WindowKind>("window");
    QTest::addColumn<QString>("language");
    for (const WindowKind& window : allWindows()) {
        for (const char* language : languages)
            QTest::addRow("%s %s", window.name, language) << window << QString::fromLatin1(language);
    }
}

void TestLanguages::speaksTheLanguageWithRoomForIt()
{
    QFETCH(const WindowKind, window);
    QFETCH(const QString, language);
    const ScopedLocale locale{QLocale(language)};
    const QSet<QString> otherTexts = textsOfOtherLanguages(language);
    QVERIFY(!otherTexts.isEmpty());

    if (window.isOpenedByAnother)
        ZetoGui::useApplicationLanguage(); // as the window that opens it
    const std::unique_ptr<QWidget> shown = window.make(m_simulator.system(), *m_device);
    shown->show();
    QVERIFY(QTest::qWaitForWindowExposed(shown.get()));
    QCoreApplication::processEvents(); // layouts that the texts have changed

    QStringList faults;
    if (otherTexts.contains(shown->windowTitle()))
        faults.append(QStringLiteral("another language: ") + shown->windowTitle());
    const QList<QWidget*> parts = partsOf(*shown);
    for (const QWidget* const part : parts) {
        for (const QString& text : textsOf(*part)) {
            if (otherTexts.contains(text))
                faults.append(QStringLiteral("another language: ") + nameOf(*part));
        }
        if (!hasRoom(*part))
            faults.append(QStringLiteral("too small: ") + nameOf(*part));
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestLanguages::followsTheLocaleFromWindowToWindow()
{
    const auto title = [this](const QLocale& locale) {
        const ScopedLocale scope(locale);
        return allWindows().front().make(m_simulator.system(), *m_device)->windowTitle();
    };
    const QString english = title(QLocale::c());
    QVERIFY(title(QLocale(QLocale::German, QLocale::Austria)) != english);
    QCOMPARE(title(QLocale::French), english);
    QVERIFY(title(QLocale::Japanese) != english);
    QCOMPARE(title(QLocale::c()), english);
}

ZETO_TEST_MAIN(TestLanguages)
#include "tst_languages.moc"
