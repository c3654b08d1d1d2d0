#include "sample-region/Fault.h"

#include <array>
#include <charconv>

namespace vidora::region {

namespace {

enum class Argument
{
    None,
    Optional,
    Number,
    Text
};

struct KindEntry
{
    std::string_view name;
    Fault::Kind kind;
    Argument argument;
    std::string_view help;
};

using Kind = Fault::Kind;
constexpr std::array kinds{
    KindEntry{"status", Kind::Status, Argument::Number, "status:N        answer with this HTTP status"},
    KindEntry{"delay", Kind::Delay, Argument::Number, "delay:MS        wait ahead of the answer"},
    KindEntry{"cut", Kind::Cut, Argument::Optional, "cut[:BYTES]     end the connection inside the body"},
    KindEntry{"charset", Kind::Charset, Argument::Text, "charset:NAME    name another charset than the one used"},
    KindEntry{"empty", Kind::Empty, Argument::None, "empty           no body"},
    KindEntry{"redirect", Kind::Redirect, Argument::Text, "redirect:WHERE  status 302 to a path or an address"},
    KindEntry{"missing", Kind::Missing, Argument::Text, "missing:TEXT    leave out every occurrence of a text"},
    KindEntry{"six-days", Kind::SixDays, Argument::None, "six-days        six tabs where there should be seven"},
    KindEntry{"shift", Kind::Shift, Argument::Number, "shift:DAYS      other days than those asked for"},
    KindEntry{"no-today", Kind::NoToday, Argument::None, "no-today        no page that holds the present day"},
};

bool isNumber(std::string_view text)
{
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size();
}

bool fits(Argument wanted, std::optional<std::string_view> given)
{
    switch (wanted) {
    case Argument::None:
        return !given;
    case Argument::Optional:
        return !given || isNumber(*given);
    case Argument::Number:
        return given && isNumber(*given);
    case Argument::Text:
        return given && !given->empty();
    }
    return false;
}

} // namespace

std::optional<Fault> Fault::fromText(std::string_view text)
{
    // A pattern may hold equals signs of its own, and so may an argument: the first known kind decides.
    for (std::size_t equals = text.find('='); equals != std::string_view::npos; equals = text.find('=', equals + 1)) {
        const std::string_view rest = text.substr(equals + 1);
        const std::size_t colon = rest.find(':');
        std::optional<std::string_view> argument;
        if (colon != std::string_view::npos)
            argument = rest.substr(colon + 1);
        for (const KindEntry& entry : kinds)
            if (entry.name == rest.substr(0, colon) && equals > 0 && fits(entry.argument, argument))
                return Fault{std::string(text.substr(0, equals)), entry.kind, std::string(argument.value_or(""))};
    }
    return std::nullopt;
}

std::string Fault::kindsHelp()
{
    std::string text;
    for (const KindEntry& entry : kinds)
        text.append("  ").append(entry.help).append("\n");
    return text;
}

bool Fault::matches(std::string_view target) const
{
    // Greedy from the left, going back to the last star alone: linear in practice and never exponential.
    std::size_t p = 0, t = 0, star = std::string::npos, resume = 0;
    while (t < target.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            resume = t;
        } else if (p < pattern.size() && pattern[p] == target[t]) {
            ++p;
            ++t;
        } else if (star != std::string::npos) {
            p = star + 1;
            t = ++resume;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == '*')
        ++p;
    return p == pattern.size();
}

int Fault::number() const
{
    int value = 0;
    std::from_chars(argument.data(), argument.data() + argument.size(), value);
    return value;
}

} // namespace vidora::region
