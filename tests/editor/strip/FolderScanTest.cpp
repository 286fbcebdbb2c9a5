// SPDX-License-Identifier: GPL-2.0-or-later
#include "strip/FolderScan.h"
#include "editor/EditorFixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gmock/gmock.h>

#include <sys/stat.h>

using namespace LumetraTest;
using LumetraEditor::FolderScan;
using LumetraEditor::FoundPhoto;
using LumetraEditor::PhotoSources;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

class FolderScanTest : public EditorFolder
{
protected:
    FolderScanTest()
    {
        QObject::connect(&scan, &FolderScan::found, [this](const std::vector<FoundPhoto>& photos) {
            ++portions;
            all.insert(all.end(), photos.begin(), photos.end());
        });
        QObject::connect(&scan, &FolderScan::ended, [this](const QStringList& reports) {
            problems = reports;
            isEnded = true;
        });
    }

    void Scan(const PhotoSources& sources)
    {
        all.clear();
        isEnded = false;
        scan.Start(sources);
        WaitUntil([this] { return isEnded; });
    }

    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const FoundPhoto& photo : all)
            names.push_back(QFileInfo(photo.path).fileName().toStdString());
        return names;
    }

    FolderScan scan;
    std::vector<FoundPhoto> all;
    int portions = 0;
    bool isEnded = false;
    QStringList problems;
};

} // namespace

TEST_F(FolderScanTest, findsThePhotosOfAFolderAndNothingElse)
{
    ASSERT_TRUE(QDir().mkpath(Path("inside")));
    ASSERT_TRUE(QDir().mkpath(Path("folder.jpg")));
    for (const char* const name : {"a.JPG", "b.png", "c.jpg.lumetra.json", "notes.txt", "._a.jpg",
                                   ".jpg", "inside/d.jpg", "e.Nef", "jpg", "f.tiff"})
        WriteFile(name, "x");
    ASSERT_TRUE(QFile::link(Path("b.png"), Path("link.png")));
    ASSERT_TRUE(QFile::link(Path("gone"), Path("broken.png")));
    ASSERT_EQ(::mkfifo(QFile::encodeName(Path("pipe.jpg")).constData(), 0600), 0);

    Scan({{}, {Path(".")}});

    EXPECT_THAT(Names(), UnorderedElementsAre("a.JPG", "b.png", "e.Nef", "link.png", "f.tiff"));
    EXPECT_THAT(problems, IsEmpty());
}

TEST_F(FolderScanTest, tellsWhenPhotosAndTheirEditsWereWritten)
{
    WriteFile("a.jpg", "x");
    WriteFile("b.jpg", "x");
    WriteFile("b.jpg.lumetra.json", "{}");

    Scan({{Path("gone.jpg")}, {Path(".")}});

    ASSERT_EQ(all.size(), 3u);
    for (const FoundPhoto& photo : all) {
        EXPECT_EQ(photo.modified.isValid(), !photo.path.endsWith(QLatin1String("gone.jpg")));
        EXPECT_EQ(photo.editModified.isValid(), photo.path.endsWith(QLatin1String("b.jpg")));
    }
}

TEST_F(FolderScanTest, namesAPhotoOnce)
{
    const QString path = WriteFile("a.jpg", "x");

    Scan({{path, path}, {Path("."), Path(".")}});

    EXPECT_THAT(Names(), testing::ElementsAre("a.jpg"));
}

TEST_F(FolderScanTest, saysWhichFolderCannotBeRead)
{
    WriteFile("a.jpg", "x");

    Scan({{}, {Path("gone"), Path(".")}});

    ASSERT_EQ(problems.size(), 1);
    EXPECT_THAT(problems.first().toStdString(), HasSubstr("gone"));
    EXPECT_EQ(all.size(), 1u);
}

TEST_F(FolderScanTest, deliversManyPhotosInPortions)
{
    for (int i = 0; i < 300; ++i)
        WriteFile(qPrintable(QStringLiteral("%1.jpg").arg(i)), "x");

    Scan({{}, {Path(".")}});

    EXPECT_EQ(all.size(), 300u);
    EXPECT_GE(portions, 3);
}

TEST_F(FolderScanTest, saysNothingMoreAfterAnotherScanHasBegun)
{
    ASSERT_TRUE(QDir().mkpath(Path("one")));
    ASSERT_TRUE(QDir().mkpath(Path("two")));
    WriteFile("one/a.jpg", "x");
    WriteFile("two/b.jpg", "x");

    scan.Start({{}, {Path("one")}});
    Scan({{}, {Path("two")}});

    EXPECT_THAT(Names(), testing::ElementsAre("b.jpg"));
    EXPECT_FALSE(scan.IsRunning());
}
