#include "app/Program.h"
#include "platform/Settings.h"

#include <QJsonArray>

#include <gmock/gmock.h>

namespace vidora::test {
namespace {

using ::testing::HasSubstr;

QStringList words(const char* line)
{
    return QString::fromUtf8(line).split(QLatin1Char(' '));
}

/// What the command says of one setting.
QJsonObject setting(const Home& home, const char* key)
{
    return home.run({QStringLiteral("settings"), QString::fromUtf8(key), QStringLiteral("--json")})
        .json()[QStringLiteral("settings")][0]
        .toObject();
}

TEST(SettingCommands, ReadChangeAndSetBack)
{
    const Home home;
    EXPECT_EQ(setting(home, "currently_show_count")[QStringLiteral("value")], 4);
    EXPECT_EQ(home.run(words("settings currently_show_count 2")).status, 0);
    EXPECT_EQ(home.run(words("settings colorizedShows on")).status, 0);
    EXPECT_EQ(home.run(words("settings appearance dark")).status, 0);
    EXPECT_EQ(setting(home, "currently_show_count")[QStringLiteral("value")], 2);
    EXPECT_EQ(setting(home, "colorizedShows")[QStringLiteral("value")], true);
    EXPECT_EQ(setting(home, "appearance")[QStringLiteral("value")], QStringLiteral("dark"));
    EXPECT_EQ(home.run(words("settings currently_show_count default")).status, 0);
    EXPECT_EQ(setting(home, "currently_show_count")[QStringLiteral("value")], 4);

    const auto before = home.files();
    for (const char* wrong : {"settings nonsense", "settings currently_show_count 0", "settings data_update 59",
                              "settings data_update soon", "settings show_img maybe", "settings appearance black",
                              "settings show_img on off"})
        EXPECT_EQ(home.run(words(wrong)).status, 2) << wrong;
    EXPECT_EQ(home.files(), before);
}

TEST(SettingCommands, TakeWhatStandsInTheFileForWhatItCanMean)
{
    const Home home;
    Home::write(home.path(QStringLiteral("settings/settings.json")),
                R"({"data_update": "3600", "show_img": 0, "bg_img": "yes", "appearance": "purple"})");
    EXPECT_EQ(setting(home, "data_update")[QStringLiteral("value")], 3600);
    EXPECT_EQ(setting(home, "show_img")[QStringLiteral("value")], false);
    EXPECT_EQ(setting(home, "bg_img")[QStringLiteral("value")], true);
    EXPECT_EQ(setting(home, "appearance")[QStringLiteral("value")], QStringLiteral("desktop"));
}

TEST(Readme, ListsTheSettingsAsTheyAre)
{
    QFile readme(QStringLiteral(VIDORA_README));
    ASSERT_TRUE(readme.open(QIODevice::ReadOnly));
    const std::string text = QString::fromUtf8(readme.readAll()).toStdString();
    for (const Setting* setting : setting::ofUser) {
        const QString row =
            QStringLiteral("| `%1` | %2 | %3 | %4 |")
                .arg(setting->name(), setting->usualText(), setting->range(), QString::fromUtf8(setting->meaning));
        EXPECT_THAT(text, HasSubstr(row.toStdString()));
    }
}

} // namespace
} // namespace vidora::test
