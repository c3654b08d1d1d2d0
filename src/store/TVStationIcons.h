#pragma once

#include <QString>

#include <optional>

namespace vidora {

/// The icons of the channels by file name, in one folder. Any thread.
class TVStationIcons
{
public:
    explicit TVStationIcons(QString folder);

    /// Path of the icon. Nothing for an empty name, for a name of no file, and for one that leads out of the folder:
    /// names come from catalogues, which anyone may have written.
    std::optional<QString> iconNamed(const QString& name) const;

private:
    QString m_folder;
};

} // namespace vidora
