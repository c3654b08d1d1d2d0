#include "store/TVStationIcons.h"

#include <QFileInfo>

namespace vidora {

TVStationIcons::TVStationIcons(QString folder)
    : m_folder(std::move(folder))
{
}

std::optional<QString> TVStationIcons::iconNamed(const QString& name) const
{
    if (name.isEmpty() || name.startsWith(QLatin1Char('.')) || name.contains(QLatin1Char('/')) ||
        name.contains(QChar::Null))
        return std::nullopt;
    const QString path = m_folder + QLatin1Char('/') + name;
    return QFileInfo(path).isFile() ? std::optional(path) : std::nullopt;
}

} // namespace vidora
