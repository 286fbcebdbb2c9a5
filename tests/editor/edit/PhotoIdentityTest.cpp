// SPDX-License-Identifier: GPL-2.0-or-later
#include "editor/EditorFixture.h"
#include "editor/ScriptedAlerts.h"

#include "edits/EditFile.h"
#include "edits/PhotoIdentity.h"

#include <QAction>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSlider>

#include <gmock/gmock.h>

#include <sys/stat.h>

using namespace LumetraTest;
using LumetraHost::EditFile;
using LumetraHost::PhotoIdentity;
using testing::HasSubstr;
using testing::Not;

namespace {

/// "lake.png" has been edited and closed, by the panel that stands for any.
class PhotoIdentityTest : public EditorTest
{
protected:
    PhotoIdentityTest()
    {
        WritePhoto("lake.png", 80, 60);
        Start();
        Slider()->setValue(10);
        Leave();
    }

    QSlider* Slider() const { return Find<QSlider>("exposureSlider"); }

    /// Starts the program again and opens the photo.
    void Start()
    {
        Restart();
        LoadExamplePanel();
        Open(Path("lake.png"));
    }

    void Leave() { editor->ClosePhoto(); }

    QByteArray Edit() const { return ReadFile("lake.png.lumetra.json"); }
    QStringList Copies() const
    {
        return QDir(Path(".")).entryList({QStringLiteral("lake.png.lumetra.json.*")});
    }
};

} // namespace

TEST_F(PhotoIdentityTest, isRecordedInTheEdit)
{
    const EditFile edit = EditFile::Read(Path("lake.png.lumetra.json"));

    EXPECT_TRUE(edit.photo.IsSamePhoto(PhotoIdentity::Of(Path("lake.png"))));
    EXPECT_EQ(edit.photo.size, ReadFile("lake.png").size());
    EXPECT_EQ(edit.photo.hash,
              QCryptographicHash::hash(ReadFile("lake.png"), QCryptographicHash::Sha256).toHex());
    EXPECT_LT(edit.photo.modified.secsTo(QDateTime::currentDateTimeUtc()), 600);
}

TEST_F(PhotoIdentityTest, asksNothingWhenOnlyTheTimeHasChanged)
{
    QFile photo(Path("lake.png"));
    ASSERT_TRUE(photo.open(QIODevice::ReadWrite));
    ASSERT_TRUE(photo.setFileTime(QDateTime::currentDateTime().addYears(-1),
                                  QFileDevice::FileModificationTime));
    photo.close();
    const ScriptedAlerts alerts({});

    Start();

    EXPECT_EQ(Slider()->value(), 10);
}

TEST_F(PhotoIdentityTest, asksWhenAnotherPhotoHasTheName)
{
    WritePhoto("lake.png", 90, 60);
    const ScriptedAlerts alerts({QMessageBox::No});

    Start();

    EXPECT_THAT(alerts.GetTexts().join(QString()).toStdString(), HasSubstr("lake.png"));
    EXPECT_EQ(Slider()->value(), 10) << "the edit is kept";
}

TEST_F(PhotoIdentityTest, asksOnceForAKeptEdit)
{
    WritePhoto("lake.png", 90, 60);
    const ScriptedAlerts alerts({QMessageBox::No});
    Start();
    Leave();

    Start();

    EXPECT_EQ(Slider()->value(), 10);
    EXPECT_TRUE(Copies().isEmpty());
}

TEST_F(PhotoIdentityTest, startsAnewAndLeavesTheEditAloneUntilTheNextStep)
{
    const QByteArray earlier = Edit();
    WritePhoto("lake.png", 90, 60);
    const ScriptedAlerts alerts({QMessageBox::Yes});

    Start();
    editor->SaveEdit();

    EXPECT_EQ(Slider()->value(), 0);
    EXPECT_FALSE(FindAction("undo")->isEnabled());
    EXPECT_EQ(Edit(), earlier);
    EXPECT_TRUE(Copies().isEmpty());
}

TEST_F(PhotoIdentityTest, setsTheEarlierEditAsideAtTheFirstStep)
{
    const QByteArray earlier = Edit();
    WritePhoto("lake.png", 90, 60);
    const ScriptedAlerts alerts({QMessageBox::Yes});
    Start();

    Slider()->setValue(-5);
    Slider()->setValue(-6);
    editor->SaveEdit();

    EXPECT_THAT(Edit().toStdString(), HasSubstr("\"tenthsOfStops\": -6"));
    ASSERT_EQ(Copies().size(), 1);
    EXPECT_THAT(Copies().first().toStdString(), HasSubstr(".earlier-"));
    EXPECT_EQ(ReadFile(qPrintable(Copies().first())), earlier);
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr(Copies().first().toStdString()));
}

