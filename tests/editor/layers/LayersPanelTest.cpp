// SPDX-License-Identifier: GPL-2.0-or-later
// The list of what is on the photo, used as its user does: by pointer and keys.
#include "editor/layers/ListedLayers.h"

#include "editor/ScriptedAlerts.h"
#include "edits/EditFile.h"
#include "layers/LayersPanel.h"
#include "window/PanelTabs.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QToolButton>

#include <gmock/gmock.h>

#include <memory>

using namespace LumetraTest;
using LumetraEditor::LayersPanel;
using LumetraHost::HaveSamePixels;
using LumetraHost::Image;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QString First = QStringLiteral("Candlelight");
const QString Second = QStringLiteral("Fresh");
const QString Third = QStringLiteral("Golden");

class LayersPanelTest : public ListedLayers
{
protected:
    /// Two looks that are kept, and one that is open.
    void PutThree() const
    {
        ClickLook(First);
        Apply();
        ClickLook(Second);
        Apply();
        ClickLook(Third);
    }
};

} // namespace

TEST_F(LayersPanelTest, showsWhatIsOnThePhotoTheTopmostFirst)
{
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_TRUE(Find<QLabel>("layersEmpty")->isVisible());
    EXPECT_FALSE(List().isVisible());
    ClickLook(First);
    Apply();
    ClickLook(Second);

    const auto rows = Rows();
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].rfind("Fresh", 0), 0U);
    EXPECT_EQ(rows[0].back(), '*');
    EXPECT_EQ(rows[1].rfind("Candlelight", 0), 0U);
    EXPECT_EQ(rows[1].find('*'), std::string::npos);
    EXPECT_TRUE(List().isVisible());
    EXPECT_FALSE(Find<QLabel>("layersEmpty")->isVisible());
}

TEST_F(LayersPanelTest, followsEveryStepAndItsUndo)
{
    ClickLook(First);
    const auto one = Rows();
    Apply();
    ClickLook(Second);
    const auto two = Rows();
    FindAction("undo")->trigger();
    FindAction("undo")->trigger();
    EXPECT_EQ(Rows(), one);
    FindAction("redo")->trigger();
    FindAction("redo")->trigger();

    EXPECT_EQ(Rows(), two);
}

TEST_F(LayersPanelTest, spaceSwitchesALayerOffAndOn)
{
    PutThree();
    const Image all = Draw();

    Press(2, Qt::Key_Space);

    EXPECT_EQ(Rows()[2][0], '-');
    EXPECT_FALSE(HaveSamePixels(Draw(), all));
    ExpectDrawnAsExported("with a layer off");
    Press(2, Qt::Key_Space);
    ExpectSamePicture(all, "on again");
    FindAction("undo")->trigger();
    EXPECT_EQ(Rows()[2][0], '-');
}

TEST_F(LayersPanelTest, aClickOnTheTickSwitchesALayerOff)
{
    ClickLook(First);
    const QModelIndex index = List().model()->index(0, 0);

    QTest::mouseClick(List().viewport(), Qt::LeftButton, {},
                      List().visualRect(index).topLeft() + QPoint(16, 12));

    EXPECT_EQ(Rows()[0][0], '-');
    ExpectSamePicture(original, "off");
}

TEST_F(LayersPanelTest, deleteTakesALayerAwayAndNoLookOfThePanel)
{
    const ScriptedAlerts nothingIsAsked({});
    PutThree();
    auto rows = Rows();
    const Image all = Draw();

    Press(1, Qt::Key_Delete);

    rows.erase(rows.begin() + 1);
    EXPECT_EQ(Rows(), rows);
    EXPECT_EQ(GetAppliedName(), Third) << "the open layer stays open";
    ExpectDrawnAsExported("without the layer");
    FindAction("undo")->trigger();
    ExpectSamePicture(all, "undone");
    EXPECT_EQ(Rows().size(), 3U);
}

TEST_F(LayersPanelTest, theOpenLayerCanBeTakenAwayToo)
{
    ClickLook(First);

    Press(0, Qt::Key_Delete);

    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_EQ(QApplication::focusWidget(), Find<QToolButton>("layersHeading"));
    EXPECT_NE(GetAppliedName(), First);
    ExpectSamePicture(original, "nothing is left");
}

