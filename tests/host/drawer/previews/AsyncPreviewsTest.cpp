// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/drawer/DrawerFixture.h"

#include "drawer/previews/AsyncPreviews.h"
#include "drawer/previews/PreviewCache.h"
#include "drawer/previews/PreviewWorker.h"
#include "drawer/stack/SameEffects.h"
#include "image/FrameConversion.h"

#include "Zorvik/Exception.h"

#include <QEventLoop>
#include <QStringList>

#include <condition_variable>
#include <cstring>
#include <memory>
#include <mutex>

namespace LumetraHost {
namespace {

using Zorvik::Proc::Frame;
using Zorvik::Proc::FrameTarget;
using Zorvik::Quindle::EffectsSettings;

FrameTarget MakeTarget(int width, int height)
{
    FrameTarget target;
    target.width = width;
    target.height = height;
    return target;
}

EffectsSettings MakeExposure(double stops, int blendAmount = 1)
{
    return MakeSettings({MakeEffect("exposure", {{"stops", stops}})}, blendAmount);
}

bool HaveSameBytes(const Frame& first, const Frame& second)
{
    return first.width == second.width && first.height == second.height &&
           first.stride == second.stride &&
           std::memcmp(first.pixels.get(), second.pixels.get(),
                       first.stride * std::size_t(first.height)) == 0;
}

class Previews : public DrawerFixture
{
protected:
    Previews() { Make(AsyncPreviews::DefaultCapacity); }

    void Make(std::size_t capacity)
    {
        m_previews = std::make_unique<AsyncPreviews>(m_drawer, nullptr, capacity);
        QObject::connect(m_previews.get(), &AsyncPreviews::previewReady, m_previews.get(),
                         [this](const QString& key) { m_ready.append(key); });
    }

    Frame Request(const char* key, const EffectsSettings& effects, int size = 30)
    {
        return m_previews->Request(QString::fromLatin1(key), MakeTarget(size, size), effects);
    }

    Frame RequestAndWait(const char* key, const EffectsSettings& effects, int size = 30)
    {
        EXPECT_TRUE(Request(key, effects, size).IsNull());
        m_previews->WaitForAll();
        return Request(key, effects, size);
    }

    std::unique_ptr<AsyncPreviews> m_previews;
    QStringList m_ready;
};

TEST_F(Previews, areThoseOfTheDrawer)
{
    const Frame frame = RequestAndWait("a", MakeExposure(1, 90));
    ASSERT_FALSE(frame.IsNull());
    EXPECT_TRUE(HaveSameBytes(
        frame, m_drawer.RenderPreview(MakeTarget(30, 30), MakeExposure(1, 90), 1, 0, 0)));
    EXPECT_EQ(m_ready, QStringList(QStringLiteral("a")));
}

TEST_F(Previews, areAnnouncedFromTheEventLoop)
{
    Request("a", MakeExposure(1));
    QEventLoop loop;
    QObject::connect(m_previews.get(), &AsyncPreviews::previewReady, &loop, &QEventLoop::quit);
    loop.exec();
    EXPECT_FALSE(Request("a", MakeExposure(1)).IsNull());
}

TEST_F(Previews, areKeptUntilAnotherOneIsAskedForUnderTheKey)
{
    const Frame frame = RequestAndWait("a", MakeExposure(1));
    EXPECT_EQ(Request("a", MakeExposure(1)).pixels, frame.pixels);
    EXPECT_FALSE(HaveSameBytes(RequestAndWait("a", MakeExposure(-1)), frame));
    EXPECT_TRUE(HaveSameBytes(RequestAndWait("a", MakeExposure(1)), frame));
    EXPECT_EQ(RequestAndWait("a", MakeExposure(1), 20).width, 20);
    EXPECT_FALSE(RequestAndWait("a", MakeExposure(1, 50), 20).IsNull());
}

TEST_F(Previews, areDroppedWithTheCommittedPhoto)
{
    const Frame before = RequestAndWait("a", MakeExposure(0.5));
    Apply(MakePackage("panel", 0, 1));
    EXPECT_FALSE(Request("a", MakeExposure(0.5)).IsNull());
    Commit();
    const Frame after = RequestAndWait("a", MakeExposure(0.5));
    EXPECT_FALSE(HaveSameBytes(after, before));
    EXPECT_TRUE(HaveSameBytes(
        after, m_drawer.RenderPreview(MakeTarget(30, 30), MakeExposure(0.5), 1, 0, 0)));
}

TEST_F(Previews, ofNoPhotoAreNull)
{
    m_drawer.SetPhoto(Image());
    EXPECT_TRUE(RequestAndWait("a", MakeExposure(1)).IsNull());
    EXPECT_TRUE(m_ready.isEmpty());
}

TEST_F(Previews, refuseTargetsWithoutPixels)
{
    EXPECT_THROW(Request("a", MakeExposure(1), 0), Zorvik::Exception);
}

TEST_F(Previews, thatWereCancelledAreNotAnnounced)
{
    Request("a", MakeExposure(1));
    Request("b", MakeExposure(1));
    m_previews->CancelAll();
    m_previews->WaitForAll();
    EXPECT_TRUE(m_ready.isEmpty());
    EXPECT_FALSE(RequestAndWait("a", MakeExposure(1)).IsNull());
}

TEST_F(Previews, takeNoMoreMemoryThanAllowed)
{
    Make(2 * 32 * 4 * 30); // two frames of 30 x 30 with rows of 128 bytes
    for (const char* const key : {"a", "b", "c"})
        RequestAndWait(key, MakeExposure(1));
    EXPECT_FALSE(Request("b", MakeExposure(1)).IsNull());
    EXPECT_FALSE(Request("c", MakeExposure(1)).IsNull());
    EXPECT_TRUE(Request("a", MakeExposure(1)).IsNull());
}

/// A worker whose first job is held until it is let go.
class HeldWorker : public DrawerFixture
{
protected:
    HeldWorker() { m_committed = std::make_shared<PictureRecipe>(m_drawer.GetCommittedRecipe()); }

