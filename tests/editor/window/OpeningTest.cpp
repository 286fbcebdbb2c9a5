// SPDX-License-Identifier: GPL-2.0-or-later
#include "editor/EditorFixture.h"

#include "actions/EditorActions.h"
#include "canvas/PhotoCanvas.h"
#include "window/MessageBar.h"
#include "window/StartPage.h"
#include "workspace/WorkspaceController.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QTimer>
#include <QToolButton>
#include <QUrl>

#include <gmock/gmock.h>

using namespace LumetraTest;
using testing::HasSubstr;

namespace {

class OpeningTest : public EditorTest
{
protected:
    /// True when nothing of the window lies over the message.
    bool IsMessageInSight() const
    {
        const auto* const bar = Find<QWidget>("messageBar");
        const QWidget* const seen = bar->parentWidget()->childAt(bar->geometry().center());
        return bar->isVisible() && seen && (seen == bar || bar->isAncestorOf(seen));
    }

    /// Expects `path` to be refused with a message that contains `expected`, while another photo
    /// stays open.
    void ExpectRefused(const QString& path, const char* expected)
    {
        const QString good = WritePhoto("good.png", 40, 30);
        Open(good);
        const QSize size = GetPart<LumetraEditor::PhotoCanvas>().GetView().GetPhotoSize();

        Drop({path});

        EXPECT_THAT(GetMessage().toStdString(), HasSubstr(expected));
        EXPECT_TRUE(GetPart<LumetraEditor::MessageBar>().isVisible());
        EXPECT_EQ(editor->GetPhotoPath(), good);
        EXPECT_EQ(GetPart<LumetraEditor::PhotoCanvas>().GetView().GetPhotoSize(), size);
        EXPECT_FALSE(Find<QProgressBar>("progress")->isVisible());
    }

    void Drop(const QStringList& paths)
    {
        DropFiles(paths);
        WaitUntil([this] { return !editor->IsOpening(); });
    }
};

} // namespace

TEST_F(OpeningTest, startsWithoutAPhoto)
{
    EXPECT_TRUE(Find<LumetraEditor::StartPage>("startPage")->isVisible());
    EXPECT_FALSE(GetPart<LumetraEditor::PhotoCanvas>().isVisible());
    EXPECT_FALSE(FindAction("exportPhoto")->isEnabled());
    EXPECT_FALSE(FindAction("fit")->isEnabled());
}

TEST_F(OpeningTest, showsThePhotoAndWhatItIs)
{
    Open(WritePhoto("lake.png", 400, 300));

    EXPECT_TRUE(GetPart<LumetraEditor::PhotoCanvas>().isVisible());
    EXPECT_EQ(GetPart<LumetraEditor::PhotoCanvas>().GetView().GetPhotoSize(), QSize(400, 300));
    EXPECT_THAT(Find<QLabel>("photoText")->text().toStdString(), HasSubstr("400 × 300"));
    EXPECT_THAT(Find<QLabel>("photoText")->text().toStdString(), HasSubstr("8 bits"));
    EXPECT_EQ(Find<QLabel>("zoomText")->text(), QStringLiteral("100 %"));
    EXPECT_THAT(window->windowTitle().toStdString(), HasSubstr("lake.png"));
    EXPECT_TRUE(FindAction("exportPhoto")->isEnabled());
}

TEST_F(OpeningTest, staysAliveWhileAPhotoIsRead)
{
    window->OpenPhotos({WritePhoto("lake.png", 400, 300)});
    bool hasTicked = false;
    QTimer::singleShot(0, [&hasTicked] { hasTicked = true; });

    // The photo is read on another thread; this loop runs first.
    EXPECT_TRUE(editor->IsOpening());
    EXPECT_TRUE(Find<QProgressBar>("progress")->isVisible());
    WaitUntil([this] { return !editor->IsOpening(); });

    EXPECT_TRUE(hasTicked);
    EXPECT_FALSE(Find<QProgressBar>("progress")->isVisible());
}

TEST_F(OpeningTest, showsThePhotoAskedForLast)
{
    const QString first = WritePhoto("first.png", 50, 40);
    const QString second = WritePhoto("second.png", 60, 40);
    int changes = 0;
    QObject::connect(editor.get(), &LumetraEditor::Editor::photoChanged, [&] { ++changes; });

    window->OpenPhotos({first});
    window->OpenPhotos({second});
    WaitUntil([this] { return !editor->IsOpening(); });

    EXPECT_EQ(editor->GetPhotoPath(), second);
    EXPECT_EQ(changes, 1);
}

TEST_F(OpeningTest, opensAPhotoOfOnePixel)
{
    Open(WritePhoto("dot.png", 1, 1));

    EXPECT_EQ(GetPart<LumetraEditor::PhotoCanvas>().GetView().GetPhotoSize(), QSize(1, 1));
    GetPart<LumetraEditor::PhotoCanvas>().ZoomIn();
    GetPart<LumetraEditor::PhotoCanvas>().repaint();
    EXPECT_DOUBLE_EQ(GetPart<LumetraEditor::PhotoCanvas>().GetView().GetZoom(), 1.5);
}

TEST_F(OpeningTest, refusesTextThatIsCalledAPhoto)
{
    ExpectRefused(WriteFile("notes.jpg", "Dear diary"), "notes.jpg");
}

