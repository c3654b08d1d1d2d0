#include "alarms/AlarmRequests.h"

#include "platform/DeviceSettings.h"

#include <algorithm>
#include <limits>

namespace vidora {

namespace {

/// Under which a favourite is kept: without the one blank that `addFavorite` drops.
QString keptTitle(const QString& title)
{
    return title.endsWith(QLatin1Char(' ')) ? title.chopped(1) : title;
}

} // namespace

std::shared_ptr<const Favorite> AlarmRequests::favorite(const QString& title) const
{
    const QString lowercased = keptTitle(title).toLower();
    for (const auto& favorite : m_surroundings.shows.favorites().value_or(Favorites())) {
        if (favorite->lowercasedIdentificator() == lowercased)
            return favorite;
    }
    return nullptr;
}

void AlarmRequests::whenIdle(DispatchQueue::Block block) const
{
    m_blocks.async([this, block = m_blocks.guarded(std::move(block))] { m_engine.whenIdle(block); });
}

void AlarmRequests::setFavorite(const QString& title, const std::optional<AlarmEngine::Recurrence>& alarm,
                                const Done& done)
{
    m_engine.addFavorite(title);
    const QString kept = keptTitle(title);
    const auto finish = [this, kept, isAlarmed = alarm.has_value(), done] {
        const auto added = favorite(kept);
        done(!added ? Outcome::NotKept : isAlarmed && added->minutes() < 0 ? Outcome::NoCalendar : Outcome::Done);
    };
    if (!alarm)
        return whenIdle(finish);
    if (m_engine.alarmedIdentificatorType(kept)) // counted as if it had been taken away
        m_surroundings.counters.incrementCounterByAmount(-1, kept);
    m_engine.setAlarmForTitle(kept, alarm->minutes, alarm->previouslyShown, true);
    whenIdle(finish);
}

void AlarmRequests::removeFavorite(const QString& title, const Done& done)
{
    const Outcome outcome = favorite(title) ? Outcome::Done : Outcome::Nothing;
    m_engine.removeFavorite(title);
    whenIdle([outcome, done] { done(outcome); });
}

int AlarmRequests::usualMinutes() const
{
    const auto last = m_surroundings.keyValueStore.longLongForKey(AlarmEngine::lastAlarmMinutesKey);
    return static_cast<int>(std::clamp<std::int64_t>(last, 0, std::numeric_limits<int>::max()));
}

void AlarmRequests::setAlarm(const Show& show, int minutes, const Done& done)
{
    const std::shared_ptr<const TVEntry> entry = show->entry;
    const auto start = entry->dateTime();
    if (!start || *start - std::chrono::minutes(minutes) <= m_surroundings.clock.now())
        return whenIdle([done] { done(Outcome::TooLate); });
    const QString title = entry->identificator().value_or(QString());
    if (m_engine.alarmedEntry(*entry) >= 0) // counted as if it had been taken away
        m_surroundings.counters.incrementCounterByAmount(-1, title);
    m_engine.setAlarmForTitle(title, entry->channel(), *start, entry->endDateTime(), minutes, true, true);
    whenIdle([this, entry, title, done] {
        if (m_engine.alarmedEntry(*entry) < 0)
            return done(Outcome::NoCalendar);
        if (!favorite(title))
            m_engine.addFavorite(title);
        done(Outcome::Done);
    });
}

void AlarmRequests::removeAlarm(const Show& show, const Done& done)
{
    const TVEntry& entry = *show->entry;
    const bool wasSet = m_engine.alarmedEntry(entry) >= 0;
    m_engine.removeAlarmForTitle(entry.identificator().value_or(QString()), entry.channel(),
                                 entry.dateTime().value_or(Instant()), true, true);
    finishRemoval(0, wasSet, done);
}

void AlarmRequests::removeAlarms(const QString& title, const Done& done)
{
    const int count = m_engine.eventCount();
    const bool wasSet = m_engine.alarmedIdentificatorType(title).has_value();
    m_engine.removeAlarmForTitle(title, true, true);
    finishRemoval(count, wasSet, done);
}

void AlarmRequests::removeAllAlarms(const Done& done)
{
    const int count = m_engine.eventCount();
    bool anyWasSet = false;
    for (const auto& favorite : m_surroundings.shows.favorites().value_or(Favorites())) {
        if (favorite->minutes() < 0)
            continue;
        anyWasSet = true;
        m_engine.removeAlarmForTitle(favorite->identificator(), true, true);
    }
    m_engine.removeAllEvents();
    finishRemoval(count, anyWasSet, done);
}

void AlarmRequests::finishRemoval(int countBefore, bool wasSet, const Done& done)
{
    whenIdle([this, countBefore, wasSet, done] {
        done(wasSet || m_engine.eventCount() < countBefore ? Outcome::Done : Outcome::Nothing);
    });
}

void AlarmRequests::setSilentHoursEnabled(bool enabled, const Done& done)
{
    m_surroundings.silentHours.setEnabled(enabled);
    synchronise(done);
}

void AlarmRequests::setSilentHours(QTime from, QTime to, const Done& done)
{
    const QTimeZone zone = DeviceSettings::timeZone();
    m_surroundings.silentHours.setFromTimestamp(SilentHours::timestampOf(from, zone));
    m_surroundings.silentHours.setToTimestamp(SilentHours::timestampOf(to, zone));
    setSilentHoursEnabled(true, done);
}

void AlarmRequests::synchronise(const Done& done)
{
    m_engine.setSynchronized(false);
    m_engine.syncAlarms();
    whenIdle([done] { done(Outcome::Done); });
}

} // namespace vidora
