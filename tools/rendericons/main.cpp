// Renders the drawings of src/resources/sources to the images that the library carries, one for 100 % and one
// ("@2x") for 200 %. Run it after a drawing was changed and commit both:
//
//     cmake -S tools/rendericons -B build/rendericons && cmake --build build/rendericons
//     build/rendericons/rendericons src/resources/sources src/resources/images

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

namespace {

bool render(const QString& drawing, const QString& image, int scale)
{
    QSvgRenderer renderer(drawing);
    if (!renderer.isValid())
        return false;
    QImage picture(renderer.defaultSize() * scale, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer.render(&painter);
    painter.end();
    return picture.save(image);
}

bool renderBoth(const QFileInfo& drawing, const QDir& images)
{
    const QString path = images.filePath(drawing.completeBaseName());
    return render(drawing.filePath(), path + QStringLiteral(".png"), 1) &&
           render(drawing.filePath(), path + QStringLiteral("@2x.png"), 2);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 3) {
        fprintf(stderr, "usage: rendericons DRAWINGS IMAGES\n");
        return 2;
    }
    const QDir images(QString::fromLocal8Bit(argv[2]));
    const QFileInfoList drawings =
        QDir(QString::fromLocal8Bit(argv[1])).entryInfoList({QStringLiteral("*.svg")}, QDir::Files);
    for (const QFileInfo& drawing : drawings) {
        if (!renderBoth(drawing, images)) {
            fprintf(stderr, "rendericons: %s could not be rendered\n", qPrintable(drawing.filePath()));
            return 1;
        }
    }
    return 0;
}
