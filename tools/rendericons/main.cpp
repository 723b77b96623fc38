// Renders the drawings of src/resources/sources to what the library carries: images and pictures for 100 %
// and ("@2x") 200 %, icons in all sizes. Run it after a drawing was changed and commit both:
//
//     cmake -S tools/rendericons -B build/rendericons && cmake --build build/rendericons
//     build/rendericons/rendericons src/resources

#include <QBuffer>
#include <QDataStream>
#include <QDir>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <cstdio>
#include <tuple>

namespace {

constexpr int iconSizes[] = {16, 24, 32, 48, 64, 128}; // pixels

QImage rendered(QSvgRenderer& drawing, const QSize& size, const QColor& background)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(background);
    QPainter painter(&picture);
    drawing.render(&painter);
    return picture;
}

bool saveImage(QSvgRenderer& drawing, const QString& path)
{
    const auto save = [&](int scale, const char* mark) {
        return rendered(drawing, drawing.defaultSize() * scale, Qt::transparent)
            .save(path + QLatin1String(mark));
    };
    return save(1, ".png") && save(2, "@2x.png");
}

/// The 256 colours that \a picture has most of.
QVector<QRgb> mainColours(const QImage& picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    QVector<QRgb> colours = counts.keys().toVector();
    std::sort(colours.begin(), colours.end(), [&](QRgb left, QRgb right) {
        return std::tuple(-counts[left], left) < std::tuple(-counts[right], right);
    });
    return colours.mid(0, 256);
}

/// One byte for each pixel, on white: a bitmap knows neither compression nor transparency.
bool savePicture(QSvgRenderer& drawing, const QString& path)
{
    const auto save = [&](int scale, const char* mark) {
        const QImage picture = rendered(drawing, drawing.defaultSize() * scale, Qt::white);
        return picture.convertToFormat(QImage::Format_Indexed8, mainColours(picture), Qt::ThresholdDither)
            .save(path + QLatin1String(mark));
    };
    return save(1, ".bmp") && save(2, "@2x.bmp");
}

QByteArray pngOf(const QImage& picture)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return buffer.data();
}

/// A Windows icon: a header, a directory of 16 bytes for each size, the pictures as PNG files.
bool saveIcon(QSvgRenderer& drawing, const QString& path)
{
    QFile file(path + QStringLiteral(".ico"));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QDataStream out(&file);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16(0) << quint16(1) << quint16(std::size(iconSizes));
    QByteArray pictures;
    for (const int size : iconSizes) {
        const QByteArray png = pngOf(rendered(drawing, {size, size}, Qt::transparent));
        const auto offset = quint32(6 + 16 * std::size(iconSizes)) + quint32(pictures.size());
        out << quint8(size) << quint8(size) << quint16(0) << quint16(1) << quint16(32) << quint32(png.size())
            << offset;
        pictures += png;
    }
    return file.write(pictures) == pictures.size();
}

/// Renders the drawings of \a sources into the folder \a images.
bool renderAll(const QDir& sources, const QDir& images, bool (*save)(QSvgRenderer&, const QString&))
{
    for (const QFileInfo& source : sources.entryInfoList({QStringLiteral("*.svg")}, QDir::Files)) {
        QSvgRenderer drawing(source.filePath());
        if (!drawing.isValid() || !save(drawing, images.filePath(source.completeBaseName()))) {
            fprintf(stderr, "rendericons: %s could not be rendered\n", qPrintable(source.filePath()));
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        fprintf(stderr, "usage: rendericons RESOURCES\n");
        return 2;
    }
    const QDir resources(QString::fromLocal8Bit(argv[1]));
    const auto folder = [&](const char* name) { return QDir(resources.filePath(QLatin1String(name))); };
    const bool done = renderAll(folder("sources/images"), folder("images"), saveImage) &&
                      renderAll(folder("sources/pictures"), folder("images"), savePicture) &&
                      renderAll(folder("sources/icons"), folder("icons"), saveIcon);
    return done ? 0 : 1;
}
