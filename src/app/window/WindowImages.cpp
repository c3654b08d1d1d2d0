#include "app/window/WindowImages.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QUrl>

#include <algorithm>
#include <array>

namespace vidora {

namespace boundedImage {

namespace {

bool isOfTheWeb(const QByteArray& format)
{
    static const QList<QByteArray> formats{"jpeg", "jpg", "png", "gif", "webp", "bmp"};
    return formats.contains(format);
}

/// An SVG document (SVG 1.1) without what reads files, or multiplies what there is to draw.
bool isPlainDrawing(const QByteArray& data)
{
    constexpr std::array hostile{"<use", "<image", "<!ENTITY", ":use", ":image", "<!DOCTYPE"};
    return std::none_of(hostile.begin(), hostile.end(), [&](const char* mark) { return data.contains(mark); });
}

bool isBounded(QSize size)
{
    return size.width() > 0 && size.height() > 0 && size.width() <= maximumSide && size.height() <= maximumSide &&
           static_cast<qint64>(size.width()) * size.height() <= maximumPixels;
}

std::optional<QImage> read(QImageReader& reader, QSize bounds, Enlarging enlarging)
{
    const QSize size = reader.size();
    if (!isBounded(size))
        return std::nullopt;
    const bool liesOnItsSide = reader.transformation() & QImageIOHandler::TransformationRotate90;
    const QSize fitted = size.scaled(liesOnItsSide ? bounds.transposed() : bounds, Qt::KeepAspectRatio);
    if (enlarging == Enlarging::Allowed || fitted.width() < size.width() || fitted.height() < size.height())
        reader.setScaledSize(fitted.expandedTo(QSize(1, 1)));
    reader.setAutoTransform(true);
    QImage image = reader.read();
    return image.isNull() ? std::nullopt : std::optional(std::move(image));
}

} // namespace

std::optional<QImage> fromData(const QByteArray& data, QSize bounds, Enlarging enlarging)
{
    if (data.size() > maximumBytes)
        return std::nullopt;
    QBuffer buffer;
    buffer.setData(data);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    return isOfTheWeb(reader.format()) ? read(reader, bounds, enlarging) : std::nullopt;
}

std::optional<QImage> fromFile(const QString& path, QSize bounds)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray data = file.read(maximumBytes + 1);
    if (data.size() > maximumBytes)
        return std::nullopt;
    QBuffer buffer;
    buffer.setData(data);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    if (reader.format() == "svg" ? isPlainDrawing(data) : isOfTheWeb(reader.format()))
        return read(reader, bounds, Enlarging::Allowed);
    return std::nullopt;
}

} // namespace boundedImage

namespace {

QSize wanted(const QSize& requested, QSize usual)
{
    return requested.isValid() && !requested.isEmpty() ? requested.boundedTo(QSize(1024, 1024)) : usual;
}

QImage finished(std::optional<QImage> image, QSize* size)
{
    QImage result = image.value_or(QImage());
    if (size)
        *size = result.size();
    return result;
}

} // namespace

SymbolImages::SymbolImages()
    : QQuickImageProvider(QQuickImageProvider::Image)
{
}

QImage SymbolImages::requestImage(const QString& id, QSize* size, const QSize& requestedSize)
{
    const qsizetype slash = id.indexOf(QLatin1Char('/'));
    const QColor colour(QLatin1Char('#') + id.mid(slash + 1));
    auto image = boundedImage::fromFile(QStringLiteral(":/qt/qml/Vidora/symbols/%1.svg").arg(id.left(slash)),
                                        wanted(requestedSize, QSize(24, 24)));
    if (image) {
        QImage drawn = image->convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&drawn);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(drawn.rect(), colour);
        painter.end();
        image = drawn;
    }
    return finished(std::move(image), size);
}

IconImages::IconImages()
    : QQuickImageProvider(QQuickImageProvider::Image, QQuickImageProvider::ForceAsynchronousImageLoading)
{
}

QImage IconImages::requestImage(const QString& id, QSize* size, const QSize& requestedSize)
{
    const QString path = QUrl(QUrl::fromPercentEncoding(id.toUtf8())).toLocalFile();
    return finished(boundedImage::fromFile(path, wanted(requestedSize, QSize(100, 72))), size);
}

} // namespace vidora
