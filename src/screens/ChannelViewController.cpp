#include "screens/ChannelViewController.h"

#include "screens/DetailViewController.h"
#include "screens/Navigation.h"
#include "screens/ShowRows.h"
#include "store/LocalDays.h"

#include <algorithm>

namespace vidora {

ChannelViewController::ChannelViewController(VidoraAppDelegate& delegate, ChannelFace channel, const ShowList& entries)
    : m_delegate(delegate)
    , m_channel(std::move(channel))
{
    const auto object = m_delegate.channels().channelWithChannelId(m_channel.channel);
    m_isRefreshing = object && (object->loading() || object->reloadNeeded());
    initializeContentWithEntriesArray(entries);
}

void ChannelViewController::initializeContentWithEntriesArray(const ShowList& entries)
{
    m_groups.clear();
    m_sortedGroupKeys.clear();
    LocalDays days;
    for (const Show& show : entries) {
        if (!show->entry->dateTime())
            continue;
        const QString& day = days.dayKey(*show->entry->dateTime());
        ShowList& group = m_groups[day];
        if (group.empty())
            m_sortedGroupKeys.push_back(day);
        group.push_back(show);
    }
}

std::vector<BarButton> ChannelViewController::rightBarButtonItems() const
{
    auto* self = const_cast<ChannelViewController*>(this);
    std::vector<BarButton> buttons;
    if (m_isRefreshing)
        buttons.push_back({BarButton::Kind::Activity, localized("Loading"), {}});
    else
        buttons.push_back({BarButton::Kind::Refresh, localized("Refresh"), [self] { self->refresh(); }});
    if (m_channel.streamURL)
        buttons.push_back({BarButton::Kind::Play, localized("Play"), [self] { self->play(); }});
    return buttons;
}

QString ChannelViewController::subtitle() const
{
    return updatedText(m_delegate, m_channel.channel);
}

std::size_t ChannelViewController::numberOfRowsInSection(std::size_t section) const
{
    return m_groups.at(m_sortedGroupKeys[section]).size();
}

const Show* ChannelViewController::showAt(RowPath path) const
{
    if (path.section >= m_sortedGroupKeys.size())
        return nullptr;
    const ShowList& group = m_groups.at(m_sortedGroupKeys[path.section]);
    return path.row < group.size() ? &group[path.row] : nullptr;
}

ScreenRow ChannelViewController::rowAt(RowPath path) const
{
    const Show* show = showAt(path);
    if (!show)
        return {};
    const Instant now = m_delegate.environment().clock.now();
    const TVEntry& entry = *(*show)->entry;
    const bool isOnAir =
        entry.dateTime() && *entry.dateTime() <= now && entry.endDateTime() && *entry.endDateTime() > now;
    return showRow(m_delegate, *show, isOnAir ? progressOf(entry, now) : std::nullopt);
}

void ChannelViewController::selectRow(RowPath path)
{
    if (const Show* show = showAt(path))
        pushFrom(m_delegate, *this, std::make_shared<DetailViewController>(*show, m_channel.iconName));
}

std::vector<SwipeAction> ChannelViewController::swipeActions(RowPath path)
{
    const Show* show = showAt(path);
    return show ? m_delegate.swipeActionsConfigurationForEntry(*show, *this) : std::vector<SwipeAction>();
}

void ChannelViewController::setRefreshing(bool isRefreshing)
{
    m_isRefreshing = isRefreshing;
    surroundingsChanged();
}

void ChannelViewController::refresh()
{
    setRefreshing(true);
    if (const auto object = m_delegate.channels().channelWithChannelId(m_channel.channel))
        object->unload();
    m_delegate.checkAndUpdateAllChannels();
}

void ChannelViewController::reloadChannelData()
{
    const auto object = m_delegate.channels().channelWithChannelId(m_channel.channel);
    if (!object || object->loading() || object->reloadNeeded())
        return;
    m_delegate.listings().cachedListForChannel(m_channel.channel, QualityOfService::Default,
                                               m_mainBlocks.guarded([this](const SharedShowList& list) {
                                                   reloadData([&] { initializeContentWithEntriesArray(*list); });
                                                   setRefreshing(false);
                                               }));
}

void ChannelViewController::passEnded(const std::vector<ObjectId>& failed)
{
    if (m_isRefreshing && std::find(failed.begin(), failed.end(), m_channel.channel) != failed.end())
        setRefreshing(false);
}

void ChannelViewController::timePassed()
{
    for (std::size_t section = 0; section < numberOfSections(); ++section)
        reloadRows(section, 0, numberOfRowsInSection(section));
    updateIfRunOut();
}

// Once, until it has helped: a provider that has nothing new is not asked each minute.
void ChannelViewController::updateIfRunOut()
{
    const auto object = m_delegate.channels().channelWithChannelId(m_channel.channel);
    if (!object || object->loading())
        return;
    if (!object->reloadNeeded() && hasShowsAhead())
        m_hasAskedForUpdate = false;
    else if (!m_hasAskedForUpdate && m_delegate.listRanOut()) {
        m_hasAskedForUpdate = true;
        setRefreshing(true);
    }
}

bool ChannelViewController::hasShowsAhead() const
{
    if (m_sortedGroupKeys.empty())
        return false;
    const auto end = m_groups.at(m_sortedGroupKeys.back()).back()->entry->endDateTime();
    return end && *end > m_delegate.environment().clock.now();
}

void ChannelViewController::recolor()
{
    if (isViewLoaded())
        m_mainBlocks.async([this] { reloadData(); });
}

void ChannelViewController::play()
{
    if (m_channel.streamURL)
        m_delegate.playURL(*m_channel.streamURL);
}

} // namespace vidora
