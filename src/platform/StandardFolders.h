#pragma once

#include <QString>

namespace vidora {

/// Where the program keeps its files (XDG Base Directory Specification 0.8). Paths end without a slash.
struct StandardFolders
{
    QString documents; ///< what the user made: $XDG_DATA_HOME/vidora
    QString caches;    ///< what can be fetched again: $XDG_CACHE_HOME/vidora
    QString settings;  ///< $XDG_CONFIG_HOME/vidora

    static StandardFolders ofUser();
    /// All three in one folder ("documents", "caches" and "settings" below it): a second device on one machine.
    static StandardFolders under(const QString& home);

    /// Makes the folders that are missing, readable by their owner alone. False when one can't be made.
    bool make() const;
};

} // namespace vidora
