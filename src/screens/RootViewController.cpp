#include "screens/RootViewController.h"

#include "screens/ChannelListViewController.h"
#include "screens/ChannelViewController.h"
#include "screens/DetailViewController.h"
#include "screens/Navigation.h"
#include "screens/ShowRows.h"

#include <algorithm>

namespace vidora {

namespace {

TextAttributes headerAttributes()
{
    TextAttributes attributes;
    attributes.pointSize = 20;
    attributes.weight = TextAttributes::Weight::Bold;
    attributes.colour = TextAttributes::Colour::Given;
    attributes.givenColour = colour::indigo;
    return attributes;
}

} // namespace

RootViewController::RootViewController(VidoraAppDelegate& delegate)
    : m_delegate(delegate)
    , m_pictures(delegate, *this)
{
}

QString RootViewController::title() const
{
    return localized("Currently");
}

std::vector<BarButton> RootViewController::rightBarButtonItems() const
{
    return {{BarButton::Kind::List, localized("Currently"), [this] { const_cast<RootViewController*>(this)->list(); },
             localized("List of the channels")}};
}

QString RootViewController::placeholder() const
{
    return m_hasContent ? localized("Choose the channels you want to see in the tab \"Channels\".") : QString();
}

void RootViewController::viewDidAppear()
{
    if (m_channelEntriesLoaded && !m_modifiedSelectedChannels)
        return;
    selectedChannelsChanged();
    if (!m_modifiedSelectedChannels)
        return;
    m_modifiedSelectedChannels = false;
    m_delegate.alarmEngine().setSynchronized(false);
    m_delegate.alarmEngine().syncAlarms();
    m_delegate.checkAndUpdateAllChannels();
}

void RootViewController::refresh()
{
    m_delegate.checkAndUpdateAllChannels();
}

RootViewController::Sections RootViewController::sectionsOf(const std::vector<ObjectId>& channels) const
{
    Sections sections;
    for (const ObjectId& id : channels) {
        ChannelFace face = channelFace(id, m_delegate.channelData());
        QString icon = m_delegate.icons().iconNamed(face.iconName).value_or(QString());
        sections.push_back({std::move(face), std::move(icon), {}, false});
    }
    return sections;
}

void RootViewController::selectedChannelsChanged()
{
    if (!isViewLoaded())
        return;
    // No list may arrive between the question and the answer: it would be lost under the answer.
    auto pause = m_delegate.pauseLoading();
    m_channelEntriesLoaded = true;
    m_delegate.listings().onAirShowsWithQueue(
        DispatchQueue::main(),
        m_mainBlocks.guarded([this, sections = sectionsOf(m_delegate.channels().selected()),
                              pause](std::vector<ShowList> entries) { show(sections, std::move(entries)); }));
}

void RootViewController::show(Sections sections, std::vector<ShowList> entries)
{
    entries.resize(sections.size());
    for (std::size_t i = 0; i < sections.size(); ++i)
        sections[i].entries = std::move(entries[i]);
    const auto isAlike = [](const Section& a, const Section& b) {
        return a.channel.channel == b.channel.channel && a.entries.size() == b.entries.size();
    };
    const bool rowsStay =
        m_hasContent && std::equal(sections.begin(), sections.end(), m_sections.begin(), m_sections.end(), isAlike);
    const auto change = [&] {
        m_sections = std::move(sections);
        m_hasContent = true;
    };
    if (rowsStay) { // a view keeps its place then
        change();
        for (std::size_t section = 0; section < numberOfSections(); ++section)
            reloadRows(section, 0, numberOfRowsInSection(section));
    } else {
        reloadData(change);
    }
    m_pictures.forgetGoneShows();
    surroundingsChanged();
}

std::size_t RootViewController::numberOfRowsInSection(std::size_t section) const
{
    return m_sections[section].entries.size() + 1;
}

const Show* RootViewController::showAt(RowPath path) const
{
    if (path.section >= m_sections.size() || path.row == 0)
        return nullptr;
    const ShowList& entries = m_sections[path.section].entries;
    return path.row <= entries.size() ? &entries[path.row - 1] : nullptr;
}

std::optional<std::size_t> RootViewController::sectionOf(const ObjectId& channel) const
{
    const auto found = std::find_if(m_sections.begin(), m_sections.end(),
                                    [&](const Section& section) { return section.channel.channel == channel; });
    if (found == m_sections.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - m_sections.begin());
}

ScreenRow RootViewController::headerRow(const Section& section) const
{
    const bool hasShows = !section.entries.empty(), hasFailed = !hasShows && section.hasFailed;
    ScreenRow row;
    row.kind = ScreenRow::Kind::Header;
    row.text.append(section.channel.title, headerAttributes());
    row.subtitle.append(hasFailed ? localized("No list") : updatedText(m_delegate, section.channel.channel),
                        subtitleAttributes());
    row.backgroundColour = colour::tertiaryFill;
    row.icon = section.icon;
    row.accessory = section.channel.streamURL ? Accessory::Play
                    : hasShows                ? Accessory::Disclosure
                    : hasFailed               ? Accessory::Retry
                                              : Accessory::Activity;
    row.selectable = hasShows || row.accessory == Accessory::Retry;
    return row;
}

ScreenRow RootViewController::rowAt(RowPath path) const
{
    if (path.row == 0)
        return headerRow(m_sections[path.section]);
    const Show* show = showAt(path);
    if (!show)
        return {};
    ScreenRow row = showRow(m_delegate, *show, progressOf(*(*show)->entry, m_delegate.environment().clock.now()));
    if (m_delegate.imagesEnabled()) {
        const auto image = m_pictures.imageOf(m_sections[path.section].channel.channel, *show);
        row.picture = image.value_or(ShowImage());
        row.hasPicture = image ? image->width > 0 : (*show)->pictures && !(*show)->pictures->empty();
    }
    return row;
}

void RootViewController::selectRow(RowPath path)
{
    if (path.section >= m_sections.size())
        return;
    const Section& section = m_sections[path.section];
    if (const Show* show = showAt(path))
        pushFrom(m_delegate, *this, std::make_shared<DetailViewController>(*show, section.channel.iconName));
    else if (path.row == 0 && section.entries.empty() && section.channel.streamURL)
        play(section.channel);
    else if (path.row == 0 && section.entries.empty() && section.hasFailed)
        tryAgain(path.section);
    else if (path.row == 0)
        selectedChannelIdentificator(section.channel);
}

void RootViewController::accessoryTapped(RowPath path)
{
    if (path.row != 0 || path.section >= m_sections.size())
        return;
    if (m_sections[path.section].channel.streamURL)
        play(m_sections[path.section].channel);
    else if (m_sections[path.section].hasFailed)
        tryAgain(path.section);
}

void RootViewController::tryAgain(std::size_t section)
{
    m_sections[section].hasFailed = false;
    reloadRows(section, 0, 1);
    m_delegate.checkAndUpdateAllChannels();
}

void RootViewController::passEnded(const std::vector<ObjectId>& failed)
{
    for (std::size_t section = 0; section < m_sections.size(); ++section) {
        const bool hasFailed =
            std::find(failed.begin(), failed.end(), m_sections[section].channel.channel) != failed.end();
        if (std::exchange(m_sections[section].hasFailed, hasFailed) != hasFailed)
            reloadRows(section, 0, 1);
    }
}

void RootViewController::play(const ChannelFace& channel)
{
    if (channel.streamURL)
        m_delegate.playURL(*channel.streamURL);
}

void RootViewController::list()
{
    std::vector<ChannelFace> channels;
    for (const Section& section : m_sections)
        channels.push_back(section.channel);
    presentFrom(m_delegate, *this,
                std::make_shared<ChannelListViewController>(
                    m_delegate, std::move(channels),
                    m_mainBlocks.guarded([this](const ChannelFace& channel) { chosenInList(channel); })));
}

void RootViewController::chosenInList(const ChannelFace& channel)
{
    const ShowList* entries = entriesOf(channel.channel);
    if (channel.streamURL && (!entries || entries->empty()))
        play(channel);
    else
        selectedChannelIdentificator(channel);
}

void RootViewController::selectedChannelIdentificator(const ChannelFace& channel)
{
    m_delegate.listings().cachedListForChannel(
        channel.channel, QualityOfService::UserInitiated,
        m_mainBlocks.guarded([this, channel](const SharedShowList& list) {
            if (!list->empty())
                pushFrom(m_delegate, *this, std::make_shared<ChannelViewController>(m_delegate, channel, *list));
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
    m_pictures.forget(channel);
    setEntries(*section, entries);
}

void RootViewController::setEntries(std::size_t section, const ShowList& entries)
{
    ShowList& present = m_sections[section].entries;
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
    m_pictures.forgetGoneShows(m_sections[section].channel.channel);
    reloadRows(section, 0, std::min(before, after));
}

void RootViewController::timePassed()
{
    if (!m_hasContent)
        return;
    auto pause = m_delegate.pauseLoading(); // as in `selectedChannelsChanged`
    m_delegate.listings().onAirShowsWithQueue(
        DispatchQueue::main(),
        m_mainBlocks.guarded([this, channels = m_delegate.channels().selected(), pause](std::vector<ShowList> entries) {
            const auto isOf = [](const Section& section, const ObjectId& id) { return section.channel.channel == id; };
            if (!std::equal(m_sections.begin(), m_sections.end(), channels.begin(), channels.end(), isOf))
                return;
            entries.resize(channels.size());
            bool ranOut = false;
            for (std::size_t section = 0; section < entries.size(); ++section) {
                ranOut = ranOut || (entries[section].empty() && !m_sections[section].entries.empty());
                rollOn(section, std::move(entries[section]));
            }
            if (ranOut)
                m_delegate.listRanOut();
        }));
}

void RootViewController::rollOn(std::size_t section, ShowList entries)
{
    ShowList& present = m_sections[section].entries;
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
    if (const Show* show = showAt(path))
        m_pictures.displayed(m_sections[path.section].channel.channel, *show);
}

const ShowList* RootViewController::entriesOf(const ObjectId& channel) const
{
    const auto section = sectionOf(channel);
    return section ? &m_sections[*section].entries : nullptr;
}

void RootViewController::setDetailedEntries(const ObjectId& channel, const ShowList& entries)
{
    if (const auto section = sectionOf(channel))
        m_sections[*section].entries = entries;
}

void RootViewController::reloadShow(const ObjectId& channel, const QString& showIdentifier)
{
    const auto section = sectionOf(channel);
    if (!section)
        return;
    const ShowList& entries = m_sections[*section].entries;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (entries[i]->entry->identificator().value_or(QString()) == showIdentifier)
            reloadRows(*section, i + 1, 1);
    }
}

} // namespace vidora
