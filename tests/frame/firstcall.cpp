// A program without Qt makes its first calls: one application comes into being, which looks for plug-ins in
// the directory that the environment names. Usage: firstcall show|browse used|unused

#include <ZetoCameraGuiApi/ZetoCameraGuiApi.h>

#include <QApplication>
#include <QDir>
#include <QProcessEnvironment>

#include <cstdio>
#include <string>

namespace {

int failures = 0;

void check(bool isRight, const char* what)
{
    if (isRight)
        return;
    ++failures;
    std::fprintf(stderr, "FAIL: %s\n", what);
}

void call(const std::string& function)
{
    if (function == "show")
        ShowTriggerDialog(nullptr, nullptr);
    else
        DestroyGenParamTreeView(CreateGenParamTreeViewForNodemapA(nullptr, "Features", nullptr));
}

/// The directory that the environment names, made if it is not there. Outside Windows the backslashes are
/// part of a name.
QString madeDirectory()
{
    const QString root = QProcessEnvironment::systemEnvironment().value(QStringLiteral("ZETO_CAMSDK_ROOT"));
    const QString directory = root + QStringLiteral("\\bin\\win64_x64");
    QDir().mkpath(directory);
    return QDir(directory).canonicalPath();
}

} // namespace

int main(int argc, char** argv)
{
    const std::string function = argc > 1 ? argv[1] : "";
    const bool isUsed = argc > 2 && std::string(argv[2]) == "used";
    const QString directory = isUsed ? madeDirectory() : QString();
    check(!QCoreApplication::instance(), "there is no application at first");
    call(function);
    const QCoreApplication* const application = QCoreApplication::instance();
    check(qobject_cast<const QApplication*>(application), "the first call makes an application");
    check(QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling), "it scales for high resolutions");
    call("browse");
    call("show");
    check(QCoreApplication::instance() == application, "later calls use the same application");

    const QStringList paths = QCoreApplication::libraryPaths();
    check(directory.isEmpty() || paths.contains(directory),
          "plug-ins are looked for where the environment says");
    check(!directory.isEmpty() || paths.filter(QStringLiteral("win64_x64")).isEmpty(),
          "or nowhere else than usual");
    return failures;
}