TEST_F(PhotoIdentityTest, asksAgainWhenNothingWasDecidedByAStep)
{
    WritePhoto("lake.png", 90, 60);
    const ScriptedAlerts alerts({QMessageBox::Yes, QMessageBox::Yes});
    Start();
    Leave();

    Start();

    EXPECT_EQ(Slider()->value(), 0);
}

TEST_F(PhotoIdentityTest, asksWhenADeletedPhotosNameIsGivenToAnother)
{
    ASSERT_TRUE(QFile::remove(Path("lake.png")));
    EXPECT_FALSE(Edit().isEmpty()) << "nothing is deleted behind the user's back";
    WritePhoto("lake.png", 20, 20);
    const ScriptedAlerts alerts({QMessageBox::Yes});

    Start();

    EXPECT_EQ(Slider()->value(), 0);
}

TEST_F(PhotoIdentityTest, takesAnEditOfAnEarlierVersionAsBefore)
{
    WriteFile("lake.png.lumetra.json", R"({"format": "lumetra-sidecar", "version": 1,
        "panels": {"exposure-panel": {"tenthsOfStops": 7}}})");
    const ScriptedAlerts alerts({});

    Start();
    EXPECT_EQ(Slider()->value(), 7);
    EXPECT_THAT(Edit().toStdString(), Not(HasSubstr("sha256"))) << "opening does not write";
    Slider()->setValue(8);
    Leave();

    EXPECT_TRUE(EditFile::Read(Path("lake.png.lumetra.json"))
                    .photo.IsSamePhoto(PhotoIdentity::Of(Path("lake.png"))));
}

TEST_F(PhotoIdentityTest, aPartAboutThePhotoThatMakesNoSenseCostsNothingElse)
{
    WriteFile("lake.png.lumetra.json", R"({"format": "lumetra-sidecar", "version": 1,
        "photo": {"size": 1e300, "sha256": 5, "modified": []},
        "panels": {"exposure-panel": {"tenthsOfStops": 7}}})");
    const ScriptedAlerts alerts({});

    Start();

    EXPECT_EQ(Slider()->value(), 7);
    EXPECT_EQ(GetMessage(), QString());
}

TEST_F(PhotoIdentityTest, keepsMembersOfLaterVersions)
{
    WriteFile("lake.png.lumetra.json", R"({"format": "lumetra-sidecar", "version": 1,
        "rating": {"stars": 4}, "photo": {"camera": "K-5", "path": "/elsewhere"},
        "committed": [{"preset": "One", "mask": "sky"}, {"preset": "Two", "mask": "sea"}],
        "panels": {"exposure-panel": {"tenthsOfStops": 7}}})");
    Start();

    Slider()->setValue(8);
    Leave();

    const std::string text = Edit().toStdString();
    EXPECT_THAT(text, HasSubstr("\"stars\": 4"));
    EXPECT_THAT(text, HasSubstr("\"camera\": \"K-5\""));
    EXPECT_THAT(text, HasSubstr("\"mask\": \"sky\""));
    EXPECT_THAT(text, HasSubstr("\"mask\": \"sea\""));
    EXPECT_THAT(text, Not(HasSubstr("elsewhere"))) << "beside the photo there is no path";
    EXPECT_THAT(text, Not(HasSubstr("\"committed\""))) << "they are layers now";
}

TEST(PhotoIdentity, seesBothEndsOfALargeFile)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("large.raw"));
    const auto write = [&path](qint64 at, const char* text) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        file.resize(1000 * 1000);
        file.seek(at);
        file.write(text);
        file.close();
        return PhotoIdentity::Of(path);
    };
    const auto empty = write(0, "");
    const auto first = write(0, "x");
    const auto last = write(1000 * 1000 - 1, "x");

    EXPECT_TRUE(empty.IsKnown());
    EXPECT_TRUE(empty.IsSamePhoto(empty));
    EXPECT_FALSE(first.IsSamePhoto(empty));
    EXPECT_FALSE(last.IsSamePhoto(first));
}

TEST(PhotoIdentity, waitsForNoPipe)
{
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    ASSERT_EQ(::mkfifo(qPrintable(pipe), 0600), 0);

    EXPECT_FALSE(PhotoIdentity::Of(pipe).IsKnown());
    EXPECT_FALSE(PhotoIdentity::Of(folder.path()).IsKnown());
    EXPECT_FALSE(PhotoIdentity::Of(folder.filePath(QStringLiteral("gone"))).IsKnown());
}
