#include "core/GuideIcons.h"
#include "core/GuideImport.h"
#include "platform/AtomicFile.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vidora {
namespace {

const QByteArray picture = "\x89PNG\r\n\x1a\n...";

/// Hosts that give a picture, something else, or no sign of life.
class Hosts final : public URLSession
{
public:
    URLResult perform(const URLRequest& request) override
    {
        const std::lock_guard lock(m_mutex);
        if (*request.cancelled)
            return failure(URLError::Kind::Cancelled);
        ++requests;
        EXPECT_EQ(request.maximumBodySize, 2 * 1024 * 1024);
        EXPECT_LE(request.timeoutIntervalForResource, Seconds(5));
        if (request.url.host() == QLatin1String("silent.example"))
            return failure(URLError::Kind::TimedOut);
        if (request.url.host() == QLatin1String("last.example"))
            *ended = true;
        URLResponse response;
        response.statusCode = request.url.host() == QLatin1String("missing.example") ? 404 : 200;
        return {body, response, std::nullopt};
    }

    QByteArray body = picture;
    int requests = 0;
    const std::shared_ptr<std::atomic<bool>> ended = std::make_shared<std::atomic<bool>>(false);

private:
    static URLResult failure(URLError::Kind kind)
    {
        return {std::nullopt, std::nullopt, URLError{QStringLiteral("failed"), {}, {}, kind}};
    }
    std::mutex m_mutex;
};

class GuideIconsTest : public ::testing::Test
{
protected:
    static GuideChannel channel(int number, const char* icon)
    {
        GuideChannel made;
        made.id = QString::number(number);
        if (*icon)
            made.icon = QString::fromLatin1(icon);
        return made;
    }
    static std::vector<GuideChannel> channels(int count, const char* icon)
    {
        std::vector<GuideChannel> made;
        for (int i = 0; i < count; ++i)
            made.push_back(channel(i, icon));
        return made;
    }
    GuideIcons icons() const { return {folder(), clock}; }
    QString folder() const { return m_folder.filePath(QStringLiteral("icons")); }
    /// What a process that imports this guide does, up to the fetching.
    void install(const std::vector<GuideChannel>& guide) const
    {
        GuideIcons made = icons();
        ASSERT_FALSE(made.draw(guide).failed());
        made.adopt(guide);
    }
    GuideIcons::Counts fetch(GuideIcons::Which which = GuideIcons::Which::Missing)
    {
        GuideIcons made = icons();
        made.fetch(hosts, which, hosts.ended, [](std::size_t done, std::size_t of) { EXPECT_LE(done, of); });
        return made.counts();
    }
    QByteArray file(int number) const
    {
        const QString name = GuideIcons::fileName(GuideImport::idOfChannel(QString::number(number)));
        return AtomicFile::read(folder() + QLatin1Char('/') + name, 1'000'000).value_or(QByteArray());
    }

    FixedClock clock{*instantFromIsoText(u"2026-11-22T19:00:00Z")};
    Hosts hosts;

private:
    QTemporaryDir m_folder;
};

TEST_F(GuideIconsTest, StandDrawnUntilTheGuidesOwnHaveCome)
{
    install({channel(0, "http://good.example/0.png"), channel(1, ""), channel(2, "http://missing.example/2.png"),
             channel(3, "file:///etc/hostname")});
    for (int i = 0; i < 4; ++i)
        EXPECT_TRUE(file(i).startsWith("<svg")) << i;
    EXPECT_EQ(hosts.requests, 0) << "a guide waits for no icon";
    const GuideIcons::Counts counts = fetch();
    EXPECT_EQ(counts.fetched, 1U);
    EXPECT_EQ(counts.drawn, 3U);
    EXPECT_EQ(counts.waiting, 0U);
    EXPECT_EQ(file(0), picture);
    for (int i = 1; i < 4; ++i)
        EXPECT_TRUE(file(i).startsWith("<svg")) << i;
}

TEST_F(GuideIconsTest, ASilentHostCostsOneWaitADay)
{
    install(channels(300, "http://silent.example/icon.png"));
    EXPECT_EQ(fetch().waiting, 0U);
    EXPECT_EQ(hosts.requests, 1);
    clock.advance(std::chrono::hours(23));
    install(channels(300, "http://silent.example/icon.png"));
    fetch(GuideIcons::Which::MissingAndOld);
    EXPECT_EQ(hosts.requests, 1) << "nor with another import of the same day";
    clock.advance(std::chrono::hours(1));
    fetch();
    EXPECT_EQ(hosts.requests, 2);
    clock.advance(-std::chrono::hours(100));
    EXPECT_EQ(icons().counts().waiting, 300U) << "a clock that was set back puts nothing off";
}

TEST_F(GuideIconsTest, WhatARoundHadNoTimeForComesAnotherTime)
{
    std::vector<GuideChannel> guide = channels(100, "http://good.example/icon.png");
    guide.push_back(channel(100, "http://last.example/icon.png"));
    install(guide);
    const GuideIcons::Counts first = fetch();
    EXPECT_GT(first.waiting, 0U);
    EXPECT_EQ(first.fetched + first.waiting, 101U) << "what was broken off counts as not asked for";
    *hosts.ended = false;
    EXPECT_EQ(fetch().waiting, 0U);
    EXPECT_EQ(hosts.requests, 101);
    EXPECT_EQ(file(99), picture);
}

TEST_F(GuideIconsTest, AnImportAsksAgainForWhatCameADayAgo)
{
    install(channels(1, "http://good.example/icon.png"));
    fetch();
    clock.advance(std::chrono::hours(25));
    hosts.body = picture + "new";
    fetch();
    EXPECT_EQ(file(0), picture) << "an update leaves it alone";
    install(channels(1, "http://good.example/icon.png"));
    fetch(GuideIcons::Which::MissingAndOld);
    EXPECT_EQ(file(0), picture + "new");
    install(channels(1, "http://missing.example/elsewhere.png"));
    fetch();
    EXPECT_EQ(file(0), picture + "new") << "until there is a better one";
    install({channel(1, "")});
    EXPECT_TRUE(file(0).isEmpty()) << "what belongs to no channel goes";
}

TEST_F(GuideIconsTest, KeepsNoMoreThanItsRoom)
{
    install(channels(2, "http://good.example/icon.png"));
    QFile other(folder() + QStringLiteral("/large"));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly) && other.resize(256LL * 1024 * 1024));
    EXPECT_EQ(fetch().fetched, 0U);
    EXPECT_TRUE(file(0).startsWith("<svg"));
}

TEST_F(GuideIconsTest, TakesNoHarmFromWhatLiesInTheFolder)
{
    QDir().mkpath(folder());
    for (const QByteArray& records : {QByteArray("garbage"), QByteArray("{\"x\": 7, \"y\": {\"tried\": []}}")}) {
        ASSERT_FALSE(
            AtomicFile::write(folder() + QStringLiteral("/fetched.json"), records, AtomicFile::Access::OwnerOnly)
                .failed());
        EXPECT_EQ(icons().counts().waiting, 0U);
        install(channels(1, "http://good.example/icon.png"));
        EXPECT_EQ(icons().counts().waiting, 1U);
    }
}

} // namespace
} // namespace vidora
