#pragma once

#include "content/ShowElement.h"
#include "platform/ViewControllers.h"

#include <functional>

namespace vidora {

/// Reaches the screens that are open. The delegate keeps no list of them: whenever something must reach the screens,
/// the tabs' navigation stacks are walked. Main thread.
class ScreenWalk
{
public:
    explicit ScreenWalk(TabBarController& tabs)
        : m_tabs(tabs)
    {
    }

    /// Every screen of every navigation stack, in order.
    void forEach(const std::function<void(ViewController&)>& visit) const;

    void reloadData() const;
    void favoritesUpdated() const;
    void recolor() const;
    /// Each screen is told in a block of its own on the main queue.
    void notificationsSynched() const;
    void reloadChannel(const ObjectId& channel, const ShowList& entries) const;
    void passEnded(const std::vector<ObjectId>& failed) const;
    /// The application became active: the home screen follows the selection, the others read their lists again.
    void activated() const;
    void enteredBackground() const;
    /// The home screens follow the selection when they come into sight.
    void selectionModified() const;
    /// The first home screen of every stack follows the selection, in a block of its own on the main queue.
    void selectedChannelsChanged() const;

private:
    TabBarController& m_tabs;
};

} // namespace vidora
