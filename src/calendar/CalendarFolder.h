#pragma once

#include "calendar/ICalendarEvent.h"

#include <map>

namespace vidora {

/// The events in one folder of .ics files, one event a file, as the vdir layout has it: files "displayname" and "color"
/// beside them, hidden files for whoever keeps the folder. Keeps what it read and reads again what changed on disk,
/// known by size, times and inode. One thread at a time.
class CalendarFolder
{
public:
    explicit CalendarFolder(QString path);

    /// Takes up what changed. False when the folder can't be read; what was known stays then.
    bool refresh();
    /// Takes up what changed about one file, without a look at the others.
    void refresh(const QString& name);
    /// The events by the names of their files: those that could be understood.
    const std::map<QString, ICalendarEvent>& events() const { return m_events; }
    /// Whether there is a file of that name, understood or not, as of the last refresh.
    bool hasFile(const QString& name) const { return m_stamps.contains(name); }
    QString pathOf(const QString& name) const;

    /// Title, colour and whether it can be written, as of now. A hidden file ".readonly" says that it can't, ".address"
    /// where it lies on a server.
    Calendar describe(const QString& identifier, const QString& source) const;

private:
    struct Stamp
    {
        std::int64_t size = 0;
        std::int64_t modified = 0; ///< nanoseconds
        std::int64_t changed = 0;  ///< nanoseconds
        std::uint64_t inode = 0;
        bool settled = false; ///< old enough that a later change can't carry the same times

        bool sameFile(const Stamp& other) const
        {
            return settled && size == other.size && modified == other.modified && changed == other.changed &&
                   inode == other.inode;
        }
    };
    std::optional<std::map<QString, Stamp>> list() const;
    static std::optional<Stamp> stampOf(int folder, const char* name, std::int64_t now);
    void take(const QString& name, const Stamp& stamp);
    void read(const QString& name, const Stamp& stamp);

    const QString m_path;
    std::map<QString, Stamp> m_stamps;
    std::map<QString, ICalendarEvent> m_events;
};

} // namespace vidora
