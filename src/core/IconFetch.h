#pragma once

#include "core/GuideIcons.h"

#include <QSet>

#include <mutex>

namespace vidora {

/// One round of fetching icons into a folder. The first icon of each host is asked for ahead of its others, and these
/// only where the host has answered, so that a silent host costs one wait however many icons it has.
class IconFetch
{
public:
    /// All outlive this object.
    IconFetch(URLSession& network, const QString& folder, std::shared_ptr<const std::atomic<bool>> ended,
              const IconProgress& progress);

    /// The picture at this address goes into the file of this name.
    void add(const QString& name, const QString& address);
    /// Fetches them all, and says of each that was asked for whether it came; those are missing that were not begun.
    QHash<QString, bool> run();

private:
    struct Icon
    {
        QString name, address, host;
    };

    void runSideBySide(const std::vector<Icon>& icons);
    void fetch(const Icon& icon);
    bool isSilent(const QString& host);
    /// The picture at an address, empty where there is none; nothing when the round was ended meanwhile.
    std::optional<QByteArray> picture(const Icon& icon);
    bool keep(const Icon& icon, const QByteArray& bytes);

    URLSession& m_network;
    const QString& m_folder;
    const std::shared_ptr<const std::atomic<bool>> m_ended;
    const IconProgress& m_progress;
    std::vector<Icon> m_firstOfHost, m_others;
    QSet<QString> m_hosts;
    std::atomic<std::size_t> m_done = 0;
    std::mutex m_mutex; // guards what follows
    QHash<QString, bool> m_came;
    QSet<QString> m_silentHosts;
    qint64 m_room; ///< bytes that may still be kept
};

} // namespace vidora
