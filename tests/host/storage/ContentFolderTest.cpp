// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/ContentFolder.h"
#include "Zorvik/Exception.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace LumetraHost {
namespace {

/// The SHA-256 of "abc" in FIPS 180-2.
constexpr char NameOfAbc[] = "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad";

class ContentFolderTest : public testing::Test
{
protected:
    QString File(const char* name) const
    {
        return contents.GetPath() + QLatin1Char('/') + QLatin1String(name);
    }

    static void Write(const QString& name, const QByteArray& content)
    {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    std::string ErrorOf(qint64 size) const
    {
        try {
            contents.Read(NameOfAbc, size);
        } catch (const Zorvik::Exception& error) {
            return error.GetDescription();
        }
        return "no error";
    }

    QTemporaryDir folder;
    ContentFolder contents{folder.filePath(QStringLiteral("presets.json.tables"))};
};

TEST_F(ContentFolderTest, namesFilesByTheirContent)
{
    EXPECT_EQ(ContentFolder::NameOf("abc"), NameOfAbc);
    EXPECT_FALSE(QDir(contents.GetPath()).exists());
    contents.Add("abc");
    EXPECT_EQ(contents.Read(NameOfAbc, 3), "abc");
    EXPECT_EQ(contents.FindAll(), std::set<std::string>{NameOfAbc});
    EXPECT_EQ(contents.FindProblem(NameOfAbc, 3), "");
}

TEST_F(ContentFolderTest, takesForNamesOnlyWhatHashesLookLike)
{
    EXPECT_TRUE(ContentFolder::IsName(NameOfAbc));
    for (const char* other :
         {"", "abc", "..", "BA7816BF8F01CFEA414140DE5DAE2223B00361A396177A9CB410FF61F20015AD",
          "../816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"})
        EXPECT_FALSE(ContentFolder::IsName(other)) << other;
}

TEST_F(ContentFolderTest, saysWhichFileIsMissingShortOrDamaged)
{
    const std::string file = File(NameOfAbc).toStdString();
    EXPECT_EQ(ErrorOf(3), file + ": expected a file of 3 bytes, found none");
    contents.Add("abc");
    EXPECT_EQ(ErrorOf(4), file + ": expected a file of 4 bytes, found 3");
    Write(File(NameOfAbc), "abd");
    EXPECT_EQ(contents.FindProblem(NameOfAbc, 3), "") << "nothing is read";
    EXPECT_EQ(ErrorOf(3),
              file + ": expected the content that its name is the SHA-256 of, found a damaged one");
    ASSERT_TRUE(QFile::remove(File(NameOfAbc)));
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(ErrorOf(3), file + ": expected a file of 3 bytes, found no plain file");
}

TEST_F(ContentFolderTest, writesADamagedFileAnewAndAGoodOneNot)
{
    contents.Add("abc");
    QFile file(File(NameOfAbc));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QDateTime past = QDateTime::currentDateTime().addSecs(-1000);
    ASSERT_TRUE(file.setFileTime(past, QFileDevice::FileModificationTime));
    file.close();
    contents.Add("abc");
    EXPECT_LE(QFileInfo(file).lastModified(), past.addSecs(1));
    Write(File(NameOfAbc), "abd");
    contents.Add("abc");
    EXPECT_EQ(contents.Read(NameOfAbc, 3), "abc");
}

TEST_F(ContentFolderTest, goesWithItsLastFileAndLeavesStrangersAlone)
{
    contents.Add("abc");
    Write(File("readme.txt"), "mine");
    contents.Remove(NameOfAbc);
    EXPECT_TRUE(QFile::exists(File("readme.txt")));
    ASSERT_TRUE(QFile::remove(File("readme.txt")));
    contents.Add("abc");
    contents.Remove(NameOfAbc);
    EXPECT_FALSE(QDir(contents.GetPath()).exists());
}

TEST_F(ContentFolderTest, removesWhatKilledWritersLeftTenMinutesAgo)
{
    contents.Add("abc");
    const QString old = File(NameOfAbc) + QStringLiteral(".aBcDeF");
    const QString young = File(NameOfAbc) + QStringLiteral(".xYzXyZ");
    Write(old, "a");
    Write(young, "a");
    QFile file(old);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(-700),
                                 QFileDevice::FileModificationTime));
    file.close();
    contents.RemoveOldTemporaryFiles();
    EXPECT_FALSE(QFile::exists(old));
    EXPECT_TRUE(QFile::exists(young));
}

} // namespace
} // namespace LumetraHost
