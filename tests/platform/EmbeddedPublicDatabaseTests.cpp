#include "platform/EmbeddedPublicDatabase.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <memory>

namespace vidora {
namespace {

class EmbeddedPublicDatabaseTest : public ::testing::Test
{
protected:
    /// What a process that starts now finds.
    std::optional<std::int64_t> counter(const QString& name) const
    {
        std::optional<std::int64_t> found;
        EmbeddedPublicDatabase(path, clock).fetchRecordWithID(name, [&](const auto& record, const auto& error) {
            EXPECT_FALSE(error);
            if (record)
                found = record->counter;
        });
        return found;
    }

    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("public.sqlite"));
    const QString title = QStringLiteral("Dnevnik");
    FixedClock clock{instantFromUnixMilliseconds(0)};
};

TEST_F(EmbeddedPublicDatabaseTest, EndsOnlyWhenAllIsWritten)
{
    {
        EmbeddedPublicDatabase database(path, clock);
        database.saveRecord({title, 5}, {});
        database.saveRecord({QStringLiteral("gone"), 7}, {});
        database.deleteRecordWithID(QStringLiteral("gone"), {});
        database.fetchRecordWithID(title, [&](const auto& record, const auto&) {
            database.saveRecord({title, record->counter + 1}, {});
        });
    }
    EXPECT_EQ(counter(title), 6);
    EXPECT_EQ(counter(QStringLiteral("gone")), std::nullopt);
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
}

TEST_F(EmbeddedPublicDatabaseTest, TellsWhatItCantReach)
{
    int errors = 0;
    const auto done = [&](const std::optional<PublicDatabaseError>& error) { errors += error.has_value(); };
    for (const QString& place : {QStringLiteral("/proc/nowhere/public.sqlite"), folder.path(), path}) {
        EmbeddedPublicDatabase database(place, clock);
        database.saveRecord({title, 5}, done);
        database.deleteRecordWithID(QStringLiteral("never there"), done);
        database.fetchRecordWithID(title, [&](const auto& record, const auto& error) {
            EXPECT_EQ(record.has_value(), !error.has_value());
            done(error);
        });
    }
    EXPECT_EQ(errors, 6) << "all of the first two, none of the last";
}

} // namespace
} // namespace vidora