TEST_F(OpeningTest, refusesATruncatedPhoto)
{
    ExpectRefused(WriteTruncatedPhoto("half.jpg"), "half.jpg");
}

TEST_F(OpeningTest, refusesAHeaderThatPromisesTooMuch)
{
    WritePhoto("bomb.png", 8, 8);
    QByteArray bomb = ReadFile("bomb.png");
    bomb.replace(16, 8, QByteArray::fromHex("0000753000007530")); // 30,000 x 30,000 in IHDR

    ExpectRefused(WriteFile("bomb.png", bomb), "bomb.png");
}

TEST_F(OpeningTest, refusesAFileThatCannotBeRead)
{
    // Reading there fails for everybody; permissions would not stop root.
    ASSERT_TRUE(QFile::link(QStringLiteral("/proc/self/mem"), Path("locked.jpg")));

    ExpectRefused(Path("locked.jpg"), "locked.jpg");
}

TEST_F(OpeningTest, refusesAMissingFile)
{
    ExpectRefused(Path("gone.jpg"), "gone.jpg");
}

TEST_F(OpeningTest, refusesAnEmptyFile)
{
    ExpectRefused(WriteFile("empty.jpg", ""), "empty.jpg");
}

TEST_F(OpeningTest, messagesOfTheProgramStayInSightWhateverIsOpenedAndClosed)
{
    GetPart<LumetraEditor::MessageBar>().Show(QStringLiteral("A module cannot be used."),
                                              LumetraEditor::MessageBar::About::Program);
    EXPECT_TRUE(IsMessageInSight());

    Open(WritePhoto("lake.png", 40, 30));
    EXPECT_TRUE(IsMessageInSight());

    FindAction("closePhoto")->trigger();
    EXPECT_FALSE(editor->HasPhoto());
    EXPECT_TRUE(IsMessageInSight());
}

TEST_F(OpeningTest, opensADroppedPhoto)
{
    const QString path = WritePhoto("lake.png", 40, 30);

    Drop({path});

    EXPECT_EQ(editor->GetPhotoPath(), path);
}

TEST_F(OpeningTest, saysThatNobodyTakesATable)
{
    Drop({WriteFile("look.cube", "garbage")});

    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("look.cube"));
    EXPECT_FALSE(editor->HasPhoto());
}

TEST_F(OpeningTest, stepsThroughSeveralPhotos)
{
    const QString first = WritePhoto("first.png", 50, 40);
    const QString second = WritePhoto("second.png", 60, 40);
    window->OpenPhotos({first, second});
    WaitUntil([this] { return !editor->IsOpening(); });
    EXPECT_FALSE(FindAction("previousPhoto")->isEnabled());

    FindAction("nextPhoto")->trigger();
    WaitUntil([this] { return !editor->IsOpening(); });

    EXPECT_EQ(editor->GetPhotoPath(), second);
    EXPECT_FALSE(FindAction("nextPhoto")->isEnabled());
    FindAction("previousPhoto")->trigger();
    WaitUntil([this] { return !editor->IsOpening(); });
    EXPECT_EQ(editor->GetPhotoPath(), first);
}

TEST_F(OpeningTest, offersRecentPhotosNewestFirst)
{
    const QString first = WritePhoto("first.png", 50, 40);
    const QString second = WritePhoto("second.png", 60, 40);
    Open(first);
    Open(second);
    Open(WriteFile("notes.jpg", "no photo"));

    const auto actions = GetPart<LumetraEditor::EditorActions>().recent->actions();
    ASSERT_GE(actions.size(), 2);
    EXPECT_EQ(actions[0]->text(), second);
    EXPECT_EQ(actions[1]->text(), first);
    actions[1]->trigger();
    WaitUntil([this] { return !editor->IsOpening(); });
    EXPECT_EQ(editor->GetPhotoPath(), first);
}

TEST_F(OpeningTest, forgetsRecentPhotos)
{
    Open(WritePhoto("first.png", 50, 40));

    FindAction("clearRecent")->trigger();

    EXPECT_FALSE(GetPart<LumetraEditor::EditorActions>().recent->isEnabled());
}

TEST_F(OpeningTest, closesThePhoto)
{
    Open(WritePhoto("first.png", 50, 40));

    FindAction("closePhoto")->trigger();

    EXPECT_FALSE(editor->HasPhoto());
    EXPECT_TRUE(Find<LumetraEditor::StartPage>("startPage")->isVisible());
}

TEST_F(OpeningTest, closesAMessageByItsButton)
{
    Open(WriteFile("notes.jpg", "no photo"));
    ASSERT_TRUE(GetPart<LumetraEditor::MessageBar>().isVisible());

    Find<QToolButton>("messageClose")->click();

    EXPECT_FALSE(GetPart<LumetraEditor::MessageBar>().isVisible());
    EXPECT_TRUE(GetMessage().isEmpty());
}

TEST_F(OpeningTest, anOpaquePhotoTakesThreeBytesPerPixelWhileItIsOpen)
{
    Open(WritePhoto("opaque.jpg", 120, 80));
    EXPECT_EQ(editor->GetPhoto().image.GetBytesPerPixel(), 3u);
    EXPECT_TRUE(
        editor->GetHost().GetDrawer().GetPhoto().SharesPixelsWith(editor->GetPhoto().image));

    Open(WritePhoto("opaque.png", 120, 80));
    EXPECT_EQ(editor->GetPhoto().image.GetBytesPerPixel(), 3u);
}
