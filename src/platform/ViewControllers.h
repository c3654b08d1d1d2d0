#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace vidora {

/// Base of all screens. Main thread only, like everything in this file.
class ViewController
{
public:
    ViewController() = default;
    ViewController(const ViewController&) = delete;
    ViewController& operator=(const ViewController&) = delete;
    virtual ~ViewController() = default;
};

/// A stack of screens, the last of which is visible. Owns them.
class NavigationController : public ViewController
{
public:
    const std::vector<std::shared_ptr<ViewController>>& viewControllers() const { return m_stack; }
    void pushViewController(std::shared_ptr<ViewController> controller);
    /// Takes the visible screen off, unless it is the only one.
    void popViewController();
    /// Called after every change of the stack, by the window that shows it.
    std::function<void()> stackChanged;

private:
    std::vector<std::shared_ptr<ViewController>> m_stack;
};

struct TabBarItem
{
    bool enabled = true;
    std::optional<QString> badgeValue;
};

struct AlertAction
{
    enum class Style
    {
        Default,
        Cancel,     ///< leaves everything as it is; also what Escape means
        Destructive ///< can't be undone
    };

    QString title;
    std::function<void()> handler; ///< may be empty
    Style style = Style::Default;
};

/// A message that the user must answer.
struct Alert
{
    QString title;
    QString message;
    std::vector<AlertAction> actions;
};

/// The tabs of the one window, each with a screen of its own, usually a navigation stack. Owns them.
class TabBarController : public ViewController
{
public:
    const std::vector<std::shared_ptr<ViewController>>& viewControllers() const { return m_tabs; }
    void setViewControllers(std::vector<std::shared_ptr<ViewController>> tabs);

    std::size_t selectedIndex() const { return m_selected; }
    void setSelectedIndex(std::size_t index);
    std::shared_ptr<ViewController> selectedViewController() const;

    const std::vector<TabBarItem>& items() const { return m_items; }
    void setEnabled(std::size_t index, bool enabled);
    void setBadgeValue(std::size_t index, std::optional<QString> value);

    /// Shows a message over everything. Without a window nothing happens.
    void present(Alert alert);

    /// Shows a screen in a panel over the tabs, in place of the one that is there. It goes with its tabs.
    void presentPopover(std::shared_ptr<ViewController> screen);
    void dismissPopover();
    /// Null without one.
    const std::shared_ptr<ViewController>& popover() const { return m_popover; }

    std::function<void()> tabsChanged;         ///< called after every change of the tabs, their items or the selection
    std::function<void(Alert)> alertPresented; ///< set by the window

private:
    void changed();

    std::vector<std::shared_ptr<ViewController>> m_tabs;
    std::vector<TabBarItem> m_items;
    std::shared_ptr<ViewController> m_popover;
    std::size_t m_selected = 0;
};

} // namespace vidora
