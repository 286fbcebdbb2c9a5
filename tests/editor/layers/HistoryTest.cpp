// SPDX-License-Identifier: GPL-2.0-or-later
// Undo goes on when a photo is opened again.
#include "editor/layers/ListedLayers.h"

#include "many/ManyCommands.h"
#include "session/StepShelf.h"
#include "strip/PhotoBrowser.h"

#include <QUndoStack>

#include <gmock/gmock.h>

using namespace LumetraTest;
using LumetraEditor::OwnStep;
using LumetraEditor::StepShelf;
using LumetraHost::HaveSamePixels;
using LumetraHost::Image;

namespace {

const QString First = QStringLiteral("Candlelight");
const QString Second = QStringLiteral("Fresh");

class HistoryTest : public ListedLayers
{
protected:
    QUndoStack& Stack() const { return editor->GetUndoStack(); }
    void Undo() const { FindAction("undo")->trigger(); }
    void Redo() const { FindAction("redo")->trigger(); }
};

} // namespace

TEST_F(HistoryTest, undoGoesBackInAPhotoThatIsShownAgain)
{
    ClickLook(First);
    const Image first = Draw();
    Apply();
    ClickLook(Second);
    const Image both = Draw();
    Undo();
    Open(WritePhoto("hill.png", 60, 40));
    EXPECT_EQ(Stack().count(), 0) << "another photo has steps of its own";
    ClickLook(First);

    Open(Path("lake.png"));

    ASSERT_EQ(Stack().count(), 3);
    EXPECT_EQ(Stack().index(), 2);
    ExpectSamePicture(first, "as it was left");
    Redo();
    ExpectSamePicture(both, "what was undone before");
    Undo();
    Undo();
    Undo();
    ExpectSamePicture(original, "before all steps");
    Open(Path("hill.png"));
    EXPECT_EQ(Stack().count(), 1);
}

TEST_F(HistoryTest, undoGoesBackInAPhotoThatWasClosed)
{
    ClickLook(First);
    FindAction("closePhoto")->trigger();

    Open(Path("lake.png"));
    Undo();

    ExpectSamePicture(original, "before the step");
    editor->SaveEdit();
    Open(WritePhoto("hill.png", 60, 40));
    Open(Path("lake.png"));
    EXPECT_TRUE(Stack().canRedo());
    EXPECT_FALSE(Stack().canUndo());
}

TEST_F(HistoryTest, stepsGoWhereAnotherProgramHasChangedTheEdit)
{
    ClickLook(First);
    Open(WritePhoto("hill.png", 60, 40));
    WriteFile("lake.png.lumetra.json",
              R"({"format": "lumetra-sidecar", "version": 3, "layers": []})");

    Open(Path("lake.png"));

    EXPECT_EQ(Stack().count(), 0);
    ExpectSamePicture(original, "the edit of the other program");
}

TEST_F(HistoryTest, stepsOnSeveralPhotosStandInTheirOrderAmongThoseOfOne)
{
    const QString hill = WritePhoto("hill.png", 60, 40);
    ClickLook(First);
    const Image first = Draw();
    Open(hill);
    const QStringList both{Path("lake.png"), hill};
    editor->GetManySteps().Change(
        QStringLiteral("Take off"), both,
        [](const LumetraHost::EditState&) { return LumetraHost::EditState(); });
    editor->GetManySteps().GetEdits().WaitForAll();

    Open(Path("lake.png"));

    ASSERT_EQ(Stack().count(), 2);
    ExpectSamePicture(original, "the step on both has taken the look off");
    Undo();
    ExpectSamePicture(first, "the step on both is undone");
    Undo();
    ExpectSamePicture(original, "the photo's own step is undone");
    Redo();
    Redo();
    editor->GetManySteps().GetEdits().WaitForAll();
    EXPECT_EQ(GetMessage(), QString());
}

TEST_F(HistoryTest, aNewStepOnSeveralPhotosEndsWhatWasUndone)
{
    const QString hill = WritePhoto("hill.png", 60, 40);
    ClickLook(First);
    Undo();
    Open(hill);
    ClickLook(Second);
    editor->GetManySteps().Change(
        QStringLiteral("Take off"), {hill, WritePhoto("sea.png", 60, 40)},
        [](const LumetraHost::EditState&) { return LumetraHost::EditState(); });
    editor->GetManySteps().GetEdits().WaitForAll();

    Open(Path("lake.png"));

    EXPECT_FALSE(Stack().canRedo());
}

TEST(StepShelfTest, forgetsThePhotosFirstThatWereLeftFirst)
{
    const auto make = [](const QString& photo, std::size_t count) {
        OwnStep step;
        step.before = step.after = std::make_shared<const LumetraHost::EditState>();
        return StepShelf::Steps{photo, std::vector<OwnStep>(count, step), {}};
    };
    StepShelf shelf;
    shelf.Put(make(QStringLiteral("a"), 200));
    shelf.Put(make(QStringLiteral("b"), 200));
    shelf.Put(make(QStringLiteral("a"), 100));
    shelf.Put(make(QStringLiteral("c"), 300));

    EXPECT_FALSE(shelf.Take(QStringLiteral("b")));
    ASSERT_TRUE(shelf.Take(QStringLiteral("a")));
    EXPECT_FALSE(shelf.Take(QStringLiteral("a"))) << "taken once";
    EXPECT_EQ(shelf.Take(QStringLiteral("c"))->steps.size(), 300U);
}
