#pragma once

#include "app/window/MinuteTicks.h"
#include "app/window/PassProgress.h"
#include "app/window/ScreenList.h"
#include "app/window/StreamMediaPlayer.h"
#include "app/window/TabList.h"
#include "screens/PersistentAdTabBarController.h"

#include <QObject>
#include <QSize>
#include <QVariant>

#include <deque>

namespace vidora {

/// The window as QML sees it: tabs, screens, the running pass, messages, the stream that plays. Main thread.
class WindowModel final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel* tabs READ tabs CONSTANT)
    Q_PROPERTY(int selectedTab READ selectedTab NOTIFY selectedTabChanged)
    Q_PROPERTY(QAbstractItemModel* screens READ screens CONSTANT)
    Q_PROPERTY(QObject* visibleScreen READ visibleScreen NOTIFY visibleScreenChanged)
    /// The screen that lies over it on a pad, or null.
    Q_PROPERTY(QObject* popover READ popover NOTIFY popoverChanged)
    Q_PROPERTY(QObject* progress READ progress CONSTANT)
    /// Something is being fetched.
    Q_PROPERTY(bool networkActive READ isNetworkActive NOTIFY networkActiveChanged)
    /// The open player, or null.
    Q_PROPERTY(QObject* player READ player NOTIFY playerChanged)
    /// Title of the channel that plays.
    Q_PROPERTY(QString playerTitle READ playerTitle NOTIFY playerChanged)
    Q_PROPERTY(bool dark READ isDark NOTIFY darkChanged)
    Q_PROPERTY(qreal fontScale READ fontScale CONSTANT)
    /// A time of day as the reader writes it.
    Q_PROPERTY(QString timeSample READ timeSample CONSTANT)
    Q_PROPERTY(QSize windowSize READ windowSize CONSTANT)

public:
    /// The delegate has been launched and outlives this object.
    explicit WindowModel(VidoraAppDelegate& delegate);
    ~WindowModel() override;

    QAbstractItemModel* tabs() { return &m_tabList; }
    int selectedTab() const { return static_cast<int>(m_tabs.selectedIndex()); }
    QAbstractItemModel* screens() { return &m_screens; }
    QObject* visibleScreen() const { return m_screens.visible(); }
    QObject* popover() const { return m_popover.get(); }
    QObject* progress() { return &m_progress; }
    QObject* player() const { return m_player.get(); }
    QString playerTitle() { return m_tabs.stream().title(); }
    bool isNetworkActive() const { return m_isNetworkActive; }
    bool isDark() const { return m_isDark; }
    qreal fontScale() const;
    QString timeSample() const;
    /// The size that the window had when it was last closed.
    QSize windowSize() const;

    void setDark(bool dark);
    /// What depends on the present moment is looked at anew.
    void timePassed();
    /// Shows the broadcast of an address in the application's scheme; any other leaves everything as it is.
    void openAddress(const QString& address);

    /// Phone or pad, by the width of the window.
    Q_INVOKABLE void setPad(bool isPad);
    Q_INVOKABLE void selectTab(int index);
    Q_INVOKABLE void back() { m_tabs.back(); }
    Q_INVOKABLE void closePlayer();
    /// The colours of the theme by the name of the role.
    Q_INVOKABLE void setColours(const QVariantMap& colours);
    Q_INVOKABLE void answerAlert(int action);
    Q_INVOKABLE void keepWindowSize(int width, int height);

Q_SIGNALS:
    void selectedTabChanged();
    void visibleScreenChanged();
    void popoverChanged();
    void networkActiveChanged();
    void playerChanged();
    void darkChanged();
    /// A message with "title", "message" and its "actions", maps of "title", "cancels" and "destructive"; the next
    /// comes once this one is answered.
    void alertPresented(const QVariantMap& alert);

private:
    void followTabs();
    void followPopover();
    void presentAlert(Alert alert);
    void followPlayer();
    void showNextAlert();

    VidoraAppDelegate& m_delegate;
    PersistentAdTabBarController m_tabs;
    TabList m_tabList;
    ScreenList m_screens;
    std::unique_ptr<ScreenObject> m_popover;
    RichTextStyle m_style;
    PassProgress m_progress;
    std::shared_ptr<StreamMediaPlayer> m_player;
    std::deque<Alert> m_alerts; ///< the first is the one that is shown
    bool m_isNetworkActive = false;
    bool m_isDark = false;
    MinuteTicks m_minutes;
};

} // namespace vidora
