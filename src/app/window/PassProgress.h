#pragma once

#include "core/UpdateCycle.h"

#include <QObject>

#include <set>

namespace vidora {

class VidoraAppDelegate;

/// How far the update pass has come, and how old the lists are, for the one line that tells of both. Main thread.
class PassProgress final : public QObject, public UpdateObserver
{
    Q_OBJECT
    Q_PROPERTY(bool running READ isRunning NOTIFY changed)
    Q_PROPERTY(int done READ done NOTIFY changed)
    Q_PROPERTY(int wanted READ wanted NOTIFY changed)
    /// The last pass reached nobody. Ends with the next list that comes.
    Q_PROPERTY(bool offline READ isOffline NOTIFY changed)
    /// "Updated 5 min ago", of the youngest list; empty where there is none.
    Q_PROPERTY(QString state READ state NOTIFY changed)

public:
    /// The delegate outlives this object.
    explicit PassProgress(VidoraAppDelegate& delegate)
        : m_delegate(delegate)
    {
    }

    bool isRunning() const { return m_isRunning; }
    int done() const { return static_cast<int>(std::min(m_done.size(), m_wanted)); }
    int wanted() const { return static_cast<int>(m_wanted); }
    bool isOffline() const { return m_isOffline; }
    QString state() const;

    void passStarted(std::size_t channels) override;
    void fetching(const std::vector<ObjectId>& channels) override;
    void delivered(const std::unordered_map<ObjectId, ShowList>& lists) override;
    void passEnded(std::size_t shows, const std::vector<ObjectId>& failed) override;
    /// The age is another one.
    void timePassed() { Q_EMIT changed(); }

Q_SIGNALS:
    void changed();

private:
    VidoraAppDelegate& m_delegate;
    bool m_isRunning = false, m_isOffline = false;
    std::size_t m_wanted = 0;
    std::uint64_t m_failuresBefore = 0;
    std::set<ObjectId> m_done;
};

} // namespace vidora
