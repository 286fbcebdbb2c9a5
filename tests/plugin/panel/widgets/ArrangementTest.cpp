// SPDX-License-Identifier: GPL-2.0-or-later
// How the panel divides its room, and what the user can choose about that.
#include "PanelFixture.h"
#include "panel/grid/PresetGrid.h"
#include "panel/widgets/PresetPages.h"
#include "panel/widgets/PresetsWidget.h"
#include "panel/widgets/SliderRow.h"
#include "widgets/CustomToolBoxButton.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QToolButton>

using LumetraPlugin::PresetGrid;
using LumetraPlugin::PresetModel;
using LumetraPlugin::PresetPages;
using LumetraPlugin::PresetsWidget;
using LumetraPlugin::ThumbnailShape;
using LumetraPlugin::ThumbnailSize;
using LumetraTest::PanelFixture;

namespace {

class ArrangementTest : public PanelFixture
{
protected:
    /// Lets layouts follow each other: each answers the one inside it.
    static void Settle()
    {
        constexpr int rounds = 10;
        for (int i = 0; i < rounds; ++i)
            QApplication::processEvents();
    }
    void Resize(int height)
    {
        panel->GetWidget()->resize(336, height);
        Settle();
    }
    PresetPages& Pages() { return *panel->GetWidget()->findChild<PresetPages*>(); }
    int Columns(int page)
    {
        return Grid(page).width() / std::max(1, Grid(page).gridSize().width());
    }
    void MakeManyLooks()
    {
        for (int i = 0; i < 24; ++i)
            Model().setData(Named("Hard"), QStringLiteral("Own %1").arg(i),
                            PresetModel::SaveAsUserPresetRole);
        Pages().Refresh();
        auto& header = *panel->GetWidget()
                            ->findChildren<Zorvik::Lumetra::LumetraPresets::CustomToolBoxButton*>()
                            .at(UserPage);
        if (!header.isSelected())
            header.click();
        Settle();
    }
    bool IsInSight(const char* name)
    {
        PresetGrid& grid = Grid(Named(name).parent().row());
        const QRect cell = grid.visualRect(grid.GetPresets().FromPreset(Named(name)));
        const QPoint top = grid.mapTo(Pages().viewport(), cell.topLeft());
        return top.y() >= 0 && top.y() + cell.height() <= Pages().viewport()->height();
    }
    void FoldSliders() { Find<QToolButton>("foldSliders").click(); }
};

} // namespace

TEST_F(ArrangementTest, thumbnailsComeInThreeSizesThatAreRemembered)
{
    Resize(900);
    QAction& small = Find<QAction>("smallThumbnails");
    QAction& large = Find<QAction>("largeThumbnails");
    EXPECT_TRUE(Find<QAction>("mediumThumbnails").isChecked());
    EXPECT_EQ(Columns(0), 2);

    small.trigger();
    Settle();
    EXPECT_EQ(Columns(0), 3);
    large.trigger();
    Settle();
    EXPECT_EQ(Columns(0), 1);

    Restart();
    Resize(900);
    EXPECT_EQ(Columns(0), 1);
    EXPECT_TRUE(Find<QAction>("largeThumbnails").isChecked());
}

TEST_F(ArrangementTest, aLowWindowHasSmallThumbnailsUnlessOthersWereChosen)
{
    Resize(760);
    EXPECT_EQ(Columns(0), 3);
    EXPECT_TRUE(Find<QAction>("smallThumbnails").isChecked());
    Resize(1000);
    EXPECT_EQ(Columns(0), 2);

    Find<QAction>("mediumThumbnails").trigger();
    Resize(760);

    EXPECT_EQ(Columns(0), 2);
}

TEST_F(ArrangementTest, picturesAreAskedForInTheSizeThatIsShown)
{
    Resize(900);
    const auto size = [this] {
        panel->GetWidget()->grab();
        editor.RenderPreviews();
        auto& presets = Grid(0).GetPresets();
        return presets.index(0).data(Qt::DecorationRole).value<QPixmap>().size();
    };
    EXPECT_EQ(size(), ThumbnailShape::Of(ThumbnailSize::Medium).picture);

    Find<QAction>("largeThumbnails").trigger();

    EXPECT_EQ(size(), ThumbnailShape::Of(ThumbnailSize::Large).picture);
}

TEST_F(ArrangementTest, theSlidersFoldAndStayFolded)
{
    Click("Hard");
    const int before = Pages().height();

    FoldSliders();
    Settle();

    EXPECT_FALSE(Find<QSlider>("intensitySlider").isVisible());
    EXPECT_FALSE(Find<QSlider>("extraSlider0").isVisible());
    EXPECT_TRUE(Find<QAbstractButton>("applyButton").isVisible());
    EXPECT_GT(Pages().height(), before);
    EXPECT_FALSE(Find<QAction>("slidersOpen").isChecked());
    Restart();
    EXPECT_FALSE(Find<QSlider>("intensitySlider").isVisible());
    Find<QAction>("slidersOpen").trigger();
    EXPECT_TRUE(Find<QSlider>("intensitySlider").isVisible());
}

