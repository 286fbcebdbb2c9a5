// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/widgets/PresetPages.h"

#include "EffectPresets/IObjectsConnectorID.h"
#include "PanelFixture.h"
#include "Zorvik/Util/ObjectsConnector.h"
#include "core/PresetCollection.h"
#include "panel/grid/PresetGrid.h"
#include "widgets/CustomToolBox.h"
#include "widgets/CustomToolBoxButton.h"
#include "workspace/WorkspaceController.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QShortcut>
#include <QToolButton>

#include <gmock/gmock.h>

using LumetraPlugin::PresetGrid;
using LumetraPlugin::PresetModel;
using LumetraPlugin::PresetPages;
using LumetraTest::PanelFixture;
using testing::HasSubstr;
using Zorvik::Lumetra::LumetraPresets::CustomToolBoxButton;

namespace {

class PresetPagesTest : public PanelFixture
{
protected:
    static constexpr int Recent = LumetraPlugin::PresetPageModel::RecentOfAll;

    void Search(const char* text)
    {
        Find<QLineEdit>("searchField").setText(QString::fromUtf8(text));
    }
    void Choose(int kind)
    {
        Find<QAbstractButton>(qPrintable(QStringLiteral("filterButton%1").arg(kind))).click();
    }
    PresetPages& Pages() { return *panel->GetWidget()->findChild<PresetPages*>(); }
    bool IsSeen(int page) { return Grid(page).isVisibleTo(panel->GetWidget()); }
    CustomToolBoxButton& Header(int page)
    {
        return *panel->GetWidget()->findChildren<CustomToolBoxButton*>().at(page);
    }
    void Press(QWidget& widget, int key)
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&widget, &press);
    }
    void Release(QWidget& widget, int key)
    {
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
        QApplication::sendEvent(&widget, &release);
    }
    void Focus(const char* name)
    {
        panel->GetWidget()->activateWindow();
        Grid(Named(name).parent().row()).SetCurrentPreset(Named(name));
        Grid(Named(name).parent().row()).setFocus();
    }
    /// Many looks in the user's group, and a panel that shows few of them at a time.
    void MakeLongPage()
    {
        for (int i = 0; i < 24; ++i)
            Model().setData(Named("Bright"), QStringLiteral("Own %1").arg(i),
                            PresetModel::SaveAsUserPresetRole);
        panel->GetWidget()->resize(320, 560);
        Pages().Refresh();
        QApplication::processEvents();
    }
    void PressPageKey(int page)
    {
        for (QShortcut* const shortcut : panel->GetWidget()->findChildren<QShortcut*>())
            if (shortcut->key() == QKeySequence(Qt::ALT + Qt::Key_1 + page))
                emit shortcut->activated();
        QApplication::processEvents();
    }
    /// True when the part is in sight from its top to its bottom.
    bool IsInSight(const QWidget& widget, const QRect& part)
    {
        QWidget& seen = *Pages().viewport();
        const QRect there(widget.mapTo(&seen, part.topLeft()), part.size());
        return there.top() >= 0 && there.bottom() < seen.height();
    }
    bool IsHeaderInSight(int page) { return IsInSight(Header(page), Header(page).rect()); }
    bool IsLookInSight(const char* name)
    {
        PresetGrid& grid = Grid(Named(name).parent().row());
        return IsInSight(grid, grid.visualRect(grid.GetPresets().FromPreset(Named(name))));
    }
    void OpenPage(int page)
    {
        if (!Header(page).isSelected())
            Header(page).click();
        QApplication::processEvents();
    }
};

} // namespace

TEST_F(PresetPagesTest, searchFindsWordsInNamesAndGroups)
{
    Search("even wa");
    EXPECT_EQ(Shown(0), QStringList());
    EXPECT_EQ(Shown(1), QStringList{QStringLiteral("Warm")});
    EXPECT_TRUE(IsSeen(1)); // opened, although it was shut
    EXPECT_FALSE(Header(0).isVisibleTo(panel->GetWidget()));
}

