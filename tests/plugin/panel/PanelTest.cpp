// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/drawer/DrawnPicture.h"
#include "panel/PresetsPanel.h"

#include "PanelFixture.h"
#include "workspace/WorkspaceController.h"

#include <QAbstractButton>
#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

using LumetraPlugin::PresetModel;
using LumetraTest::PanelFixture;

namespace {

class PanelTest : public PanelFixture
{
};

} // namespace

TEST_F(PanelTest, showsTheGroupsInTheModelsOrder)
{
    EXPECT_EQ(Shown(0), (QStringList{QStringLiteral("Bright"), QStringLiteral("Grey"),
                                     QStringLiteral("Hard")}));
    EXPECT_EQ(Shown(1), (QStringList{QStringLiteral("Warm"), QStringLiteral("Plain")}));
    EXPECT_EQ(Shown(2).size(), 2);
    EXPECT_EQ(Shown(UserPage), QStringList());
}

TEST_F(PanelTest, aClickAppliesThePreset)
{
    Click("Bright");

    EXPECT_TRUE(IsApplied("Bright"));
    EXPECT_FALSE(HaveSamePixels(editor.GetResult(), photo));
    EXPECT_EQ(editor.steps, QStringList{QStringLiteral("Look “Bright”")});
}

TEST_F(PanelTest, aSecondClickOnAnotherPresetReplacesIt)
{
    Click("Bright");
    Click("Grey");

    EXPECT_FALSE(IsApplied("Bright"));
    EXPECT_EQ(editor.GetHostWorkspace().GetDrawer().GetOpenPackages().size(), 1U);
}

TEST_F(PanelTest, draggingTheIntensityDrawsLiveAndIsOneStep)
{
    Click("Bright");
    const auto full = editor.GetResult();

    Drag("intensitySlider", {60, 40, 1});

    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), photo)); // intensity 1 is the photo itself
    EXPECT_FALSE(HaveSamePixels(editor.GetResult(), full));
    EXPECT_EQ(editor.steps.size(), 2);
    EXPECT_EQ(editor.steps.last(), QStringLiteral("Intensity of “Bright”"));
}

TEST_F(PanelTest, discardTakesTheLookOff)
{
    Click("Bright");
    Find<QAbstractButton>("discardButton").click();

    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), photo));
    EXPECT_TRUE(panel->SaveEdit()->GetEntries().empty());
}

TEST_F(PanelTest, applyMakesTheLookPartOfThePhoto)
{
    Click("Bright");
    const auto shown = editor.GetResult();
    Find<QAbstractButton>("applyButton").click();

    EXPECT_TRUE(
        HaveSamePixels(LumetraHost::DrawCommitted(editor.GetHostWorkspace().GetDrawer()), shown));
    EXPECT_EQ(editor.steps.last(), QStringLiteral("Add another look to “Bright”"));
}

TEST_F(PanelTest, appliesNothingWithoutAPhoto)
{
    editor.photoPath.clear();
    Click("Bright");

    EXPECT_FALSE(IsApplied("Bright"));
    EXPECT_EQ(editor.messages, QStringList{QStringLiteral("Open a photo first.")});
}

/// An editor ends the panel before the window in which it has placed the panel's widget.
TEST_F(PanelTest, leavesAnEmptyWidgetInTheWindowThatHasPlacedIt)
{
    QWidget window;
    const QPointer<QWidget> placed = panel->GetWidget();
    placed->setParent(&window);
    EXPECT_FALSE(placed->actions().isEmpty());

    editor.SetPanel(nullptr);
    panel.reset();

    ASSERT_TRUE(placed);
    EXPECT_TRUE(placed->findChildren<QWidget*>().isEmpty());
    EXPECT_TRUE(placed->actions().isEmpty());
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(placed, &change);
}

TEST_F(PanelTest, takesItsWidgetAlongWhereNobodyHasPlacedIt)
{
    const QPointer<QWidget> widget = panel->GetWidget();

    editor.SetPanel(nullptr);
    panel.reset();

    EXPECT_FALSE(widget);
}

TEST_F(PanelTest, survivesThatItsWidgetGoesFirst)
{
    delete panel->GetWidget();

    editor.SetPanel(nullptr);
    panel.reset();
}
