#include "screens/PersistentAdTabBarController.h"

#include "core/ChannelFace.h"
#include "screens/DetailViewController.h"
#include "screens/EditChannelListViewController.h"
#include "screens/PlainViewController.h"
#include "screens/RootViewController.h"

#include <algorithm>

namespace vidora {

namespace {

struct TabContent
{
    const char* title; ///< English key
    const char* name;
    std::function<std::shared_ptr<ScreenModel>(VidoraAppDelegate&)> screen;
};

std::shared_ptr<ScreenModel> laterScreen(const char* title)
{
    return std::make_shared<PlainViewController>(title,
                                                 QT_TRANSLATE_NOOP("vidora", "This page comes with a later version."));
}

std::vector<TabContent> contentOfTabs(bool isPad)
{
    std::vector<TabContent> tabs{
        {QT_TRANSLATE_NOOP("vidora", "Currently"), "currently",
         [](auto& delegate) { return std::make_shared<RootViewController>(delegate); }},
        {QT_TRANSLATE_NOOP("vidora", "Categories"), "categories", [](auto&) { return laterScreen("Categories"); }},
        {QT_TRANSLATE_NOOP("vidora", "Search"), "search", [](auto&) { return laterScreen("Search"); }},
        {QT_TRANSLATE_NOOP("vidora", "Schedule"), "schedule", [](auto&) { return laterScreen("Schedule"); }},
        {QT_TRANSLATE_NOOP("vidora", "Channels"), "channels",
         [](auto& delegate) { return std::make_shared<EditChannelListViewController>(delegate); }}};
    if (isPad)
        tabs.insert(tabs.begin(), {QT_TRANSLATE_NOOP("vidora", "All Shows"), "allshows",
                                   [](auto&) { return laterScreen("All Shows"); }});
    return tabs;
}

std::shared_ptr<NavigationController> navigationOf(const std::shared_ptr<ViewController>& tab)
{
    return std::dynamic_pointer_cast<NavigationController>(tab);
}

} // namespace

PersistentAdTabBarController::PersistentAdTabBarController(VidoraAppDelegate& delegate)
    : m_delegate(delegate)
    , m_tabBar(delegate.tabBarController())
    , m_stream(delegate)
{
    m_tabBar.alertPresented = [this](Alert alert) {
        if (alertPresented)
            alertPresented(std::move(alert));
    };
    fill(m_delegate.isPad());
    m_delegate.setup();
    m_tabBar.tabsChanged = [this] { changed(); };
    followVisibleScreen();
}

PersistentAdTabBarController::~PersistentAdTabBarController()
{
    m_tabBar.tabsChanged = {};
    m_tabBar.alertPresented = {};
    m_visible.reset();
    m_popover.reset();
    m_tabBar.setViewControllers({});
    m_stacks.clear();
}

void PersistentAdTabBarController::fill(bool isPad)
{
    std::vector<std::shared_ptr<ViewController>> stacks;
    m_tabs.clear();
    for (const TabContent& content : contentOfTabs(isPad)) {
        auto& navigation = m_stacks[QString::fromLatin1(content.name)];
        if (!navigation) {
            navigation = std::make_shared<NavigationController>();
            navigation->pushViewController(content.screen(m_delegate));
            navigation->stackChanged = [this] { followVisibleScreen(); };
        }
        stacks.push_back(navigation);
        m_tabs.push_back({localized(content.title), QString::fromLatin1(content.name), true, std::nullopt});
    }
    m_tabBar.setViewControllers(std::move(stacks));
    for (std::size_t index = 0; index < m_tabs.size(); ++index) { // the items outlive their tabs
        m_tabBar.setEnabled(index, true);
        m_tabBar.setBadgeValue(index, std::nullopt);
    }
    m_delegate.updateBadge();
}

void PersistentAdTabBarController::setPad(bool isPad)
{
    if (isPad == m_delegate.isPad())
        return;
    const QString selected = m_tabs[m_tabBar.selectedIndex()].name;
    const auto popover = m_tabBar.popover();
    m_delegate.setPad(isPad);
    const auto tell = std::exchange(m_tabBar.tabsChanged, {}); // nothing is told of what lies between
    fill(isPad);
    m_delegate.setup(); // ahead of the selection, as its first call selects a tab of its own
    const auto isSelected = [&](const Tab& tab) { return tab.name == selected; };
    const auto place = std::find_if(m_tabs.begin(), m_tabs.end(), isSelected);
    m_tabBar.setSelectedIndex(place == m_tabs.end() ? 0 : static_cast<std::size_t>(place - m_tabs.begin()));
    followPopover();
    if (popover && place != m_tabs.end())
        m_stacks[selected]->pushViewController(popover);
    m_tabBar.tabsChanged = tell;
    changed();
}

std::vector<PersistentAdTabBarController::Tab> PersistentAdTabBarController::tabs() const
{
    std::vector<Tab> tabs = m_tabs;
    const auto& items = m_tabBar.items();
    for (std::size_t i = 0; i < tabs.size() && i < items.size(); ++i) {
        tabs[i].enabled = items[i].enabled;
        tabs[i].badge = items[i].badgeValue;
    }
    return tabs;
}

void PersistentAdTabBarController::selectTab(std::size_t index)
{
    if (index >= m_tabBar.items().size() || !m_tabBar.items()[index].enabled)
        return;
    if (index != m_tabBar.selectedIndex()) {
        m_tabBar.setSelectedIndex(index);
        return;
    }
    const auto navigation = navigationOf(m_tabBar.selectedViewController());
    while (navigation->viewControllers().size() > 1)
        navigation->popViewController();
}

std::vector<std::shared_ptr<ScreenModel>> PersistentAdTabBarController::visibleStack() const
{
    std::vector<std::shared_ptr<ScreenModel>> stack;
    if (const auto navigation = navigationOf(m_tabBar.selectedViewController())) {
        for (const auto& screen : navigation->viewControllers()) {
            if (auto model = std::dynamic_pointer_cast<ScreenModel>(screen))
                stack.push_back(std::move(model));
        }
    }
    return stack;
}

std::shared_ptr<ScreenModel> PersistentAdTabBarController::visibleScreen() const
{
    return m_visible;
}

void PersistentAdTabBarController::back()
{
    if (m_popover)
        m_tabBar.dismissPopover();
    else if (const auto navigation = navigationOf(m_tabBar.selectedViewController()))
        navigation->popViewController();
}

void PersistentAdTabBarController::openURL(const URL& url)
{
    m_delegate.listings().showWithURL(url, m_mainBlocks.guarded([this](const Show& show) {
        const ChannelFace channel = channelFace(show->entry->channel(), m_delegate.channelData());
        m_tabBar.dismissPopover();
        if (const auto navigation = navigationOf(m_tabBar.selectedViewController()))
            navigation->pushViewController(std::make_shared<DetailViewController>(show, channel.iconName));
    }));
}

void PersistentAdTabBarController::changed()
{
    followVisibleScreen();
    followPopover();
    if (tabsChanged)
        tabsChanged();
}

void PersistentAdTabBarController::followPopover()
{
    auto now = std::dynamic_pointer_cast<ScreenModel>(m_tabBar.popover());
    if (now == m_popover)
        return;
    const auto before = std::exchange(m_popover, std::move(now));
    if (before) {
        before->viewWillDisappear();
        before->viewDidDisappear();
    }
    if (m_popover) {
        m_popover->viewWillAppear();
        m_popover->viewDidAppear();
    }
}

void PersistentAdTabBarController::followVisibleScreen()
{
    const auto stack = visibleStack();
    if (stack.empty() || stack.back() == m_visible)
        return;
    const auto before = std::exchange(m_visible, stack.back());
    const auto now = m_visible;
    if (before)
        before->viewWillDisappear();
    now->viewWillAppear();
    if (before)
        before->viewDidDisappear();
    now->viewDidAppear();
    if (visibleScreenChanged)
        visibleScreenChanged();
}

} // namespace vidora
