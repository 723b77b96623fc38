#pragma once

#include <QByteArray>
#include <QLocale>
#include <QObject>

/// Runs the tests of \a testObject in a QApplication with the C locale and the Fusion style, so that no
/// result depends on the machine. A Qt warning that a test did not announce with QTest::ignoreMessage() fails
/// the program. \return the exit code for main(): failed tests and unexpected warnings together.
int runTestProgram(QObject& testObject, int argc, char** argv);

/// The main function of a test program.
#define ZETO_TEST_MAIN(TestClass)                                                                            \
    int main(int argc, char** argv)                                                                          \
    {                                                                                                        \
        TestClass testObject;                                                                                \
        return runTestProgram(testObject, argc, argv);                                                       \
    }

/// Makes \a locale the default locale until the end of the scope.
class ScopedLocale
{
public:
    explicit ScopedLocale(const QLocale& locale);
    ~ScopedLocale();
    Q_DISABLE_COPY(ScopedLocale)

private:
    QLocale m_before;
};

/// Sets the environment variable \a name until the end of the scope; a null \a value unsets it.
class ScopedEnvironment
{
public:
    ScopedEnvironment(const char* name, const QByteArray& value);
    ~ScopedEnvironment();
    Q_DISABLE_COPY(ScopedEnvironment)

private:
    QByteArray m_name;
    QByteArray m_before;
};
