#include "screens/AllChannelsViewController.h"

#include "platform/DeviceSettings.h"
#include "screens/ChannelSearch.h"
#include "screens/Navigation.h"
#include "screens/ShowRows.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace vidora {

namespace {

/// The first character as a user sees it, as a capital of the device's language.
QString letterOf(const QString& title)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, title);
    const qsizetype end = finder.toNextBoundary();
    return DeviceSettings::locale().toUpper(end > 0 ? title.left(end) : QString());
}

} // namespace

AllChannelsViewController::AllChannelsViewController(VidoraAppDelegate& delegate, Groups groups, std::size_t submenu)
    : m_delegate(delegate)
    , m_groups(std::move(groups))
    , m_selectedSubmenu(m_groups->size() == 1 ? 1 : std::min(submenu, m_groups->size()))
{
    filter();
}

void AllChannelsViewController::filter()
{
    m_sections.clear();
    if (isMenu())
        return;
    const ChannelSearch search(m_searchText);
    for (const OfferedChannel& channel : (*m_groups)[m_selectedSubmenu - 1].channels) {
        if (!search.finds(channel))
            continue;
        const QString letter = letterOf(channel.face.title);
        const auto isOfLetter = [&](const Letter& section) { return section.title == letter; };
        auto section = std::find_if(m_sections.rbegin(), m_sections.rend(), isOfLetter);
        if (section == m_sections.rend()) {
            m_sections.push_back({letter, {}});
            section = m_sections.rbegin();
        }
        section->channels.push_back(&channel);
    }
}

std::vector<BarButton> AllChannelsViewController::rightBarButtonItems() const
{
    auto* self = const_cast<AllChannelsViewController*>(this);
    return {{BarButton::Kind::Done, localized("Done"), [self] { dismiss(self->m_delegate, *self); }}};
}

QString AllChannelsViewController::placeholder() const
{
    return m_searchText.isEmpty() ? localized("There are no channels.")
                                  : localized("No channel of this name or language.");
}

std::size_t AllChannelsViewController::numberOfRowsInSection(std::size_t section) const
{
    return isMenu() ? m_groups->size() : m_sections[section].channels.size();
}

QString AllChannelsViewController::titleForHeaderInSection(std::size_t section) const
{
    return isMenu() ? QString() : m_sections[section].title;
}

bool AllChannelsViewController::isSelected(const ObjectId& channel) const
{
    const auto selected = m_delegate.channels().selected();
    return std::find(selected.begin(), selected.end(), channel) != selected.end();
}

ScreenRow AllChannelsViewController::rowAt(RowPath path) const
{
    ScreenRow row;
    if (isMenu()) {
        row.text = localized((*m_groups)[path.row].title.toUtf8().constData());
        row.accessory = Accessory::Disclosure;
        return row;
    }
    const ChannelFace& channel = channelAt(path);
    row = channelRow(m_delegate, channel);
    row.subtitle = languageNames(m_sections[path.section].channels[path.row]->language);
    row.accessory = isSelected(channel.channel) ? Accessory::Checkmark : Accessory::None;
    return row;
}

void AllChannelsViewController::selectRow(RowPath path)
{
    if (path.section >= numberOfSections() || path.row >= numberOfRowsInSection(path.section))
        return;
    if (isMenu()) {
        presentFrom(m_delegate, *this, std::make_shared<AllChannelsViewController>(m_delegate, m_groups, path.row + 1));
        return;
    }
    toggle(channelAt(path).channel);
    reloadRows(path.section, path.row, 1);
}

void AllChannelsViewController::toggle(const ObjectId& channel)
{
    ChannelIds selection = m_delegate.channels().selected();
    const bool isRemoval = std::erase(selection, channel) > 0;
    if (!isRemoval)
        selection.push_back(channel);
    m_delegate.changeSelection(selection);
    if (!isRemoval)
        m_delegate.checkAndUpdateAllChannels();
}

std::optional<QString> AllChannelsViewController::searchText() const
{
    return isMenu() ? std::nullopt : std::optional(m_searchText);
}

void AllChannelsViewController::setSearchText(const QString& text)
{
    if (isMenu() || text == m_searchText)
        return;
    reloadData([&] {
        m_searchText = text;
        filter();
    });
    surroundingsChanged();
}

} // namespace vidora