TEST_F(LayersPanelTest, altAndTheArrowsMoveALayer)
{
    PutThree();
    const auto rows = Rows();
    const Image before = Draw();

    Press(2, Qt::Key_Up, Qt::AltModifier);

    EXPECT_THAT(Rows(), ElementsAre(rows[0], rows[2], rows[1]));
    EXPECT_EQ(List().currentIndex().row(), 1) << "the moved layer stays the current one";
    EXPECT_FALSE(HaveSamePixels(Draw(), before));
    ExpectDrawnAsExported("moved");
    QTest::keyClick(&List(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Rows(), rows);
    ExpectSamePicture(before, "back in its place");
    Press(2, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Rows(), rows) << "there is no place below";
}

TEST_F(LayersPanelTest, aDraggedLayerComesWhereItIsDropped)
{
    PutThree();
    const auto rows = Rows();
    auto& model = *List().model();
    const std::unique_ptr<QMimeData> data(model.mimeData({model.index(0, 0)}));

    List().model()->dropMimeData(data.get(), Qt::MoveAction, 3, 0, {});
    QApplication::processEvents();

    EXPECT_THAT(Rows(), ElementsAre(rows[1], rows[2], rows[0]));
    EXPECT_EQ(GetAppliedName(), Third) << "it stays open below the others";
    ExpectDrawnAsExported("dragged");
    List().model()->dropMimeData(data.get(), Qt::MoveAction, 1, 0, {});
    QApplication::processEvents();
    EXPECT_THAT(Rows(), ElementsAre(rows[1], rows[2], rows[0])) << "its own place";
    EXPECT_FALSE(
        model.canDropMimeData(std::make_unique<QMimeData>().get(), Qt::MoveAction, 0, 0, {}));
}

TEST_F(LayersPanelTest, enterOpensALowerLayerWithItsSliders)
{
    ClickLook(First);
    LowerIntensity();
    const int intensity = Intensity()->value();
    Apply();
    ClickLook(Second);
    const Image both = Draw();
    const auto rows = Rows();

    Press(1, Qt::Key_Return);

    EXPECT_EQ(GetAppliedName(), First);
    EXPECT_EQ(Intensity()->value(), intensity);
    ExpectSamePicture(both, "opened");
    EXPECT_EQ(Rows()[1].back(), '*');
    EXPECT_NE(Rows()[0].back(), '*');
    EXPECT_EQ(Rows()[1], rows[1] + '*');
    LowerIntensity();
    EXPECT_NE(Rows()[1], rows[1] + '*');
    EXPECT_FALSE(HaveSamePixels(Draw(), both));
    ExpectDrawnAsExported("its intensity");
    FindAction("undo")->trigger();
    ExpectSamePicture(both, "undone");
    FindAction("undo")->trigger();
    EXPECT_EQ(GetAppliedName(), Second) << "opening is a step";
    EXPECT_EQ(Rows(), rows);
}

TEST_F(LayersPanelTest, aDoubleClickOpensALayer)
{
    PutThree();
    const QPoint place = List().visualRect(List().model()->index(2, 0)).center();

    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, place);

    EXPECT_EQ(GetAppliedName(), First);
}

TEST_F(LayersPanelTest, anotherLookComesInThePlaceOfTheOpenOne)
{
    PutThree();
    Press(2, Qt::Key_Return);

    ClickLook(QStringLiteral("Studio"));

    const auto rows = Rows();
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[2].rfind("Studio", 0), 0U);
    EXPECT_EQ(rows[2].back(), '*');
    ExpectDrawnAsExported("another look below");
}

TEST_F(LayersPanelTest, applyClosesALowerLayerUnderTheOthers)
{
    PutThree();
    const auto rows = Rows();
    Press(2, Qt::Key_Return);
    const Image picture = Draw();

    Apply();

    ExpectSamePicture(picture, "applied");
    EXPECT_EQ(Rows()[2], rows[2]);
    ClickLook(QStringLiteral("Studio"));
    EXPECT_EQ(Rows().size(), 4U);
    EXPECT_EQ(Rows()[0].rfind("Studio", 0), 0U) << "the next look comes on top of all";
    ExpectDrawnAsExported("another look on top");
}

