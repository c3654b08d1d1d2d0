#include "store/ShowUpdates.h"

#include <algorithm>

namespace vidora {

std::optional<ShowList> listWithDescription(const ShowList& list, const std::shared_ptr<const TVEntry>& entry,
                                            const std::shared_ptr<const TVEntrySupplementalData>& extra,
                                            const std::optional<Pictures>& pictures)
{
    const auto found = std::find_if(list.begin(), list.end(), [&](const Show& show) {
        return show->entry == entry || show->entry->dateTime() > entry->dateTime();
    });
    if (found == list.end() || (*found)->entry != entry)
        return std::nullopt;
    ShowElement element = **found;
    if (!element.categories)
        element.categories = 0;
    element.extra = extra;
    if (pictures && !pictures->empty())
        element.pictures = pictures;
    ShowList changed = list;
    changed[static_cast<std::size_t>(found - list.begin())] = std::make_shared<const ShowElement>(std::move(element));
    return changed;
}

ShowList listWithIMDB(const ShowList& list, const QString& identificator, std::uint32_t category,
                      const std::optional<URL>& url, const std::optional<Pictures>& pictures)
{
    ShowList changed = list;
    for (Show& show : changed) {
        if (show->categories != category || show->entry->identificator() != identificator)
            continue;
        auto extra = show->extra ? std::make_shared<TVEntrySupplementalData>(*show->extra)
                                 : std::make_shared<TVEntrySupplementalData>();
        extra->imdbURL = url;
        ShowElement element = *show;
        element.extra = std::move(extra);
        if (pictures)
            element.pictures = pictures;
        show = std::make_shared<const ShowElement>(std::move(element));
    }
    return changed;
}

bool isEqualToShowList(const ShowList& a, const ShowList& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const Show& x, const Show& y) {
        return x == y || (x->entry == y->entry && x->categories == y->categories && x->extra == y->extra &&
                          x->pictures == y->pictures);
    });
}

} // namespace vidora
