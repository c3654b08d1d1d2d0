#pragma once

#include "alarms/AlarmEngine.h"

namespace vidora {

/// What a user asks for: favourites and alarms set, changed and taken away, with everything that belongs to it.
/// Commands and screens both go through here, so that the same wish has the same end. The single steps are
/// AlarmEngine's.
///
/// Main thread. Each request returns at once; `done` is called on the main thread when the calendar of this device has
/// been brought to it, and not at all when this object goes first. One request at a time.
class AlarmRequests
{
public:
    enum class Outcome
    {
        Done,
        Nothing,    ///< there was nothing to take away
        TooLate,    ///< the alarm would have had to ring already; nothing was changed
        NoCalendar, ///< no calendar can be written: the favourite stands, the alarm doesn't
        NotKept     ///< the favourite could not be kept
    };
    using Done = std::function<void(Outcome)>;

    /// The engine and all that the surroundings name outlive this object.
    AlarmRequests(AlarmSurroundings surroundings, AlarmEngine& engine)
        : m_surroundings(std::move(surroundings))
        , m_engine(engine)
    {
    }

    /// The favourite of a title, in whatever case; null without one.
    std::shared_ptr<const Favorite> favorite(const QString& title) const;
    /// Makes a title a favourite, and sets an alarm on all its broadcasts where one is given; an alarm that was set
    /// before on them becomes this one. The title is that of a show's `identificator`.
    void setFavorite(const QString& title, const std::optional<AlarmEngine::Recurrence>& alarm, const Done& done);
    /// Takes the favourite away, and the alarms on its broadcasts.
    void removeFavorite(const QString& title, const Done& done);

    /// The lead time that was last set: what to offer for the next alarm.
    int usualMinutes() const;
    /// Sets an alarm on one broadcast, or changes the one it has. Its title becomes a favourite: an alarm that belongs
    /// to none would go with the next synchronisation.
    void setAlarm(const Show& show, int minutes, const Done& done);
    /// Takes the alarm of one broadcast away. Where all broadcasts of the title have alarms, it comes again.
    void removeAlarm(const Show& show, const Done& done);
    /// Takes away the alarms on all broadcasts of a title. A favourite stays one.
    void removeAlarms(const QString& title, const Done& done);
    /// Takes away every alarm there is. Favourites stay.
    void removeAllAlarms(const Done& done);

    /// Turns the silent hours on or off, and takes alarms away or brings them again as it follows.
    void setSilentHoursEnabled(bool enabled, const Done& done);
    /// Sets the silent hours, by hour and minute in the device's zone, and turns them on.
    void setSilentHours(QTime from, QTime to, const Done& done);

private:
    /// Calls the block on the main thread once nothing is being done to the calendar.
    void whenIdle(DispatchQueue::Block block) const;
    void finishRemoval(int countBefore, bool wasSet, const Done& done);
    void synchronise(const Done& done);

    const AlarmSurroundings m_surroundings;
    AlarmEngine& m_engine;
    BlockOwner m_blocks;
};

} // namespace vidora
