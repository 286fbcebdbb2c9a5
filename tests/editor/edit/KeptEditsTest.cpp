// SPDX-License-Identifier: GPL-2.0-or-later
#include "editor/EditorFixture.h"
#include "editor/Medium.h"
#include "editor/ScriptedAlerts.h"
#include "support/StoredForm.h"

#include "edits/EditFile.h"
#include "edits/KeptEdits.h"
#include "edits/PhotoIdentity.h"
#include "userdata/EditPlaces.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QSlider>

#include <gmock/gmock.h>

using namespace LumetraTest;
using LumetraHost::EditFile;
using LumetraHost::PhotoIdentity;
using LumetraHost::EditPlaces::GetKeptFolder;
using testing::HasSubstr;

namespace {

class KeptEditsTest : public EditorTest
{
protected:
    KeptEditsTest()
    {
        WritePhoto("lake.png", 80, 60);
        StartAgain();
    }

    QSlider* Slider() const { return Find<QSlider>("exposureSlider"); }

    /// Runs the program again and opens `name`.
    void StartAgain(const char* name = "lake.png")
    {
        Restart();
        messages.clear();
        QObject::connect(editor.get(), &LumetraEditor::Editor::messageGiven,
                         [this](const QString& text) { messages.append(text); });
        QObject::connect(editor.get(), &LumetraEditor::Editor::noticeGiven,
                         [this](const QString& text) { messages.append(text); });
        LoadExamplePanel();
        Open(Path(name));
    }

    /// Makes writing beside the photo fail: permissions would not stop root.
    void Block(const char* sidecar) const { ASSERT_TRUE(QDir().mkpath(Path(sidecar))); }
    void Unblock(const char* sidecar) const { ASSERT_TRUE(QDir().rmdir(Path(sidecar))); }
    /// Makes writing into the user's own folder fail too.
    void BlockOwnFolder() const
    {
        ASSERT_TRUE(QDir().mkpath(Path("data/lumetra")));
        WriteFile("data/lumetra/edits", "not a folder");
    }

    void Step(int value)
    {
        Slider()->setValue(value);
        editor->SaveEdit();
    }

    static QStringList KeptFiles() { return QDir(GetKeptFolder()).entryList(QDir::Files); }
    QString KeptFile() const
    {
        const auto identity = PhotoIdentity::Of(Path("lake.png"));
        return LumetraHost::KeptEdits::GetPath(Path("lake.png"), identity);
    }
    /// An edit of "lake.png" that was written at `time`.
    QByteArray EditText(int value, const QDateTime& time) const
    {
        EditFile file;
        file.state.panels[QStringLiteral("exposure-panel")] =
            LumetraHost::PanelEdit(StoredNode{{"tenthsOfStops", value}}.ToProperty());
        file.photo = PhotoIdentity::Of(Path("lake.png"));
        file.saved = time;
        return file.ToText();
    }
    void WriteKept(int value, const QDateTime& time) const
    {
        ASSERT_TRUE(QDir().mkpath(GetKeptFolder()));
        QFile file(KeptFile());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(EditText(value, time));
    }

    QStringList messages;
};

const QDateTime Monday(QDate(2026, 6, 1), QTime(12, 0), Qt::UTC);
const QDateTime Tuesday(QDate(2026, 6, 2), QTime(12, 0), Qt::UTC);

} // namespace

TEST_F(KeptEditsTest, keepsTheEditOfAPhotoOnAReadOnlyMedium)
{
    const Medium medium(Path("card"));
    WritePhoto("card/lake.png", 70, 50);
    if (!medium.Protect())
        GTEST_SKIP() << "nothing can be mounted here";
    StartAgain("card/lake.png");

    Step(10);
    EXPECT_THAT(messages.join(QString()).toStdString(), HasSubstr("lake.png"));
    EXPECT_THAT(messages.join(QString()).toStdString(), HasSubstr(GetKeptFolder().toStdString()));
    Open(Path("lake.png"));
    EXPECT_EQ(Slider()->value(), 0) << "it is another photo";
    StartAgain("card/lake.png");

    EXPECT_EQ(Slider()->value(), 10);
    EXPECT_EQ(QDir(Path("card")).entryList(QDir::Files), QStringList{QStringLiteral("lake.png")});
}

