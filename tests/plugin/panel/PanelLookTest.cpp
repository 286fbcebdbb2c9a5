// SPDX-License-Identifier: GPL-2.0-or-later
// The panel shows its states in the editor's style, light and dark.
#include "PanelFixture.h"
#include "host/style/Contrast.h"
#include "host/style/StyledApplication.h"
#include "panel/grid/PresetDelegate.h"
#include "panel/grid/PresetGrid.h"
#include "widgets/CustomToolBoxButton.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

using LumetraHost::ColoursOf;
using LumetraHost::PaletteKind;
using LumetraHost::StyleColours;
using LumetraPlugin::PresetDelegate;
using LumetraTest::Contrast;
using LumetraTest::DrawnContrast;
using LumetraTest::PanelFixture;
using Zorvik::Lumetra::LumetraPresets::CustomToolBoxButton;

namespace {

class PanelLookTest : public PanelFixture, public testing::WithParamInterface<PaletteKind>
{
protected:
    void SetUp() override
    {
        panel->GetWidget()->resize(320, 860);
        panel->GetWidget()->show();
        QApplication::processEvents();
    }

    const StyleColours& Colours() const { return ColoursOf(GetParam()); }

    QRect CellOf(const char* name)
    {
        const QModelIndex preset = Named(name);
        auto& grid = Grid(preset.parent().row());
        return grid.visualRect(grid.GetPresets().FromPreset(preset));
    }

    QImage LookOfGrid() { return Grid(0).viewport()->grab().toImage(); }

    double NameContrast(const char* name)
    {
        const QRect cell = CellOf(name);
        const QRect picture = PresetDelegate::GetPictureRect(cell);
        return DrawnContrast(LookOfGrid(), {picture.left(), picture.bottom() + 4, picture.width(),
                                            cell.bottom() - picture.bottom() - 4});
    }

    QColor BackgroundOf(QWidget& widget)
    {
        return widget.grab().toImage().pixelColor(4, widget.height() / 2);
    }

    const LumetraTest::StyledApplication styled{GetParam()};
};

} // namespace

TEST_P(PanelLookTest, disabledPanelMutesTheNamesOfLooks)
{
    Click("Grey");
    for (const char* name : {"Bright", "Grey"})
        EXPECT_GE(NameContrast(name), 4.5) << name;

    panel->GetWidget()->setEnabled(false);

    const double most = Contrast(Colours().disabledText, Colours().panel);
    for (const char* name : {"Bright", "Grey"}) {
        EXPECT_LE(NameContrast(name), most + 0.05) << name;
        EXPECT_GE(NameContrast(name), 2) << name;
    }
}

TEST_P(PanelLookTest, disabledPanelMutesTheMarksOfLooks)
{
    ClickStar("Grey");
    const QRect star = PresetDelegate::GetStarRect(CellOf("Grey"));
    const auto gold = [this, star] {
        const QImage look = LookOfGrid();
        int count = 0;
        for (int y = star.top(); y <= star.bottom(); ++y)
            for (int x = star.left(); x <= star.right(); ++x)
                count += look.pixelColor(x, y).red() > 240 && look.pixelColor(x, y).blue() < 150;
        return count;
    };
    EXPECT_GT(gold(), 20);

    panel->GetWidget()->setEnabled(false);

    EXPECT_EQ(gold(), 0);
}

TEST_P(PanelLookTest, headersAreAsHighWithTheirNumberAsWithout)
{
    for (auto* const header : panel->GetWidget()->findChildren<CustomToolBoxButton*>())
        EXPECT_EQ(header->height(), header->sizeHint().height()) << qPrintable(header->text());
}

TEST_P(PanelLookTest, buttonsShowThatTheyAreHeldDown)
{
    Click("Bright");
    for (const char* name : {"applyButton", "saveAsButton", "discardButton"}) {
        auto& button = Find<QPushButton>(name);
        const QColor rest = BackgroundOf(button);

        button.setDown(true);

        EXPECT_GE(Contrast(BackgroundOf(button), rest), 1.25) << name;
        EXPECT_GE(DrawnContrast(button.grab(button.rect().adjusted(4, 4, -4, -4)).toImage(),
                                {0, 0, button.width() - 8, button.height() - 8}),
                  4.5)
            << name;
        button.setDown(false);
    }
}

TEST_P(PanelLookTest, bordersOfTheSearchFieldStandOut)
{
    auto& search = Find<QLineEdit>("searchField");
    search.clearFocus();
    const QImage look = search.grab().toImage();

    EXPECT_GE(Contrast(look.pixelColor(look.width() / 2, 0), Colours().panel), 3.0);
}

INSTANTIATE_TEST_SUITE_P(Palettes, PanelLookTest,
                         testing::Values(PaletteKind::Light, PaletteKind::Dark),
                         [](const auto& kind) {
                             return kind.param == PaletteKind::Light ? "light" : "dark";
                         });
