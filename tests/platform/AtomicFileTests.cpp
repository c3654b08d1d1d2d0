#include "platform/AtomicFile.h"
#include "platform/StandardFolders.h"
#include "support/Seams.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cerrno>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

using namespace vidora;

namespace {

TEST(AtomicFile, KeepsTheOldOrTheNewFileWhicheverStepFails)
{
    const QByteArray old("what was there"), fresh("what is to come, and is longer");
    bool completed = false;
    for (int failingStep = 0; !completed; ++failingStep) {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("list"));
        ASSERT_FALSE(AtomicFile::write(path, old, AtomicFile::Access::OwnerOnly).failed());
        test::FaultyFileLayer layer(failingStep);
        const FileResult result =
            AtomicFile::write(path, fresh, AtomicFile::Access::OwnerOnly, AtomicFile::Durability::Synced, layer);
        completed = !layer.failed();
        EXPECT_EQ(completed, !result.failed()) << failingStep;
        EXPECT_EQ(completed, result.text.isEmpty()) << failingStep;
        const auto found = AtomicFile::read(path, 1000);
        ASSERT_TRUE(found) << failingStep;
        const bool renamed = completed || failingStep == 5;
        EXPECT_EQ(*found, renamed ? fresh : old) << failingStep;
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1) << failingStep;
    }
}

/// While it lives, no file of this process grows beyond a size: the system writes what fits, and fails thereafter.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t size)
    {
        ::getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limit{size, m_former.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_former);
        std::signal(SIGXFSZ, m_formerHandler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_former = {};
    const sighandler_t m_formerHandler = std::signal(SIGXFSZ, SIG_IGN);
};

TEST(AtomicFile, KeepsTheOldFileWhereTheNewOneFindsNoRoom)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("list"));
    const QByteArray fits(4096, 'a');
    ASSERT_FALSE(AtomicFile::write(path, "old", AtomicFile::Access::OwnerOnly).failed());
    const FileSizeLimit limit(fits.size());
    EXPECT_EQ(AtomicFile::write(path, QByteArray(4097, 'b'), AtomicFile::Access::OwnerOnly).code, EFBIG);
    EXPECT_EQ(AtomicFile::read(path, 10'000), QByteArray("old"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList(QStringLiteral("list")));
    EXPECT_FALSE(AtomicFile::write(path, fits, AtomicFile::Access::OwnerOnly).failed());
    EXPECT_EQ(AtomicFile::read(path, 10'000), fits);
}

TEST(AtomicFile, IsReadableByItsOwnerAloneWhereAskedTo)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("new/folder/list"));
    ASSERT_FALSE(AtomicFile::write(path, "a", AtomicFile::Access::OwnerOnly).failed());
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    EXPECT_EQ(QFile::permissions(folder.filePath(QStringLiteral("new"))) & QFile::ExeOther, QFile::Permissions());
    ASSERT_FALSE(AtomicFile::write(path, "b", AtomicFile::Access::Everyone, AtomicFile::Durability::Unsynced).failed());
    EXPECT_TRUE(QFile::permissions(path) & QFile::ReadOther);
    EXPECT_TRUE(AtomicFile::write(QStringLiteral("/proc/nowhere/list"), "a", AtomicFile::Access::Everyone).failed());
}

TEST(AtomicFile, WaitsForTheDiskOnlyWhereAskedTo)
{
    QTemporaryDir folder;
    const auto steps = [&](AtomicFile::Durability durability) {
        test::FaultyFileLayer layer;
        EXPECT_FALSE(AtomicFile::write(folder.filePath(QStringLiteral("list")), "a", AtomicFile::Access::OwnerOnly,
                                       durability, layer)
                         .failed());
        return layer.steps;
    };
    EXPECT_EQ(steps(AtomicFile::Durability::Synced), steps(AtomicFile::Durability::Unsynced) + 2) << "file and folder";
}

TEST(AtomicFile, ReadsRegularFilesUpToTheLimitOnly)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("list"));
    ASSERT_FALSE(AtomicFile::write(path, "12345", AtomicFile::Access::OwnerOnly).failed());
    EXPECT_EQ(AtomicFile::read(path, 5), QByteArray("12345"));
    EXPECT_FALSE(AtomicFile::read(path, 4));
    EXPECT_FALSE(AtomicFile::read(folder.path(), 100));
    EXPECT_FALSE(AtomicFile::read(QStringLiteral("/dev/zero"), 100));
    EXPECT_FALSE(AtomicFile::read(folder.filePath(QStringLiteral("missing")), 100));
}

TEST(AtomicFile, RemovesOnlyLeftovers)
{
    QTemporaryDir folder;
    for (const char* name : {"list", "list.partial-1f", ".synchronized"})
        ASSERT_FALSE(
            AtomicFile::write(folder.filePath(QLatin1String(name)), "a", AtomicFile::Access::OwnerOnly).failed());
    AtomicFile::removeLeftovers(folder.path());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name),
              QStringList({QStringLiteral(".synchronized"), QStringLiteral("list")}));
}

TEST(StandardFolders, FollowTheEnvironmentOrOneHome)
{
    QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.filePath(QStringLiteral("data")).toUtf8());
    qputenv("XDG_CACHE_HOME", "relative");
    const StandardFolders user = StandardFolders::ofUser();
    EXPECT_EQ(user.documents, home.filePath(QStringLiteral("data/vidora")));
    EXPECT_EQ(user.caches, QDir::homePath() + QStringLiteral("/.cache/vidora"));
    qunsetenv("XDG_DATA_HOME");
    qunsetenv("XDG_CACHE_HOME");

    const StandardFolders own = StandardFolders::under(home.filePath(QStringLiteral("device/")));
    EXPECT_EQ(own.settings, home.filePath(QStringLiteral("device/settings")));
    EXPECT_TRUE(own.make());
    EXPECT_TRUE(QDir(own.caches).exists());
    EXPECT_EQ(QFile::permissions(own.documents) & (QFile::ExeGroup | QFile::ExeOther), QFile::Permissions());
}

} // namespace
