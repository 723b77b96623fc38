#include "testmain.h"

#include <QApplication>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

namespace {

/// Warnings of the platform plug-in that tell about the machine and not about the code under test.
bool isAboutTheMachine(const QString& line)
{
    static const QRegularExpression known(
        QStringLiteral("This plugin does not support|QStandardPaths: |OpenType support missing"));
    return known.match(line).hasMatch();
}

/// The test log's lines of unexpected warnings. Announced ones never reach the log.
QStringList unexpectedWarnings(const QString& logFile)
{
    QStringList lines;
    QFile file(logFile);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {QStringLiteral("the test log could not be read")};
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine());
        if ((line.startsWith(QLatin1String("QWARN")) || line.startsWith(QLatin1String("QCRITICAL"))) &&
            !isAboutTheMachine(line))
            lines.append(line.trimmed());
    }
    return lines;
}

void setEnvironment(const QByteArray& name, const QByteArray& value)
{
    if (value.isNull())
        qunsetenv(name.constData());
    else
        qputenv(name.constData(), value);
}

} // namespace

int runTestProgram(QObject& testObject, int argc, char** argv)
{
    QLocale::setDefault(QLocale::c());
    QApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));

    const QTemporaryDir logDirectory;
    const QString log = logDirectory.filePath(QStringLiteral("log.txt"));
    QStringList arguments = QCoreApplication::arguments();
    if (!arguments.contains(QStringLiteral("-o")))
        arguments << QStringLiteral("-o") << QStringLiteral("-,txt");
    arguments << QStringLiteral("-o") << log + QStringLiteral(",txt");

    const int failedTests = QTest::qExec(&testObject, arguments);
    const QStringList warnings = unexpectedWarnings(log);
    for (const QString& warning : warnings)
        fprintf(stderr, "FAIL!  : unexpected %s\n", qPrintable(warning));
    return failedTests + warnings.size();
}

ScopedLocale::ScopedLocale(const QLocale& locale)
{
    QLocale::setDefault(locale);
}

ScopedLocale::~ScopedLocale()
{
    QLocale::setDefault(m_before);
}

ScopedEnvironment::ScopedEnvironment(const char* name, const QByteArray& value)
    : m_name(name)
    , m_before(qgetenv(name))
{
    setEnvironment(m_name, value);
}

ScopedEnvironment::~ScopedEnvironment()
{
    setEnvironment(m_name, m_before);
}
