#pragma once

#include "core/VidoraAppDelegate.h"
#include "screens/ChannelGroups.h"
#include "screens/ScreenModel.h"

namespace vidora {

/// The chooser: every channel of the catalogue by letters, with a search field; a tap selects a channel or takes it out
/// of the selection. With several groups it begins with a menu of them.
class AllChannelsViewController final : public ScreenModel
{
public:
    using Groups = std::shared_ptr<const std::vector<ChannelGroup>>;

    /// `submenu`: the number of a group counted from 1, or 0 for the menu of groups, which is skipped where there is
    /// only one. The delegate outlives the screen.
    AllChannelsViewController(VidoraAppDelegate& delegate, Groups groups, std::size_t submenu = 0);

    QString title() const override { return localized("All Channels"); }
    std::vector<BarButton> rightBarButtonItems() const override;
    QString placeholder() const override;
    std::size_t numberOfSections() const override { return isMenu() ? 1 : m_sections.size(); }
    std::size_t numberOfRowsInSection(std::size_t section) const override;
    QString titleForHeaderInSection(std::size_t section) const override;
    bool hasSectionIndex() const override { return !isMenu(); }
    ScreenRow rowAt(RowPath path) const override;
    void selectRow(RowPath path) override;
    std::optional<QString> searchText() const override;
    void setSearchText(const QString& text) override;

    /// The channel of a row; not in the menu of groups.
    const ChannelFace& channelAt(RowPath path) const { return m_sections[path.section].channels[path.row]->face; }
    bool isSelected(const ObjectId& channel) const;

private:
    struct Letter
    {
        QString title;
        std::vector<const OfferedChannel*> channels;
    };

    bool isMenu() const { return m_selectedSubmenu == 0; }
    void filter();
    void toggle(const ObjectId& channel);

    VidoraAppDelegate& m_delegate;
    const Groups m_groups;
    const std::size_t m_selectedSubmenu;
    QString m_searchText;
    std::vector<Letter> m_sections;
};

} // namespace vidora
