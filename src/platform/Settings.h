#pragma once

#include "platform/UserDefaults.h"

#include <QtGlobal>

#include <array>

namespace vidora {

/// A setting: its key, what it may be, and what it is where nobody has set it. All there are stand below.
struct Setting
{
    enum class Kind
    {
        Flag,
        Number, ///< a whole one
        Choice, ///< one word of several
        Time,   ///< of a day
        Text
    };
    enum class Place
    {
        Device,       ///< settings.json, which its user may edit by hand
        KeyValueStore ///< the same on all devices of the user
    };

    const char* key;
    Kind kind;
    const char* usual;             ///< where it was not set, as text
    std::int64_t least = 0;        ///< of a number
    std::int64_t most = 0;         ///< of a number
    const char* choices = "";      ///< the words, with blanks between them
    const char* meaning = nullptr; ///< English key of the translation; null for what the program keeps for itself
    Place place = Place::Device;

    QString name() const { return QString::fromLatin1(key); }
    QString usualText() const { return QString::fromLatin1(usual); }
    QStringList words() const { return QString::fromLatin1(choices).split(QLatin1Char(' ')); }

    /// What is set, or the usual value; whatever stands in the file is read in the kind that is asked for.
    bool flag(const UserDefaults& defaults) const;
    double number(const UserDefaults& defaults) const;
    /// Of a choice the usual one where the file has none of its words.
    QString text(const UserDefaults& defaults) const;

    /// The value that a user wrote, for UserDefaults; nothing where it doesn't fit kind and range.
    std::optional<QJsonValue> valueOf(const QString& text) const;
    /// What `valueOf` takes: "60-2592000", "on, off".
    QString range() const;
};

namespace setting {

using Kind = Setting::Kind;
using Place = Setting::Place;

inline constexpr Setting updateInterval{
    .key = "data_update",
    .kind = Kind::Number,
    .usual = "86400",
    .least = 60,
    .most = 30 * 86400,
    .meaning = QT_TRANSLATE_NOOP("vidora", "after how many seconds a list is fetched again")};
inline constexpr Setting showCount{
    .key = "currently_show_count",
    .kind = Kind::Number,
    .usual = "4",
    .least = 1,
    .most = 255,
    .meaning = QT_TRANSLATE_NOOP("vidora", "how many shows of a channel stand in what is on now")};
inline constexpr Setting colorizedShows{
    .key = "colorizedShows",
    .kind = Kind::Flag,
    .usual = "off",
    .meaning = QT_TRANSLATE_NOOP("vidora", "colours for what is on air and for favourites")};
inline constexpr Setting pictures{
    .key = "show_img", .kind = Kind::Flag, .usual = "on", .meaning = QT_TRANSLATE_NOOP("vidora", "pictures of shows")};
inline constexpr Setting backgroundPictures{.key = "bg_img",
                                            .kind = Kind::Flag,
                                            .usual = "on",
                                            .meaning =
                                                QT_TRANSLATE_NOOP("vidora", "pictures behind the page of a show")};
inline constexpr Setting appearance{
    .key = "appearance",
    .kind = Kind::Choice,
    .usual = "desktop",
    .choices = "desktop light dark",
    .meaning = QT_TRANSLATE_NOOP("vidora", "the window's colours; \"desktop\" follows what is set there")};

inline constexpr Setting selectedCalendar{.key = "selectedCalendar", .kind = Kind::Text, .usual = ""};
inline constexpr Setting selectedCalendarPlace{.key = "selectedCalendarPlace", .kind = Kind::Text, .usual = ""};
inline constexpr Setting lostCalendar{.key = "lostCalendar", .kind = Kind::Text, .usual = ""};
inline constexpr Setting windowWidth{
    .key = "window.width", .kind = Kind::Number, .usual = "1024", .least = 320, .most = 10'000};
inline constexpr Setting windowHeight{
    .key = "window.height", .kind = Kind::Number, .usual = "768", .least = 320, .most = 10'000};
inline constexpr Setting reviewedVersion{.key = "savedVersion", .kind = Kind::Text, .usual = ""};
inline constexpr Setting launchCount{.key = "numberOfTimesLaunched", .kind = Kind::Number, .usual = "0"};

inline constexpr Setting silentHours{
    .key = "noAlarmsSchedule", .kind = Kind::Flag, .usual = "off", .place = Place::KeyValueStore};
inline constexpr Setting silentHoursFrom{
    .key = "noAlarmsSchedule.0", .kind = Kind::Time, .usual = "00:00", .place = Place::KeyValueStore};
inline constexpr Setting silentHoursTo{
    .key = "noAlarmsSchedule.1", .kind = Kind::Time, .usual = "07:00", .place = Place::KeyValueStore};
inline constexpr Setting lastAlarmMinutes{.key = "lastAlarmMinutes",
                                          .kind = Kind::Number,
                                          .usual = "0",
                                          .least = 0,
                                          .most = 7 * 24 * 60,
                                          .place = Place::KeyValueStore};

/// Those that a user sets, in the order in which they are listed.
inline constexpr std::array ofUser{&updateInterval, &showCount,          &colorizedShows,
                                   &pictures,       &backgroundPictures, &appearance};

} // namespace setting

} // namespace vidora
