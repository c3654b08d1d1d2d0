#include "screens/HomePictures.h"

#include <algorithm>

namespace vidora {

namespace {

constexpr Milliseconds pictureDelay{200}; // rows that are scrolled past quickly fetch nothing

QString identifierOf(const Show& show)
{
    return show->entry->identificator().value_or(QString());
}

} // namespace

HomePictures::HomePictures(VidoraAppDelegate& delegate, PicturedRows& rows)
    : m_delegate(delegate)
    , m_rows(rows)
{
}

std::optional<ShowImage> HomePictures::imageOf(const ObjectId& channel, const Show& show) const
{
    const auto images = m_showImages.find(channel);
    if (images == m_showImages.end())
        return std::nullopt;
    const auto found = images->second.find(identifierOf(show));
    return found == images->second.end() ? std::nullopt : std::optional(found->second);
}

void HomePictures::setShowImage(const ShowImage& image, const ObjectId& forChannelID, const QString& showIdentifier)
{
    m_showImages[forChannelID][showIdentifier] = image;
    forgetGoneShows(forChannelID); // it may have come late
    m_rows.reloadShow(forChannelID, showIdentifier);
}

void HomePictures::forget(const ObjectId& channel)
{
    m_showImages.erase(channel);
    m_askedPictures.erase(channel);
    m_channelsWithLoadedShowDetails.erase(channel);
}

void HomePictures::forgetGoneShows(const ObjectId& channel)
{
    const auto images = m_showImages.find(channel);
    const ShowList* entries = m_rows.entriesOf(channel);
    if (images == m_showImages.end() || !entries)
        return;
    std::erase_if(images->second, [&](const auto& image) {
        return std::none_of(entries->begin(), entries->end(),
                            [&](const Show& show) { return identifierOf(show) == image.first; });
    });
}

void HomePictures::forgetGoneShows()
{
    std::erase_if(m_showImages, [this](const auto& images) { return !m_rows.entriesOf(images.first); });
    for (const auto& [channel, images] : m_showImages)
        forgetGoneShows(channel);
}

void HomePictures::displayed(const ObjectId& channel, const Show& show)
{
    if (imageOf(channel, show))
        return;
    if (m_delegate.imagesEnabled() && show->count() >= 4 && m_askedPictures[channel].insert(identifierOf(show)).second)
        loadImage(channel, show);
    const auto object = m_delegate.channels().channelWithChannelId(channel);
    if (m_channelsWithLoadedShowDetails.contains(channel) || !object || object->reloadNeeded())
        return;
    m_channelsWithLoadedShowDetails.insert(channel);
    if (m_delegate.imagesEnabled() && m_delegate.application().applicationState() == Application::State::Active)
        m_mainBlocks.after(pictureDelay, [this, channel] { startDetailStep(channel); });
}

void HomePictures::loadImage(const ObjectId& channel, const Show& show)
{
    const auto pictures = m_delegate.showServices().pictures;
    if (!pictures || show->pictures->empty())
        return;
    m_mainBlocks.after(pictureDelay, [this, pictures, channel, show] {
        pictures->asyncLoadOfShowImageAtURL(*show->pictures->begin(),
                                            m_mainBlocks.guarded([this, channel, show](const ShowImage& image) {
                                                setShowImage(image, channel, identifierOf(show));
                                            }));
    });
}

void HomePictures::startDetailStep(const ObjectId& channel)
{
    const ShowList* entries = m_rows.entriesOf(channel);
    if (!entries || m_delegate.application().applicationState() != Application::State::Active)
        return;
    const ShowServices services = m_delegate.showServices();
    if (!services.details && !services.pictures)
        return;
    DispatchQueue::global(QualityOfService::Background)
        .async([shows = *entries, services,
                done = m_mainBlocks.guarded([this, channel, shows = *entries](const ShowDetailStep::Result& result) {
                    detailsLoaded(channel, shows, result);
                })] {
            DispatchQueue::main().async([done, result = ShowDetailStep::run(shows, services)] { done(result); });
        });
}

void HomePictures::detailsLoaded(const ObjectId& channel, const ShowList& before, const ShowDetailStep::Result& result)
{
    const ShowList* entries = m_rows.entriesOf(channel);
    if (!entries || m_delegate.application().applicationState() != Application::State::Active)
        return;
    if (*entries != before) { // the pass was faster: its shows are to be asked about again
        m_channelsWithLoadedShowDetails.erase(channel);
        return;
    }
    m_rows.setDetailedEntries(channel, result.shows);
    for (std::size_t i = 0; i < result.images.size(); ++i) {
        if (result.images[i].width > 0)
            setShowImage(result.images[i], channel, identifierOf(result.shows[i]));
    }
}

} // namespace vidora
