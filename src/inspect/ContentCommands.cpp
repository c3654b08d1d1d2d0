#include "content/ListingText.h"
#include "content/TVEntry.h"
#include "content/TVListingsCategory.h"
#include "inspect/Inspector.h"

#include <QHash>
#include <QJsonValue>

namespace vidora::inspect {

namespace {

QJsonValue orNull(const std::optional<QString>& text)
{
    return text ? QJsonValue(*text) : QJsonValue();
}

QJsonValue orNull(const std::optional<AttributedText>& text)
{
    return text ? QJsonValue(text->string()) : QJsonValue();
}

QJsonValue maskValue(TVListingsCategory mask)
{
    return static_cast<qint64>(mask);
}

QJsonObject objectId(const Request& request, const Surroundings&)
{
    const ObjectId id = request.id("hex");
    return {{QStringLiteral("hex"), id.hex()}, {QStringLiteral("hash"), QString::number(id.hash())}};
}

QJsonObject classify(const Request& request, const Surroundings&)
{
    TVEntry entry;
    entry.setSourceId(request.optionalText("sourceId"));
    entry.setInstantDetails1(request.optionalText("details"));
    if (const auto title = request.optionalText("title"))
        entry.setIdentificator(*title);
    entry.setInstantDescription1(request.optionalText("description"));
    return {{QStringLiteral("mask"), maskValue(categoryMaskForEntry(entry))}};
}

QJsonObject categoryText(const Request& request, const Surroundings&)
{
    const auto text = request.optionalText("text");
    return {{QStringLiteral("mask"), maskValue(text ? categoryFromText(*text) : 0)}};
}

QJsonObject hasWord(const Request& request, const Surroundings&)
{
    return {{QStringLiteral("hasWord"), entryTextHasWord(request.text("text"), request.text("word"))}};
}

QJsonObject label(const Request& request, const Surroundings&)
{
    const auto value = static_cast<std::int32_t>(request.wholeNumber("value"));
    return {{QStringLiteral("label"), textForCategory(value)}};
}

QJsonObject cyrillic(const Request& request, const Surroundings&)
{
    TVEntry::setCyrillicDevice(request.flag("cyrillicDevice"));
    const auto text = TVEntry::latin2Cyrillic(request.optionalText("text"), request.optionalText("language"));
    TVEntry::setCyrillicDevice(false);
    return {{QStringLiteral("text"), orNull(text)}};
}

QJsonObject title(const Request& request, const Surroundings&)
{
    const QString text = request.text("text");
    return {{QStringLiteral("showTitle"), showTitle(text)},
            {QStringLiteral("showInstantDescription"), orNull(showInstantDescription(text))}};
}

QJsonObject description(const Request& request, const Surroundings& surroundings)
{
    TVEntrySupplementalData extra;
    if (const auto text = request.optionalText("text"))
        extra.description = AttributedText(*text);
    descriptionCleanUp(extra, surroundings.endpoints.creditsHost);
    return {{QStringLiteral("description"), orNull(extra.description)},
            {QStringLiteral("roles"), orNull(extra.roles)},
            {QStringLiteral("directedBy"), orNull(extra.directedBy)}};
}

QJsonObject trim(const Request& request, const Surroundings&)
{
    return {{QStringLiteral("text"), orNull(trimmedListingText(request.text("text")))}};
}

QJsonObject html(const Request& request, const Surroundings&)
{
    const QString text = request.text("text");
    return {{QStringLiteral("htmlCleanUp"), htmlCleanUp(text)},
            {QStringLiteral("whitespaceCleanUp"), whitespaceCleanUp(text)}};
}

QJsonObject digest(const Request& request, const Surroundings&)
{
    const auto url = TVEntry::urlDigestFromChannel(request.id("channel"), request.instant("date"),
                                                   request.optionalText("title"), request.text("scheme"));
    return {{QStringLiteral("url"), url ? QJsonValue(url->text()) : QJsonValue()}};
}

QJsonObject details(const Request& request, const Surroundings&)
{
    TVEntry entry;
    entry.setInstantDetails1(request.optionalText("instantDetails"));
    entry.setSubtitle1(request.optionalText("subtitle"));
    entry.setInstantDescription1(request.optionalText("instantDescription"));
    return {{QStringLiteral("fullInstantDetails"), orNull(entry.fullInstantDetails())}};
}

} // namespace

const CommandTable& contentCommands()
{
    static const CommandTable commands{
        {QStringLiteral("object-id"), objectId},
        {QStringLiteral("classify"), classify},
        {QStringLiteral("category-text"), categoryText},
        {QStringLiteral("has-word"), hasWord},
        {QStringLiteral("label"), label},
        {QStringLiteral("cyrillic"), cyrillic},
        {QStringLiteral("title"), title},
        {QStringLiteral("description"), description},
        {QStringLiteral("trim"), trim},
        {QStringLiteral("html"), html},
        {QStringLiteral("digest"), digest},
        {QStringLiteral("details"), details},
    };
    return commands;
}

} // namespace vidora::inspect
