#pragma once

#include "calendar/Event.h"

#include <QByteArray>

namespace vidora {

/// An event as a document that holds it alone (RFC 5545), in both directions. Stateless; any thread.
struct ICalendarEvent
{
    /// Longer documents are not looked into.
    static constexpr qint64 maximumSize = 1024 * 1024;

    QString uid;
    /// Title, place, address, moments and alarms; without identifier and calendar. A day without a time begins and
    /// ends, and a time without a zone is meant, in the device's zone.
    Event event;
    /// Whether it is one event that happens once. Series, their exceptions and documents with several events are not
    /// ours to change.
    bool single = true;

    /// Nothing for what is too long, broken, without identity, without a start, or in a zone that nobody knows.
    static std::optional<ICalendarEvent> read(const QByteArray& document);
    /// A new document. Moments are written in UTC to the second; characters that a text may not hold are left out.
    static QByteArray write(const QString& uid, const Event& event, Instant now);
    /// The document with the properties of `event` in place of those that differ. Every byte of everything else stays,
    /// but for the time stamp of the change. Nothing when there is nothing to change or the document can't be read.
    static std::optional<QByteArray> change(const QByteArray& document, const Event& event, Instant now);
};

} // namespace vidora
