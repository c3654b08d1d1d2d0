#pragma once

#include "alarms/AlarmEngine.h"
#include "core/ShowServices.h"

namespace vidora {

/// What favourites and alarms know of shows. Both outlive it.
class AlarmMarks final : public ShowMarks
{
public:
    AlarmMarks(AlarmEngine& engine, const TVShows& shows)
        : m_engine(engine)
        , m_shows(shows)
    {
    }

    int alarmedEntry(const TVEntry& entry) const override { return m_engine.alarmedEntry(entry); }
    bool containsFavoriteNamed(const QString& title) const override { return m_shows.containsFavoriteNamed(title); }
    std::vector<SwipeAction> swipeActions(const Show&, ViewController&) override { return {}; }

private:
    AlarmEngine& m_engine;
    const TVShows& m_shows;
};

} // namespace vidora
