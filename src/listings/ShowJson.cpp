#include "listings/ShowJson.h"

#include <QJsonArray>

namespace vidora {

namespace {

using Text = std::optional<QString>;

QJsonValue json(const Text& text)
{
    return text ? QJsonValue(*text) : QJsonValue();
}

QJsonValue json(const std::optional<AttributedText>& text)
{
    return text ? QJsonValue(text->string()) : QJsonValue();
}

QJsonValue json(const std::optional<URL>& url)
{
    return url ? QJsonValue(url->text()) : QJsonValue();
}

QJsonValue json(const std::optional<Instant>& instant)
{
    return instant ? QJsonValue(isoText(*instant)) : QJsonValue();
}

QJsonValue json(const std::optional<Pictures>& pictures)
{
    if (!pictures)
        return {};
    QJsonArray array;
    for (const URL& picture : *pictures)
        array.append(picture.text());
    return array;
}

Text text(const QJsonObject& object, QLatin1String key)
{
    const QJsonValue value = object.value(key);
    return value.isString() ? Text(value.toString()) : std::nullopt;
}

std::optional<AttributedText> attributedText(const QJsonObject& object, QLatin1String key)
{
    const Text plain = text(object, key);
    return plain ? std::optional<AttributedText>(*plain) : std::nullopt;
}

std::optional<URL> url(const QJsonObject& object, QLatin1String key)
{
    return URL::fromText(text(object, key).value_or(QString()));
}

std::optional<Instant> instant(const QJsonObject& object, QLatin1String key)
{
    return instantFromIsoText(text(object, key).value_or(QString()));
}

void fill(TVEntry& entry, const QJsonObject& object)
{
    const auto field = [&object](const char* key) { return text(object, QLatin1String(key)); };
    entry.setChannel(ObjectId::initWithHex(field("channel").value_or(QString())));
    entry.setSourceId(field("sourceId"));
    entry.setDateTime(instant(object, QLatin1String("dateTime")));
    entry.setEndDateTime(instant(object, QLatin1String("endDateTime")));
    if (const Text identificator = field("identificator"))
        entry.setIdentificator(*identificator);
    entry.setInstantDetails1(field("instantDetails1"));
    entry.setSubtitle1(field("subtitle1"));
    entry.setInstantDescription1(field("instantDescription1"));
    entry.setUrl(url(object, QLatin1String("url")));
    entry.setPreviouslyShown(object.value(QLatin1String("previouslyShown")).toBool());
    entry.setLanguage(field("language"));
}

std::shared_ptr<TVEntrySupplementalData> supplementalData(const QJsonObject& object)
{
    auto extra = std::make_shared<TVEntrySupplementalData>();
    extra->description = attributedText(object, QLatin1String("description"));
    extra->episodeDescription = text(object, QLatin1String("episodeDescription"));
    extra->details = text(object, QLatin1String("details"));
    extra->directedBy = text(object, QLatin1String("directedBy"));
    extra->roles = attributedText(object, QLatin1String("roles"));
    extra->imdbURL = url(object, QLatin1String("imdbURL"));
    extra->trailerURL = url(object, QLatin1String("trailerURL"));
    extra->language = text(object, QLatin1String("language"));
    return extra;
}

Pictures pictures(const QJsonValue& value)
{
    Pictures result;
    for (const QJsonValue picture : value.toArray()) {
        if (const auto address = URL::fromText(picture.toString()))
            result.insert(*address);
    }
    return result;
}

int partCount(const QJsonObject& object)
{
    const auto present = [&object](const char* key) {
        const QJsonValue value = object.value(QLatin1String(key));
        return !value.isNull() && !value.isUndefined();
    };
    const int implied = present("pictures") ? 4 : present("extra") ? 3 : present("categories") ? 2 : 1;
    return object.value(QLatin1String("count")).toInt(implied);
}

} // namespace

QJsonObject supplementalDataToJson(const TVEntrySupplementalData& extra)
{
    return {
        {QStringLiteral("description"), json(extra.description)},
        {QStringLiteral("episodeDescription"), json(extra.episodeDescription)},
        {QStringLiteral("details"), json(extra.details)},
        {QStringLiteral("directedBy"), json(extra.directedBy)},
        {QStringLiteral("roles"), json(extra.roles)},
        {QStringLiteral("imdbURL"), json(extra.imdbURL)},
        {QStringLiteral("trailerURL"), json(extra.trailerURL)},
        {QStringLiteral("language"), json(extra.language)},
    };
}

QJsonObject showToJson(const ShowElement& show)
{
    const TVEntry& entry = *show.entry;
    return {
        {QStringLiteral("count"), show.count()},
        {QStringLiteral("channel"), entry.channel().hex()},
        {QStringLiteral("sourceId"), json(entry.sourceId())},
        {QStringLiteral("language"), json(entry.language())},
        {QStringLiteral("dateTime"), json(entry.dateTime())},
        {QStringLiteral("endDateTime"), json(entry.endDateTime())},
        {QStringLiteral("identificator"), json(entry.identificator())},
        {QStringLiteral("title"), json(entry.title())},
        {QStringLiteral("instantDetails1"), json(entry.instantDetails1())},
        {QStringLiteral("subtitle1"), json(entry.subtitle1())},
        {QStringLiteral("instantDescription1"), json(entry.instantDescription1())},
        {QStringLiteral("fullInstantDetails"), json(entry.fullInstantDetails())},
        {QStringLiteral("url"), json(entry.url())},
        {QStringLiteral("previouslyShown"), entry.previouslyShown()},
        {QStringLiteral("categories"), show.categories ? QJsonValue(qint64(*show.categories)) : QJsonValue()},
        {QStringLiteral("extra"), show.extra ? QJsonValue(supplementalDataToJson(*show.extra)) : QJsonValue()},
        {QStringLiteral("pictures"), json(show.pictures)},
    };
}

Show showFromJson(const QJsonObject& object)
{
    ShowDraft draft;
    fill(*draft.entry, object);
    const int count = partCount(object);
    if (count >= 2)
        draft.categories = static_cast<std::uint32_t>(object.value(QLatin1String("categories")).toInteger());
    if (count >= 3)
        draft.extra = supplementalData(object.value(QLatin1String("extra")).toObject());
    if (count >= 4)
        draft.pictures = pictures(object.value(QLatin1String("pictures")));
    return std::move(draft).publish();
}

QJsonObject listsToJson(const ListingParser::Result& lists)
{
    QJsonObject object;
    for (const auto& [channel, list] : lists) {
        QJsonArray shows;
        for (const Show& show : *list)
            shows.append(showToJson(*show));
        object.insert(channel.hex(), shows);
    }
    return object;
}

} // namespace vidora
