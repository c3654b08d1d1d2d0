#pragma once

#include "platform/Instant.h"

#include <QByteArray>
#include <QCborMap>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace vidora {

/// A title that the user follows, with the alarm that is set on its broadcasts. Immutable and shared: a change makes a
/// new object, and the identity of a favourite in a list is its pointer.
class Favorite
{
public:
    Favorite(QString identificator, int minutes, Instant date, std::optional<bool> previouslyShown = {});

    /// The title as it was first given.
    const QString& identificator() const { return m_identificator; }
    const QString& lowercasedIdentificator() const { return m_lowercasedIdentificator; }
    /// Lead time of the alarm on every broadcast, in minutes; negative: no alarm.
    int minutes() const { return m_minutes; }
    /// When the favourite or its alarm was last set.
    Instant date() const { return m_date; }
    /// Only broadcasts that are, or are not, repeats; empty: any broadcast.
    std::optional<bool> previouslyShown() const { return m_previouslyShown; }

    /// A map by field name: "id" a text, "minutes" an integer, "date" a date, and "previouslyShown" a bool where it is
    /// set. Unknown fields are skipped when it is read; without one of the first three there is no favourite.
    QCborMap encoded() const;
    static std::shared_ptr<const Favorite> decoded(const QCborValue& value);

private:
    QString m_identificator;
    QString m_lowercasedIdentificator;
    int m_minutes;
    Instant m_date;
    std::optional<bool> m_previouslyShown;
};

using Favorites = std::vector<std::shared_ptr<const Favorite>>;

/// All favourites as one CBOR array (RFC 8949).
QByteArray archivedFavorites(const Favorites& favorites);
/// Nothing for bytes that are no such array, also when only one favourite in it can't be read.
std::optional<Favorites> unarchivedFavorites(const QByteArray& bytes);

} // namespace vidora
