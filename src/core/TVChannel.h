#pragma once

#include "content/ObjectId.h"
#include "platform/Clock.h"

#include <QString>

#include <functional>
#include <mutex>
#include <optional>

namespace vidora {

/// What a channel's age is judged by. Shared by all channels of a selection, and outlives them.
struct ChannelAging
{
    const Clock& clock;
    QString cachesFolder;                            ///< where the list files lie
    std::function<double()> automaticUpdateInterval; ///< seconds after which a list is stale
    bool readOnly = false;                           ///< another process owns the files: `unload` leaves them alone
};

/// A selected channel with its load state. Lives from the moment the channel is selected until it is deselected;
/// nothing of it but the time stamp of its list file survives the process. Any thread.
class TVChannel
{
public:
    TVChannel(const ChannelAging& aging, const ObjectId& identificator, QString title, QString language,
              QString iconFileName, bool hasStreamURL);

    const ObjectId& identificator() const { return m_identificator; }
    const QString& title() const { return m_title; }
    const QString& language() const { return m_language; }
    const QString& iconFileName() const { return m_iconFileName; }
    bool hasStreamURL() const { return m_hasStreamURL; }

    bool loading() const;
    void setLoading(bool loading);
    /// When the list was last loaded; after a restart the time stamp of its file. Nothing for a channel never loaded.
    std::optional<Instant> timeLoaded() const;
    void setTimeLoaded(Instant time);
    /// Whether the channel should be fetched: never while it is loading, always when it was never loaded, else when its
    /// list is older than the update interval, in whole seconds.
    bool reloadNeeded() const;
    /// Forgets the load and removes the list file. The store's list in memory stays.
    void unload();
    /// Makes the list count as stale, also after a restart; it stays in use until a new one replaces it.
    void expire();

private:
    QString listPath() const;
    std::optional<Instant> timeLoadedLocked() const;

    const ChannelAging& m_aging;
    const ObjectId m_identificator;
    const QString m_title, m_language, m_iconFileName;
    const bool m_hasStreamURL;
    mutable std::mutex m_mutex;
    bool m_loading = false;
    mutable std::optional<Instant> m_timeLoaded;
};

} // namespace vidora
