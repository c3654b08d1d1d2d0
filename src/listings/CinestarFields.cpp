#include "listings/CinestarFields.h"

#include "content/ListingText.h"

namespace vidora {

std::optional<CinestarField<QString>> timeFromCinestarListings(const PageScanner& page, qsizetype offset,
                                                               qsizetype size)
{
    const qsizetype end = offset + size;
    const auto opening = page.findExpression(u" class=\"hour", 1, u">", offset, end);
    if (!opening)
        return std::nullopt;
    const auto closing = page.find(u"<", opening->end, end);
    if (!closing)
        return std::nullopt;
    const auto time = trimmedListingText(page.slice(opening->end, closing->at));
    if (!time)
        return std::nullopt;
    return CinestarField<QString>{*time, closing->at};
}

std::optional<CinestarField<URL>> urlFromCinestarListings(const PageScanner& page, qsizetype offset, qsizetype size,
                                                          const QString& schedulePage)
{
    const auto cut = page.cut(u"href=\"", u"\"", offset, offset + size);
    if (!cut || cut->text == schedulePage)
        return std::nullopt;
    const auto url = URL::fromText(cut->text);
    if (!url)
        return std::nullopt;
    return CinestarField<URL>{*url, cut->close.at};
}

std::optional<CinestarField<QString>> titleFromCinestarListings(const PageScanner& page, qsizetype offset,
                                                                qsizetype size, QStringView key)
{
    const auto cut = page.cut(key, u"<", offset, offset + size);
    if (!cut)
        return std::nullopt;
    return CinestarField<QString>{cut->text.toString(), cut->close.at};
}

} // namespace vidora
