// SPDX-License-Identifier: GPL-2.0-or-later
// Names in lists look different where they cannot be used.
#include "Contrast.h"
#include "StyledApplication.h"

#include <QListView>
#include <QListWidget>
#include <QStringListModel>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace LumetraTest {
namespace {

using LumetraHost::ColoursOf;
using LumetraHost::PaletteKind;

constexpr double LeastContrastOfText = 4.5;
constexpr double LeastContrastOfDisabledText = 1.9;
// Pixels of thin strokes are mixed with the background, so that they never reach more.
constexpr double Tolerance = 0.05;

class ItemViewLook : public testing::TestWithParam<PaletteKind>
{
protected:
    void Show(QAbstractItemView& view)
    {
        view.setModel(&m_names);
        view.resize(200, 120);
        view.show();
        (void)QTest::qWaitForWindowExposed(&view);
        QApplication::setActiveWindow(&view);
    }

    double NameContrast(QAbstractItemView& view, int row)
    {
        const QRect place = view.visualRect(view.model()->index(row, 0)).adjusted(1, 1, -1, -1);
        return DrawnContrast(view.viewport()->grab().toImage(), place);
    }

    void ExpectDisabled(QAbstractItemView& view, int row, const QColor& background)
    {
        const double most = Contrast(ColoursOf(GetParam()).disabledText, background);
        EXPECT_LE(NameContrast(view, row), most + Tolerance);
        EXPECT_GE(NameContrast(view, row), LeastContrastOfDisabledText);
    }

    void ExpectMutedWhenDisabled(QAbstractItemView& view, const QColor& background)
    {
        Show(view);
        view.setCurrentIndex(m_names.index(1, 0));
        for (const int row : {0, 1}) {
            EXPECT_GE(NameContrast(view, row), LeastContrastOfText) << row;
            view.setFocus();
            EXPECT_GE(NameContrast(view, row), LeastContrastOfText) << row << " with the focus";
        }

        view.setEnabled(false);

        ExpectDisabled(view, 0, background);
        ExpectDisabled(view, 1, ColoursOf(GetParam()).header);
    }

    StyledApplication m_styled{GetParam()};
    QStringListModel m_names{{QStringLiteral("Warm Window"), QStringLiteral("Matte Editorial")}};
};

TEST_P(ItemViewLook, disabledListMutesItsNames)
{
    QListView list;
    ExpectMutedWhenDisabled(list, ColoursOf(GetParam()).panel);
}

TEST_P(ItemViewLook, itemsOfAListStandApartFromItsEdgeAndFromEachOther)
{
    QListWidget list;
    list.addItem(QStringLiteral("Warm Window"));
    list.resize(200, 120);
    list.show();
    (void)QTest::qWaitForWindowExposed(&list);
    constexpr int Above = 4, Beside = 8;

    const QImage drawn = list.viewport()->grab().toImage();

    EXPECT_GE(list.sizeHintForRow(0), list.fontMetrics().height() + 2 * Above);
    const QColor field = ColoursOf(GetParam()).field;
    for (int x = 0; x < Beside; ++x)
        for (int y = 0; y < list.sizeHintForRow(0); ++y)
            EXPECT_EQ(drawn.pixelColor(x, y), field) << x << ", " << y;
}

TEST_P(ItemViewLook, disabledListWidgetMutesItsNames)
{
    QListWidget list;
    list.addItems(m_names.stringList());
    list.resize(200, 120);
    list.show();
    (void)QTest::qWaitForWindowExposed(&list);
    list.setCurrentRow(1);
    list.setEnabled(false);

    ExpectDisabled(list, 0, ColoursOf(GetParam()).field);
    ExpectDisabled(list, 1, ColoursOf(GetParam()).header);
}

TEST_P(ItemViewLook, disabledTreeMutesItsNames)
{
    QTreeView tree;
    tree.setHeaderHidden(true);
    tree.setRootIsDecorated(false);
    ExpectMutedWhenDisabled(tree, ColoursOf(GetParam()).field);
}

TEST_P(ItemViewLook, treeShowsBoxesThatAreNotTicked)
{
    QTreeWidget tree;
    auto* const item = new QTreeWidgetItem(&tree);
    item->setCheckState(0, Qt::Unchecked);
    tree.show();
    (void)QTest::qWaitForWindowExposed(&tree);

    const QImage drawn = tree.viewport()->grab(tree.visualItemRect(item)).toImage();
    const QRgb border = ColoursOf(GetParam()).fieldBorder.rgb();
    int count = 0;
    for (int y = 0; y < drawn.height(); ++y)
        for (int x = 0; x < drawn.width(); ++x)
            count += drawn.pixel(x, y) == border ? 1 : 0;
    EXPECT_GE(count, 4 * 10) << "the sides of a box";
}

INSTANTIATE_TEST_SUITE_P(Palettes, ItemViewLook,
                         testing::Values(PaletteKind::Light, PaletteKind::Dark),
                         [](const auto& kind) {
                             return kind.param == PaletteKind::Light ? "light" : "dark";
                         });

} // namespace
} // namespace LumetraTest