    void Add(const char* key)
    {
        m_worker.Add({QString::fromLatin1(key),
                      {MakeTarget(10, 10), std::make_shared<EffectsSettings>(MakeExposure(1)), {}},
                      m_committed});
    }

    void WaitUntilHeld()
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_isHeld; });
    }

    void LetGo()
    {
        const std::lock_guard lock(m_mutex);
        m_isOpen = true;
        m_changed.notify_all();
    }

    QStringList GetFinished()
    {
        m_worker.WaitForAll();
        QStringList keys;
        for (const PreviewResult& result : m_worker.TakeResults())
            keys.append(result.key);
        return keys;
    }

private:
    void Hold()
    {
        std::unique_lock lock(m_mutex);
        m_isHeld = true;
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return m_isOpen; });
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isHeld = false;
    bool m_isOpen = false;
    std::shared_ptr<const PictureRecipe> m_committed;

protected:
    PreviewWorker m_worker{[this] { Hold(); }};
};

TEST_F(HeldWorker, rendersWhatWasAskedForLastFirst)
{
    Add("first");
    WaitUntilHeld();
    for (const char* const key : {"a", "b", "c", "d"})
        Add(key);
    m_worker.MoveToFront(QStringLiteral("b"));
    Add("a");
    LetGo();
    EXPECT_EQ(GetFinished().join(QLatin1Char(' ')), QStringLiteral("first a b d c"));
}

TEST_F(HeldWorker, forgetsWhatIsCancelled)
{
    Add("first");
    WaitUntilHeld();
    Add("a");
    m_worker.CancelAll();
    Add("b");
    LetGo();
    EXPECT_EQ(GetFinished(), QStringList(QStringLiteral("b")));
}

TEST(SameEffects, areThoseThatAreDrawnAlike)
{
    const auto exposure = MakeEffect("exposure", {{"stops", 1}});
    EXPECT_TRUE(AreSameEffects(exposure, exposure->Clone()));
    EXPECT_FALSE(AreSameEffects(exposure, MakeEffect("exposure", {{"stops", 2}})));
    EXPECT_FALSE(AreSameEffects(exposure, MakeEffect("contrast", {})));
    EXPECT_FALSE(AreSameEffects(exposure, nullptr));
    EXPECT_TRUE(DrawTheSame(MakeExposure(1, 3), MakeExposure(1, 3)));
    EXPECT_FALSE(DrawTheSame(MakeExposure(1, 3), MakeExposure(1, 4)));
    EXPECT_FALSE(DrawTheSame(MakeExposure(1), MakeSettings({})));
}

} // namespace
} // namespace LumetraHost
