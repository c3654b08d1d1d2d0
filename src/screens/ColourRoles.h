#pragma once

#include <QLatin1String>

/// Colours by what they are for. A theme gives each a value in a light and a dark palette.
namespace vidora::colour {

constexpr QLatin1String systemGroupedBackground{"systemGroupedBackground"};       ///< behind all rows
constexpr QLatin1String secondaryGroupedBackground{"secondaryGroupedBackground"}; ///< of a row, and of section headings
constexpr QLatin1String tertiaryFill{"tertiaryFill"};                             ///< of a channel's header row
constexpr QLatin1String label{"label"};
constexpr QLatin1String secondaryLabel{"secondaryLabel"};
constexpr QLatin1String indigo{"indigo"};                   ///< names of channels
constexpr QLatin1String alarmRed{"alarmRed"};               ///< a show with an alarm
constexpr QLatin1String onAirGreen{"onAirGreen"};           ///< a show on air, where shows are coloured
constexpr QLatin1String favouriteOrange{"favouriteOrange"}; ///< a favourite, where shows are coloured
constexpr QLatin1String lightGrey{"lightGrey"};             ///< raised end times
constexpr QLatin1String dayHeading{"dayHeading"};           ///< headings of sections

} // namespace vidora::colour
