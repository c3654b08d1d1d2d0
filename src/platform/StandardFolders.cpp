#include "platform/StandardFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace vidora {

namespace {

QString ofApplication(const char* variable, QLatin1String usual)
{
    const QString root = qEnvironmentVariable(variable);
    // A relative path in one of these variables is invalid and is to be ignored.
    return (QDir::isAbsolutePath(root) ? root : QDir::homePath() + usual) + QStringLiteral("/vidora");
}

bool makeFolder(const QString& path)
{
    if (QFileInfo(path).isDir())
        return true;
    return QDir().mkpath(path) && QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace

StandardFolders StandardFolders::ofUser()
{
    return {ofApplication("XDG_DATA_HOME", QLatin1String("/.local/share")),
            ofApplication("XDG_CACHE_HOME", QLatin1String("/.cache")),
            ofApplication("XDG_CONFIG_HOME", QLatin1String("/.config"))};
}

StandardFolders StandardFolders::under(const QString& home)
{
    const QString root = QDir(home).absolutePath();
    return {root + QStringLiteral("/documents"), root + QStringLiteral("/caches"), root + QStringLiteral("/settings")};
}

bool StandardFolders::make() const
{
    const bool made[] = {makeFolder(documents), makeFolder(caches), makeFolder(settings)};
    return made[0] && made[1] && made[2];
}

} // namespace vidora
