#include "app/window/WindowModel.h"

#include "content/BroadcastTime.h"
#include "platform/Settings.h"

#include <QFontInfo>
#include <QGuiApplication>

#include <algorithm>

namespace vidora {

namespace {

/// A size that no screen has is not taken for one.
int kept(const Setting& side, const UserDefaults& defaults)
{
    const double value = side.number(defaults);
    const bool fits = value >= static_cast<double>(side.least) && value <= static_cast<double>(side.most);
    return fits ? static_cast<int>(value) : side.usualText().toInt();
}

} // namespace

WindowModel::WindowModel(VidoraAppDelegate& delegate)
    : m_delegate(delegate)
    , m_tabs(delegate)
    , m_progress(delegate)
    , m_minutes(delegate.environment().clock, [this] { timePassed(); })
{
    m_tabs.tabsChanged = [this] { followTabs(); };
    m_tabs.visibleScreenChanged = [this] { followTabs(); };
    m_tabs.alertPresented = [this](Alert alert) { presentAlert(std::move(alert)); };
    m_tabs.stream().playerWithURL = [this](const URL& url) {
        m_player = std::make_shared<StreamMediaPlayer>(url);
        return m_player;
    };
    m_tabs.stream().playerChanged = [this] { followPlayer(); };
    m_delegate.setUpdateObserver(&m_progress);
    m_delegate.networkActivityIndicator = [this](bool isActive) {
        m_isNetworkActive = isActive;
        Q_EMIT networkActiveChanged();
    };
    followTabs();
}

WindowModel::~WindowModel()
{
    m_delegate.setUpdateObserver(nullptr);
    m_delegate.networkActivityIndicator = {};
    m_tabs.tabsChanged = m_tabs.visibleScreenChanged = m_tabs.stream().playerChanged = {};
    m_tabs.alertPresented = {};
}

qreal WindowModel::fontScale() const
{
    constexpr qreal usualPixels = 13; // ten points at 96 dots an inch
    return std::clamp(QFontInfo(QGuiApplication::font()).pixelSize() / usualPixels, 0.85, 2.5);
}

QString WindowModel::timeSample() const
{
    return broadcastTimeText(m_delegate.environment().clock.now());
}

QSize WindowModel::windowSize() const
{
    const UserDefaults& defaults = m_delegate.defaults();
    return {kept(setting::windowWidth, defaults), kept(setting::windowHeight, defaults)};
}

void WindowModel::keepWindowSize(int width, int height)
{
    m_delegate.defaults().setInteger(width, setting::windowWidth.name());
    m_delegate.defaults().setInteger(height, setting::windowHeight.name());
}

void WindowModel::setDark(bool dark)
{
    if (dark == m_isDark)
        return;
    m_isDark = dark;
    Q_EMIT darkChanged();
}

void WindowModel::openAddress(const QString& address)
{
    if (const auto url = URL::fromText(address))
        m_tabs.openURL(*url);
}

void WindowModel::setPad(bool isPad)
{
    m_tabs.setPad(isPad);
}

void WindowModel::selectTab(int index)
{
    const std::vector<PersistentAdTabBarController::Tab> tabs = m_tabs.tabs();
    const auto wanted = static_cast<std::size_t>(index);
    if (index < 0 || wanted >= tabs.size() || !tabs[wanted].enabled)
        return;
    m_tabs.selectTab(wanted);
}

void WindowModel::followTabs()
{
    std::vector<ScreenList::Stack> stacks;
    for (const auto& tab : m_delegate.tabBarController().viewControllers()) {
        const auto navigation = std::dynamic_pointer_cast<NavigationController>(tab);
        if (!navigation)
            continue;
        ScreenList::Stack stack;
        for (const auto& controller : navigation->viewControllers()) {
            if (auto screen = std::dynamic_pointer_cast<ScreenModel>(controller))
                stack.push_back(std::move(screen));
        }
        stacks.push_back(std::move(stack));
    }
    const ScreenObject* before = m_screens.visible();
    m_screens.follow(stacks, m_tabs.visibleScreen().get());
    followPopover();
    Q_EMIT visibleScreenChanged();
    m_tabList.follow(m_tabs.tabs());
    Q_EMIT selectedTabChanged();
    if (m_screens.visible() != before)
        timePassed();
}

void WindowModel::followPopover()
{
    const auto screen = m_tabs.popover();
    if (screen.get() == (m_popover ? &m_popover->screen() : nullptr))
        return;
    if (m_popover) // what asked for this may be a call out of the screen itself
        m_popover.release()->deleteLater();
    if (screen) {
        m_popover = std::make_unique<ScreenObject>(screen, true);
        m_popover->setStyle(m_style);
        m_popover->setVisible(true);
    }
    Q_EMIT popoverChanged();
}

void WindowModel::timePassed()
{
    if (const auto screen = m_tabs.visibleScreen())
        screen->timePassed();
    m_progress.timePassed();
}

void WindowModel::followPlayer()
{
    if (!m_tabs.stream().player())
        m_player.reset();
    Q_EMIT playerChanged();
}

void WindowModel::closePlayer()
{
    m_tabs.stream().moviePlayerPlaybackDidFinish();
}

void WindowModel::setColours(const QVariantMap& colours)
{
    for (auto at = colours.cbegin(); at != colours.cend(); ++at)
        m_style.colours.insert(at.key(), at.value().toString());
    m_style.scale = fontScale();
    m_screens.setStyle(m_style);
    if (m_popover)
        m_popover->setStyle(m_style);
}

void WindowModel::presentAlert(Alert alert)
{
    const auto isSame = [&](const Alert& other) {
        return other.title == alert.title && other.message == alert.message;
    };
    if (std::any_of(m_alerts.begin(), m_alerts.end(), isSame))
        return; // once is enough, however long it stays unanswered
    m_alerts.push_back(std::move(alert));
    if (m_alerts.size() == 1)
        showNextAlert();
}

void WindowModel::showNextAlert()
{
    const Alert& alert = m_alerts.front();
    QVariantList actions;
    for (const AlertAction& action : alert.actions) {
        actions << QVariantMap{{QStringLiteral("title"), action.title},
                               {QStringLiteral("cancels"), action.style == AlertAction::Style::Cancel},
                               {QStringLiteral("destructive"), action.style == AlertAction::Style::Destructive}};
    }
    Q_EMIT alertPresented({{QStringLiteral("title"), alert.title},
                           {QStringLiteral("message"), alert.message},
                           {QStringLiteral("actions"), actions}});
}

void WindowModel::answerAlert(int action)
{
    if (m_alerts.empty())
        return;
    const Alert alert = std::move(m_alerts.front());
    m_alerts.pop_front();
    const auto chosen = static_cast<std::size_t>(action);
    if (action >= 0 && chosen < alert.actions.size() && alert.actions[chosen].handler)
        alert.actions[chosen].handler();
    if (!m_alerts.empty())
        showNextAlert();
}

} // namespace vidora