TEST_F(ArrangementTest, theListFoldsAndStaysFolded)
{
    Find<QToolButton>("foldList").click();
    Settle();

    EXPECT_FALSE(Pages().isVisible());
    EXPECT_TRUE(Find<QLineEdit>("searchField").isVisible());
    EXPECT_LT(Find<QWidget>("tunePanel").geometry().top(), 160) << "the controls move up";
    Restart();
    EXPECT_FALSE(Pages().isVisible());
    Find<QAction>("listOpen").trigger();
    EXPECT_TRUE(Pages().isVisible());
}

TEST_F(ArrangementTest, aSearchAndAChoiceUnfoldTheList)
{
    auto& fold = Find<QToolButton>("foldList");
    fold.click();
    Find<QLineEdit>("searchField").setText(QStringLiteral("bri"));
    EXPECT_TRUE(Pages().isVisible());

    fold.click();
    ASSERT_FALSE(Pages().isVisible());
    Find<QAbstractButton>("filterButton1").click();
    EXPECT_TRUE(Pages().isVisible());
}

TEST_F(ArrangementTest, slidersScrollWhereTheyDoNotFit)
{
    Click("Hard");
    Resize(900);
    auto& area = Find<QScrollArea>("sliderArea");
    EXPECT_FALSE(area.verticalScrollBar()->isVisible());

    Resize(360);

    ASSERT_TRUE(area.verticalScrollBar()->isVisible());
    EXPECT_GE(area.height(), Find<QSlider>("extraSlider0").height());
    auto& last = Find<QSlider>("extraSlider1");
    panel->GetWidget()->activateWindow();
    Find<QSlider>("extraSlider0").setFocus();
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    for (int tabs = 0; tabs < 5 && !last.hasFocus(); ++tabs) {
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QApplication::sendEvent(QApplication::focusWidget(), &tab);
    }
    ASSERT_TRUE(last.hasFocus());
    const int bottom = last.mapTo(area.viewport(), last.rect().bottomLeft()).y();
    EXPECT_LT(bottom, area.viewport()->height()) << "the key brings the slider into sight";
    EXPECT_LE(Find<QWidget>("tunePanel").geometry().bottom(), panel->GetWidget()->height());
}

TEST_F(ArrangementTest, theLookInUseStaysInSight)
{
    Resize(800); // a large thumbnail fits
    MakeManyLooks();
    Pages().verticalScrollBar()->setValue(0);

    panel->GetWidget()->findChild<PresetPages*>()->Reveal(Named("Own 14"));
    Settle();
    Click("Own 14"); // two sliders come
    Settle();
    EXPECT_TRUE(IsInSight("Own 14")) << "after putting it on";

    for (const char* const size : {"largeThumbnails", "smallThumbnails", "mediumThumbnails"}) {
        Find<QAction>(size).trigger();
        Settle();
        EXPECT_TRUE(IsInSight("Own 14")) << size;
    }
    Find<QAction>("smallThumbnails").trigger();
    for (int i = 0; i < 2; ++i) {
        FoldSliders();
        Settle();
        EXPECT_TRUE(IsInSight("Own 14")) << "after folding";
    }
    for (const int height : {520, 700, 600}) {
        Resize(height);
        Settle();
        EXPECT_TRUE(IsInSight("Own 14")) << height;
    }
}

TEST_F(ArrangementTest, aUserWhoLooksElsewhereIsLeftThere)
{
    Resize(620);
    MakeManyLooks();
    Click("Hard");
    Settle();
    Pages().verticalScrollBar()->setValue(Pages().verticalScrollBar()->maximum());
    ASSERT_FALSE(IsInSight("Hard"));

    Resize(600);

    EXPECT_FALSE(IsInSight("Hard"));
}

TEST_F(ArrangementTest, keysGoFromLookToLookWhereverTheFocusIs)
{
    Trigger("nextPreset");
    EXPECT_TRUE(IsApplied("Bright"));
    EXPECT_EQ(editor.steps.size(), 1);
    Trigger("nextPreset");
    EXPECT_TRUE(IsApplied("Grey"));
    EXPECT_EQ(editor.steps.size(), 2) << "each is a step of its own";

    Trigger("previousPreset");
    Trigger("previousPreset");

    EXPECT_TRUE(IsApplied("Bright")) << "there is none before the first";
}

TEST_F(ArrangementTest, choicesThatMakeNoSenseAreNone)
{
    {
        QFile file(files.recent);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[view]\nthumbnails=huge\nlistOpen=7\nslidersOpen=\n");
    }
    Restart();
    Resize(900);

    EXPECT_EQ(Columns(0), 2);
    EXPECT_TRUE(Pages().isVisible());
}
