#pragma once

#include "listings/PageScanner.h"
#include "platform/URL.h"

#include <QString>

#include <optional>

namespace vidora {

/// A field of a show of the Cinestar pages, and the position of the marker that closes it.
template<typename Value>
struct CinestarField
{
    Value value;
    qsizetype position;
};

/// Readers of the fields: each searches `size` units at `offset`, and gives nothing where there is no value. A range
/// that does not lie within the page throws RangeException.
std::optional<CinestarField<QString>> timeFromCinestarListings(const PageScanner& page, qsizetype offset,
                                                               qsizetype size);
/// `schedulePage`: address of the provider's schedule page, a link to which belongs to no show.
std::optional<CinestarField<URL>> urlFromCinestarListings(const PageScanner& page, qsizetype offset, qsizetype size,
                                                          const QString& schedulePage);
/// `key`: the marker in front of the title.
std::optional<CinestarField<QString>> titleFromCinestarListings(const PageScanner& page, qsizetype offset,
                                                                qsizetype size, QStringView key);

} // namespace vidora
