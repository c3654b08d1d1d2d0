#pragma once

#include "core/VidoraAppDelegate.h"
#include "screens/ScreenModel.h"
#include "screens/StreamViewController.h"

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

namespace vidora {

/// The window's tabs: fills the delegate's tab bar with the screens, knows which screen is in sight, and tells screens
/// that they come and go. A window shows `tabs` and `visibleScreen`, and calls back when the user acts. Main thread.
///
/// Made after the delegate's launch. Tabs on a phone: Currently, Categories, Search, Schedule, Channels; on a pad All
/// Shows stands ahead of them.
class PersistentAdTabBarController
{
public:
    struct Tab
    {
        QString title;
        QString name; ///< stays the same in every language: "currently", "categories", "search", "schedule",
                      ///< "channels", "allshows"
        bool enabled = true;
        std::optional<QString> badge;
        friend bool operator==(const Tab&, const Tab&) = default;
    };

    /// The delegate outlives this object.
    explicit PersistentAdTabBarController(VidoraAppDelegate& delegate);
    ~PersistentAdTabBarController();

    /// Shows the tabs of a phone or of a pad. Screens stay as they are, those of a tab that only a pad has until it is
    /// back; a popover becomes the last screen of its tab on a phone.
    void setPad(bool isPad);

    std::vector<Tab> tabs() const;
    std::size_t selectedIndex() const { return m_tabBar.selectedIndex(); }
    /// Nothing happens for a tab that is turned off. The selected tab goes back to its first screen.
    void selectTab(std::size_t index);

    /// The screen in sight; never null.
    std::shared_ptr<ScreenModel> visibleScreen() const;
    /// The selected tab's screens, the last of which is in sight.
    std::vector<std::shared_ptr<ScreenModel>> visibleStack() const;
    /// The screen that lies over it on a pad; null without one.
    std::shared_ptr<ScreenModel> popover() const { return m_popover; }
    /// Takes the popover off, or else the screen in sight unless it is the tab's first.
    void back();
    /// Shows the broadcast of an address in the application's scheme, on top of the selected tab; an address of none
    /// leaves everything as it is.
    void openURL(const URL& url);

    /// The stream that is playing, if any.
    StreamViewController& stream() { return m_stream; }

    /// Set by the window, any of them empty: titles, badges or states of the tabs, or the selected tab have changed.
    std::function<void()> tabsChanged;
    /// Another screen is in sight.
    std::function<void()> visibleScreenChanged;
    /// A message that the user must answer.
    std::function<void(Alert)> alertPresented;

private:
    void fill(bool isPad);
    void changed();
    void followVisibleScreen();
    void followPopover();

    VidoraAppDelegate& m_delegate;
    TabBarController& m_tabBar;
    StreamViewController m_stream;
    std::vector<Tab> m_tabs;
    std::unordered_map<QString, std::shared_ptr<NavigationController>> m_stacks; ///< by the names of their tabs
    std::shared_ptr<ScreenModel> m_visible, m_popover;
    BlockOwner m_mainBlocks;
};

} // namespace vidora
