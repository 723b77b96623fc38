#include "options.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {

const QStringList visibilityNames = {QStringLiteral("basic"), QStringLiteral("expert"),
                                     QStringLiteral("guru")};

[[noreturn]] void refuse(const QString& reason)
{
    fprintf(stderr, "%s\n", qPrintable(reason));
    exit(2);
}

QString tr(const char* text)
{
    return QCoreApplication::translate("Options", text);
}

} // namespace

Options readOptions(const QCoreApplication& application, const QStringList& pages)
{
    const QCommandLineOption description(QStringLiteral("description"),
                                         tr("Camera description file to browse."), tr("file"));
    const QCommandLineOption cameras(QStringLiteral("cameras"),
                                     tr("Cameras to choose from: simulator, aravis or all."), tr("kinds"));
    const QCommandLineOption camera(QStringLiteral("camera"),
                                    tr("Camera to begin with, or none; otherwise the first one."), tr("id"));
    const QCommandLineOption lost(QStringLiteral("lost"), tr("Lose the simulated camera at once."));
    const QCommandLineOption filter(QStringLiteral("filter"), tr("Show only features that match."),
                                    tr("pattern"));
    const QCommandLineOption visibility(QStringLiteral("visibility"), tr("basic, expert or guru."),
                                        tr("level"), visibilityNames.first());
    const QCommandLineOption expandAll(QStringLiteral("expand-all"), tr("Open every category."));
    const QCommandLineOption editors(QStringLiteral("editors"),
                                     tr("Open the editor of every feature shown."));
    const QCommandLineOption noPolling(QStringLiteral("no-polling"),
                                       tr("Do not follow changing values nor cameras that come and go."));
    const QCommandLineOption address(QStringLiteral("address"), tr("Address in the IP dialog."),
                                     tr("address"), QStringLiteral("192.168.10.2"));
    const QCommandLineOption mask(QStringLiteral("mask"), tr("Subnet mask in the IP dialog."), tr("mask"),
                                  QStringLiteral("255.255.255.0"));
    const QCommandLineOption dark(QStringLiteral("dark"), tr("Use a dark palette."));
    const QCommandLineOption render(QStringLiteral("render"), tr("Save a picture of the window and leave."),
                                    tr("folder"));

    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Graphical tools for machine-vision cameras."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("window"),
                                 tr("One of: %1").arg(pages.join(QLatin1String(", "))));
    parser.addOptions({description, cameras, camera, lost, filter, visibility, expandAll, editors, noPolling,
                       address, mask, dark, render});
    parser.process(application);

    Options options;
    options.page = parser.positionalArguments().value(0, pages.first());
    options.description = parser.value(description);
    options.cameras = parser.value(cameras);
    options.camera = parser.value(camera);
    options.lost = parser.isSet(lost);
    options.filter = parser.value(filter);
    options.visibility = visibilityNames.indexOf(parser.value(visibility));
    options.expandAll = parser.isSet(expandAll);
    options.editors = parser.isSet(editors);
    options.poll = !parser.isSet(noPolling);
    options.address = parser.value(address);
    options.mask = parser.value(mask);
    options.dark = parser.isSet(dark);
    options.renderDirectory = parser.value(render);

    if (!pages.contains(options.page))
        refuse(tr("There is no window \"%1\"; there are %2.")
                   .arg(options.page, pages.join(QLatin1String(", "))));
    if (options.visibility < 0)
        refuse(tr("The visibility level is basic, expert or guru."));
    return options;
}
