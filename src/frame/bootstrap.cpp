#include "bootstrap.h"

#include "native.h"

#include <QApplication>

namespace Bootstrap {

namespace {

/// \a argc and \a argv live as long as the process: the application keeps them.
void create(int& argc, char** argv)
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    new QApplication(argc, argv);
}

/// A copy that is never freed, as the application may outlive all static objects.
char* keptForever(const QByteArray& text)
{
    return qstrdup(text.constData());
}

} // namespace

void ensureApplication()
{
    static int argc = 0;
    static char* noArguments[] = {nullptr};
    if (!QCoreApplication::instance())
        create(argc, noArguments);
}

void ensureApplicationWithPlugins()
{
    if (QCoreApplication::instance())
        return;
    const QString directory = Native::environment("ZETO_CAMSDK_ROOT") + QLatin1String("\\bin\\win64_x64");
    // Qt decodes the argument with the system's code page, which has not all letters.
    QCoreApplication::addLibraryPath(directory);
    static int argc = 3;
    static char* arguments[] = {keptForever("qt_app"), keptForever("-platformpluginpath"),
                                keptForever(directory.toUtf8()), nullptr};
    create(argc, arguments);
}

} // namespace Bootstrap
