#include "platform/AtomicFile.h"
#include "platform/UserDefaults.h"

#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace vidora;

namespace {

class UserDefaultsTest : public ::testing::Test
{
protected:
    void write(QByteArrayView bytes)
    {
        ASSERT_FALSE(AtomicFile::write(path, bytes, AtomicFile::Access::OwnerOnly).failed());
    }
    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("settings.json"));
};

TEST_F(UserDefaultsTest, ReadsAValueInTheKindAskedFor)
{
    struct Case
    {
        const char* json;
        bool asBool;
        std::int64_t asInteger;
        double asDouble;
        const char* asString; ///< null for nothing
    };
    const Case cases[] = {
        {"true", true, 1, 1, nullptr},
        {"false", false, 0, 0, nullptr},
        {"null", false, 0, 0, nullptr},
        {"[1]", false, 0, 0, nullptr},
        {"3600", true, 3600, 3600, "3600"},
        {"-1.75", true, -1, -1.75, "-1.75"},
        {"9007199254740993", true, 9007199254740993, 9007199254740992.0, "9007199254740993"},
        {"1e300", true, std::numeric_limits<std::int64_t>::max(), 1e300, "1e+300"},
        {"\" 3600 s\"", true, 3600, 3600, " 3600 s"},
        {"\"12e\"", true, 12, 12, "12e"},
        {"\"nan\"", false, 0, 0, "nan"},
        {"\"YES\"", true, 0, 0, "YES"},
        {"\"\"", false, 0, 0, ""},
    };
    for (const Case& one : cases) {
        write(QByteArray(QByteArray("{\"k\": ") + one.json + "}"));
        const UserDefaults defaults(path);
        const QString key = QStringLiteral("k");
        EXPECT_EQ(defaults.boolForKey(key), one.asBool) << one.json;
        EXPECT_EQ(defaults.integerForKey(key), one.asInteger) << one.json;
        EXPECT_EQ(defaults.doubleForKey(key), one.asDouble) << one.json;
        EXPECT_EQ(defaults.stringForKey(key).has_value(), one.asString != nullptr) << one.json;
        EXPECT_EQ(defaults.stringForKey(key).value_or(QString()), QLatin1String(one.asString)) << one.json;
    }
    const UserDefaults defaults(path);
    EXPECT_FALSE(defaults.boolForKey(QStringLiteral("absent")));
    EXPECT_FALSE(defaults.objectForKey(QStringLiteral("absent")));
}

TEST_F(UserDefaultsTest, MergesWithWhatAnotherWrote)
{
    UserDefaults one(path), other(path);
    one.setBool(true, QStringLiteral("colorizedShows"));
    one.setInteger(2, QStringLiteral("both"));
    other.setInteger(3, QStringLiteral("both"));
    other.setObject(QJsonArray{QStringLiteral("a"), QStringLiteral("b")}, QStringLiteral("list"));
    EXPECT_TRUE(one.synchronize());
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    EXPECT_FALSE(other.boolForKey(QStringLiteral("colorizedShows")));
    EXPECT_TRUE(other.synchronize());
    EXPECT_TRUE(other.boolForKey(QStringLiteral("colorizedShows")));
    EXPECT_EQ(other.stringArrayForKey(QStringLiteral("list")), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    other.setObject(QJsonArray{QStringLiteral("a"), 1}, QStringLiteral("list"));
    EXPECT_FALSE(other.stringArrayForKey(QStringLiteral("list"))) << "not of texts alone";
    other.removeObjectForKey(QStringLiteral("colorizedShows"));
    other.setDouble(std::numeric_limits<double>::infinity(), QStringLiteral("list"));
    EXPECT_TRUE(other.synchronize());
    EXPECT_TRUE(one.synchronize());
    EXPECT_FALSE(one.objectForKey(QStringLiteral("colorizedShows")));
    EXPECT_FALSE(one.stringArrayForKey(QStringLiteral("list")));
    EXPECT_EQ(one.integerForKey(QStringLiteral("both")), 3);
}

TEST_F(UserDefaultsTest, SetsAnUnreadableFileAsideInsteadOfWritingOverIt)
{
    const QByteArray typo("{\"show_img\": true, \"data_update\": 36");
    write(typo);
    UserDefaults defaults(path);
    EXPECT_FALSE(defaults.objectForKey(QStringLiteral("show_img")));
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(AtomicFile::read(path, 100), typo); // nothing to write: left for its user to mend
    defaults.setBool(true, QStringLiteral("bg_img"));
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(AtomicFile::read(path + QStringLiteral(".unreadable"), 100), typo);
    EXPECT_TRUE(UserDefaults(path).boolForKey(QStringLiteral("bg_img")));
}

TEST_F(UserDefaultsTest, KeepsChangesThatCouldNotBeWritten)
{
    UserDefaults defaults(folder.filePath(QStringLiteral("later/settings.json")));
    defaults.setInteger(7, QStringLiteral("lastAlarmMinutes"));
    write("not a folder");
    ASSERT_TRUE(QFile::rename(path, folder.filePath(QStringLiteral("later"))));
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_EQ(defaults.integerForKey(QStringLiteral("lastAlarmMinutes")), 7);
    ASSERT_TRUE(QFile::remove(folder.filePath(QStringLiteral("later"))));
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(UserDefaults(folder.filePath(QStringLiteral("later/settings.json")))
                  .integerForKey(QStringLiteral("lastAlarmMinutes")),
              7);
}

} // namespace
