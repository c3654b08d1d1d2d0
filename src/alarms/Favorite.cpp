#include "alarms/Favorite.h"

#include <QCborArray>
#include <QDateTime>

#include <limits>

namespace vidora {

namespace {

constexpr QLatin1String idKey("id"), minutesKey("minutes"), dateKey("date"), previouslyShownKey("previouslyShown");

bool isMinutes(const QCborValue& value)
{
    return value.isInteger() && value.toInteger() >= std::numeric_limits<int>::min() &&
           value.toInteger() <= std::numeric_limits<int>::max();
}

} // namespace

Favorite::Favorite(QString identificator, int minutes, Instant date, std::optional<bool> previouslyShown)
    : m_identificator(std::move(identificator))
    , m_lowercasedIdentificator(m_identificator.toLower())
    , m_minutes(minutes)
    , m_date(date)
    , m_previouslyShown(previouslyShown)
{
}

QCborMap Favorite::encoded() const
{
    QCborMap map{{idKey, m_identificator},
                 {minutesKey, m_minutes},
                 {dateKey, QCborValue(QDateTime::fromMSecsSinceEpoch(unixMilliseconds(m_date), Qt::UTC))}};
    if (m_previouslyShown)
        map.insert(previouslyShownKey, *m_previouslyShown);
    return map;
}

std::shared_ptr<const Favorite> Favorite::decoded(const QCborValue& value)
{
    const QCborMap map = value.toMap();
    const QCborValue id = map[idKey], minutes = map[minutesKey], shown = map[previouslyShownKey];
    const QDateTime date = map[dateKey].toDateTime();
    if (!id.isString() || !isMinutes(minutes) || !date.isValid() || !(shown.isUndefined() || shown.isBool()))
        return nullptr;
    return std::make_shared<const Favorite>(id.toString(), static_cast<int>(minutes.toInteger()),
                                            instantFromUnixMilliseconds(date.toMSecsSinceEpoch()),
                                            shown.isBool() ? std::optional(shown.toBool()) : std::nullopt);
}

QByteArray archivedFavorites(const Favorites& favorites)
{
    QCborArray array;
    for (const auto& favorite : favorites)
        array.append(favorite->encoded());
    return array.toCborValue().toCbor();
}

std::optional<Favorites> unarchivedFavorites(const QByteArray& bytes)
{
    QCborParserError error;
    const QCborValue value = QCborValue::fromCbor(bytes, &error);
    if (error.error != QCborError::NoError || !value.isArray())
        return std::nullopt;
    Favorites favorites;
    for (const QCborValue& item : value.toArray()) {
        favorites.push_back(Favorite::decoded(item));
        if (!favorites.back())
            return std::nullopt;
    }
    return favorites;
}

} // namespace vidora
