#pragma once

#include <QBuffer>
#include <QImage>
#include <QtEndian>

#include <zlib.h>

namespace vidora::test {

inline QByteArray png(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

/// A small picture whose header claims another size (ISO/IEC 15948, 11.2.2).
inline QByteArray pngClaiming(quint32 width, quint32 height)
{
    QByteArray data = png(4, 4);
    qToBigEndian(width, data.data() + 16);
    qToBigEndian(height, data.data() + 20);
    const QByteArray header = data.mid(12, 17);
    const auto checksum = crc32(0, reinterpret_cast<const Bytef*>(header.constData()), 17);
    qToBigEndian(static_cast<quint32>(checksum), data.data() + 29);
    return data;
}

} // namespace vidora::test
