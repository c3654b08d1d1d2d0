#include "TestPictures.h"
#include "app/window/WindowImages.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vidora {
namespace {

using test::png;

TEST(WindowImages, FitsPicturesAndRefusesWhatIsTooLarge)
{
    const QSize bounds(99, 99);
    EXPECT_EQ(boundedImage::fromData(png(400, 200), bounds)->size(), QSize(99, 49));
    EXPECT_EQ(boundedImage::fromData(png(40, 20), bounds)->size(), QSize(40, 20));
    EXPECT_EQ(boundedImage::fromData(png(40, 20), bounds, boundedImage::Enlarging::Allowed)->size(), QSize(99, 49));
    for (const QByteArray& hostile : {test::pngClaiming(30'000, 30'000), test::pngClaiming(16'000, 16'000),
                                      test::pngClaiming(1, 100'000), png(20, 20).left(40), QByteArray(),
                                      QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"),
                                      QByteArray(static_cast<qsizetype>(boundedImage::maximumBytes) + 1, 'x')})
        EXPECT_FALSE(boundedImage::fromData(hostile, bounds)) << hostile.left(40).toStdString();
}

TEST(WindowImages, DrawsNothingThatReadsFilesOrMultiplies)
{
    const QTemporaryDir folder;
    const auto drawing = [&](const char* content) {
        QFile file(folder.filePath(QStringLiteral("icon.svg")));
        if (file.open(QIODevice::WriteOnly))
            file.write(QByteArray("<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
                                  "width='10' height='5'>") +
                       content + "</svg>");
        return file.fileName();
    };
    const auto drawn = [&](const QString& path) { return boundedImage::fromFile(path, QSize(100, 72)); };
    EXPECT_EQ(drawn(drawing("<rect width='10' height='5'/>"))->size(), QSize(100, 50));
    EXPECT_FALSE(drawn(drawing("<image width='9' height='9' xlink:href='/etc/hostname'/>")));
    EXPECT_FALSE(drawn(drawing("<g id='a'><rect width='1' height='1'/></g><g id='b'><use xlink:href='#a'/></g>")));
    EXPECT_FALSE(drawn(folder.filePath(QStringLiteral("missing.svg"))));
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
