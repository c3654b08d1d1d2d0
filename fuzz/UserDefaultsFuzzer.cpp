// The settings file, which its user may edit: any bytes are read, and writing a setting keeps what could be read.
#include "platform/AtomicFile.h"
#include "platform/UserDefaults.h"

#include <QTemporaryDir>

#include <cstdlib>

using namespace vidora;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("settings.json"));
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    if (AtomicFile::write(path, bytes, AtomicFile::Access::OwnerOnly, AtomicFile::Durability::Unsynced).failed())
        return 0;
    UserDefaults defaults(path);
    for (const char* name : {"show_img", "currently_show_count", "data_update", "selectedCalendar", ""}) {
        const QString key = QString::fromLatin1(name);
        static_cast<void>(defaults.boolForKey(key));
        static_cast<void>(defaults.integerForKey(key));
        static_cast<void>(defaults.stringForKey(key));
        static_cast<void>(defaults.stringArrayForKey(key));
    }
    const double interval = defaults.doubleForKey(QStringLiteral("data_update"));
    defaults.setBool(true, QStringLiteral("written"));
    if (!defaults.synchronize())
        std::abort();
    const UserDefaults again(path);
    if (!again.boolForKey(QStringLiteral("written")) || again.doubleForKey(QStringLiteral("data_update")) != interval)
        std::abort();
    return 0;
}