TEST_F(LayersPanelTest, discardTakesALowerLayerAwayAndTheNextLookComesOnTop)
{
    PutThree();
    const auto rows = Rows();
    Press(2, Qt::Key_Return);

    Find<QPushButton>("discardButton")->click();

    EXPECT_EQ(Rows().size(), 2U);
    ExpectDrawnAsExported("taken away");
    ClickLook(First);
    EXPECT_EQ(Rows()[0].rfind("Candlelight", 0), 0U);
    EXPECT_EQ(Rows().size(), 3U);
    ExpectDrawnAsExported("another look on top");
}

TEST_F(LayersPanelTest, closesWhatIsOpenByItsMenu)
{
    PutThree();
    Press(2, Qt::Key_Return);
    const Image picture = Draw();

    FindAction("closeLayer")->trigger();

    for (const std::string& row : Rows())
        EXPECT_NE(row.back(), '*');
    ExpectSamePicture(picture, "closed");
    EXPECT_FALSE(FindAction("closeLayer")->isEnabled());
}

TEST_F(LayersPanelTest, anAdjustmentOpensWithItsValues)
{
    auto& tabs = GetPart<LumetraEditor::PanelTabs>();
    tabs.setCurrentIndex(1);
    QApplication::processEvents();
    auto* const slider = Find<QSlider>("exposure.stops");
    Drag(*slider, {slider->width() / 2, slider->height() / 2},
         {slider->width() * 3 / 4, slider->height() / 2});
    const int value = slider->value();
    tabs.setCurrentIndex(0);
    ClickLook(First);
    Apply();
    ASSERT_EQ(slider->value(), 0);
    const Image picture = Draw();

    Press(1, Qt::Key_Return);

    EXPECT_EQ(slider->value(), value);
    EXPECT_EQ(tabs.currentIndex(), 1) << "its panel comes to the front";
    ExpectSamePicture(picture, "opened");
    EXPECT_EQ(Rows()[1], "Adjust*");
}

TEST_F(LayersPanelTest, keptLooksCanBeChangedAfterARestart)
{
    PutThree();
    editor->SaveEdit();
    const auto rows = Rows();
    const Image picture = Draw();
    Restart();
    LoadPresetsPanel();
    Open(Path("lake.png"));
    EXPECT_EQ(Rows(), rows);

    Press(2, Qt::Key_Return);
    EXPECT_EQ(GetAppliedName(), First);
    ExpectSamePicture(picture, "opened after a restart");
    editor->SaveEdit();
    Restart();
    LoadPresetsPanel();
    Open(Path("lake.png"));
    EXPECT_EQ(GetAppliedName(), First) << "it is still open";
    ExpectSamePicture(picture, "opened in the file");
    Press(1, Qt::Key_Delete);

    EXPECT_EQ(Rows().size(), 2U);
    ExpectDrawnAsExported("taken away after a restart");
}

TEST_F(LayersPanelTest, everyChangeIsInTheFileWithoutBeingAskedFor)
{
    PutThree();
    editor->SaveEdit();
    int saved = 0;
    QObject::connect(editor.get(), &LumetraEditor::Editor::editSaved, [&saved] { ++saved; });
    const auto expectKept = [&](const char* after) {
        WaitUntil([&saved] { return saved > 0; });
        saved = 0;
        EXPECT_TRUE(LumetraHost::EditFile::Read(Path("lake.png.lumetra.json")).state.layers ==
                    editor->GetSteppedLayers())
            << after;
    };

    Press(2, Qt::Key_Return);
    expectKept("opening");
    Press(0, Qt::Key_Space);
    expectKept("switching off");
    Press(0, Qt::Key_Down, Qt::AltModifier);
    expectKept("moving");
    Press(0, Qt::Key_Delete);
    expectKept("taking away");
    FindAction("undo")->trigger();
    expectKept("undoing");
    Find<QToolButton>("revertButton")->click();
    expectKept("reverting");
}

TEST_F(LayersPanelTest, aDoubleClickOnTheTickOpensNothing)
{
    PutThree();
    const QPoint tick = List().visualRect(List().model()->index(2, 0)).topLeft() + QPoint(16, 12);

    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, tick);
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, tick);

    EXPECT_EQ(GetAppliedName(), Third);
}

