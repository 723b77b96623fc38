#include "fuzztarget.h"

#include <QApplication>
#include <QLocale>

#include <cstdlib>

int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale::c());
    static const QApplication application(*argc, *argv);
    return 0;
}

void require(bool condition, const char* what)
{
    if (condition)
        return;
    qCritical("violated: %s", what);
    std::abort();
}
