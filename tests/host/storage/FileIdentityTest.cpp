// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/FileIdentity.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <unistd.h>

using LumetraHost::FileIdentity;

namespace {

struct FileIdentityTest : testing::Test
{
    FileIdentityTest()
    {
        Write("a.jpg");
        EXPECT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("sub")));
    }

    QString Path(const char* name) const { return folder.filePath(QLatin1String(name)); }

    void Write(const char* name) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }

    void Link(const char* target, const char* name) const
    {
        EXPECT_TRUE(QFile::link(QLatin1String(target), Path(name)));
    }

    bool IsSame(const char* first, const char* second) const
    {
        const auto one = FileIdentity::Of(Path(first));
        const auto other = FileIdentity::Of(Path(second));
        EXPECT_NE(one == other, one < other || other < one);
        return one == other;
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(FileIdentityTest, knowsAFileThroughDotsAndLinks)
{
    Link("a.jpg", "symbolic.jpg");
    Link("symbolic.jpg", "twice.jpg");
    ASSERT_EQ(::link(qPrintable(Path("a.jpg")), qPrintable(Path("hard.jpg"))), 0);

    EXPECT_TRUE(IsSame("a.jpg", "sub/../a.jpg"));
    EXPECT_TRUE(IsSame("a.jpg", "missing/../a.jpg"));
    EXPECT_TRUE(IsSame("a.jpg", "symbolic.jpg"));
    EXPECT_TRUE(IsSame("a.jpg", "twice.jpg"));
    EXPECT_TRUE(IsSame("a.jpg", "hard.jpg"));
}

TEST_F(FileIdentityTest, knowsAFileByARelativePath)
{
    const QString here = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.path()));
    const auto relative = FileIdentity::Of(QStringLiteral("a.jpg"));
    const auto missing = FileIdentity::Of(QStringLiteral("missing.jpg"));
    ASSERT_TRUE(QDir::setCurrent(here));

    EXPECT_TRUE(relative == FileIdentity::Of(Path("a.jpg")));
    EXPECT_TRUE(missing == FileIdentity::Of(Path("missing.jpg")));
}

TEST_F(FileIdentityTest, tellsFilesOfOneContentApart)
{
    Write("b.jpg");

    EXPECT_FALSE(IsSame("a.jpg", "b.jpg"));
    EXPECT_FALSE(IsSame("a.jpg", "missing.jpg"));
}

TEST_F(FileIdentityTest, knowsAFileThatIsYetToBeWritten)
{
    Link("sub", "folder-link");
    Link("sub/new.jpg", "dangling.jpg");

    EXPECT_TRUE(IsSame("sub/new.jpg", "folder-link/new.jpg"));
    EXPECT_TRUE(IsSame("sub/new.jpg", "dangling.jpg"));
    EXPECT_FALSE(IsSame("sub/new.jpg", "new.jpg"));
    EXPECT_FALSE(IsSame("sub/new.jpg", "sub"));
}

TEST_F(FileIdentityTest, endsWhereLinksGoInCircles)
{
    Link("round.jpg", "about.jpg");
    Link("about.jpg", "round.jpg");

    EXPECT_TRUE(IsSame("round.jpg", "round.jpg"));
    EXPECT_FALSE(IsSame("round.jpg", "a.jpg"));
}

TEST_F(FileIdentityTest, tellsPathsInMissingFoldersApart)
{
    EXPECT_TRUE(IsSame("gone/a.jpg", "gone/./a.jpg"));
    EXPECT_FALSE(IsSame("gone/a.jpg", "gone/b.jpg"));
    EXPECT_FALSE(FileIdentity::Of(QString()) == FileIdentity::Of(Path("gone/a.jpg")));
}
