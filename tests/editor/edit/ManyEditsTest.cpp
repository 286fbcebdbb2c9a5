// SPDX-License-Identifier: GPL-2.0-or-later
// Edits of many photos in their files.
#include "editor/EditorFixture.h"
#include "editor/Medium.h"
#include "editor/edit/SampleEdits.h"

#include "edit/ManyEdits.h"
#include "edits/EditFile.h"
#include "edits/KeptEdits.h"
#include "engine/effects/EffectKinds.h"
#include "userdata/EditPlaces.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSemaphore>
#include <QThread>

#include <gmock/gmock.h>

#include <sys/stat.h>

using namespace LumetraTest;
using LumetraEditor::ManyDirection;
using LumetraEditor::ManyEdits;
using LumetraEditor::ManyReport;
using LumetraEditor::ManyStates;
using LumetraHost::EditFile;
using LumetraHost::EditState;
using LumetraHost::PhotoIdentity;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace EditPlaces = LumetraHost::EditPlaces;

namespace {

constexpr char Looks[] = "looks";

EditState Golden()
{
    return MakeEdit({Open(Looks, "Golden")});
}

/// A step that gives every photo the same edit.
LumetraEditor::EditChange Put(const EditState& edit)
{
    return [edit](const EditState&) { return edit; };
}

class ManyEditsTest : public EditorFolder
{
protected:
    ManyEditsTest()
    {
        LumetraHost::RegisterEffects();
        QObject::connect(
            &edits, &ManyEdits::finished,
            [this](const auto&, const ManyReport& report) { reports.push_back(report); });
        QObject::connect(&edits, &ManyEdits::editChanged,
                         [this](const QString& photo) { changed.append(photo); });
    }

