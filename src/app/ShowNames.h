#pragma once

#include "alarms/Favorite.h"
#include "app/CommandSession.h"
#include "content/ShowElement.h"

#include <QHash>

#include <optional>

namespace vidora {

/// The listed shows whose title a text is, or is a part of, in either alphabet; the exact ones where there are any.
ShowList showsNamedLike(const QString& text, CommandSession& session);

/// The raw title, by which alarms are kept, of the listed shows that the arguments name by the shown one; nothing where
/// no show is listed by it. Throws Refusal where several titles fit.
std::optional<QString> listedTitle(CommandSession& session);

/// The favourite that the arguments name, by its own title or by that in which its shows are listed. Throws Refusal.
QString favouriteNamed(CommandSession& session);

/// The coming broadcast that the arguments name by title, --at and --on. Throws Refusal.
Show broadcastNamed(CommandSession& session);

/// The titles of the favourites as their broadcasts are shown, by those by which they are kept, in lower case.
/// Favourites of which nothing is listed are not among them.
QHash<QString, QString> shownFavourites(CommandSession& session);

/// A broadcast in one line, with its day and channel.
QString lineOf(const Show& show, CommandSession& session);

} // namespace vidora
