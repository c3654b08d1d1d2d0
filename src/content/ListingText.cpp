#include "content/ListingText.h"

#include "content/LiteralSearch.h"
#include "content/RemarkPatterns.h"
#include "content/TitleCase.h"
#include "platform/DeviceSettings.h"

#include <string_view>

namespace vidora {

namespace {

// Shows with a comma in their name, behind which no episode follows.
constexpr std::u16string_view commaTitles[] = {
    u"Tri, dva, jedan - kuhaj", u"Gem, set, meč", u"Lud, zbunjen, normalan",
    u"Draga, smanjili smo se",  u"2,4 djeteta",   u"Zvonili ste, milorde?",
};

QString withoutRemarks(const QString& text)
{
    return withoutBracketRemarks(withoutParenthesisRemarks(text));
}

} // namespace

QString showTitle(const QString& text)
{
    for (const QStringView title : commaTitles) {
        if (text.startsWith(title))
            return title.toString();
    }
    QString title = withoutRemarks(text);
    const qsizetype comma = title.indexOf(QLatin1Char(','));
    if (comma >= 0)
        title.truncate(comma);
    return isInCapitals(title) ? capitalized(title, DeviceSettings::locale()) : title;
}

std::optional<QString> showInstantDescription(const QString& text)
{
    constexpr QStringView separator = u", ";
    for (const QStringView title : commaTitles) {
        if (text.startsWith(title) && text.size() > title.size() + separator.size())
            return text.mid(title.size() + separator.size());
    }
    const qsizetype comma = withoutRemarks(text).indexOf(separator);
    if (comma < 0)
        return std::nullopt;
    // The place is that of the text without remarks, and yet applied to the whole one: a counter of parts at the end
    // of the title must stay in the description.
    return text.mid(comma + separator.size());
}

} // namespace vidora