TEST_F(PresetPagesTest, pagesAreAsTheyWereAfterASearch)
{
    ASSERT_TRUE(IsSeen(0));
    ASSERT_FALSE(IsSeen(1));
    Search("warm");
    Search("");

    EXPECT_TRUE(IsSeen(0));
    EXPECT_FALSE(IsSeen(1));
    EXPECT_TRUE(Header(0).isVisibleTo(panel->GetWidget()));
    EXPECT_EQ(Shown(0).size(), 3);
}

TEST_F(PresetPagesTest, aPageThatIsShutDuringASearchStaysShut)
{
    Search("a"); // in every group
    ASSERT_TRUE(IsSeen(1));
    Header(1).click();
    Click("Hard");

    EXPECT_FALSE(IsSeen(1));
}

TEST_F(PresetPagesTest, favouritesShowWhatHasAStar)
{
    ClickStar("Grey");
    Choose(1);
    EXPECT_EQ(Shown(0), QStringList{QStringLiteral("Grey")});
    EXPECT_EQ(Shown(1), QStringList());

    Choose(0);
    EXPECT_EQ(Shown(0).size(), 3);
}

TEST_F(PresetPagesTest, recentShowsWhatWasAppliedAlsoAfterARestart)
{
    Click("Hard");
    Restart();
    Choose(2);

    EXPECT_EQ(Shown(Recent), QStringList{QStringLiteral("Hard")});
    EXPECT_TRUE(IsSeen(Recent));
    EXPECT_EQ(Shown(0), QStringList());
    EXPECT_EQ(Shown(1), QStringList());
}

TEST_F(PresetPagesTest, recentLooksOfAllGroupsStandInTheOrderOfTheirUse)
{
    OpenPage(1);
    for (const char* const name : {"Hard", "Plain", "Grey", "Hard"})
        Click(name);
    const QStringList latestFirst{QStringLiteral("Hard"), QStringLiteral("Grey"),
                                  QStringLiteral("Plain")};
    Choose(2);
    EXPECT_EQ(Shown(Recent), latestFirst);
    Restart();
    Choose(2);
    EXPECT_EQ(Shown(Recent), latestFirst);
}

TEST_F(PresetPagesTest, recentLooksKeepTheirPlacesUntilTheyAreAskedForAgain)
{
    Click("Hard");
    Click("Grey");
    Choose(2);
    Grid(Recent).SetCurrentPreset(Named("Hard"));
    Press(Grid(Recent), Qt::Key_Return);
    EXPECT_EQ(Shown(Recent), (QStringList{QStringLiteral("Grey"), QStringLiteral("Hard")}));
    EXPECT_TRUE(IsApplied("Hard"));

    Choose(2);
    EXPECT_EQ(Shown(Recent), (QStringList{QStringLiteral("Hard"), QStringLiteral("Grey")}));
}

TEST_F(PresetPagesTest, aLookThatIsUsedForTheFirstTimeStandsFirstAtOnce)
{
    Click("Hard");
    Choose(2);
    Zorvik::Util::ObjectsConnector::sendMessage(
        Zorvik::Lumetra::LumetraPresets::IObjectsConnectorID::ACTIVATE_PRESET,
        {QStringLiteral("grey")});

    EXPECT_EQ(Shown(Recent), (QStringList{QStringLiteral("Grey"), QStringLiteral("Hard")}));
}

TEST_F(PresetPagesTest, ofLooksThatAnArrowKeyPassesTheLastOneIsRecent)
{
    Focus("Bright");
    Press(Grid(0), Qt::Key_Right);
    EXPECT_TRUE(IsApplied("Grey"));
    Press(Grid(0), Qt::Key_Left);
    Release(Grid(0), Qt::Key_Left);
    Choose(2);

    EXPECT_EQ(Shown(Recent), QStringList{QStringLiteral("Bright")});
}

