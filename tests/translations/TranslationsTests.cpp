#include "app/Command.h"
#include "app/Translations.h"
#include "platform/DeviceSettings.h"
#include "platform/Localized.h"

#include <QProcess>
#include <QProcessEnvironment>

#include <gmock/gmock.h>

namespace vidora {
namespace {

QString utf8(const char* text)
{
    return QString::fromUtf8(text);
}

using Variables = std::vector<std::pair<const char*, const char*>>;

/// The process's variables of language, put back at the end.
class Environment
{
public:
    explicit Environment(const Variables& values)
    {
        for (const char* name : names) {
            m_before.emplace_back(name, qgetenv(name));
            qunsetenv(name);
        }
        for (const auto& [name, value] : values)
            qputenv(name, value);
    }
    ~Environment()
    {
        for (const auto& [name, value] : m_before) {
            if (value.isNull())
                qunsetenv(name);
            else
                qputenv(name, value);
        }
    }

private:
    static constexpr const char* names[] = {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LC_TIME", "LANG"};
    std::vector<std::pair<const char*, QByteArray>> m_before;
};

TEST(Translations, FollowTheEnvironment)
{
    struct Case
    {
        Variables environment;
        const char *translation, *formats;
    };
    for (const Case& c : {
             Case{{{"LANG", "sr_RS.UTF-8"}}, "sr", "sr_RS"},
             Case{{{"LANG", "sr_RS.UTF-8@latin"}}, "sr_Latn", "sr_Latn_RS"},
             Case{{{"LANG", "sr_RS@latin"}}, "sr_Latn", "sr_Latn_RS"},
             Case{{{"LANG", "sr_ME.UTF-8"}}, "sr_Latn", "sr_Latn_ME"},
             Case{{{"LANG", "bs_BA.UTF-8"}}, "hr", "bs_BA"},
             Case{{{"LANG", "de_AT@euro"}}, "de", "de_AT"},
             Case{{{"LANG", "en_US.UTF-8"}, {"LC_TIME", "it_IT.UTF-8"}}, "", "it_IT"},
             Case{{{"LANG", "en_US.UTF-8"}, {"LC_MESSAGES", "cs_CZ.UTF-8"}}, "cs", "en_US"},
             Case{{{"LANG", "hu_HU.UTF-8"}, {"LC_ALL", "sk_SK.UTF-8"}}, "sk", "sk_SK"},
             Case{{{"LANG", "mk_MK.UTF-8"}, {"LANGUAGE", "fr:sr@latin:ro"}}, "sr_Latn", "mk_MK"},
             Case{{{"LANG", "hr_HR.UTF-8"}, {"LANGUAGE", "fr:en:de"}}, "", "hr_HR"},
             Case{{{"LANG", "C.UTF-8"}, {"LANGUAGE", "de"}}, "", "C"},
             Case{{{"LANG", "../../etc_XX"}}, "", "C"},
             Case{{}, "", "C"},
         }) {
        const Environment environment(c.environment);
        const QStringList languages = DeviceSettings::languagesOfEnvironment();
        EXPECT_EQ(Translations::bestFor(languages), utf8(c.translation)) << languages.join(u' ').toStdString();
        EXPECT_EQ(DeviceSettings::localeOfEnvironment(), QLocale(utf8(c.formats))) << c.formats;
    }
}

TEST(Translations, ChooseTheFormThatGoesWithANumber)
{
    const auto chosen = [](std::size_t count) { return localized("%n channels are chosen.", count); };
    {
        const Translations serbian({utf8("sr-Latn-RS")});
        EXPECT_EQ(localized("Channels"), utf8("Kanali"));
        EXPECT_EQ(chosen(21), utf8("Izabran je 21 kanal."));
        EXPECT_EQ(chosen(3), utf8("Izabrana su 3 kanala."));
        EXPECT_EQ(chosen(12), utf8("Izabrano je 12 kanala."));
    }
    {
        const Translations none({utf8("fr")});
        EXPECT_EQ(chosen(1), utf8("1 channel is chosen."));
        EXPECT_EQ(chosen(2), utf8("2 channels are chosen."));
    }
    EXPECT_EQ(localized("Channels"), utf8("Channels")) << "gone with their object";
}

TEST(Translations, LeaveWhatAUserTypesInLatinLetters)
{
    const Translations serbian({utf8("sr")});
    EXPECT_EQ(commandNamed(utf8("alarm"))->usage(), utf8("vidora alarm X --at ВРЕМЕ [--on КАНАЛ] [--before МИНУТИ]"));
    EXPECT_EQ(localized("%1 is no XMLTV guide."), utf8("%1 није XMLTV водич."));
}

TEST(Program, SpeaksTheLanguageOfTheEnvironment)
{
    const auto answer = [](const char* language, const QStringList& arguments) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(utf8("LC_ALL"), utf8(language));
        process.setProcessEnvironment(environment);
        process.start(utf8(VIDORA_PROGRAM), arguments);
        EXPECT_TRUE(process.waitForFinished(60'000));
        return QString::fromUtf8(process.readAllStandardOutput()).toStdString();
    };
    EXPECT_THAT(answer("C", {utf8("--help")}), ::testing::HasSubstr("Usage: vidora [COMMAND]"));
    EXPECT_THAT(answer("sr_RS.UTF-8", {utf8("--help")}), ::testing::HasSubstr("Употреба: vidora [КОМАНДА]"));
}

} // namespace
} // namespace vidora