TEST_F(KeptEditsTest, bringsAKeptEditBack)
{
    Block("lake.png.lumetra.json");

    Step(10);
    StartAgain();

    EXPECT_EQ(Slider()->value(), 10);
    EXPECT_EQ(KeptFiles().size(), 1);
    EXPECT_EQ(EditFile::Read(KeptFile()).photoPath, Path("lake.png"));
}

TEST_F(KeptEditsTest, saysItOnceForAFolder)
{
    WritePhoto("other.png", 30, 20);
    Block("lake.png.lumetra.json");
    Block("other.png.lumetra.json");

    Step(1);
    Step(2);
    Step(3);
    Open(Path("other.png"));
    Step(4);

    int said = 0;
    for (const QString& message : messages)
        said += message.contains(GetKeptFolder()) ? 1 : 0;
    EXPECT_EQ(said, 1);
    EXPECT_EQ(KeptFiles().size(), 2);
}

TEST_F(KeptEditsTest, goesOnSayingItWhenAnotherPhotoIsOpened)
{
    Block("lake.png.lumetra.json");
    Slider()->setValue(10);

    Open(WritePhoto("other.png", 30, 20));

    EXPECT_THAT(GetMessage().toStdString(), HasSubstr(GetKeptFolder().toStdString()));
}

TEST_F(KeptEditsTest, findsTheEditWhenThePhotoIsAtAnotherPlace)
{
    Block("lake.png.lumetra.json");
    Step(10);
    ASSERT_TRUE(QDir().mkpath(Path("elsewhere")));
    ASSERT_TRUE(QFile::copy(Path("lake.png"), Path("elsewhere/copy.png")));

    StartAgain("elsewhere/copy.png");
    EXPECT_EQ(Slider()->value(), 10);
    Step(11);

    EXPECT_TRUE(QFile::exists(Path("elsewhere/copy.png.lumetra.json")));
    StartAgain();
    EXPECT_EQ(Slider()->value(), 10) << "each has an edit of its own now";
}

TEST_F(KeptEditsTest, givesNoPhotoTheEditOfAnotherOne)
{
    Block("lake.png.lumetra.json");
    Step(10);
    WritePhoto("other.png", 30, 20);

    StartAgain("other.png");

    EXPECT_EQ(Slider()->value(), 0);
}

TEST_F(KeptEditsTest, asksWhenAnotherPhotoHasThePathOfAKeptEdit)
{
    Block("lake.png.lumetra.json");
    Step(10);
    editor->ClosePhoto();
    WritePhoto("lake.png", 90, 60);
    const ScriptedAlerts alerts({QMessageBox::Yes});

    StartAgain();
    EXPECT_EQ(Slider()->value(), 0);
    Step(5);

    EXPECT_EQ(KeptFiles().size(), 2) << "the earlier photo may come back";
}

TEST_F(KeptEditsTest, movesTheEditToThePhotoWhenThatCanBeWrittenAgain)
{
    Block("lake.png.lumetra.json");
    Step(10);
    Unblock("lake.png.lumetra.json");

    Step(11);

    EXPECT_THAT(ReadFile("lake.png.lumetra.json").toStdString(),
                HasSubstr("\"tenthsOfStops\": 11"));
    EXPECT_EQ(KeptFiles(), QStringList());
}

TEST_F(KeptEditsTest, takesTheNewerOfTwoEdits)
{
    editor->ClosePhoto();
    WriteFile("lake.png.lumetra.json", EditText(3, Monday));
    WriteKept(4, Tuesday);
    StartAgain();
    EXPECT_EQ(Slider()->value(), 4);
    editor->ClosePhoto();

    WriteFile("lake.png.lumetra.json", EditText(3, Tuesday));
    WriteKept(4, Monday);
    StartAgain();

    EXPECT_EQ(Slider()->value(), 3);
}

