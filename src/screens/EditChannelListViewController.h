#pragma once

#include "core/VidoraAppDelegate.h"
#include "platform/BlockOwner.h"
#include "screens/AllChannelsViewController.h"
#include "screens/ScreenModel.h"

namespace vidora {

/// The selection: its channels in the user's order, to be moved and removed; from here the chooser opens.
class EditChannelListViewController final : public ScreenModel
{
public:
    /// The delegate outlives the screen.
    explicit EditChannelListViewController(VidoraAppDelegate& delegate);

    QString title() const override { return localized("Channels"); }
    std::vector<BarButton> rightBarButtonItems() const override;
    QString placeholder() const override;
    std::size_t numberOfRowsInSection(std::size_t) const override { return m_selected.size(); }
    ScreenRow rowAt(RowPath path) const override;
    void deleteRow(RowPath path) override;
    void moveRow(RowPath from, RowPath to) override;
    /// For ten seconds: brings back what the last deletion took.
    QString undoText() const override;
    void undo() override;

    /// Opens the chooser.
    void add();
    /// Empties the selection.
    void trash();
    void settings();

protected:
    /// The chooser, a pruned catalogue or another device may have changed the selection meanwhile.
    void willAppear() override;

private:
    struct Removed
    {
        std::size_t place;
        ObjectId channel;
    };
    void store();
    void offerUndo(std::vector<Removed> removed);

    VidoraAppDelegate& m_delegate;
    ChannelIds m_selected;
    std::vector<Removed> m_removed; ///< by the last deletion, as long as it can be undone; places ascend
    int m_deletions = 0;
    BlockOwner m_mainBlocks;
    AllChannelsViewController::Groups m_groups; ///< made when they are first needed
};

} // namespace vidora
