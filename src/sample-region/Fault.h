#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vidora::region {

/// A defect that the region puts into some of its answers.
struct Fault
{
    enum class Kind : std::uint8_t
    {
        Status,   ///< "status:500"
        Delay,    ///< "delay:1500", milliseconds ahead of the answer
        Cut,      ///< "cut" or "cut:100": the connection ends after half the body, or so many bytes
        Charset,  ///< "charset:utf-7": another charset is named than the one used
        Empty,    ///< "empty": status 200 without a body
        Redirect, ///< "redirect:/other": status 302 to a path of the same provider or to an address
        Missing,  ///< "missing:class=\"time\"": every occurrence of a text is left out
        SixDays,  ///< "six-days": a page with a tab for each day of the week lacks the last
        Shift,    ///< "shift:-2": other days than those asked for; the first page then is the wrong day's
        NoToday   ///< "no-today": days of another fortnight
    };

    std::string pattern; ///< of "PROVIDER/path?query"; "*" stands for any text
    Kind kind;
    std::string argument = {};

    /// Reads "PATTERN=KIND[:ARGUMENT]"; nothing for an unknown kind, or one without the argument that it needs.
    static std::optional<Fault> fromText(std::string_view text);
    /// One line for each kind, for the help text.
    static std::string kindsHelp();
    bool matches(std::string_view target) const;
    int number() const;
};

using Faults = std::vector<Fault>;

} // namespace vidora::region
