#pragma once

#include "content/ObjectId.h"

#include <QString>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace vidora {

/// One channel of the catalogue, with its keys as they stand in the file. A value that is no text counts as absent
/// where a text is asked for.
class ChannelDictionary
{
public:
    ChannelDictionary() = default;
    explicit ChannelDictionary(QVariantMap keys)
        : m_keys(std::move(keys))
    {
    }

    const QVariantMap& keys() const { return m_keys; }
    std::optional<QString> text(QLatin1String key) const;
    std::optional<QString> location() const { return text(QLatin1String("Location")); }
    std::optional<QString> title() const { return text(QLatin1String("Title")); }
    std::optional<QString> icon() const { return text(QLatin1String("Icon")); }
    std::optional<QString> language() const { return text(QLatin1String("Language")); }
    std::optional<QString> stream() const { return text(QLatin1String("Stream")); }
    /// The icon's file name: what stands behind the first "/" of "Icon"; nothing without one or when nothing follows.
    std::optional<QString> iconFileName() const;
    /// The listing sources by priority, "Location1" first, up to the first that is absent and at most seven.
    std::vector<QString> sources() const;

private:
    QVariantMap m_keys;
};

/// The channels that the system offers, by id. Set once at launch and only read after that.
using ChannelData = std::unordered_map<ObjectId, ChannelDictionary>;

/// Whether the application has an icon of this file name.
using IconTest = std::function<bool(const QString& fileName)>;

/// Keeps the records that the system can serve: a supported language and region, an icon, a title, one record an id. Of
/// several records of one id the one nearest to the home pair stays; it then moves to the end.
std::vector<ChannelDictionary> filteredChannels(const std::vector<ChannelDictionary>& channels,
                                                const IconTest& hasIcon);

/// "Channels" of a property list; empty for anything that is none.
std::vector<ChannelDictionary> channelsOfPropertyList(const QByteArray& bytes);

/// Where a catalogue is read from and where its filtered form is kept.
struct CatalogueFiles
{
    QString catalogue;     ///< Data.plist
    QString iconFolder;    ///< a change of its time stamp is a change of the icons
    QString filteredCache; ///< rebuilt whenever it is not younger than both, or was made of others
    bool readOnly = false; ///< another process owns the cache: it is not written
};

/// Reads the filtered cache, or filters the catalogue anew and writes the cache. A cache counts for the very catalogue
/// and icons that it was made of. A catalogue that can't be read leaves what its cache holds, or no channels; a cache
/// that can't be written is no failure. Main thread, at launch.
ChannelData loadChannelData(const CatalogueFiles& files, const IconTest& hasIcon);

} // namespace vidora
