#pragma once

#include "core/UpdateCycle.h"

#include <QObject>

#include <set>

namespace vidora {

/// How far the update pass has come, for the bar over the screens. Main thread.
class PassProgress final : public QObject, public UpdateObserver
{
    Q_OBJECT
    Q_PROPERTY(bool running READ isRunning NOTIFY changed)
    Q_PROPERTY(int done READ done NOTIFY changed)
    Q_PROPERTY(int wanted READ wanted NOTIFY changed)

public:
    bool isRunning() const { return m_isRunning; }
    int done() const { return static_cast<int>(std::min(m_done.size(), m_wanted)); }
    int wanted() const { return static_cast<int>(m_wanted); }

    void passStarted(std::size_t channels) override;
    void fetching(const std::vector<ObjectId>& channels) override;
    void delivered(const std::unordered_map<ObjectId, ShowList>& lists) override;
    void passEnded(std::size_t shows, const std::vector<ObjectId>& failed) override;

Q_SIGNALS:
    void changed();

private:
    bool m_isRunning = false;
    std::size_t m_wanted = 0;
    std::set<ObjectId> m_done;
};

} // namespace vidora
