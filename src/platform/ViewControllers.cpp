#include "platform/ViewControllers.h"

#include <utility>

namespace vidora {

void NavigationController::pushViewController(std::shared_ptr<ViewController> controller)
{
    m_stack.push_back(std::move(controller));
    if (stackChanged)
        stackChanged();
}

void NavigationController::popViewController()
{
    if (m_stack.size() < 2)
        return;
    m_stack.pop_back();
    if (stackChanged)
        stackChanged();
}

void TabBarController::setViewControllers(std::vector<std::shared_ptr<ViewController>> tabs)
{
    m_tabs = std::move(tabs);
    m_popover.reset();
    m_items.resize(m_tabs.size());
    if (m_selected >= m_tabs.size())
        m_selected = 0;
    changed();
}

void TabBarController::setSelectedIndex(std::size_t index)
{
    if (index >= m_tabs.size())
        return;
    m_selected = index;
    changed();
}

std::shared_ptr<ViewController> TabBarController::selectedViewController() const
{
    return m_selected < m_tabs.size() ? m_tabs[m_selected] : nullptr;
}

void TabBarController::setEnabled(std::size_t index, bool enabled)
{
    if (index >= m_items.size())
        return;
    m_items[index].enabled = enabled;
    changed();
}

void TabBarController::setBadgeValue(std::size_t index, std::optional<QString> value)
{
    if (index >= m_items.size())
        return;
    m_items[index].badgeValue = std::move(value);
    changed();
}

void TabBarController::present(Alert alert)
{
    if (alertPresented)
        alertPresented(std::move(alert));
}

void TabBarController::presentPopover(std::shared_ptr<ViewController> screen)
{
    m_popover = std::move(screen);
    changed();
}

void TabBarController::dismissPopover()
{
    if (const auto dismissed = std::exchange(m_popover, nullptr)) // it may be what calls
        changed();
}

void TabBarController::changed()
{
    if (tabsChanged)
        tabsChanged();
}

} // namespace vidora
