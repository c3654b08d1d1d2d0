#include "alarms/DeviceMark.h"

#include "platform/AtomicFile.h"

#include <QRegularExpression>

namespace vidora {

QString deviceMark(const QString& documentsFolder, Random& random, bool readOnly)
{
    static const QRegularExpression digits(QRegularExpression::anchoredPattern(QStringLiteral("[0-9a-f]{16}")));
    const QString path = documentsFolder + QStringLiteral("/device-mark");
    const QString kept = QString::fromLatin1(AtomicFile::read(path, 64).value_or(QByteArray())).trimmed();
    if (digits.match(kept).hasMatch() || readOnly)
        return digits.match(kept).hasMatch() ? kept : QString();
    QByteArray bytes;
    while (bytes.size() < 8)
        bytes.append(static_cast<char>(random.uniform(256)));
    // What could not be kept would make every event somebody else's at the next start.
    const bool isKept = !AtomicFile::write(path, bytes.toHex(), AtomicFile::Access::OwnerOnly).failed();
    return isKept ? QString::fromLatin1(bytes.toHex()) : QString();
}

} // namespace vidora
