#include "listings/ListingSources.h"
#include "sample-region/Catalogue.h"
#include "sample-region/Pictures.h"
#include "support/SampleRegion.h"

#include <QFile>
#include <QSet>

#include <gtest/gtest.h>

namespace vidora::region {
namespace {

QByteArray resource(const std::string& name)
{
    QFile file(QStringLiteral(VIDORA_RESOURCES "/") + QString::fromStdString(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(Catalogue, IsWhatTheRegionServes)
{
    EXPECT_TRUE(resource("Data.plist").toStdString() == cataloguePropertyList())
        << "run: vidora-sample-region --write-catalogue resources";
    for (const RegionChannel& channel : regionChannels())
        EXPECT_EQ(resource("icons/" + channel.icon()).toStdString(), channelIcon(channel)) << channel.title;
}

TEST(Catalogue, HasChannelsOfEveryFamilyAndNoIconTwice)
{
    ASSERT_GE(regionChannels().size(), 40U);
    QSet<QString> icons, ids;
    std::string sources = "\n";
    for (const RegionChannel& channel : regionChannels()) {
        EXPECT_EQ(channel.id.size(), 24U);
        icons.insert(QString::fromStdString(channel.icon()));
        ids.insert(QString::fromUtf8(channel.id.data(), qsizetype(channel.id.size())));
        for (const std::string_view source : channel.sources)
            sources.append(source).append("\n");
    }
    EXPECT_EQ(std::size_t(icons.size()), regionChannels().size());
    EXPECT_EQ(std::size_t(ids.size()), regionChannels().size());
    EXPECT_TRUE(ids.contains(QStringLiteral("58f4ded60befe78cb336a80b")));
    for (const char* family : {"\nr.",
                               "\nn.",
                               "\ns.",
                               "\ntvpc.",
                               "\ndolce-sport.",
                               "\n_C5",
                               "\n_BOING",
                               "\n_D1",
                               "\n_KN",
                               "\nhttp",
                               "\nbarrandov.",
                               "\ndsk.",
                               "\njoj.",
                               "\n-hbo.hu.",
                               "\n-hbo.hr.",
                               "\n-hbo.cz.",
                               "\n-hbo.ro.",
                               "\nmax.prima.example\n",
                               "\ncz.nova.",
                               ".tv\n",
                               "\ncc.romania\n",
                               "\ncinestar.",
                               "\n=",
                               "\n10101\n",
                               "\n63\n",
                               "\nlipa1\n"})
        EXPECT_NE(sources.find(family), std::string::npos) << family;
}

} // namespace
} // namespace vidora::region
