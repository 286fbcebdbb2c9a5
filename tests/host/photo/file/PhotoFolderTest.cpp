// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/file/PhotoFolder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <filesystem>

#include <fcntl.h>
#include <unistd.h>

using LumetraHost::PhotoFolder;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

struct PhotoFolderTest : testing::Test
{
    /// Names that are no text stay behind otherwise.
    void TearDown() override
    {
        std::filesystem::remove_all(QFile::encodeName(folder.path()).toStdString());
    }

    void Touch(const QByteArray& name) const
    {
        const QByteArray path = QFile::encodeName(folder.path()) + '/' + name;
        QDir().mkpath(QFileInfo(QFile::decodeName(path)).path());
        const int file = ::open(path.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
        ASSERT_GE(file, 0) << name.constData();
        ::close(file);
    }

    std::vector<std::string> List(PhotoFolder::Depth depth = PhotoFolder::Depth::FolderAlone,
                                  const char* name = "") const
    {
        std::vector<std::string> names;
        const PhotoFolder found(folder.path() + QLatin1String(name), depth);
        EXPECT_THAT(found.GetProblems(), IsEmpty());
        for (const QString& photo : found.GetPhotos())
            names.push_back(photo.mid(folder.path().size() + 1).toStdString());
        return names;
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(PhotoFolderTest, listsTheKindsThatAreReadByName)
{
    for (const char* name : {"b.JPG", "a.tiff", "c.dng", "B.heic", "notes.txt",
                             "a.tiff.lumetra.json", "jpg", ".hidden.jpg", "sub/d.png"})
        Touch(name);

    EXPECT_THAT(List(), ElementsAre("B.heic", "a.tiff", "b.JPG", "c.dng"));
}

TEST_F(PhotoFolderTest, goesIntoSubfoldersWhenToldTo)
{
    for (const char* name :
         {"b.jpg", "a/2.jpg", "a/1.jpg", "a/x/3.jpg", "z/4.jpg", ".thumbs/5.jpg"})
        Touch(name);

    EXPECT_THAT(List(PhotoFolder::Depth::WithSubfolders),
                ElementsAre("b.jpg", "a/1.jpg", "a/2.jpg", "a/x/3.jpg", "z/4.jpg"));
}

TEST_F(PhotoFolderTest, followsNoLinksToFoldersButTheOneThatIsNamed)
{
    Touch("real/1.jpg");
    ASSERT_TRUE(QFile::link(folder.path(), folder.filePath(QStringLiteral("real/circle"))));
    ASSERT_TRUE(QFile::link(folder.filePath(QStringLiteral("real")),
                            folder.filePath(QStringLiteral("link"))));
    ASSERT_TRUE(QFile::link(folder.filePath(QStringLiteral("real/1.jpg")),
                            folder.filePath(QStringLiteral("real/2.jpg"))));

    EXPECT_THAT(List(PhotoFolder::Depth::WithSubfolders, "/link"),
                ElementsAre("link/1.jpg", "link/2.jpg"));
    EXPECT_THAT(List(PhotoFolder::Depth::WithSubfolders), ElementsAre("real/1.jpg", "real/2.jpg"));
}

TEST_F(PhotoFolderTest, tellsOfNamesThatCannotBeReadAndFoldersThatAreMissing)
{
    Touch("a.jpg");
    Touch("b\xff.jpg");
    Touch("\xff.txt");

    const PhotoFolder found(folder.path());
    EXPECT_THAT(found.GetPhotos(), SizeIs(1));
    ASSERT_THAT(found.GetProblems(), SizeIs(1));
    EXPECT_THAT(found.GetProblems().first().toStdString(),
                HasSubstr("expected a name in the system's encoding, UTF-8, found other bytes in "
                          "it; rename it"));

    const QString lost = folder.filePath(QFile::decodeName("b\xff.jpg"));
    EXPECT_EQ(PhotoFolder::FindNameProblem(lost), PhotoFolder::DescribeBadName());
    EXPECT_EQ(PhotoFolder::FindNameProblem(folder.filePath(QStringLiteral("a.jpg"))), QString());

    const PhotoFolder missing(folder.filePath(QStringLiteral("none")));
    ASSERT_THAT(missing.GetProblems(), SizeIs(1));
    EXPECT_THAT(missing.GetProblems().first().toStdString(),
                HasSubstr("/none: the folder cannot be listed: No such file or directory"));
}
