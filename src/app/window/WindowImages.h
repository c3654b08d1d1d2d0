#pragma once

#include <QImage>
#include <QQuickImageProvider>
#include <QString>

#include <mutex>
#include <optional>
#include <unordered_map>

namespace vidora {

/// A picture out of bytes or a file that anyone may have written. What is too large is refused from its header alone.
/// Any thread but the main one.
namespace boundedImage {

constexpr qint64 maximumBytes = 16 * 1024 * 1024;
constexpr qint64 maximumPixels = 40'000'000;
constexpr int maximumSide = 16'384;

enum class Enlarging
{
    Never,
    Allowed
};

/// Of the web: JPEG, PNG, GIF, WebP, BMP by their content, fitted into `bounds`.
std::optional<QImage> fromData(const QByteArray& data, QSize bounds, Enlarging enlarging = Enlarging::Never);
/// Of the program and of guides: the same and SVG, fitted into `bounds`, enlarged too. A drawing that refers to other
/// files, or to itself over and over, is refused.
std::optional<QImage> fromFile(const QString& path, QSize bounds);

} // namespace boundedImage

/// The drawings of the window's own buttons and tabs in a colour: "image://symbols/NAME/RRGGBB".
class SymbolImages final : public QQuickImageProvider
{
public:
    SymbolImages();
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

/// Icons of channels: "image://icons/" with the address of the file, percent-encoded.
class IconImages final : public QQuickImageProvider
{
public:
    IconImages();
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace vidora
