// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/widgets/TunePanel.h"

#include "PanelFixture.h"
#include "panel/widgets/SliderRow.h"
#include "workspace/WorkspaceController.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <QWheelEvent>

using LumetraPlugin::PresetModel;
using LumetraPlugin::SliderRow;
using LumetraTest::PanelFixture;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;

namespace {

class TunePanelTest : public PanelFixture
{
protected:
    SliderRow& Row(const char* slider)
    {
        return *qobject_cast<SliderRow*>(Find<QSlider>(slider).parentWidget());
    }
    QSpinBox& Number(const char* slider) { return *Row(slider).findChild<QSpinBox*>(); }
    int Intensity(const char* name) { return Named(name).data(PresetModel::IntensityRole).toInt(); }
    int Slider(const char* name, int position)
    {
        return Named(name)
            .data(PresetModel::SettingsValuesRole)
            .value<SliderSetting::List>()
            .at(position)
            .Value();
    }
    double OpenStops()
    {
        const auto packages = editor.GetHostWorkspace().GetDrawer().GetOpenPackages();
        return packages.at(0).EffectsConst().at(0)->GetParameter("stops");
    }
    void DoubleClick(const char* slider)
    {
        QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(5, 5), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&Find<QSlider>(slider), &event);
    }
};

} // namespace

TEST_F(TunePanelTest, isDisabledWithoutALook)
{
    EXPECT_FALSE(Row("intensitySlider").isEnabled());
    for (const char* const name :
         {"applyButton", "discardButton", "saveAsButton", "resetButton", "favouriteButton"})
        EXPECT_FALSE(Find<QAbstractButton>(name).isEnabled()) << name;
}

TEST_F(TunePanelTest, bindsTheIntensityToTheAppliedRow)
{
    Click("Bright");
    EXPECT_EQ(Find<QSlider>("intensitySlider").value(), 80);
    EXPECT_EQ(Number("intensitySlider").value(), 80);
    EXPECT_EQ(Find<QLabel>("appliedName").text(), QStringLiteral("Bright"));

    Click("Plain");
    EXPECT_FALSE(Row("intensitySlider").isEnabled()); // a preset without intensity
}

TEST_F(TunePanelTest, aTypedIntensityIsDrawnAndOneStep)
{
    Click("Bright");

    Number("intensitySlider").setValue(1);

    EXPECT_EQ(Intensity("Bright"), 1);
    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), photo));
    EXPECT_EQ(Find<QSlider>("intensitySlider").value(), 1);
    EXPECT_EQ(editor.steps.size(), 2);
}

TEST_F(TunePanelTest, extraSlidersRedrawWhileTheyMove)
{
    Click("Bright");
    auto& slider = Find<QSlider>("extraSlider0");
    slider.setSliderDown(true);

    slider.setValue(-50);
    EXPECT_DOUBLE_EQ(OpenStops(), -1);
    EXPECT_EQ(editor.steps.size(), 1);
    slider.setValue(100);
    EXPECT_DOUBLE_EQ(OpenStops(), 2);
    slider.setSliderDown(false);

    EXPECT_EQ(editor.steps.size(), 2);
    EXPECT_EQ(editor.steps.last(), QStringLiteral("Exposure"));
}

TEST_F(TunePanelTest, showsAsManySlidersAsThePresetHas)
{
    Click("Hard");
    EXPECT_TRUE(Row("extraSlider0").isVisibleTo(panel->GetWidget()));
    EXPECT_TRUE(Row("extraSlider1").isVisibleTo(panel->GetWidget()));
    EXPECT_EQ(Find<QSlider>("extraSlider0").value(), 25); // exposure, 0.5 stops
    EXPECT_EQ(Find<QSlider>("extraSlider1").value(), 40);

    Click("Grey");
    EXPECT_FALSE(Row("extraSlider0").isVisibleTo(panel->GetWidget()));
}

TEST_F(TunePanelTest, doubleClickPutsTheIntensityBack)
{
    Click("Bright");
    const auto before = editor.GetResult();
    Drag("intensitySlider", {10});

    DoubleClick("intensitySlider");

    EXPECT_EQ(Intensity("Bright"), 80);
    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), before));
}

