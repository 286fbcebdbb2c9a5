// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/view/LiveView.h"
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

    /// The histogram on the screen when everything has been rendered.
    QImage Grab()
    {
        GetHistogramView().WaitForFrame();
        return Find<QWidget>("histogram")->grab().toImage();
    }

    /// How much is drawn at the right end, where the lightest values are.
    static int CountHighlights(const QImage& histogram)
    {
        const QRgb background = histogram.pixel(histogram.width() / 2, 4);
        int drawn = 0;
        for (int x = histogram.width() - 14; x < histogram.width() - 8; ++x)
            for (int y = 8; y < histogram.height() - 8; ++y)
                drawn += histogram.pixel(x, y) != background ? 1 : 0;
        return drawn;
    }
};

} // namespace

TEST_F(HistogramTest, staysWhenThePhotoIsZoomedAndMoved)
{
    const QImage before = Grab();

    GetPart<LumetraEditor::PhotoCanvas>().SetZoom(8);
    GetPicture();
    EXPECT_EQ(Grab(), before);
    const QSize size = Find<QWidget>("histogram")->size();
    window->resize(700, 600);
    GetPicture();

    ASSERT_EQ(Find<QWidget>("histogram")->size(), size);
    EXPECT_EQ(Grab(), before);
}

TEST_F(HistogramTest, followsTheEdit)
{
    GetPart<LumetraEditor::PhotoCanvas>().SetZoom(8);
    const QImage before = Grab();

    Find<QSlider>("exposureSlider")->setValue(30);
    EXPECT_GT(CountHighlights(Grab()), CountHighlights(before));
    FindAction("undo")->trigger();

    EXPECT_EQ(Grab(), before);
}

TEST_F(HistogramTest, isRenderedSmallAndBesideTheGuiThread)
{
    Grab();
    const auto& frame = GetHistogramView().GetFrame();
    const auto before = frame.serial;
    Find<QSlider>("exposureSlider")->setValue(10);
    EXPECT_EQ(frame.serial, before) << "it has been rendered on this thread";

    Grab();

    EXPECT_GT(frame.serial, before);
    EXPECT_LE(frame.picture.GetWidth(), 400);
}

TEST_F(HistogramTest, restsWhileItIsOutOfSight)
{
    const QImage before = Grab();
    const auto& frame = GetHistogramView().GetFrame();
    const auto serial = frame.serial;
    FindAction("sidePanel")->trigger();
    Find<QSlider>("exposureSlider")->setValue(30);
    GetHistogramView().WaitForFrame();
    EXPECT_EQ(frame.serial, serial) << "something is rendered";

    FindAction("sidePanel")->trigger();

    EXPECT_GT(CountHighlights(Grab()), CountHighlights(before));
}

TEST_F(HistogramTest, isEmptyWithoutAPhoto)
{
    const QImage ofPhoto = Grab();
    FindAction("closePhoto")->trigger();

    const QImage empty = Grab();
    EXPECT_EQ(CountHighlights(empty), 0);
    EXPECT_NE(empty, ofPhoto);
    Open(WritePhoto("dot.png", 1, 1));
    EXPECT_NE(Grab(), empty);
}