TEST_F(PresetPagesTest, aDeletedLookIsNoLongerRecent)
{
    Model().setData(Named("Bright"), QStringLiteral("Own"), PresetModel::SaveAsUserPresetRole);
    OpenPage(UserPage);
    Click("Own");
    Click("Grey");
    Choose(2);
    ASSERT_EQ(Shown(Recent).size(), 2);
    Model().removeRows(0, 1, Model().GetUserGroup());

    EXPECT_EQ(Shown(Recent), QStringList{QStringLiteral("Grey")});
}

TEST_F(PresetPagesTest, recentLooksCanBeSearchedAndSteppedThrough)
{
    OpenPage(1);
    for (const char* const name : {"Hard", "Warm", "Grey"})
        Click(name);
    Choose(2);
    Search("r"); // in all three
    panel->GetWidget()->activateWindow();
    Grid(Recent).SetCurrentPreset(Named("Grey"));
    Grid(Recent).setFocus();
    Press(Grid(Recent), Qt::Key_Right);
    EXPECT_TRUE(IsApplied("Warm"));
    Press(Grid(Recent), Qt::Key_Left);
    Release(Grid(Recent), Qt::Key_Left);
    EXPECT_TRUE(IsApplied("Grey"));

    Search("war");
    EXPECT_EQ(Shown(Recent), QStringList{QStringLiteral("Warm")});
}

TEST_F(PresetPagesTest, withoutAFilterThereIsNoPageOfRecentLooks)
{
    Click("Hard");
    EXPECT_FALSE(IsSeen(Recent));
    EXPECT_FALSE(Header(4).isVisibleTo(panel->GetWidget()));
}

TEST_F(PresetPagesTest, mineShowsTheUsersOwn)
{
    Model().setData(Named("Bright"), QStringLiteral("Own"), PresetModel::SaveAsUserPresetRole);
    Choose(3);

    EXPECT_EQ(Shown(0), QStringList());
    EXPECT_EQ(Shown(UserPage), QStringList{QStringLiteral("Own")});
}

TEST_F(PresetPagesTest, followsPresetsThatTheModelDoesNotAnnounce)
{
    for (int i = 0; i < 9; ++i)
        Model().setData(Named("Bright"), QStringLiteral("Own %1").arg(i),
                        PresetModel::SaveAsUserPresetRole);

    EXPECT_EQ(Shown(UserPage).size(), 9);
    Model().removeRows(2, 3, Model().GetUserGroup());
    EXPECT_EQ(Shown(UserPage).size(), 6);
}

TEST_F(PresetPagesTest, thePressedKeyTogglesItsPage)
{
    const auto shortcuts = panel->GetWidget()->findChildren<QShortcut*>();
    const auto second = std::find_if(shortcuts.begin(), shortcuts.end(), [](QShortcut* shortcut) {
        return shortcut->key() == QKeySequence(Qt::ALT + Qt::Key_2);
    });
    ASSERT_NE(second, shortcuts.end());

    emit(*second)->activated();
    EXPECT_TRUE(IsSeen(1));
    emit(*second)->activated();
    EXPECT_FALSE(IsSeen(1));
}

TEST_F(PresetPagesTest, theHeadersNumberShutsItsPage)
{
    auto* const number =
        panel->GetWidget()->findChildren<QToolButton*>(QStringLiteral("sectionTitleButton")).at(0);
    EXPECT_EQ(number->text(), QStringLiteral("3"));

    number->click();

    EXPECT_FALSE(IsSeen(0));
}

TEST_F(PresetPagesTest, arrowKeysStepThroughLooksAsOneStepOfTheEdit)
{
    OpenPage(1);
    Focus("Bright");
    Press(Grid(0), Qt::Key_Right);
    EXPECT_TRUE(IsApplied("Grey"));
    Press(Grid(0), Qt::Key_Down);
    EXPECT_TRUE(editor.steps.isEmpty());
    Release(Grid(0), Qt::Key_Down);
    EXPECT_EQ(editor.steps.size(), 1);
}

