#include "app/Device.h"
#include "app/window/Window.h"
#include "app/window/WindowModel.h"
#include "platform/Timer.h"
#include "sample-region/Streams.h"
#include "support/SampleRegion.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QVideoFrame>
#include <QVideoSink>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace vidora {
namespace {

/// The window, and a region whose streams it can play.
class StreamTest : public ::testing::Test
{
protected:
    StreamTest()
        : m_device(line(), Device::Access::Write, false)
        , m_model(m_device.delegate())
    {
        prepareEngine(m_engine);
        m_engine.setInitialProperties({{QStringLiteral("app"), QVariant::fromValue<QObject*>(&m_model)}});
        m_engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Vidora/Main.qml")));
    }
    ~StreamTest() override { m_device.quit(); }

    CommandLine line() const
    {
        CommandLine line;
        line.home = m_folder.path();
        return line;
    }
    StreamMediaPlayer* player() const { return qobject_cast<StreamMediaPlayer*>(m_model.player()); }
    void open(const std::string& address)
    {
        m_device.delegate().playURL(*URL::fromText(QString::fromStdString(address)));
        ASSERT_TRUE(player());
        ASSERT_TRUE(player()->videoOutput()) << "the player's screen is not there";
    }
    void press(Qt::Key key) { QTest::keyClick(qobject_cast<QQuickWindow*>(m_engine.rootObjects().value(0)), key); }
    static void await(const std::function<bool()>& condition)
    {
        constexpr int longest = 60'000; // milliseconds
        ASSERT_TRUE(QTest::qWaitFor(condition, longest));
    }

    QTemporaryDir m_folder;
    Device m_device;
    WindowModel m_model;
    QQmlApplicationEngine m_engine;
};

TEST_F(StreamTest, PlaysAStreamAndClosesIt)
{
    test::SampleRegion region;
    open(region.server.origin("n") + "/stream/lipa1.m3u8");
    await([this] { return player()->isReady() && player()->isPlaying() && player()->position() > 200; });
    const auto* sink = player()->videoOutput()->property("videoSink").value<QVideoSink*>();
    ASSERT_TRUE(sink);
    await([&] { return sink->videoFrame().isValid(); });
    EXPECT_EQ(sink->videoFrame().size(), QSize(320, 180));

    press(Qt::Key_Space);
    await([this] { return !player()->isPlaying(); });
    const qint64 paused = player()->position();
    press(Qt::Key_Space);
    await([&] { return player()->isPlaying() && player()->position() > paused; });
    const auto* window = qobject_cast<QQuickWindow*>(m_engine.rootObjects().value(0));
    const auto isBelow = [](const QQuickItem* item, const char* type) {
        for (; item; item = item->parentItem()) {
            if (QByteArray(item->metaObject()->className()).startsWith(type))
                return true;
        }
        return false;
    };
    EXPECT_TRUE(isBelow(window->activeFocusItem(), "PlayerScreen"));
    press(Qt::Key_Escape);
    EXPECT_FALSE(m_model.player());
    EXPECT_TRUE(isBelow(window->activeFocusItem(), "TableScreen")) << "the keys are the list's again";
}

TEST_F(StreamTest, GivesUpOnAStreamThatNeverStarts)
{
    const region::SilentAddress silent(0);
    ManualTimer timer;
    QStringList messages;
    QObject::connect(&m_model, &WindowModel::alertPresented,
                     [&](const QVariantMap& alert) { messages << alert.value(QStringLiteral("message")).toString(); });
    open("http://127.0.0.1:" + std::to_string(silent.port()) + "/live.m3u8");
    EXPECT_FALSE(player()->isReady());
    timer.advance(Seconds(25));
    await([this] { return !m_model.player(); });
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages[0].startsWith(QLatin1String("Streaming of this video is currently unavailable")));
    m_model.answerAlert(0);
}

TEST_F(StreamTest, SaysThatAStreamIsNotThere)
{
    test::SampleRegion region;
    open(region.server.origin("n") + "/gone/harbournews.m3u8");
    await([this] { return player()->hasFailed(); });
    open("file:///etc/passwd");
    EXPECT_TRUE(player()->hasFailed()) << "only addresses of the web are opened";
}

} // namespace
} // namespace vidora
