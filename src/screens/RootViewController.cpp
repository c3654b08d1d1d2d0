#include "screens/RootViewController.h"

#include "platform/DeviceSettings.h"
#include "screens/ChannelListViewController.h"
#include "screens/ChannelViewController.h"
#include "screens/DetailViewController.h"
#include "screens/Navigation.h"
#include "screens/ShowRows.h"

#include <QDateTime>

#include <algorithm>

namespace vidora {

namespace {

constexpr Milliseconds pictureDelay{200}; // rows that are scrolled past quickly fetch nothing

TextAttributes headerAttributes()
{
    TextAttributes attributes;
    attributes.pointSize = 20;
    attributes.weight = TextAttributes::Weight::Bold;
    attributes.colour = TextAttributes::Colour::Given;
    attributes.givenColour = colour::indigo;
    return attributes;
}

QString identifierOf(const Show& show)
{
    return show->entry->identificator().value_or(QString());
}

} // namespace

RootViewController::RootViewController(VidoraAppDelegate& delegate)
    : m_delegate(delegate)
{
}

QString RootViewController::title() const
{
    return localized("Currently");
}

std::vector<BarButton> RootViewController::rightBarButtonItems() const
{
    return {{BarButton::Kind::Text, localized("Currently"), [this] { const_cast<RootViewController*>(this)->list(); },
             localized("List of the channels")}};
}

QString RootViewController::placeholder() const
{
    return m_hasContent ? localized("Choose the channels you want to see in the tab \"Channels\".") : QString();
}

void RootViewController::viewDidLoad()
{
    for (const auto& [id, channel] : m_delegate.channelData()) {
        if (const auto url = streamURL(channel))
            m_streams.emplace(id, *url);
    }
}

void RootViewController::viewDidAppear()
{
    if (m_channelEntriesLoaded && !m_modifiedSelectedChannels)
        return;
    if (!m_hasContent)
        showFirstRows();
    selectedChannelsChanged();
    if (!m_modifiedSelectedChannels)
        return;
    m_modifiedSelectedChannels = false;
    m_delegate.alarmSynchronisation().setSynchronized(false);
    m_delegate.alarmSynchronisation().syncAlarms();
    m_delegate.checkAndUpdateAllChannels();
}

void RootViewController::refresh()
{
    m_delegate.checkAndUpdateAllChannels();
}

RootViewController::Headers RootViewController::headersOf(const std::vector<ObjectId>& channels) const
{
    Headers headers;
    for (const ObjectId& id : channels) {
        const auto found = m_delegate.channelData().find(id);
        const bool isKnown = found != m_delegate.channelData().end();
        const QString icon = isKnown ? found->second.icon().value_or(QString()) : QString();
        headers.titles.push_back(isKnown ? channelTitle(found->second) : QStringLiteral("?"));
        headers.iconNames.push_back(icon.mid(icon.indexOf(QLatin1Char('/')) + 1));
        headers.icons.push_back(m_delegate.icons().iconNamed(headers.iconNames.back()).value_or(QString()));
    }
    return headers;
}

void RootViewController::selectedChannelsChanged()
{
    if (!isViewLoaded())
        return;
    // No list may arrive between the question and the answer: it would be lost under the answer.
    auto pause = m_delegate.pauseLoading();
    m_channelEntriesLoaded = true;
    const auto selection = m_delegate.channels().selected();
    m_delegate.listings().onAirShowsWithQueue(
        DispatchQueue::main(),
        m_mainBlocks.guarded([this, selection, headers = headersOf(selection), pause](std::vector<ShowList> entries) {
            show(selection, headers, std::move(entries));
        }));
}

// The lists may take long to load. What the beginnings of their files tell stands there until then.
void RootViewController::showFirstRows()
{
    const auto selection = m_delegate.channels().selected();
    m_delegate.listings().onAirShowsOfFilesWithQueue(
        DispatchQueue::main(),
        m_mainBlocks.guarded([this, selection, headers = headersOf(selection)](std::vector<ShowList> entries) {
            if (!m_hasContent)
                show(selection, headers, std::move(entries));
        }));
}

void RootViewController::show(const std::vector<ObjectId>& channels, const Headers& headers,
                              std::vector<ShowList> entries)
{
    entries.resize(channels.size());
    const auto isAlike = [](const ShowList& a, const ShowList& b) { return a.size() == b.size(); };
    const bool rowsStay =
        m_hasContent && channels == m_selectedChannelsArray &&
        std::equal(entries.begin(), entries.end(), m_channelEntries.begin(), m_channelEntries.end(), isAlike);
    const auto change = [&] {
        m_selectedChannelsArray = channels;
        m_channelTitles = headers.titles;
        m_channelIcons = headers.icons;
        m_channelIconNames = headers.iconNames;
        m_channelEntries = std::move(entries);
        m_hasContent = true;
    };
    if (rowsStay) { // a view keeps its place then
        change();
        for (std::size_t section = 0; section < numberOfSections(); ++section)
            reloadRows(section, 0, numberOfRowsInSection(section));
    } else {
        reloadData(change);
    }
    surroundingsChanged();
}

std::size_t RootViewController::numberOfRowsInSection(std::size_t section) const
{
    return m_channelEntries[section].size() + 1;
}

const Show* RootViewController::showAt(RowPath path) const
{
    if (path.section >= m_channelEntries.size() || path.row == 0)
        return nullptr;
    const ShowList& entries = m_channelEntries[path.section];
    return path.row <= entries.size() ? &entries[path.row - 1] : nullptr;
}

std::optional<std::size_t> RootViewController::sectionOf(const ObjectId& channel) const
{
    const auto found = std::find(m_selectedChannelsArray.begin(), m_selectedChannelsArray.end(), channel);
    if (found == m_selectedChannelsArray.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - m_selectedChannelsArray.begin());
}

bool RootViewController::hasShows(const ObjectId& channel) const
{
    const auto section = sectionOf(channel);
    return section && !m_channelEntries[*section].empty();
}

AttributedText RootViewController::updatedText(const ObjectId& channel) const
{
    const auto object = m_delegate.channels().channelWithChannelId(channel);
    const auto loaded = object ? object->timeLoaded() : std::nullopt;
    if (!loaded)
        return {};
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(unixMilliseconds(*loaded), DeviceSettings::timeZone());
    AttributedText text;
    text.append(localized("Updated ") + DeviceSettings::locale().toString(local, QLocale::ShortFormat),
                subtitleAttributes());
    return text;
}

ScreenRow RootViewController::headerRow(std::size_t section) const
{
    const ObjectId& channel = m_selectedChannelsArray[section];
    const bool hasShows = !m_channelEntries[section].empty();
    ScreenRow row;
    row.kind = ScreenRow::Kind::Header;
    row.text.append(m_channelTitles[section], headerAttributes());
    row.subtitle = updatedText(channel);
    row.backgroundColour = colour::tertiaryFill;
    row.icon = m_channelIcons[section];
    row.accessory = hasStream(channel) ? Accessory::Play : hasShows ? Accessory::Disclosure : Accessory::Activity;
    row.selectable = hasShows;
    return row;
}

std::optional<double> RootViewController::progressOf(const TVEntry& entry) const
{
    const auto start = entry.dateTime(), end = entry.endDateTime();
    if (!start || !end || *start == *end)
        return std::nullopt;
    const double progress = static_cast<double>((m_delegate.environment().clock.now() - *start).count()) /
                            static_cast<double>((*end - *start).count());
    return progress >= 0 && progress <= 1 ? std::optional(progress) : std::nullopt;
}

std::optional<ShowImage> RootViewController::imageOf(const ObjectId& channel, const Show& show) const
{
    const auto images = m_showImages.find(channel);
    if (images == m_showImages.end())
        return std::nullopt;
    const auto found = images->second.find(identifierOf(show));
    return found == images->second.end() ? std::nullopt : std::optional(found->second);
}

ScreenRow RootViewController::rowAt(RowPath path) const
{
    if (path.row == 0)
        return headerRow(path.section);
    const Show* show = showAt(path);
    if (!show)
        return {};
    const auto progress = progressOf(*(*show)->entry);
    ScreenRow row = showRow(m_delegate, *show, progress.has_value());
    if (m_delegate.imagesEnabled())
        row.picture = imageOf(m_selectedChannelsArray[path.section], *show).value_or(ShowImage());
    row.progress = progress;
    return row;
}

void RootViewController::selectRow(RowPath path)
{
    if (path.section >= m_channelEntries.size())
        return;
    const ObjectId& channel = m_selectedChannelsArray[path.section];
    const QString& iconName = m_channelIconNames[path.section];
    if (const Show* show = showAt(path))
        pushFrom(m_delegate, *this, std::make_shared<DetailViewController>(*show, iconName));
    else if (path.row == 0 && m_channelEntries[path.section].empty() && hasStream(channel))
        play(channel);
    else if (path.row == 0)
        selectedChannelIdentificator(channel, m_channelTitles[path.section], iconName);
}

void RootViewController::accessoryTapped(RowPath path)
{
    if (path.row == 0 && path.section < m_selectedChannelsArray.size())
        play(m_selectedChannelsArray[path.section]);
}

void RootViewController::play(const ObjectId& channel)
{
    const auto stream = m_streams.find(channel);
    if (stream != m_streams.end() && m_delegate.playURL)
        m_delegate.playURL(stream->second);
}

void RootViewController::list()
{
    presentFrom(m_delegate, *this,
                std::make_shared<ChannelListViewController>(m_delegate, m_selectedChannelsArray, m_channelTitles,
                                                            m_channelIcons, m_channelIconNames));
}

void RootViewController::selectedChannelIdentificator(const ObjectId& channel, const QString& title,
                                                      const QString& channelIconName)
{
    m_delegate.listings().cachedListForChannel(
        channel, QualityOfService::UserInitiated,
        m_mainBlocks.guarded([this, channel, title, channelIconName](const SharedShowList& list) {
            if (!list->empty())
                pushFrom(m_delegate, *this,
                         std::make_shared<ChannelViewController>(m_delegate, title, *list, channelIconName, channel));
        }));
}

std::vector<SwipeAction> RootViewController::swipeActions(RowPath path)
{
    const Show* show = showAt(path);
    return show ? m_delegate.swipeActionsConfigurationForEntry(*show, *this) : std::vector<SwipeAction>();
}

void RootViewController::recolor()
{
    m_mainBlocks.async([this] { reloadData(); });
}

void RootViewController::reloadChannel(const ObjectId& channel, const ShowList& entries)
{
    const auto section = sectionOf(channel);
    if (!section || entries.empty())
        return;
    m_showImages.erase(channel);
    setEntries(*section, entries);
}

void RootViewController::setEntries(std::size_t section, const ShowList& entries)
{
    ShowList& present = m_channelEntries[section];
    const std::size_t before = present.size() + 1, after = entries.size() + 1;
    // Rows that stay change only after those that come or go: a view takes them for the same until it is told.
    if (before > after)
        removeRows(section, after, before - after, [&] { present.resize(entries.size()); });
    else if (before < after)
        insertRows(section, before, after - before, [&] {
            const auto shown = static_cast<std::ptrdiff_t>(present.size());
            present.insert(present.end(), entries.begin() + shown, entries.end());
        });
    present = entries;
    reloadRows(section, 0, std::min(before, after));
}

void RootViewController::timePassed()
{
    if (!m_hasContent)
        return;
    auto pause = m_delegate.pauseLoading(); // as in `selectedChannelsChanged`
    m_delegate.listings().onAirShowsWithQueue(
        DispatchQueue::main(),
        m_mainBlocks.guarded([this, channels = m_selectedChannelsArray, pause](std::vector<ShowList> entries) {
            if (channels != m_selectedChannelsArray)
                return;
            entries.resize(channels.size());
            for (std::size_t section = 0; section < entries.size(); ++section)
                rollOn(section, std::move(entries[section]));
        }));
}

void RootViewController::rollOn(std::size_t section, ShowList entries)
{
    ShowList& present = m_channelEntries[section];
    const auto isSame = [](const Show& a, const Show& b) { return a->entry == b->entry; };
    const auto placeOf = [&](const Show& show) {
        return std::find_if(present.begin(), present.end(), [&](const Show& other) { return isSame(show, other); });
    };
    for (Show& show : entries) { // with what its page told meanwhile
        if (const auto known = placeOf(show); known != present.end())
            show = *known;
    }
    const auto over = entries.empty() ? present.begin() : placeOf(entries.front());
    if (over != present.begin() && over != present.end())
        removeRows(section, 1, static_cast<std::size_t>(over - present.begin()),
                   [&] { present.erase(present.begin(), over); });
    setEntries(section, entries);
}

// --- pictures and details

void RootViewController::rowDisplayed(RowPath path)
{
    const Show* show = showAt(path);
    if (!show)
        return;
    const ObjectId& channel = m_selectedChannelsArray[path.section];
    if (imageOf(channel, *show))
        return;
    if (m_delegate.imagesEnabled() && (*show)->count() >= 4)
        loadImage(channel, *show);
    const auto object = m_delegate.channels().channelWithChannelId(channel);
    if (m_channelsWithLoadedShowDetails.contains(channel) || !object || object->reloadNeeded())
        return;
    m_channelsWithLoadedShowDetails.insert(channel);
    if (m_delegate.imagesEnabled() && m_delegate.application().applicationState() == Application::State::Active)
        m_mainBlocks.after(pictureDelay, [this, channel] { startDetailStep(channel); });
}

void RootViewController::loadImage(const ObjectId& channel, const Show& show)
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

void RootViewController::setShowImage(const ShowImage& image, const ObjectId& forChannelID,
                                      const QString& showIdentifier)
{
    m_showImages[forChannelID][showIdentifier] = image;
    reloadShow(forChannelID, showIdentifier);
}

void RootViewController::reloadShow(const ObjectId& channel, const QString& identifier)
{
    const auto section = sectionOf(channel);
    if (!section)
        return;
    const ShowList& entries = m_channelEntries[*section];
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (identifierOf(entries[i]) == identifier)
            reloadRows(*section, i + 1, 1);
    }
}

