// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/drawer/DrawerFixture.h"

#include "drawer/view/ViewWorker.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <memory>
#include <vector>

namespace LumetraHost {
namespace {

/// Drags an exposure, one tick after the other, and keeps every frame.
class DraggedExposure : public DrawerFixture
{
protected:
    void Drag(const LiveViewOptions& options, int ticks)
    {
        ViewWorker* view = nullptr;
        ViewWorker worker(options, [this, &view] {
            if (const auto result = view->TakeResult())
                m_frames.push_back(result->frame);
        });
        view = &worker;
        for (int tick = 1; tick <= ticks; ++tick) {
            Apply(MakeTick(tick));
            ViewJob job;
            job.serial = static_cast<quint64>(tick);
            job.recipe = m_drawer.GetRecipe();
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

    std::vector<ViewFrame> m_frames;
};

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
    LiveViewOptions options;
    options.previewBeyond = std::chrono::hours(1);
    options.largestTableShare = std::numeric_limits<double>::infinity();
    options.leastTablePixels = 0;
    Drag(options, 5);

    // The first three tell what an exact tick takes.
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

TEST_F(DraggedExposure, isExactInSmallPictures)
{
    LiveViewOptions options;
    options.previewBeyond = std::chrono::hours(1);
    options.largestTableShare = std::numeric_limits<double>::infinity();
    Drag(options, 5);
    ASSERT_EQ(m_frames.size(), 5u);
    for (const ViewFrame& frame : m_frames)
        EXPECT_FALSE(frame.isReduced);
}

} // namespace
} // namespace LumetraHost
