#include "screens/Navigation.h"

#include <algorithm>

namespace vidora {

std::shared_ptr<NavigationController> navigationControllerOf(VidoraAppDelegate& delegate, const ViewController& screen)
{
    for (const auto& tab : delegate.tabBarController().viewControllers()) {
        const auto navigation = std::dynamic_pointer_cast<NavigationController>(tab);
        if (!navigation)
            continue;
        const auto& stack = navigation->viewControllers();
        if (std::any_of(stack.begin(), stack.end(), [&](const auto& known) { return known.get() == &screen; }))
            return navigation;
    }
    return nullptr;
}

void pushFrom(VidoraAppDelegate& delegate, const ViewController& below, std::shared_ptr<ScreenModel> screen)
{
    if (const auto navigation = navigationControllerOf(delegate, below))
        navigation->pushViewController(std::move(screen));
}

void presentFrom(VidoraAppDelegate& delegate, const ViewController& below, std::shared_ptr<ScreenModel> screen)
{
    if (delegate.isPad())
        delegate.tabBarController().presentPopover(std::move(screen));
    else
        pushFrom(delegate, below, std::move(screen));
}

void dismiss(VidoraAppDelegate& delegate, const ViewController& screen)
{
    if (delegate.tabBarController().popover().get() == &screen)
        delegate.tabBarController().dismissPopover();
    else if (const auto navigation = navigationControllerOf(delegate, screen))
        navigation->popViewController();
}

} // namespace vidora
