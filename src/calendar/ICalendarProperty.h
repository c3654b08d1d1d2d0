#pragma once

#include "platform/Instant.h"
#include "platform/URL.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <memory>
#include <optional>

struct icalproperty_impl;

namespace vidora {

struct ICalendarMoment
{
    Instant instant;
    bool dateOnly = false;
};

/// One property of an iCalendar document (RFC 5545, 3.8), read from its content line or written as one. Escapes,
/// parameters, value types and folding are the library's business.
class ICalendarProperty
{
public:
    /// `line`: unfolded, without its end mark. One that can't be understood has no value of any kind.
    explicit ICalendarProperty(const QByteArray& line);

    /// Empty without one.
    QString text() const;
    /// A moment in UTC, in the zone that its parameter names, or in the device's. `zoneLocations` gives the well-known
    /// names of zones that the document has names of its own for. Nothing for a moment that doesn't exist.
    std::optional<ICalendarMoment> moment(const std::map<QByteArray, QByteArray>& zoneLocations) const;
    std::optional<Seconds> duration() const;
    /// When an alarm rings, seen from the event's start.
    std::optional<Seconds> triggerOffset(Instant eventStart, Instant eventEnd) const;

    /// The line of this trigger, in the form in which it stands (after the start, after the end, or a fixed moment),
    /// for an event that was moved: it rings `offset` after the new start.
    QByteArray movedTriggerLine(Seconds offset, Instant eventStart, Instant eventEnd) const;

    /// Content lines, folded, with their end marks.
    static QByteArray textLine(const char* name, const QString& text);
    static QByteArray urlLine(const URL& url);
    static QByteArray momentLine(const char* name, Instant instant, bool dateOnly);
    static QByteArray triggerLine(Seconds offset);
    /// A text as it is read back after it was written: without the control characters that no text may hold.
    static QString cleaned(const QString& text);

private:
    bool isRelatedToEnd() const;

    struct Release
    {
        void operator()(icalproperty_impl* property) const;
    };
    std::unique_ptr<icalproperty_impl, Release> m_property;
};

} // namespace vidora
