#pragma once

#include <QByteArray>

#include <optional>
#include <vector>

namespace vidora {

/// One content line (RFC 5545, 3.1) of a document, folded or not, by its place in the bytes.
struct ICalendarLine
{
    qsizetype begin = 0;
    qsizetype end = 0; ///< behind the line's end mark
    QByteArray name;   ///< of the property, in upper case

    /// The line without its folds and its end mark.
    QByteArray unfolded(const QByteArray& document) const;
};

/// Where the parts of an iCalendar document lie: just enough structure to read one event and to change it without
/// touching a byte of anything else. Positions are indexes into `lines`, ends are exclusive.
struct ICalendarLines
{
    struct Range
    {
        std::size_t begin = 0;
        std::size_t end = 0;
    };

    /// Nothing when the components aren't nested as they must be, are nested too deeply, or none is an event.
    static std::optional<ICalendarLines> of(const QByteArray& document);

    std::vector<ICalendarLine> lines;
    Range event;                         ///< the first event, with its BEGIN and END
    std::vector<std::size_t> properties; ///< the lines of the event itself, without those of components in it
    std::vector<Range> alarms;           ///< the alarms of the event
    int eventCount = 0;
};

} // namespace vidora