void RootViewController::startDetailStep(const ObjectId& channel)
{
    const auto section = sectionOf(channel);
    if (!section || m_delegate.application().applicationState() != Application::State::Active)
        return;
    const ShowServices services = m_delegate.showServices();
    if (!services.details && !services.pictures)
        return;
    DispatchQueue::global(QualityOfService::Background)
        .async([shows = m_channelEntries[*section], services,
                done = m_mainBlocks.guarded(
                    [this, channel, shows = m_channelEntries[*section]](const ShowDetailStep::Result& result) {
                        detailsLoaded(channel, shows, result);
                    })] {
            DispatchQueue::main().async([done, result = ShowDetailStep::run(shows, services)] { done(result); });
        });
}

void RootViewController::detailsLoaded(const ObjectId& channel, const ShowList& before,
                                       const ShowDetailStep::Result& result)
{
    const auto section = sectionOf(channel);
    if (!section || m_delegate.application().applicationState() != Application::State::Active)
        return;
    if (m_channelEntries[*section] != before) { // the pass was faster: its shows are to be asked about again
        m_channelsWithLoadedShowDetails.erase(channel);
        return;
    }
    m_channelEntries[*section] = result.shows;
    for (std::size_t i = 0; i < result.images.size(); ++i) {
        if (result.images[i].width > 0)
            setShowImage(result.images[i], channel, identifierOf(result.shows[i]));
    }
}

} // namespace vidora