TEST_F(PresetPagesTest, arrowKeysGoOnInTheNextOpenPage)
{
    OpenPage(1);
    Focus("Hard");
    Press(Grid(0), Qt::Key_Right);
    EXPECT_TRUE(IsApplied("Warm"));

    Press(Grid(1), Qt::Key_Left);
    EXPECT_TRUE(IsApplied("Hard"));
}

TEST_F(PresetPagesTest, enterAppliesThePresetUnderTheKeyboard)
{
    Focus("Grey");
    Press(Grid(0), Qt::Key_Return);

    EXPECT_TRUE(IsApplied("Grey"));
    EXPECT_EQ(editor.steps.size(), 1);
}

TEST_F(PresetPagesTest, theDownArrowLeadsFromTheSearchToTheFirstLook)
{
    Search("grey");
    auto& search = Find<QLineEdit>("searchField");
    panel->GetWidget()->activateWindow();
    Press(search, Qt::Key_Down);

    EXPECT_TRUE(Grid(0).hasFocus());
    EXPECT_EQ(Grid(0).GetCurrentPreset(), Named("Grey"));
}

TEST_F(PresetPagesTest, escapeEmptiesTheSearch)
{
    Search("grey");
    Press(Find<QLineEdit>("searchField"), Qt::Key_Escape);

    EXPECT_EQ(Shown(0).size(), 3);
}

TEST_F(PresetPagesTest, theToolTipTellsWhatThePresetChanges)
{
    const auto tip = [this](const char* name) {
        auto& presets = Grid(Named(name).parent().row()).GetPresets();
        return presets.FromPreset(Named(name)).data(Qt::ToolTipRole).toString();
    };
    EXPECT_EQ(tip("Bright"),
              QStringLiteral("<b>Bright</b><br>Exposure +1 stops<br><i>Sliders: Exposure</i>"));
    EXPECT_TRUE(tip("Warm").contains(QStringLiteral("White balance")));
}

TEST_F(PresetPagesTest, theMarksAreToldToo)
{
    const auto told = [this](const char* name) {
        auto& presets = Grid(Named(name).parent().row()).GetPresets();
        return presets.FromPreset(Named(name)).data(Qt::AccessibleDescriptionRole).toString();
    };
    ClickStar("Bright");
    Click("Bright");

    EXPECT_EQ(told("Bright"), QStringLiteral("on the photo, favourite, popular"));
    EXPECT_EQ(told("Grey"), QString());
    EXPECT_EQ(told("Silver"), QStringLiteral("yet to be downloaded"));
}

TEST_F(PresetPagesTest, theFieldsButtonEmptiesTheSearch)
{
    auto& clear = Find<QToolButton>("searchClear");
    EXPECT_FALSE(clear.isVisible());
    Search("bri");
    ASSERT_TRUE(clear.isVisible());

    clear.click();

    EXPECT_TRUE(Find<QLineEdit>("searchField").text().isEmpty());
    EXPECT_FALSE(clear.isVisible());
    EXPECT_EQ(Shown(0).size(), 3);
}

TEST_F(PresetPagesTest, markAndButtonStandInTheMiddleOfTheSearchField)
{
    Search("bri");
    auto& field = Find<QLineEdit>("searchField");

    for (const char* const name : {"searchIcon", "searchClear"})
        EXPECT_NEAR(Find<QWidget>(name).geometry().center().y(), field.rect().center().y(), 1)
            << name;
}

TEST_F(PresetPagesTest, saysWhatBelongsWhereNothingIsYet)
{
    const auto hint = [this](const char* button) {
        Find<QToolButton>(button).click();
        return Find<QLabel>("emptyHint").text();
    };

    EXPECT_THAT(hint("filterButton1").toStdString(), HasSubstr("star"));
    EXPECT_THAT(hint("filterButton2").toStdString(), HasSubstr("apply"));
    EXPECT_THAT(hint("filterButton3").toStdString(), HasSubstr("save or import"));
    EXPECT_TRUE(Find<QLabel>("emptyHint").isVisible());
    Search("nowhere");
    EXPECT_THAT(Find<QLabel>("emptyHint").text().toStdString(), HasSubstr("nowhere"));
}

