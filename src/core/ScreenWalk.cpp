#include "core/ScreenWalk.h"

#include "core/ScreenProtocols.h"
#include "platform/DispatchQueue.h"

#include <algorithm>

namespace vidora {

namespace {

template<typename Protocol>
Protocol* as(ViewController& screen)
{
    return dynamic_cast<Protocol*>(&screen);
}

template<typename Protocol>
void queueForScreen(const std::shared_ptr<ViewController>& screen, void (Protocol::*operation)())
{
    DispatchQueue::main().async([screen, operation] { (dynamic_cast<Protocol&>(*screen).*operation)(); });
}

} // namespace

void ScreenWalk::forEach(const std::function<void(ViewController&)>& visit) const
{
    const auto tabs = m_tabs.viewControllers(); // a screen may change the tabs while it is visited
    for (const auto& tab : tabs) {
        const auto navigation = std::dynamic_pointer_cast<NavigationController>(tab);
        if (!navigation)
            continue;
        const auto stack = navigation->viewControllers();
        for (const auto& screen : stack)
            visit(*screen);
    }
}

void ScreenWalk::reloadData() const
{
    forEach([](ViewController& screen) {
        if (auto* channel = as<ChannelScreen>(screen))
            channel->reloadChannelData();
        else if (auto* compound = as<CompoundListingsScreen>(screen))
            compound->reloadData();
    });
}

void ScreenWalk::favoritesUpdated() const
{
    forEach([](ViewController& screen) {
        if (auto* compound = as<CompoundListingsScreen>(screen))
            compound->reloadData();
        else if (auto* synched = as<NotificationsSynchedDelegate>(screen))
            synched->notificationsSynched();
        else if (auto* recoloured = as<RecolorDelegate>(screen))
            recoloured->recolor();
    });
}

void ScreenWalk::recolor() const
{
    forEach([](ViewController& screen) {
        if (auto* recoloured = as<RecolorDelegate>(screen))
            recoloured->recolor();
        else if (auto* compound = as<CompoundListingsScreen>(screen))
            compound->reloadData();
    });
}

void ScreenWalk::notificationsSynched() const
{
    for (const auto& tab : m_tabs.viewControllers()) {
        const auto navigation = std::dynamic_pointer_cast<NavigationController>(tab);
        if (!navigation)
            continue;
        for (const auto& screen : navigation->viewControllers()) {
            if (as<NotificationsSynchedDelegate>(*screen))
                queueForScreen(screen, &NotificationsSynchedDelegate::notificationsSynched);
        }
    }
}

void ScreenWalk::reloadChannel(const ObjectId& channel, const ShowList& entries) const
{
    forEach([&](ViewController& screen) {
        if (auto* root = as<RootScreen>(screen))
            root->reloadChannel(channel, entries);
    });
}

void ScreenWalk::passEnded(const std::vector<ObjectId>& failed) const
{
    forEach([&](ViewController& screen) {
        if (auto* channel = as<ChannelScreen>(screen))
            channel->passEnded(failed);
        else if (auto* root = as<RootScreen>(screen))
            root->passEnded(failed);
    });
}

void ScreenWalk::activated() const
{
    forEach([](ViewController& screen) {
        if (auto* root = as<RootScreen>(screen)) {
            if (root->isLoaded())
                root->selectedChannelsChanged();
            else
                root->setModifiedSelectedChannels(true);
        } else if (auto* channel = as<ChannelScreen>(screen)) {
            channel->reloadChannelData();
        } else if (auto* compound = as<CompoundListingsScreen>(screen)) {
            compound->reloadData();
        }
    });
}

void ScreenWalk::enteredBackground() const
{
    forEach([](ViewController& screen) {
        if (auto* compound = as<CompoundListingsScreen>(screen))
            compound->showActivity();
    });
}

void ScreenWalk::selectionModified() const
{
    forEach([](ViewController& screen) {
        if (auto* root = as<RootScreen>(screen))
            root->setModifiedSelectedChannels(true);
    });
}

void ScreenWalk::selectedChannelsChanged() const
{
    for (const auto& tab : m_tabs.viewControllers()) {
        const auto navigation = std::dynamic_pointer_cast<NavigationController>(tab);
        if (!navigation)
            continue;
        const auto& stack = navigation->viewControllers();
        const auto root = std::find_if(stack.begin(), stack.end(), [](const auto& s) { return as<RootScreen>(*s); });
        if (root != stack.end())
            queueForScreen(*root, &RootScreen::selectedChannelsChanged);
    }
}

} // namespace vidora
