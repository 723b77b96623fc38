#include "browsepage.h"
#include "camconfigpage.h"
#include "configpage.h"
#include "gallerypage.h"
#include "rendering.h"
#include "selectpage.h"
#include "setippage.h"

#include <ZetoCameraGuiApi/zetocamconfigcolordialog.h>
#include <ZetoCameraGuiApi/zetocamconfigframeabdialog.h>
#include <ZetoCameraGuiApi/zetocamconfigoutputdialog.h>
#include <ZetoCameraGuiApi/zetocamconfigpulsedialog.h>
#include <ZetoCameraGuiApi/zetocamconfigstrobedialog.h>
#include <ZetoCameraGuiApi/zetocamconfigtriggerdialog.h>

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <stdexcept>

namespace {

constexpr PageKind pageKinds[] = {
    {"config", makeConfigPage},
    {"about", makeAboutPage},
    {"browse", makeBrowsePage},
    {"color", makeCamConfigPage<ZetoGui::ZetoCamConfigColorDialog>},
    {"frameab", makeCamConfigPage<ZetoGui::ZetoCamConfigFrameABDialog>},
    {"output", makeCamConfigPage<ZetoGui::ZetoCamConfigOutputDialog>},
    {"pulse", makeCamConfigPage<ZetoGui::ZetoCamConfigPulseDialog>},
    {"strobe", makeCamConfigPage<ZetoGui::ZetoCamConfigStrobeDialog>},
    {"trigger", makeCamConfigPage<ZetoGui::ZetoCamConfigTriggerDialog>},
    {"widgets", makeGalleryPage},
    {"select", makeSelectPage},
    {"setip", makeSetIpPage},
};

QStringList pageNames()
{
    QStringList names;
    for (const PageKind& kind : pageKinds)
        names.append(QLatin1String(kind.name));
    return names;
}

std::unique_ptr<Page> makePage(const Options& options)
{
    const auto* kind =
        std::find_if(std::begin(pageKinds), std::end(pageKinds), [&](const PageKind& candidate) {
            return options.page == QLatin1String(candidate.name);
        });
    return kind->make(options);
}

int runPage(const Options& options)
{
    const std::unique_ptr<Page> page = makePage(options);
    if (!options.renderDirectory.isEmpty())
        return renderWindow(page->window(), options.renderDirectory, options.page) ? EXIT_SUCCESS
                                                                                   : EXIT_FAILURE;
    page->window().show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    QTranslator standardButtons;
    if (standardButtons.load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
                             QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&standardButtons);

    const Options options = readOptions(application, pageNames());
    if (!options.cameras.isEmpty())
        qputenv("ZETO_CAMERAS", options.cameras.toUtf8()); // the camera library's own setting
    if (options.dark) {
        QApplication::setStyle(QStringLiteral("Fusion"));
        QApplication::setPalette(darkPalette());
    }
    try {
        return runPage(options);
    } catch (const std::runtime_error& problem) {
        fprintf(stderr, "%s\n", problem.what());
        return EXIT_FAILURE;
    }
}