    /// No two photos have the same content.
    QString MakePhoto(const QString& name)
    {
        return WritePhoto(qPrintable(name), 16 + m_photos++, 12);
    }
    QStringList MakePhotos(int count)
    {
        QStringList photos;
        for (int i = 1; i <= count; ++i)
            photos.append(MakePhoto(QStringLiteral("photo%1.png").arg(i)));
        return photos;
    }
    /// An edit in the photo's file, with a member of a later version.
    void WriteEdit(const QString& photo, const EditState& edit,
                   const QDateTime& saved = QDateTime::currentDateTimeUtc()) const
    {
        EditFile file;
        file.state = edit;
        file.photo = PhotoIdentity::Of(photo);
        file.saved = saved;
        QByteArray text = file.ToText();
        text.replace("\"version\"", "\"rating\": 4, \"version\"");
        QFile out(EditPlaces::GetBeside(photo));
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(text);
    }
    static QByteArray Text(const QString& photo)
    {
        QFile file(EditPlaces::GetBeside(photo));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static std::vector<std::string> LayersOf(const QString& photo)
    {
        return NameLayers(EditFile::Read(EditPlaces::GetBeside(photo)).state);
    }

    const ManyReport& Do(const QStringList& photos, const EditState& edit)
    {
        edits.Do(states, photos, Put(edit));
        edits.WaitForAll();
        return reports.back();
    }
    const ManyReport& Return(const QStringList& photos, ManyDirection direction)
    {
        ManyReport begun;
        begun.direction = direction;
        edits.Return(states, photos, begun);
        edits.WaitForAll();
        return reports.back();
    }

    ManyEdits edits;
    std::shared_ptr<ManyStates> states = std::make_shared<ManyStates>();
    std::vector<ManyReport> reports;
    QStringList changed;

private:
    int m_photos = 0;
};

} // namespace

TEST_F(ManyEditsTest, aHundredPhotosGetTheEditAndLoseItAgain)
{
    const QStringList photos = MakePhotos(100);
    WriteEdit(photos[7], MakeEdit({Committed(Looks, "Noir")}));

    EXPECT_EQ(Do(photos, Golden()).changed, 100);
    for (const QString& photo : photos)
        EXPECT_THAT(LayersOf(photo), ElementsAre("looks Golden*")) << photo.toStdString();
    EXPECT_TRUE(EditFile::Read(EditPlaces::GetBeside(photos[3]))
                    .photo.IsSamePhoto(PhotoIdentity::Of(photos[3])))
        << "an edit says which photo it is for";
    EXPECT_EQ(changed, photos);
    EXPECT_EQ(Return(photos, ManyDirection::Back).changed, 100);
    EXPECT_THAT(LayersOf(photos[7]), ElementsAre("looks Noir"));
    EXPECT_FALSE(QFile::exists(EditPlaces::GetBeside(photos[8]))) << "there was no edit before";
    EXPECT_EQ(Return(photos, ManyDirection::Forward).changed, 100);

    for (const QString& photo : photos)
        EXPECT_THAT(LayersOf(photo), ElementsAre("looks Golden*")) << photo.toStdString();
    EXPECT_EQ(QDir(Path(".")).entryList({QStringLiteral("*.earlier-*")}), QStringList());
}

TEST_F(ManyEditsTest, membersOfLaterVersionsStay)
{
    const QString photo = MakePhoto(QStringLiteral("lake.png"));
    WriteEdit(photo, MakeEdit({Committed(Looks, "Noir")}));

    Do({photo}, Golden());
    EXPECT_THAT(Text(photo).toStdString(), HasSubstr("\"rating\": 4"));
    Return({photo}, ManyDirection::Back);

    EXPECT_THAT(Text(photo).toStdString(), HasSubstr("\"rating\": 4"));
}

TEST_F(ManyEditsTest, photosThatHaveTheEditAreNotWritten)
{
    const QStringList photos = MakePhotos(3);
    Do({photos[0]}, Golden());
    const QByteArray text = Text(photos[0]);

    const ManyReport& report = Do(photos, Golden());

    EXPECT_EQ(report.changed, 2);
    EXPECT_EQ(report.same, 1);
    EXPECT_EQ(Text(photos[0]), text);
}

TEST_F(ManyEditsTest, takingOffMakesNoFileForAPhotoWithoutAnEdit)
{
    const QStringList photos = MakePhotos(2);
    Do({photos[0]}, Golden());

    EXPECT_EQ(Do(photos, EditState()).changed, 1);

    EXPECT_THAT(LayersOf(photos[0]), IsEmpty());
    EXPECT_FALSE(QFile::exists(EditPlaces::GetBeside(photos[1])));
}

TEST_F(ManyEditsTest, anEditThatCannotBeReadIsLeftAndReported)
{
    const QStringList photos = MakePhotos(3);
    const QByteArray broken = "{ \"format\": \"lumetra-sidecar\", \"version\": 99 }";
    QFile file(EditPlaces::GetBeside(photos[1]));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(broken);
    file.close();

    const ManyReport& report = Do(photos, Golden());

    EXPECT_EQ(report.changed, 2);
    ASSERT_EQ(report.problems.size(), 1);
    EXPECT_THAT(report.problems[0].toStdString(), HasSubstr("photo2.png"));
    EXPECT_THAT(report.problems[0].toStdString(), HasSubstr("version"));
    EXPECT_EQ(Text(photos[1]), broken);
    EXPECT_EQ(Return(photos, ManyDirection::Back).changed, 2) << "undo is for the others";
}

TEST_F(ManyEditsTest, anEditOfAnotherPhotoIsLeftAndReported)
{
    const QString photo = MakePhoto(QStringLiteral("lake.png"));
    WriteEdit(photo, MakeEdit({Committed(Looks, "Noir")}));
    WritePhoto("lake.png", 200, 20);
    const QByteArray text = Text(photo);

    const ManyReport& report = Do({photo}, Golden());

    ASSERT_EQ(report.problems.size(), 1);
    EXPECT_THAT(report.problems[0].toStdString(), HasSubstr("lake.png: it was replaced"));
    EXPECT_EQ(Text(photo), text);
}

TEST_F(ManyEditsTest, whatIsNoPhotoGetsNoEdit)
{
    const QString pipe = Path("pipe.jpg");
    ASSERT_EQ(::mkfifo(qPrintable(pipe), 0600), 0);
    ASSERT_TRUE(QDir().mkpath(Path("folder.jpg")));
    const QStringList others{WriteFile("notes.jpg", "Dear diary"), WriteFile("empty.jpg", ""),
                             Path("gone.jpg"), pipe, Path("folder.jpg")};

    const ManyReport& report = Do(others, Golden());

    EXPECT_EQ(report.changed, 0);
    ASSERT_EQ(report.problems.size(), others.size());
    for (int i = 0; i < others.size(); ++i) {
        const std::string name = QFileInfo(others[i]).fileName().toStdString();
        EXPECT_THAT(report.problems[i].toStdString(), testing::StartsWith(name + ": "));
        EXPECT_THAT(report.problems[i].toStdString(), testing::Not(HasSubstr('/' + name)))
            << "a photo is named once";
    }
    EXPECT_EQ(QDir(Path(".")).entryList({QStringLiteral("*.lumetra.json")}), QStringList());
}

TEST_F(ManyEditsTest, aPhotoThatWasEditedSinceIsLeftByUndoAndRedo)
{
    const QStringList photos = MakePhotos(3);
    Do(photos, Golden());
    WriteEdit(photos[1], MakeEdit({Open(Looks, "Fresh")}));

    const ManyReport back = Return(photos, ManyDirection::Back);
    EXPECT_EQ(back.changed, 2);
    EXPECT_THAT(back.problems.join(QString()).toStdString(), HasSubstr("photo2.png"));
    EXPECT_THAT(LayersOf(photos[1]), ElementsAre("looks Fresh*"));
    WriteEdit(photos[2], MakeEdit({Open(Looks, "Noir")}));
    const ManyReport forward = Return(photos, ManyDirection::Forward);

    EXPECT_EQ(forward.changed, 1);
    EXPECT_EQ(forward.problems.size(), 2);
    EXPECT_THAT(LayersOf(photos[0]), ElementsAre("looks Golden*"));
    EXPECT_THAT(LayersOf(photos[1]), ElementsAre("looks Fresh*"));
    EXPECT_THAT(LayersOf(photos[2]), ElementsAre("looks Noir*"));
}

TEST_F(ManyEditsTest, theSameEditInAnotherFormIsUndone)
{
    const QString photo = MakePhoto(QStringLiteral("lake.png"));
    Do({photo}, Golden());
    QFile file(EditPlaces::GetBeside(photo));
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write("\n\n"); // a sync program may bring line ends of its own
    file.close();

    EXPECT_EQ(Return({photo}, ManyDirection::Back).changed, 1);
}

TEST_F(ManyEditsTest, aReadOnlyFolderHasItsEditsElsewhere)
{
    const Medium medium(Path("card"));
    const QStringList photos{MakePhoto(QStringLiteral("card/a.png")),
                             MakePhoto(QStringLiteral("card/b.png"))};
    if (!medium.Protect())
        GTEST_SKIP() << "nothing can be mounted here";

    const ManyReport& report = Do(photos, Golden());

    EXPECT_EQ(report.changed, 2);
    ASSERT_EQ(report.notices.size(), 1) << "it is told once";
    EXPECT_THAT(report.notices[0].toStdString(),
                HasSubstr(EditPlaces::GetKeptFolder().toStdString()));
    for (const QString& photo : photos)
        EXPECT_TRUE(
            QFile::exists(LumetraHost::KeptEdits::GetPath(photo, PhotoIdentity::Of(photo))));
    EXPECT_EQ(Return(photos, ManyDirection::Back).changed, 2);
    EXPECT_EQ(QDir(EditPlaces::GetKeptFolder()).entryList(QDir::Files), QStringList());
}

TEST_F(ManyEditsTest, aPhotoWhoseEditCanBeKeptNowhereIsReported)
{
    const Medium medium(Path("card"));
    const QStringList photos{MakePhoto(QStringLiteral("card/a.png")),
                             MakePhoto(QStringLiteral("b.png"))};
    if (!medium.Protect())
        GTEST_SKIP() << "nothing can be mounted here";
    ASSERT_TRUE(QDir().mkpath(Path("data/lumetra")));
    WriteFile("data/lumetra/edits", "not a folder");

    const ManyReport& report = Do(photos, Golden());

    EXPECT_EQ(report.changed, 1);
    ASSERT_EQ(report.problems.size(), 1);
    EXPECT_THAT(report.problems[0].toStdString(), HasSubstr("a.png"));
    EXPECT_FALSE(states->Find(photos[0])) << "there is nothing to undo";
}

TEST_F(ManyEditsTest, anOlderEditBesideThePhotoIsSetAside)
{
    const QString photo = MakePhoto(QStringLiteral("lake.png"));
    WriteEdit(photo, MakeEdit({Open(Looks, "Noir")}), QDateTime::currentDateTimeUtc().addDays(-2));
    EditFile kept;
    kept.state = MakeEdit({Open(Looks, "Fresh")});
    kept.photo = PhotoIdentity::Of(photo);
    kept.saved = QDateTime::currentDateTimeUtc().addDays(-1);
    ASSERT_TRUE(QDir().mkpath(EditPlaces::GetKeptFolder()));
    QFile file(LumetraHost::KeptEdits::GetPath(photo, kept.photo));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(kept.ToText());
    file.close();

    const ManyReport& report = Do({photo}, Golden());

    EXPECT_THAT(report.notices.join(QString()).toStdString(), HasSubstr("lake.png.lumetra.json"));
    EXPECT_EQ(QDir(Path(".")).entryList({QStringLiteral("*.earlier-*")}).size(), 1);
    EXPECT_THAT(NameLayers(*states->Find(photo)->before), ElementsAre("looks Fresh*"));
}

TEST_F(ManyEditsTest, changesThatWaitForAPhotoAreMadeInTheirOrder)
{
    const QStringList photos = MakePhotos(5);
    QSemaphore mayGoOn;
    const auto append = [](const char* look) {
        return [look](const EditState& edit) {
            EditState longer = edit;
            longer.layers.push_back(Committed(Looks, look));
            return longer;
        };
    };
    const auto second = std::make_shared<ManyStates>();
    edits.Do(states, photos, [&](const EditState& edit) {
        mayGoOn.acquire();
        return append("One")(edit);
    });
    edits.Do(second, photos, append("Two"));
    ManyReport back;
    back.direction = ManyDirection::Back;
    edits.Return(second, photos, back);
    edits.Do(second, photos, append("Three"));
    mayGoOn.release(photos.size());
    edits.WaitForAll();

    EXPECT_EQ(reports.size(), 4u);
    for (const QString& photo : photos)
        EXPECT_THAT(LayersOf(photo), ElementsAre("looks One", "looks Three"));
}

TEST_F(ManyEditsTest, aPhotoThatIsToBeShownGetsItsChangesAtOnce)
{
    const QStringList photos = MakePhotos(3);
    QSemaphore mayGoOn;
    edits.Do(states, photos, [&](const EditState&) {
        if (QThread::currentThread() != edits.thread())
            mayGoOn.acquire();
        return Golden();
    });

    edits.Settle(photos[2]);
    EXPECT_THAT(LayersOf(photos[2]), ElementsAre("looks Golden*"));
    mayGoOn.release(2);
    edits.WaitForAll();

    EXPECT_EQ(reports.back().changed, 3);
}

TEST_F(ManyEditsTest, stoppingLeavesTheRestAsItIs)
{
    const QStringList photos = MakePhotos(4);
    QSemaphore begun, mayGoOn;
    edits.Do(states, photos, [&](const EditState&) {
        begun.release();
        mayGoOn.acquire();
        return Golden();
    });
    begun.acquire();

    edits.Cancel();
    mayGoOn.release(photos.size());
    edits.WaitForAll();

    EXPECT_FALSE(edits.IsRunning());
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].changed, 1);
    EXPECT_EQ(reports[0].cancelled, 3);
    EXPECT_THAT(LayersOf(photos[0]), ElementsAre("looks Golden*"));
    EXPECT_EQ(Text(photos[1]), QByteArray());
}

TEST_F(ManyEditsTest, photosWithOneEditShareItInMemory)
{
    const QStringList photos = MakePhotos(3);
    Do(photos, Golden());
    states = std::make_shared<ManyStates>();

    Do(photos, MakeEdit({Open(Looks, "Fresh")}));

    EXPECT_EQ(states->Find(photos[0])->before, states->Find(photos[2])->before);
    EXPECT_EQ(states->Find(photos[0])->after, states->Find(photos[2])->after);
}

TEST_F(ManyEditsTest, theEndOfTheProgramMakesAllChanges)
{
    const QStringList photos = MakePhotos(20);
    {
        ManyEdits ending;
        ending.Do(states, photos, Put(Golden()));
    }

    for (const QString& photo : photos)
        EXPECT_THAT(LayersOf(photo), ElementsAre("looks Golden*"));
}
