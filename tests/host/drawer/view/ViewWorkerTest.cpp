// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/drawer/DrawerFixture.h"
#include "host/drawer/GatedEffect.h"
#include "host/engine/TestSpaces.h"
#include "host/engine/TestTables.h"

#include "drawer/view/ViewWorker.h"
#include "image/DepthConversion.h"
#include "photo/colour/ColorConversion.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace LumetraHost {
namespace {

/// Drags an exposure, one tick after the other, and keeps every frame.
class DraggedExposure : public DrawerFixture
{
protected:
    /// Ticks of a photo of 90 x 60 pixels; the first three tell what an exact one takes.
    void Drag(const LiveViewOptions& options, int ticks,
              const std::shared_ptr<const DisplayTransform>& display = nullptr)
    {
        ViewWorker* view = nullptr;
        ViewWorker worker(options, [this, &view] {
            if (const auto result = view->TakeResult())
                m_frames.push_back(result->frame);
        });
        view = &worker;
        for (int tick = 1; tick <= ticks; ++tick) {
            Apply(m_makeTick(tick));
            ViewJob job;
            job.serial = static_cast<quint64>(tick);
            job.recipe = m_drawer.GetRecipe();
            job.display = display;
            job.geometry = ViewGeometry::Make({90, 60}, {QRectF(0, 0, 90, 60), QSize(90, 60)});
            worker.Start(std::move(job));
            worker.WaitFor(static_cast<quint64>(tick));
        }
    }

    static Zorvik::Quindle::EffectsSettings MakeTick(int tick)
    {
        return MakePackage("panel", 0,
                           {MakeEffect("exposure", {{"stops", -0.01 * tick}}),
                            MakeEffect("saturation", {{"amount", -5}})});
    }

    /// A tick on the screen without the rounding between the effects and the screen's colours.
    static Image ShowUnrounded(const Image& photo, int tick,
                               const std::shared_ptr<const DisplayTransform>& display)
    {
        const Image deep = ToDepth(photo, Image::Depth::Bits16);
        const Image drawn = Renderer().Render(deep, MakeTick(tick));
        return display ? display->Apply(drawn)
                       : ToDepth(Renderer().ToSrgb(drawn), Image::Depth::Bits8);
    }

    static Image ToDepth(const Image& picture, Image::Depth depth)
    {
        Image target = Image::AllocateUninitialised(picture.GetWidth(), picture.GetHeight(), depth,
                                                    picture.GetSpace());
        CopyRows(picture, 0, target, 0, picture.GetHeight());
        return target;
    }

    std::function<Zorvik::Quindle::EffectsSettings(int tick)> m_makeTick = MakeTick;
    std::vector<ViewFrame> m_frames;
};

/// An exposure that takes renderers long to read; its gate counts how often they do.
class SlowEffect : public GatedEffect
{
public:
    SlowEffect(double stops, const EffectGatePtr& gate)
        : GatedEffect(stops, gate), m_stops(stops), m_gate(gate)
    {
    }

    Zorvik::Quindle::EffectPtr Clone() const override { return new SlowEffect(m_stops, m_gate); }
    double GetParameter(const std::string& name) const override
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(5);
        while (std::chrono::steady_clock::now() < end) {
        }
        return GatedEffect::GetParameter(name);
    }

private:
    double m_stops;
    EffectGatePtr m_gate;
};

/// Tables for all ticks whose exact time is known.
LiveViewOptions GetTableOptions()
{
    LiveViewOptions options;
    options.previewBeyond = std::chrono::hours(1);
    options.largestTableShare = std::numeric_limits<double>::infinity();
    options.leastTablePixels = 0;
    return options;
}

/// The largest distance of two channels.
int GetDistance(const Image& first, const Image& second)
{
    int distance = 0;
    for (int y = 0; y < first.GetHeight(); ++y)
        for (int i = 0; i < Image::Channels * first.GetWidth(); ++i)
            distance = std::max(distance, std::abs(first.Row(y)[i] - second.Row(y)[i]));
    return distance;
}

TEST_F(DraggedExposure, isFollowedByTheExactFrameWhereverItComesFromTables)
{
    Drag(GetTableOptions(), 5);

    ASSERT_EQ(m_frames.size(), 7u);
    for (const int quick : {3, 5}) {
        const ViewFrame& table = m_frames[static_cast<std::size_t>(quick)];
        const ViewFrame& exact = m_frames[static_cast<std::size_t>(quick) + 1];
        EXPECT_TRUE(table.isReduced);
        EXPECT_FALSE(exact.isReduced);
        EXPECT_EQ(table.serial, exact.serial);
        EXPECT_EQ(table.part, exact.part);
        EXPECT_LE(GetDistance(table.picture, exact.picture), 1);
        EXPECT_TRUE(
            HaveSamePixels(exact.picture, Draw({MakeTick(static_cast<int>(exact.serial))})));
    }
}

TEST_F(DraggedExposure, comesInTheColoursOfTheMonitorFromPhotosInASpaceOfTheirOwn)
{
    const TestSpace& p3 = GetTestSpaces().front();
    const auto monitor = DisplayTransform::Make(ColorConversion::GetAdobeRgbProfile(), "monitor");
    const Image photo = InSpace(MakeRandomPicture(90, 60, Image::Depth::Bits8, 3), p3.space);
    m_drawer.SetPhoto(photo);
    Drag(GetTableOptions(), 5, monitor);

    ASSERT_EQ(m_frames.size(), 7u);
    for (const int quick : {3, 5}) {
        const ViewFrame& table = m_frames[static_cast<std::size_t>(quick)];
        const ViewFrame& exact = m_frames[static_cast<std::size_t>(quick) + 1];
        EXPECT_TRUE(table.isReduced);
        EXPECT_TRUE(table.shown.SharesPixelsWith(table.picture)) << "converted once more";
        EXPECT_FALSE(exact.shown.SharesPixelsWith(exact.picture));
        EXPECT_FALSE(table.shown.GetSpace());
        const Image unrounded = ShowUnrounded(photo, static_cast<int>(exact.serial), monitor);
        EXPECT_LE(GetDistance(table.shown, unrounded), 1);
    }
}

