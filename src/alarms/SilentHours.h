#pragma once

#include "platform/Instant.h"
#include "platform/KeyValueStore.h"
#include "platform/Settings.h"

#include <QTime>
#include <QTimeZone>

namespace vidora {

/// The silent hours as they are at one moment and in one zone. A value, for work that asks about many moments.
struct SilentPeriod
{
    bool enabled = false;
    int from = 0; ///< minutes since midnight
    int to = 0;   ///< minutes since midnight
    QTimeZone zone;

    /// Whether an automatic alarm may sound at a moment. The first and the last minute may still sound. A period that
    /// crosses midnight or has no length silences the whole day.
    bool mayBeAlarmedAt(Instant date) const;
};

/// The daily period in which automatic alarms must not sound. It lives in the key-value store, and so is the same on
/// all devices of the user. Holds no state; any thread.
class SilentHours
{
public:
    /// The store outlives this object.
    explicit SilentHours(KeyValueStore& keyValueStore)
        : m_keyValueStore(keyValueStore)
    {
    }

    bool enabled() const;
    void setEnabled(bool enabled);
    /// A moment of which only hour and minute in the device's zone count; midnight unless set.
    Instant fromTimestamp() const;
    void setFromTimestamp(Instant date);
    /// The same; seven o'clock unless set.
    Instant toTimestamp() const;
    void setToTimestamp(Instant date);

    /// The setting now, in the device's zone.
    SilentPeriod period() const;
    bool mayBeAlarmedAt(Instant date) const { return period().mayBeAlarmedAt(date); }

    /// A moment with that hour and minute in the zone, on a day without a clock change.
    static Instant timestampOf(QTime time, const QTimeZone& zone);
    /// Hour and minute of a moment in the zone.
    static QTime timeOf(Instant date, const QTimeZone& zone);

private:
    Instant timestamp(const Setting& setting) const;

    KeyValueStore& m_keyValueStore;
};

} // namespace vidora
