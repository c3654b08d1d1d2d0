#include "platform/OpenFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <vector>

using namespace vidora;

namespace {

class OpenFileTest : public ::testing::Test
{
protected:
    OpenFileTest()
    {
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write("0123456789");
    }
    static QByteArray read(const OpenFile& file, std::size_t offset, qsizetype size)
    {
        QByteArray bytes(size, '-');
        return file.read(offset, bytes.data(), std::size_t(size)) ? bytes : QByteArray();
    }
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("file"));
};

TEST_F(OpenFileTest, ReadsWhatWasOpenedWhateverHappensToItsName)
{
    const auto file = OpenFile::open(path);
    ASSERT_TRUE(file);
    EXPECT_EQ(file->size(), 10u);
    QFile::remove(path);
    EXPECT_EQ(read(*file, 3, 4), "3456");
    EXPECT_EQ(read(*file, 8, 3), QByteArray()) << "not all of it is there";
    EXPECT_FALSE(OpenFile::open(path));
}

TEST_F(OpenFileTest, FailsWhereTheFileWasCutShort)
{
    const auto file = OpenFile::open(path);
    QFile::resize(path, 5);
    EXPECT_EQ(read(*file, 0, 5), "01234");
    EXPECT_EQ(read(*file, 4, 2), QByteArray());
}

TEST_F(OpenFileTest, OpensRegularFilesAlone)
{
    EXPECT_FALSE(OpenFile::open(folder.path()));
    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe), 0600), 0);
    EXPECT_FALSE(OpenFile::open(pipe));
}

// More lists than a process may hold files by default, and none under a number that others need.
TEST_F(OpenFileTest, HoldsMoreFilesThanTheUsualLimit)
{
    std::vector<std::unique_ptr<const OpenFile>> files;
    for (int i = 0; i < 1500; ++i)
        files.push_back(OpenFile::open(path));
    EXPECT_TRUE(files.back());
    QFile another(path);
    ASSERT_TRUE(another.open(QIODevice::ReadOnly));
    EXPECT_LT(another.handle(), 1024);
}

} // namespace
