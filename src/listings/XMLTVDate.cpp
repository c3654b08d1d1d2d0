#include "listings/XMLTVDate.h"

namespace vidora {
namespace {

constexpr std::size_t digitsLength = 14;

template<typename Char>
std::optional<int> number(std::basic_string_view<Char> text, std::size_t position, std::size_t length)
{
    if (position + length > text.size())
        return std::nullopt;
    int value = 0;
    for (const Char c : text.substr(position, length)) {
        if (c < Char('0') || c > Char('9'))
            return std::nullopt;
        value = value * 10 + static_cast<int>(c - Char('0'));
    }
    return value;
}

template<typename Char>
std::optional<Seconds> offset(std::basic_string_view<Char> text)
{
    if (text.size() == 1 && text[0] == Char('Z'))
        return Seconds{0};
    if (text.empty() || (text[0] != Char('+') && text[0] != Char('-')))
        return std::nullopt;
    const std::size_t minutesAt = text.size() > 3 && text[3] == Char(':') ? 4 : 3;
    const auto hours = number(text, 1, 2);
    const auto minutes = text.size() == 3 ? std::optional<int>{0} : number(text, minutesAt, 2);
    if (!hours || !minutes || *hours > 23 || *minutes > 59 || (text.size() != 3 && text.size() != minutesAt + 2))
        return std::nullopt;
    const Seconds distance{*hours * 3600 + *minutes * 60};
    return text[0] == Char('-') ? -distance : distance;
}

template<typename Char>
std::optional<Instant> readDate(std::basic_string_view<Char> text)
{
    if (text.size() <= digitsLength)
        return std::nullopt;
    const auto year = number(text, 0, 4);
    const auto month = number(text, 4, 2);
    const auto day = number(text, 6, 2);
    const auto hour = number(text, 8, 2);
    const auto minute = number(text, 10, 2);
    const auto second = number(text, 12, 2);
    if (!year || !month || !day || !hour || !minute || !second || *year < 1)
        return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year{*year}, std::chrono::month(static_cast<unsigned>(*month)),
                                           std::chrono::day(static_cast<unsigned>(*day))};
    const auto zone = offset(text.substr(text[digitsLength] == Char(' ') ? digitsLength + 1 : digitsLength));
    if (!date.ok() || *hour > 23 || *minute > 59 || *second > 59 || !zone)
        return std::nullopt;
    return Instant{std::chrono::sys_days{date}} + Seconds{*hour * 3600 + *minute * 60 + *second} - *zone;
}

} // namespace

std::optional<Instant> xmltvDate(QStringView text)
{
    return readDate(std::u16string_view{text.utf16(), static_cast<std::size_t>(text.size())});
}

std::optional<Instant> xmltvDate(std::string_view utf8)
{
    return readDate(utf8);
}

} // namespace vidora
