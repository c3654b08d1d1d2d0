#include "screens/ShowDetailStep.h"

namespace vidora {

namespace {

ShowImage anyImage(const std::optional<Pictures>& pictures, const ShowServices& services)
{
    if (!services.pictures || !pictures || pictures->empty())
        return {};
    return services.pictures->image100AtURL(*pictures->begin(), true).value_or(ShowImage());
}

/// The show with what its page gave; a part that it has already stays.
Show extended(const Show& show, const ShowDescription& description)
{
    auto element = std::make_shared<ShowElement>(*show);
    element->categories = show->categories.value_or(0) | description.categories.value_or(0);
    if (!element->extra)
        element->extra = description.data;
    if (element->extra && !element->pictures)
        element->pictures = description.pictures;
    return element;
}

ShowImage loadShow(Show& show, const ShowServices& services)
{
    if (!show->entry->url()) {
        if (show->count() < 4 && services.details)
            services.details->findFilm(show);
        return show->count() < 4 ? ShowImage() : anyImage(show->pictures, services);
    }
    if (show->count() >= 3)
        return anyImage(show->pictures, services);
    const auto description = services.details ? services.details->netDescriptionFor(show->entry) : std::nullopt;
    if (!description)
        return {};
    show = extended(show, *description);
    return anyImage(description->pictures, services);
}

} // namespace

ShowDetailStep::Result ShowDetailStep::run(const ShowList& shows, const ShowServices& services)
{
    Result result{shows, {}};
    for (Show& show : result.shows)
        result.images.push_back(loadShow(show, services));
    return result;
}

} // namespace vidora