TEST_F(DraggedExposure, isDrawnInSrgbOnAnSrgbScreenAndThenInThePhotosOwnColours)
{
    for (const Image::Depth depth : {Image::Depth::Bits8, Image::Depth::Bits16}) {
        SCOPED_TRACE(depth == Image::Depth::Bits8 ? "8 bits" : "16 bits");
        m_frames.clear();
        const Image photo =
            InSpace(MakeRandomPicture(90, 60, depth, 3), GetTestSpaces().front().space);
        m_drawer.SetPhoto(photo);
        LiveViewOptions options = GetTableOptions();
        options.largestTableShare = 0;
        Drag(options, 4);

        const Image copy = Renderer().ToSrgb(photo);
        ASSERT_EQ(m_frames.size(), 6u);
        for (const int quick : {2, 4}) {
            const ViewFrame& tick = m_frames[static_cast<std::size_t>(quick)];
            const ViewFrame& exact = m_frames[static_cast<std::size_t>(quick) + 1];
            const int number = static_cast<int>(exact.serial);
            EXPECT_TRUE(tick.isReduced);
            EXPECT_TRUE(tick.shown.SharesPixelsWith(tick.picture)) << "converted once more";
            EXPECT_TRUE(HaveSamePixels(tick.picture, Renderer().Render(copy, MakeTick(number))));
            EXPECT_FALSE(exact.isReduced);
            EXPECT_TRUE(HaveSamePixels(exact.picture, Renderer().Render(photo, MakeTick(number))));
        }
    }
}

TEST_F(DraggedExposure, comesFromTablesInSrgbToo)
{
    const Image photo =
        InSpace(MakeRandomPicture(90, 60, Image::Depth::Bits8, 3), GetTestSpaces().front().space);
    m_drawer.SetPhoto(photo);
    Drag(GetTableOptions(), 5);

    const Image copy = Renderer().ToSrgb(photo);
    ASSERT_FALSE(m_frames.empty());
    const ViewFrame& tick = m_frames[m_frames.size() - 2];
    EXPECT_TRUE(tick.isReduced);
    EXPECT_FALSE(tick.shown.GetSpace());
    EXPECT_LE(GetDistance(tick.shown, Renderer().Render(copy, MakeTick(5))), 1);
}

TEST_F(DraggedExposure, isDrawnInSrgbWhereTheEffectsMakeNoTable)
{
    m_drawer.SetPhoto(
        InSpace(MakeRandomPicture(90, 60, Image::Depth::Bits8, 3), GetTestSpaces().front().space));
    m_makeTick = [](int tick) {
        return MakePackage("panel", 0,
                           {MakeEffect("exposure", {{"stops", -0.01 * tick}}),
                            MakeEffect("grain", {{"amount", 20}})});
    };
    Drag(GetTableOptions(), 8);

    ASSERT_GE(m_frames.size(), 2u);
    const ViewFrame& tick = m_frames[m_frames.size() - 2];
    EXPECT_TRUE(tick.isReduced);
    EXPECT_FALSE(tick.picture.GetSpace());
}

TEST_F(DraggedExposure, isReducedInSrgbToo)
{
    m_drawer.SetPhoto(
        InSpace(MakeRandomPicture(90, 60, Image::Depth::Bits8, 3), GetTestSpaces().front().space));
    LiveViewOptions options = GetTableOptions();
    options.largestTableShare = 0;
    options.previewBeyond = std::chrono::nanoseconds(1);
    Drag(options, 6);

    ASSERT_GE(m_frames.size(), 2u);
    const ViewFrame& tick = m_frames[m_frames.size() - 2];
    EXPECT_TRUE(tick.isReduced);
    EXPECT_LT(tick.picture.GetWidth(), 90);
    EXPECT_FALSE(tick.picture.GetSpace());
    EXPECT_TRUE(m_frames.back().picture.GetSpace());
}

TEST_F(DraggedExposure, isExactInSmallPictures)
{
    LiveViewOptions options = GetTableOptions();
    options.leastTablePixels = LiveViewOptions().leastTablePixels;
    Drag(options, 5);
    ASSERT_EQ(m_frames.size(), 5u);
    for (const ViewFrame& frame : m_frames)
        EXPECT_FALSE(frame.isReduced);
}

TEST_F(DraggedExposure, triesATableOnceWhereTheEffectsMakeNone)
{
    // No table of 33 points follows such a cube.
    const LookUpTable random = MakeRandomTable(LookUpTable::Kind::Cube, 65, 1);
    const auto cube = MakeLut3d(nullptr, &random);
    const auto countReadings = [&](std::chrono::microseconds previewBeyond) {
        const auto gate = std::make_shared<EffectGate>();
        m_makeTick = [&](int tick) {
            return MakePackage("panel", 0, {new SlowEffect(-0.01 * tick, gate), cube});
        };
        LiveViewOptions options;
        options.previewBeyond = previewBeyond;
        Drag(options, 6);
        return gate->CountReadings();
    };

    // A table of that picture is expected to take a little more than 1500 microseconds.
    const int withoutTables = countReadings(std::chrono::microseconds(1400));
    const int withTables = countReadings(std::chrono::microseconds(1600));

    EXPECT_EQ(withTables, withoutTables + 1);
}

} // namespace
} // namespace LumetraHost