TEST_F(PresetPagesTest, aNewPresetIsScrolledIntoSight)
{
    panel->GetWidget()->resize(320, 420);
    QApplication::processEvents();
    Click("Bright");

    TriggerAndType("savePreset", QStringLiteral("Mine"));
    QApplication::processEvents();

    PresetGrid& grid = Grid(UserPage);
    const QRect cell = grid.visualRect(grid.GetPresets().FromPreset(Named("Mine")));
    QWidget& seen = *Pages().viewport();
    EXPECT_TRUE(seen.rect().contains(grid.mapTo(&seen, cell.center())));
}

TEST_F(PresetPagesTest, picturesKeepTheirPlacesWithoutTheScrollBar)
{
    Trigger("mediumThumbnails"); // in a window of any height
    panel->GetWidget()->resize(320, 420);
    QApplication::processEvents();
    ASSERT_TRUE(Pages().verticalScrollBar()->isVisible());
    const int width = Grid(0).gridSize().width();

    panel->GetWidget()->resize(320, 1600);
    QApplication::processEvents();
    QApplication::processEvents();

    ASSERT_FALSE(Pages().verticalScrollBar()->isVisible());
    // The unstyled bar of a test may be a little wider than the gutter.
    EXPECT_NEAR(Grid(0).gridSize().width(), width, 1);
}

TEST_F(PresetPagesTest, aGroupThatAKeyOpensIsInSightFromItsHeaderOn)
{
    MakeLongPage();
    PressPageKey(UserPage);
    ASSERT_TRUE(IsSeen(UserPage));
    EXPECT_TRUE(IsHeaderInSight(UserPage));
    EXPECT_TRUE(IsLookInSight("Own 0"));

    Pages().verticalScrollBar()->setValue(Pages().verticalScrollBar()->maximum());
    PressPageKey(1);

    EXPECT_TRUE(IsHeaderInSight(1));
    EXPECT_TRUE(IsLookInSight("Warm"));
}

TEST_F(PresetPagesTest, anEmptyGroupThatAKeyOpensIsInSight)
{
    panel->GetWidget()->resize(320, 420);
    QApplication::processEvents();
    ASSERT_FALSE(IsHeaderInSight(UserPage));

    PressPageKey(UserPage);

    EXPECT_TRUE(IsHeaderInSight(UserPage));
}

TEST_F(PresetPagesTest, theArrowKeysKeepTheirLookInSight)
{
    MakeLongPage();
    OpenPage(UserPage);
    Focus("Own 0");
    for (int i = 0; i < 11; ++i) {
        Press(Grid(UserPage), Qt::Key_Down);
        QApplication::processEvents();
        EXPECT_TRUE(IsLookInSight(qPrintable(
            Grid(UserPage).GetCurrentPreset().data(PresetModel::PresetNameRole).toString())))
            << i;
    }

    Focus("Own 0");
    Press(Grid(UserPage), Qt::Key_Left); // to the last look of the page before
    QApplication::processEvents();
    EXPECT_TRUE(IsLookInSight("Hard"));
    Press(Grid(0), Qt::Key_Right);
    QApplication::processEvents();
    EXPECT_TRUE(IsLookInSight("Own 0"));
}

TEST_F(PresetPagesTest, theTabKeyBringsTheLookOfALongPageIntoSight)
{
    MakeLongPage();
    OpenPage(UserPage);
    Focus("Own 0");
    Grid(0).setFocus();
    Grid(UserPage).SetCurrentPreset(Named("Own 0"));
    Pages().verticalScrollBar()->setValue(0);

    for (int tabs = 0; tabs < 20 && !Grid(UserPage).hasFocus(); ++tabs)
        Press(*QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_TRUE(Grid(UserPage).hasFocus());
    QApplication::processEvents();

    EXPECT_TRUE(IsLookInSight("Own 0"));
}
