#include "screens/EditChannelListViewController.h"

#include "screens/Navigation.h"
#include "screens/PlainViewController.h"
#include "screens/ShowRows.h"

#include <algorithm>
#include <utility>

namespace vidora {

EditChannelListViewController::EditChannelListViewController(VidoraAppDelegate& delegate)
    : m_delegate(delegate)
{
}

std::vector<BarButton> EditChannelListViewController::rightBarButtonItems() const
{
    auto* self = const_cast<EditChannelListViewController*>(this);
    std::vector<BarButton> buttons{{BarButton::Kind::Add, localized("Add channels"), [self] { self->add(); }}};
    if (!m_selected.empty())
        buttons.push_back({BarButton::Kind::Trash, localized("Remove all channels"), [self] { self->trash(); }});
    buttons.push_back({BarButton::Kind::Settings, localized("Settings"), [self] { self->settings(); }});
    return buttons;
}

void EditChannelListViewController::settings()
{
    pushFrom(m_delegate, *this,
             std::make_shared<PlainViewController>("Settings", "This page comes with a later version."));
}

QString EditChannelListViewController::placeholder() const
{
    return localized("No channels are chosen yet. Add the ones you want to see.");
}

void EditChannelListViewController::willAppear()
{
    reloadData([this] { m_selected = m_delegate.channels().selected(); });
    surroundingsChanged();
}

ScreenRow EditChannelListViewController::rowAt(RowPath path) const
{
    ScreenRow row = channelRow(m_delegate, channelFace(m_selected[path.row], m_delegate.channelData()));
    row.selectable = false;
    row.deletable = true;
    row.movable = true;
    return row;
}

void EditChannelListViewController::store()
{
    m_delegate.changeSelection(m_selected);
    surroundingsChanged();
}

void EditChannelListViewController::deleteRow(RowPath path)
{
    if (path.row >= m_selected.size())
        return;
    const auto place = m_selected.begin() + static_cast<std::ptrdiff_t>(path.row);
    const Removed removed{path.row, *place};
    removeRows(0, path.row, 1, [&] { m_selected.erase(place); });
    store();
    offerUndo({removed});
}

void EditChannelListViewController::moveRow(RowPath from, RowPath to)
{
    if (from.row >= m_selected.size() || to.row >= m_selected.size() || from == to)
        return;
    relocateRow(from, to, [&] {
        const ObjectId moved = m_selected[from.row];
        m_selected.erase(m_selected.begin() + static_cast<std::ptrdiff_t>(from.row));
        m_selected.insert(m_selected.begin() + static_cast<std::ptrdiff_t>(to.row), moved);
    });
    store();
}

void EditChannelListViewController::trash()
{
    if (m_selected.empty())
        return;
    std::vector<Removed> removed;
    for (const ObjectId& channel : m_selected)
        removed.push_back({removed.size(), channel});
    removeRows(0, 0, m_selected.size(), [&] { m_selected.clear(); });
    store();
    offerUndo(std::move(removed));
}

void EditChannelListViewController::offerUndo(std::vector<Removed> removed)
{
    constexpr Seconds patience{10};
    m_removed = std::move(removed);
    m_mainBlocks.after(patience, [this, deletion = ++m_deletions] {
        if (deletion != m_deletions)
            return;
        m_removed.clear();
        surroundingsChanged();
    });
    surroundingsChanged();
}

QString EditChannelListViewController::undoText() const
{
    if (m_removed.empty())
        return {};
    if (m_removed.size() > 1)
        return localized("All channels removed");
    return localized("%1 removed").arg(channelFace(m_removed.front().channel, m_delegate.channelData()).title);
}

/// The lists are gone with their channels, so that they are fetched again.
void EditChannelListViewController::undo()
{
    if (m_removed.empty())
        return;
    const auto removed = std::exchange(m_removed, {});
    reloadData([&] {
        for (const auto& [place, channel] : removed) {
            if (std::find(m_selected.begin(), m_selected.end(), channel) == m_selected.end())
                m_selected.insert(m_selected.begin() + static_cast<std::ptrdiff_t>(std::min(place, m_selected.size())),
                                  channel);
        }
    });
    store();
    m_delegate.checkAndUpdateAllChannels();
}

void EditChannelListViewController::add()
{
    if (!m_groups)
        m_groups = std::make_shared<const std::vector<ChannelGroup>>(channelGroups(m_delegate.channelData()));
    pushFrom(m_delegate, *this, std::make_shared<AllChannelsViewController>(m_delegate, m_groups));
}

} // namespace vidora
