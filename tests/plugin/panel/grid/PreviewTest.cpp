// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/grid/ThumbnailCache.h"

#include "PanelFixture.h"
#include "image/Image.h"
#include "panel/grid/HoverPreview.h"
#include "panel/grid/PresetDelegate.h"
#include "panel/grid/PresetGrid.h"
#include "panel/widgets/PresetPages.h"
#include "workspace/WorkspaceController.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>

using LumetraPlugin::PresetDelegate;
using LumetraPlugin::PresetModel;
using LumetraPlugin::ThumbnailShape;
using LumetraPlugin::ThumbnailSize;
using LumetraTest::PanelFixture;

namespace {

class PreviewTest : public PanelFixture
{
protected:
    QString Key(const char* name)
    {
        return QString::fromStdString(Model().GetPreset(Named(name))->GetPreviewKey());
    }
    QPixmap Thumbnail(const char* name)
    {
        auto& presets = Grid(Named(name).parent().row()).GetPresets();
        return presets.FromPreset(Named(name)).data(Qt::DecorationRole).value<QPixmap>();
    }
    /// Paints the panel and renders what it then asks for.
    QStringList Paint()
    {
        panel->GetWidget()->grab();
        return editor.RenderPreviews();
    }
    void PointAt(const char* name)
    {
        auto& grid = Grid(Named(name).parent().row());
        const QRect cell = grid.visualRect(grid.GetPresets().FromPreset(Named(name)));
        QMouseEvent move(QEvent::MouseMove, PresetDelegate::GetPictureRect(cell).center(),
                         Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(grid.viewport(), &move);
    }
    static LumetraHost::Image MakeDark(int width, int height)
    {
        auto image = LumetraHost::Image::Allocate(width, height, LumetraHost::Image::Depth::Bits8);
        for (int y = 0; y < height; ++y)
            for (int i = 0; i < 4 * width; ++i)
                image.Row(y)[i] = i % 4 == 3 ? 255 : 40;
        return image;
    }
    QImage PaintedPicture(const char* name)
    {
        auto& grid = Grid(Named(name).parent().row());
        const QRect cell = grid.visualRect(grid.GetPresets().FromPreset(Named(name)));
        return grid.viewport()->grab(PresetDelegate::GetPictureRect(cell)).toImage();
    }
    void Leave(int page)
    {
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(&Grid(page), &leave);
    }
    void WaitForPreview()
    {
        const int before = editor.shownCount;
        while (editor.shownCount == before)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
};

} // namespace

TEST_F(PreviewTest, asksOnlyForThumbnailsThatAreSeen)
{
    const QStringList asked = Paint();

    EXPECT_TRUE(asked.contains(Key("Bright")));
    EXPECT_FALSE(asked.contains(Key("Warm"))); // its page is shut
}

TEST_F(PreviewTest, showsTheThumbnailWhenItIsReady)
{
    EXPECT_TRUE(Thumbnail("Bright").isNull());
    Paint();

    EXPECT_FALSE(Thumbnail("Bright").isNull());
    EXPECT_TRUE(editor.GetQueue().isEmpty());
}

TEST_F(PreviewTest, aThumbnailShowsThePresetsEffect)
{
    Paint();
    const QColor grey = Thumbnail("Grey").toImage().pixelColor(100, 20);

    EXPECT_LT(grey.hsvSaturation(),
              Thumbnail("Bright").toImage().pixelColor(100, 20).hsvSaturation());
}

TEST_F(PreviewTest, aThumbnailIsCutAsThePresetWantsIt)
{
    editor.OpenPhoto(MakeDark(60, 120));
    panel->GetWidget()->findChild<LumetraPlugin::PresetPages*>()->Reveal(Named("Plain"));
    Paint();

    EXPECT_EQ(Thumbnail("Warm").size(), ThumbnailShape::Of(ThumbnailSize::Medium).picture);
    EXPECT_EQ(Thumbnail("Plain").size(), QSize(56, 112)) << "the whole photo is to be seen";
    const QImage seen = PaintedPicture("Plain");
    const auto redAt = [&](double x) {
        return seen.pixelColor(static_cast<int>(x * seen.width()), seen.height() / 2).red();
    };
    EXPECT_LT(redAt(0.5), redAt(0.25) - 50) << "the ground beside it is another";
    EXPECT_EQ(redAt(0.25), redAt(0.75));
}

TEST_F(PreviewTest, aFinishedDragMakesTheThumbnailNewOnce)
{
    Click("Bright");
    Paint();
    const QImage before = Thumbnail("Bright").toImage();

    Drag("intensitySlider", {60, 40, 20});
    EXPECT_FALSE(Thumbnail("Bright").isNull()); // the old one until the new one comes
    EXPECT_EQ(Paint(), QStringList{Key("Bright")});

    EXPECT_NE(Thumbnail("Bright").toImage(), before);
}

TEST_F(PreviewTest, anotherPhotoMeansOtherThumbnails)
{
    Paint();
    const QImage before = Thumbnail("Bright").toImage();
    editor.OpenPhoto(LumetraHost::Image::Allocate(30, 30, LumetraHost::Image::Depth::Bits8));
    EXPECT_TRUE(Thumbnail("Bright").isNull());
    Paint();

    EXPECT_NE(Thumbnail("Bright").toImage(), before);
}

TEST_F(PreviewTest, committingMakesAllThumbnailsNew)
{
    Paint();
    Click("Bright");
    Find<QAbstractButton>("applyButton").click();
    editor.ForgetPreviews();

    EXPECT_EQ(Paint().size(), 3);
}

TEST_F(PreviewTest, restingOnALookShowsItWithoutApplying)
{
    PointAt("Bright");
    EXPECT_FALSE(editor.shown);
    WaitForPreview();

    ASSERT_TRUE(editor.shown);
    EXPECT_DOUBLE_EQ(editor.shown->EffectsConst().at(0)->GetParameter("stops"), 1);
    EXPECT_FALSE(IsApplied("Bright"));
    EXPECT_TRUE(editor.GetHostWorkspace().GetDrawer().GetOpenPackages().empty());

    Leave(0);
    EXPECT_FALSE(editor.shown);
}

TEST_F(PreviewTest, theLookIsShownAtItsCurrentIntensity)
{
    Click("Bright");
    Drag("intensitySlider", {20});
    Click("Grey");
    PointAt("Bright");
    WaitForPreview();

    const auto applied = Model().GetPreset(Named("Bright"))->MakeSettings();
    EXPECT_EQ(editor.shown->GetBlendAmount(), applied.GetBlendAmount());
    EXPECT_GT(editor.shown->GetBlendAmount(), 200);
}

TEST_F(PreviewTest, aClickEndsThePreview)
{
    PointAt("Bright");
    WaitForPreview();
    Click("Bright");

    EXPECT_FALSE(editor.shown);
    EXPECT_TRUE(IsApplied("Bright"));
}

TEST_F(PreviewTest, leavingBeforeTheMomentIsOverShowsNothing)
{
    PointAt("Bright");
    Leave(0);
    PointAt("Grey");
    WaitForPreview();

    EXPECT_EQ(editor.shownCount, 1);
    EXPECT_EQ(editor.shown->EffectsConst().at(0)->GetEffectID(), "saturation");
}
