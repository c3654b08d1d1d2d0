#include "app/window/WindowImages.h"

#include <QBuffer>
#include <QtEndian>

#include <gtest/gtest.h>
#include <zlib.h>

namespace vidora {
namespace {

QByteArray png(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

/// A small picture whose header claims another size (ISO/IEC 15948, 11.2.2).
QByteArray claiming(quint32 width, quint32 height)
{
    QByteArray data = png(4, 4);
    qToBigEndian(width, data.data() + 16);
    qToBigEndian(height, data.data() + 20);
    const QByteArray header = data.mid(12, 17);
    const auto checksum = crc32(0, reinterpret_cast<const Bytef*>(header.constData()), 17);
    qToBigEndian(static_cast<quint32>(checksum), data.data() + 29);
    return data;
}

TEST(WindowImages, FitsPicturesAndRefusesWhatIsTooLarge)
{
    const QSize bounds(99, 99);
    EXPECT_EQ(boundedImage::fromData(png(400, 200), bounds)->size(), QSize(99, 49));
    EXPECT_EQ(boundedImage::fromData(png(40, 20), bounds)->size(), QSize(40, 20));
    for (const QByteArray& hostile :
         {claiming(30'000, 30'000), claiming(16'000, 16'000), claiming(1, 100'000), png(20, 20).left(40), QByteArray(),
          QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"),
          QByteArray(static_cast<qsizetype>(boundedImage::maximumBytes) + 1, 'x')})
        EXPECT_FALSE(boundedImage::fromData(hostile, bounds)) << hostile.left(40).toStdString();
}

TEST(WindowImages, DrawsSymbolsInAColour)
{
    SymbolImages symbols;
    QSize size;
    const QImage drawn = symbols.requestImage(QStringLiteral("stop/ff0000"), &size, QSize(24, 24));
    ASSERT_EQ(size, QSize(24, 24));
    EXPECT_EQ(drawn.pixelColor(12, 12), QColor(255, 0, 0));
    EXPECT_EQ(drawn.pixelColor(0, 0).alpha(), 0);
    EXPECT_TRUE(symbols.requestImage(QStringLiteral("../Main/ff0000"), &size, QSize()).isNull());
}

} // namespace
} // namespace vidora