TEST_F(TunePanelTest, doubleClickPutsOneSliderBack)
{
    Click("Hard");
    Drag("extraSlider0", {-80});
    Drag("extraSlider1", {-80});

    DoubleClick("extraSlider1");

    EXPECT_EQ(Slider("Hard", 0), -80);
    EXPECT_EQ(Slider("Hard", 1), 40);
    EXPECT_EQ(Find<QSlider>("extraSlider1").value(), 40);
}

TEST_F(TunePanelTest, resetPutsSlidersAndBlendingBackAndDrawsThem)
{
    Click("Bright");
    const auto before = editor.GetResult();
    Drag("intensitySlider", {20});
    Drag("extraSlider0", {-80});

    Find<QAbstractButton>("resetButton").click();

    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), before));
    EXPECT_EQ(Find<QSlider>("intensitySlider").value(), 80);
    EXPECT_EQ(Find<QSlider>("extraSlider0").value(), 50);
    EXPECT_TRUE(IsApplied("Bright"));
}

TEST_F(TunePanelTest, resetOfABlendingAloneIsDrawnToo)
{
    Click("Grey"); // no sliders: the role by itself would draw nothing
    const auto before = editor.GetResult();
    Drag("intensitySlider", {20});

    Find<QAbstractButton>("resetButton").click();

    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), before));
}

TEST_F(TunePanelTest, resetPutsAnIntensityOfEffectsBack)
{
    Click("Warm");
    const auto before = editor.GetResult();
    EXPECT_EQ(Intensity("Warm"), 50);
    Drag("intensitySlider", {60, 100});
    EXPECT_FALSE(HaveSamePixels(editor.GetResult(), before));

    Find<QAbstractButton>("resetButton").click();

    EXPECT_EQ(Intensity("Warm"), 50);
    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), before));
}

TEST_F(TunePanelTest, discardForgetsTheValuesOfAllKinds)
{
    Click("Warm");
    Drag("intensitySlider", {100});
    Find<QAbstractButton>("discardButton").click();
    Click("Bright");
    Drag("extraSlider0", {-80});
    Find<QAbstractButton>("discardButton").click();

    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), photo));
    EXPECT_EQ(Intensity("Warm"), 50);
    EXPECT_EQ(Slider("Bright", 0), 50);
}

TEST_F(TunePanelTest, theWheelMovesNothingWithoutTheFocus)
{
    Click("Bright");
    for (QWidget* const widget : {static_cast<QWidget*>(&Find<QSlider>("intensitySlider")),
                                  static_cast<QWidget*>(&Number("intensitySlider")),
                                  static_cast<QWidget*>(&Find<QSlider>("extraSlider0"))}) {
        widget->clearFocus();
        QWheelEvent event(QPointF(5, 5), widget->mapToGlobal(QPoint(5, 5)), QPoint(),
                          QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget, &event);
    }

    EXPECT_EQ(Intensity("Bright"), 80);
    EXPECT_EQ(Slider("Bright", 0), 50);
}

TEST_F(TunePanelTest, theStarMarksTheAppliedPresetInTheStore)
{
    Click("Bright");
    Find<QAbstractButton>("favouriteButton").click();

    EXPECT_TRUE(Named("Bright").data(PresetModel::FavouriteRole).toBool());
    EXPECT_TRUE(StoreText().contains(QStringLiteral("\"bright\"")));
    Find<QAbstractButton>("favouriteButton").click();
    EXPECT_FALSE(StoreText().contains(QStringLiteral("\"bright\"")));
}

TEST_F(TunePanelTest, everyFocusableWidgetHasAName)
{
    Click("Hard");
    for (QWidget* const widget : panel->GetWidget()->findChildren<QWidget*>()) {
        const bool isReached =
            widget->focusPolicy() != Qt::NoFocus && widget->isVisibleTo(panel->GetWidget());
        EXPECT_FALSE(isReached && widget->accessibleName().isEmpty())
            << widget->metaObject()->className() << ' ' << qPrintable(widget->objectName());
    }
}
