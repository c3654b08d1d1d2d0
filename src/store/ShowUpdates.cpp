#include "store/ShowUpdates.h"

#include <algorithm>

namespace vidora {

SharedShowTable listWithDescription(const ShowTable& list, const std::shared_ptr<const TVEntry>& entry,
                                    const std::shared_ptr<const TVEntrySupplementalData>& extra,
                                    const std::optional<Pictures>& pictures)
{
    const std::optional<ShowTable::Row> row = list.rowOf(entry);
    const Show show = row ? list.show(*row) : nullptr;
    if (!show)
        return nullptr;
    ShowElement element = *show;
    if (!element.categories)
        element.categories = 0;
    element.extra = extra;
    if (pictures && !pictures->empty())
        element.pictures = pictures;
    return list.with({{*row, std::make_shared<const ShowElement>(std::move(element))}});
}

SharedShowTable listWithIMDB(const ShowTable& list, const QString& identificator, std::uint32_t category,
                             const std::optional<URL>& url, const std::optional<Pictures>& pictures)
{
    const std::uint32_t mark = ShowTable::markOf(identificator.toLower());
    ShowTable::Changes changes;
    for (ShowTable::Row row = list.first(); row < list.end(); ++row) {
        if (list.categoriesOf(row) != category || list.nameMarkOf(row) != mark)
            continue;
        const Show show = list.show(row);
        if (!show || show->entry->identificator() != identificator)
            continue;
        auto extra = show->extra ? std::make_shared<TVEntrySupplementalData>(*show->extra)
                                 : std::make_shared<TVEntrySupplementalData>();
        extra->imdbURL = url;
        ShowElement element = *show;
        element.extra = std::move(extra);
        if (pictures)
            element.pictures = pictures;
        changes[row] = std::make_shared<const ShowElement>(std::move(element));
    }
    return list.with(changes);
}

bool isEqualToShowList(const ShowList& a, const ShowList& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const Show& x, const Show& y) {
        return x == y || (x->entry == y->entry && x->categories == y->categories && x->extra == y->extra &&
                          x->pictures == y->pictures);
    });
}

} // namespace vidora
