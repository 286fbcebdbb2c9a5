// SPDX-License-Identifier: GPL-2.0-or-later
#include "editor/EditorFixture.h"

#include "canvas/PhotoCanvas.h"
#include "histogram/HistogramFeed.h"
#include "histogram/HistogramWidget.h"

#include <QAction>
#include <QSlider>

#include <numeric>

using namespace LumetraTest;
using LumetraEditor::Histogram;

namespace {

class HistogramTest : public EditorTest
{
protected:
    HistogramTest()
    {
        LoadExamplePanel();
        Open(WritePhoto("lake.png", 1600, 1200));
    }

    Histogram::Counts Reds()
    {
        window->GetHistogramFeed().GetLiveView().WaitForFrame();
        return Find<LumetraEditor::HistogramWidget>("histogram")->GetHistogram().channels[0];
    }
    static std::uint32_t Sum(const Histogram::Counts& counts)
    {
        return std::accumulate(counts.begin(), counts.end(), 0U);
    }
};

} // namespace

TEST_F(HistogramTest, staysWhenThePhotoIsZoomedAndMoved)
{
    const auto before = Reds();
    ASSERT_GT(Sum(before), 10000U);

    window->GetCanvas().SetZoom(8);
    GetPicture();
    EXPECT_EQ(Reds(), before);
    window->resize(700, 600);
    GetPicture();

    EXPECT_EQ(Reds(), before);
}

TEST_F(HistogramTest, followsTheEdit)
{
    window->GetCanvas().SetZoom(8);
    const auto before = Reds();

    Find<QSlider>("exposureSlider")->setValue(30);
    const auto lighter = Reds();
    EXPECT_GT(lighter[255], before[255]);
    FindAction("undo")->trigger();

    EXPECT_EQ(Reds(), before);
}

TEST_F(HistogramTest, isRenderedSmallAndBesideTheGuiThread)
{
    Find<QSlider>("exposureSlider")->setValue(10);
    auto& view = window->GetHistogramFeed().GetLiveView();
    EXPECT_FALSE(view.IsUpToDate()) << "it has been rendered on this thread";

    view.WaitForFrame();

    EXPECT_LE(view.GetFrame().picture.GetWidth(), 400);
}

TEST_F(HistogramTest, restsWhileItIsOutOfSight)
{
    const auto before = Reds();
    FindAction("sidePanel")->trigger();
    Find<QSlider>("exposureSlider")->setValue(30);
    EXPECT_TRUE(window->GetHistogramFeed().GetLiveView().IsUpToDate()) << "something is rendered";

    FindAction("sidePanel")->trigger();

    EXPECT_GT(Reds()[255], before[255]);
}

TEST_F(HistogramTest, isEmptyWithoutAPhoto)
{
    Reds();
    FindAction("closePhoto")->trigger();

    EXPECT_EQ(Sum(Reds()), 0U);
    Open(WritePhoto("dot.png", 1, 1));
    EXPECT_EQ(Sum(Reds()), 1U);
}
