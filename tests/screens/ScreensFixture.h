#pragma once

#include "screens/PersistentAdTabBarController.h"
#include "screens/RootViewController.h"
#include "screens/ScreenItemModel.h"
#include "support/TestDevice.h"

#include <gmock/gmock.h>

namespace vidora::test {

/// Favourites and alarms by title.
struct TestMarks final : ShowMarks
{
    int alarmedEntry(const TVEntry& entry) const override { return entry.identificator() == alarmed ? 10 : -1; }
    bool containsFavoriteNamed(const QString& title) const override { return title == favourite; }
    std::vector<SwipeAction> swipeActions(const Show& show, ViewController&) override
    {
        return {{show->entry->title().value_or(QString()), false, {}, {}}};
    }
    QString alarmed, favourite;
};

/// A launched device at noon UTC of a Sunday, with its tabs and a feed of shows of an hour each.
class ScreensTest : public ::testing::Test
{
protected:
    static constexpr QLatin1String feed{"http://n.example/epg.xml"};

    static TestChannel channel(int number, const QString& title, const QString& stream = {})
    {
        const QString hex = QStringLiteral("58f4ded60befe78cb336%1").arg(number, 4, 10, QLatin1Char('0'));
        return {hex, title, {QStringLiteral("n.%1").arg(number)}, stream};
    }
    static ObjectId idOf(const TestChannel& channel) { return ObjectId::initWithHex(channel.id); }

    /// Adds shows of the channel to what the feed delivers, one for each hour from now on.
    void broadcast(int number, const QStringList& titles)
    {
        const QDateTime noon = QDateTime::fromMSecsSinceEpoch(unixMilliseconds(device.clock.now()), Qt::UTC);
        const auto time = [&](qsizetype hour) -> QString {
            return noon.addSecs(hour * 3600).toString(QStringLiteral("yyyyMMddHHmmss")) + QStringLiteral(" +0000");
        };
        for (qsizetype i = 0; i < titles.size(); ++i)
            m_programmes += QStringLiteral("<programme channel=\"%1\" start=\"%2\" stop=\"%3\"><title>%4</title>"
                                           "<sub-title>part %5</sub-title></programme>")
                                .arg(QString::number(number), time(i), time(i + 1), titles[i].toHtmlEscaped())
                                .arg(i + 1);
        device.session.answer(feed, {200, "<tv>" + m_programmes.toUtf8() + "</tv>", "text/xml; charset=utf-8", {}});
    }
    void silence() { m_programmes.clear(); }

    void start(const std::vector<TestChannel>& catalogue, const std::vector<TestChannel>& selected)
    {
        device.setCatalogue(catalogue);
        device.launch();
        device.select(selected);
        settle();
        if (!device.eventStore)
            device.delegate->setShowServices({&marks, nullptr, nullptr});
        tabs = std::make_unique<PersistentAdTabBarController>(*device.delegate);
        device.delegate->application().setApplicationState(Application::State::Active);
        if (!selected.empty())
            DispatchQueue::runMain([this] { return home().hasContent(); });
    }
    void start(const std::vector<TestChannel>& channels) { start(channels, channels); }

    RootViewController& home()
    {
        const auto& stack = dynamic_cast<NavigationController&>(
            *device.delegate->tabBarController().viewControllers()[device.delegate->isPad() ? 1 : 0]);
        return dynamic_cast<RootViewController&>(*stack.viewControllers().front());
    }
    template<typename Screen>
    std::shared_ptr<Screen> visible() const
    {
        return std::dynamic_pointer_cast<Screen>(tabs->visibleScreen());
    }
    /// Waits until a screen of this class is in sight.
    template<typename Screen>
    std::shared_ptr<Screen> awaited() const
    {
        DispatchQueue::runMain([this] { return visible<Screen>() != nullptr; });
        return visible<Screen>();
    }
    std::vector<bool> enabledTabs() const
    {
        std::vector<bool> enabled;
        for (const auto& tab : tabs->tabs())
            enabled.push_back(tab.enabled);
        return enabled;
    }

    TestDevice device;
    TestMarks marks;
    std::unique_ptr<PersistentAdTabBarController> tabs;

private:
    QString m_programmes;
};

} // namespace vidora::test