TEST_F(KeptEditsTest, setsTheOlderOfTwoEditsAside)
{
    editor->ClosePhoto();
    const QByteArray older = EditText(3, Monday);
    WriteFile("lake.png.lumetra.json", older);
    WriteKept(4, Tuesday);
    StartAgain();

    Step(5);

    const QStringList copies =
        QDir(Path(".")).entryList({QStringLiteral("lake.png.lumetra.json.earlier-*")});
    ASSERT_EQ(copies.size(), 1);
    EXPECT_EQ(ReadFile(qPrintable(copies.first())), older);
    EXPECT_THAT(ReadFile("lake.png.lumetra.json").toStdString(), HasSubstr("\"tenthsOfStops\": 5"));
}

TEST_F(KeptEditsTest, asksBeforeAPhotoIsLeftWhoseEditIsNowhere)
{
    const QString other = WritePhoto("other.png", 30, 20);
    Block("lake.png.lumetra.json");
    BlockOwnFolder();
    Step(10);
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("cannot be kept"));
    const ScriptedAlerts alerts({QMessageBox::Cancel, QMessageBox::Cancel});

    window->OpenPhotos({other});
    EXPECT_FALSE(editor->IsOpening());
    DropFiles({other});

    EXPECT_FALSE(editor->IsOpening());
    EXPECT_EQ(editor->GetPhotoPath(), Path("lake.png"));
    EXPECT_EQ(Slider()->value(), 10);
    EXPECT_THAT(alerts.GetTexts().join(QString()).toStdString(), HasSubstr("lake.png"));
}

TEST_F(KeptEditsTest, asksBeforeTheNextPhoto)
{
    window->OpenPhotos({Path("lake.png"), WritePhoto("other.png", 30, 20)});
    WaitUntil([this] { return !editor->IsOpening(); });
    Block("lake.png.lumetra.json");
    BlockOwnFolder();
    Slider()->setValue(10);
    const ScriptedAlerts alerts({QMessageBox::Cancel, QMessageBox::Discard});

    FindAction("nextPhoto")->trigger();
    EXPECT_EQ(editor->GetPhotoPath(), Path("lake.png"));
    ASSERT_TRUE(FindAction("nextPhoto")->isEnabled()) << "the place is still that of the photo";
    FindAction("nextPhoto")->trigger();
    WaitUntil([this] { return !editor->IsOpening(); });

    EXPECT_EQ(editor->GetPhotoPath(), Path("other.png"));
}

TEST_F(KeptEditsTest, asksBeforeThePhotoOrTheWindowIsClosed)
{
    Block("lake.png.lumetra.json");
    BlockOwnFolder();
    Slider()->setValue(10);
    const ScriptedAlerts alerts({QMessageBox::Cancel, QMessageBox::Cancel, QMessageBox::Discard});

    FindAction("closePhoto")->trigger();
    EXPECT_TRUE(editor->HasPhoto());
    EXPECT_FALSE(window->close());

    EXPECT_TRUE(window->close());
}

TEST_F(KeptEditsTest, triesOnceMoreBeforeItAsks)
{
    Block("lake.png.lumetra.json");
    BlockOwnFolder();
    Step(10);
    Unblock("lake.png.lumetra.json");
    const ScriptedAlerts alerts({});

    FindAction("closePhoto")->trigger();

    EXPECT_FALSE(editor->HasPhoto());
    EXPECT_THAT(ReadFile("lake.png.lumetra.json").toStdString(),
                HasSubstr("\"tenthsOfStops\": 10"));
}

TEST_F(KeptEditsTest, asksNothingWhereNothingWasEdited)
{
    Block("lake.png.lumetra.json");
    BlockOwnFolder();
    const ScriptedAlerts alerts({});

    FindAction("closePhoto")->trigger();

    EXPECT_FALSE(editor->HasPhoto());
}
