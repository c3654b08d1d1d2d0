#include "app/ChannelNames.h"
#include "app/Refusal.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vidora {
namespace {

class ChannelNamesTest : public ::testing::Test
{
protected:
    ChannelNamesTest()
    {
        const QString resources = QStringLiteral(VIDORA_RESOURCES);
        const CatalogueFiles files{resources + QStringLiteral("/Data.plist"), resources + QStringLiteral("/icons"),
                                   m_folder.filePath(QStringLiteral("cache"))};
        m_channels = loadChannelData(files, [](const QString&) { return true; });
    }

    /// The title of the channel that the name means, or the message.
    QString found(const char* name) const
    {
        try {
            return titleOf(channelNamed(QString::fromUtf8(name), m_channels), m_channels);
        } catch (const Refusal& refusal) {
            return QStringLiteral("? ") + refusal.message;
        }
    }

private:
    QTemporaryDir m_folder;
    ChannelData m_channels;
};

TEST_F(ChannelNamesTest, LeadToOneChannelOrNameTheCandidates)
{
    struct Case
    {
        const char *name, *found;
    };
    for (const Case& c : {
             Case{"Lipa 1", "Lipa 1"}, Case{"  lipa 1 ", "Lipa 1"},
             Case{"gólya", "Gólya"}, // whole, although another title begins with it
             Case{"GOLYA MOZI", "Gólya Mozi"}, Case{"napraforgo", "Napraforgó"}, Case{"fantaz", "Lanterna Fantazija"},
             Case{"2a90491bb9f2745ace76bf2d", "Lipa 1"}, Case{"2A90491BB9F2745ACE76BF2D", "Lipa 1"},
             Case{"lipa", "? \"lipa\" may be: Lipa 1, Lipa 2, Lipa Plus"},
             Case{"БЕХАР", "Behar"}, // from a keyboard of the other alphabet
         })
        EXPECT_EQ(found(c.name), QString::fromUtf8(c.found)) << c.name;
    for (const char* unknown : {"no such channel", "", "2a90491bb9f2745ace76bf2e"})
        EXPECT_TRUE(found(unknown).startsWith(
            QStringLiteral("? There is no \"%1\". There are: Behar").arg(QString::fromUtf8(unknown))))
            << found(unknown).toStdString();
}

} // namespace
} // namespace vidora