TEST_F(LayersPanelTest, revertTakesEverythingOffInOneStep)
{
    PutThree();
    const Image all = Draw();

    Find<QToolButton>("revertButton")->click();

    EXPECT_THAT(Rows(), IsEmpty());
    ExpectSamePicture(original, "reverted");
    EXPECT_FALSE(FindAction("revert")->isEnabled());
    FindAction("undo")->trigger();
    ExpectSamePicture(all, "undone");
    EXPECT_EQ(GetAppliedName(), Third);
}

TEST_F(LayersPanelTest, foldsAndRemembersIt)
{
    PutThree();
    auto& panel = GetPart<LayersPanel>();
    const int height = panel.sizeHint().height();
    List().setFocus();

    Find<QToolButton>("layersHeading")->click();

    EXPECT_FALSE(List().isVisible());
    EXPECT_LT(panel.sizeHint().height(), height);
    EXPECT_EQ(QApplication::focusWidget(), Find<QToolButton>("layersHeading"));
    Restart();
    LoadPresetsPanel();
    Open(Path("lake.png"));
    EXPECT_TRUE(GetPart<LayersPanel>().IsFolded());
    Find<QToolButton>("layersHeading")->click();
    EXPECT_TRUE(List().isVisible());
}

TEST_F(LayersPanelTest, manyLayersTakeTheRoomOfAFew)
{
    for (int i = 0; i < 7; ++i) {
        ClickLook(i % 2 == 0 ? First : Second);
        Apply();
    }

    EXPECT_EQ(Rows().size(), 7U);
    EXPECT_LT(List().height(), 5 * List().visualRect(List().model()->index(0, 0)).height());
}

TEST_F(LayersPanelTest, isLockedWithoutAPhotoAndWhileOneIsRead)
{
    ClickLook(First);
    auto& panel = GetPart<LayersPanel>();
    EXPECT_TRUE(panel.isEnabled());
    window->OpenPhotos({WritePhoto("hill.png", 60, 40)});
    EXPECT_FALSE(panel.isEnabled());
    WaitUntil([this] { return !editor->IsOpening(); });
    EXPECT_TRUE(panel.isEnabled());
    FindAction("closePhoto")->trigger();

    EXPECT_FALSE(panel.isEnabled());
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(LayersPanelTest, speaksOfItsLayers)
{
    PutThree();
    Press(1, Qt::Key_Space);

    auto* const face = QAccessible::queryAccessibleInterface(&List());
    ASSERT_NE(face, nullptr);
    EXPECT_EQ(face->text(QAccessible::Name), QStringLiteral("On the photo"));
    const auto spoken = [this](int row) {
        return List().model()->index(row, 0).data(Qt::AccessibleTextRole).toString();
    };
    EXPECT_EQ(spoken(0), QStringLiteral("Golden, open, on"));
    EXPECT_EQ(spoken(1), QStringLiteral("Fresh, off"));
}

TEST_F(LayersPanelTest, namesLooksInTheUsersLanguage)
{
    ClickLook(First);
    FindAction("german")->trigger();
    QApplication::processEvents();

    EXPECT_TRUE(HasLook(List().model()->index(0, 0).data().toString()))
        << "as the panel names the look";
    EXPECT_NE(List().model()->index(0, 0).data().toString(), First);
    EXPECT_EQ(List().accessibleName(), QStringLiteral("Auf dem Foto"));
    FindAction("english")->trigger();
}

TEST_F(LayersPanelTest, tellsWhenALayersPanelIsNotThere)
{
    ClickLook(First);
    Apply();
    editor->SaveEdit();
    const Image picture = Draw();
    Restart();
    Open(Path("lake.png"));
    const auto rows = Rows();

    Press(0, Qt::Key_Return);

    EXPECT_EQ(GetMessage(),
              QStringLiteral("“Candlelight” cannot be opened again: its panel is not there."));
    EXPECT_EQ(Rows(), rows);
    ExpectSamePicture(picture, "as it was");
    Press(0, Qt::Key_Delete);
    ExpectSamePicture(original, "it can be taken away all the same");
}
