#include "screens/EditChannelListViewController.h"

#include "screens/Navigation.h"
#include "screens/PlainViewController.h"
#include "screens/ShowRows.h"

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
    removeRows(0, path.row, 1, [&] { m_selected.erase(place); });
    store();
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
    removeRows(0, 0, m_selected.size(), [&] { m_selected.clear(); });
    store();
}

void EditChannelListViewController::add()
{
    if (!m_groups)
        m_groups = std::make_shared<const std::vector<ChannelGroup>>(channelGroups(m_delegate.channelData()));
    pushFrom(m_delegate, *this, std::make_shared<AllChannelsViewController>(m_delegate, m_groups));
}

} // namespace vidora
