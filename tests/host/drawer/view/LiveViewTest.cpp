// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/drawer/DrawerFixture.h"
#include "host/drawer/RenderGate.h"
#include "host/drawer/view/DisplaySamples.h"
#include "host/engine/TestSpaces.h"

#include "drawer/view/DisplayTransform.h"
#include "drawer/view/LiveView.h"

#include "image/Resize.h"

#include "Zorvik/Quindle/IQuindleDrawerPainter.h"
#include "Zorvik/Quindle/SettingsPainterEffectsPackage.h"

#include <QEventLoop>

#include <memory>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectsSettings;

constexpr int Whole = Zorvik::Quindle::IQuindleDrawerPainter::MAX_POS;

class LiveViewScenario : public DrawerFixture
{
protected:
    LiveViewScenario() { MakeView({}); }
    // Renderings at the gate must not outlive it.
    ~LiveViewScenario() override
    {
        m_gate.Open();
        m_view.reset();
    }

    void MakeView(LiveViewOptions options)
    {
        options.onRendering = m_gate.GetHook();
        m_view = std::make_unique<LiveView>(m_drawer, options);
        QObject::connect(m_view.get(), &LiveView::frameReady, m_view.get(),
                         [this](const ViewFrame& frame) { m_frames.push_back(frame); });
    }

    /// Makes every full frame late.
    void MakeLateView()
    {
        LiveViewOptions options;
        options.reducedBeyond = std::chrono::nanoseconds(0);
        MakeView(options);
    }

    void ShowWhole() { m_view->SetView({QRectF(0, 0, 90, 60), QSize(90, 60)}); }

    Image WaitForPicture()
    {
        m_view->WaitForFrame();
        EXPECT_TRUE(m_view->IsUpToDate());
        return m_view->GetFrame().picture;
    }

    void StartBlend()
    {
        auto package = Zorvik::Quindle::SettingsPainterEffectsPackageBlendSource::Create();
        package->SetPackageName("panel");
        m_drawer.GetPainter().StartPainting(package);
    }

    void UpdateBlend(int amount)
    {
        EffectsSettings update(1);
        update.SetBlendAmount(amount);
        m_drawer.GetPainter().UpdatePainting(update, 0);
    }

    static EffectsSettings MakePanel(double stops) { return MakePackage("panel", 1, stops); }

    RenderGate m_gate;
    std::unique_ptr<LiveView> m_view;
    std::vector<ViewFrame> m_frames;
};

TEST_F(LiveViewScenario, rendersNothingBeforeItKnowsWhatToShow)
{
    Apply(MakePanel(1));
    EXPECT_TRUE(m_view->IsUpToDate());
    m_view->WaitForFrame();
    EXPECT_TRUE(m_view->GetFrame().picture.IsNull());
    EXPECT_TRUE(m_gate.GetSeen().empty());
}

TEST_F(LiveViewScenario, showsTheWholePhotoAsTheDrawerHasIt)
{
    Apply(MakePackage("bottom", 0, 0.4));
    Apply(MakePanel(1));
    ShowWhole();
    EXPECT_FALSE(m_view->IsUpToDate());

    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), m_drawer.Result()));
    EXPECT_EQ(m_view->GetFrame().part, QRect(0, 0, 90, 60));
    EXPECT_FALSE(m_view->GetFrame().isReduced);
    ASSERT_EQ(m_frames.size(), 1u);
}

TEST_F(LiveViewScenario, announcesFramesFromTheEventLoop)
{
    QEventLoop loop;
    QObject::connect(m_view.get(), &LiveView::frameReady, &loop, &QEventLoop::quit);
    ShowWhole();
    EXPECT_TRUE(m_frames.empty());
    loop.exec();
    EXPECT_TRUE(m_view->IsUpToDate());
}

TEST_F(LiveViewScenario, followsEveryChangeOfTheDrawer)
{
    ShowWhole();
    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), m_photo));
    Apply(MakePanel(1));
    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), Draw({MakePanel(1)})));
    StartBlend();
    UpdateBlend(100);
    EXPECT_TRUE(HaveSamePixels(WaitForPicture(),
                               Renderer().Interpolate(m_photo, Draw({MakePanel(1)}), 100)));
    m_drawer.GetPainter().FinishPainting(Whole, Whole, true);
    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), Draw({MakePanel(1)})));
    m_drawer.ResetPackage(1);
    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), m_photo));
    m_drawer.SetPhoto(Image());
    EXPECT_TRUE(WaitForPicture().IsNull());
}

TEST_F(LiveViewScenario, keepsItsPictureWhenThePackagesAreCommitted)
{
    ShowWhole();
    Apply(MakePanel(1));
    const Image before = WaitForPicture();
    Commit();
    EXPECT_TRUE(m_view->IsUpToDate());
    Apply(MakePackage("panel", 2, -0.5));
    EXPECT_TRUE(
        HaveSamePixels(WaitForPicture(), Draw({MakePanel(1), MakePackage("panel", 2, -0.5)})));
    EXPECT_TRUE(HaveSamePixels(before, Draw({MakePanel(1)})));
}

TEST_F(LiveViewScenario, rendersTheVisiblePartAtItsSizeOnTheScreen)
{
    const auto vignette = MakePackage("panel", 0, {MakeEffect("vignette", {{"amount", -3}})});
    Apply(vignette);
    m_view->SetView({QRectF(30, 20, 40, 30), QSize(20, 15)});

    PictureArea area = PictureArea::Whole(90, 60);
    area.originX = 30;
    area.originY = 20;
    area.scaleX = area.scaleY = 2;
    RenderOptions options;
    options.area = area;
    const Image scaled = Resize(m_photo, {30, 20, 40, 30}, 20, 15, ResizeQuality::Fine);
    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), Renderer().Render(scaled, vignette, options)));
    EXPECT_TRUE(HaveSamePixels(m_view->GetOriginal(), scaled));
    EXPECT_EQ(m_view->GetFrame().part, QRect(30, 20, 40, 30));
}

TEST_F(LiveViewScenario, showsPixelsOfThePhotoWhenEnlarged)
{
    m_view->SetView({QRectF(10.25, 20, 10, 5.5), QSize(40, 22)});
    const Image picture = WaitForPicture();
    EXPECT_EQ(m_view->GetFrame().part, QRect(10, 20, 11, 6));
    EXPECT_TRUE(
        HaveSamePixels(picture, Resize(m_photo, {10, 20, 11, 6}, 11, 6, ResizeQuality::Fine)));
}

TEST_F(LiveViewScenario, leavesOutWhatLiesBesideThePhoto)
{
    m_view->SetView({QRectF(-20, 30, 40, 60), QSize(40, 60)});
    WaitForPicture();
    EXPECT_EQ(m_view->GetFrame().part, QRect(0, 30, 20, 30));
    m_view->SetView({QRectF(200, 30, 40, 60), QSize(40, 60)});
    EXPECT_TRUE(WaitForPicture().IsNull());
}

TEST_F(LiveViewScenario, showsAPartWithSpatialEffectsAsTheWholePhotoHasIt)
{
    const Image photo = MakeRandomPicture(400, 300, Image::Depth::Bits8, 23);
    m_drawer.SetPhoto(photo);
    const auto blur = MakePackage("panel", 0, {MakeEffect("gaussianBlur", {{"radius", 1}})});
    Apply(blur);
    m_view->SetView({QRectF(180, 120, 40, 30), QSize(40, 30)});
    const Image picture = WaitForPicture();

    const Image whole = Renderer().Render(photo, blur);
    ASSERT_FALSE(HaveSamePixels(whole, photo));
    const QRect part = m_view->GetFrame().part;
    ASSERT_TRUE(part.contains(QRect(180, 120, 40, 30)));
    EXPECT_LT(part.width(), 400);
    EXPECT_EQ(picture.GetWidth(), part.width());
    for (int y = 120; y < 150; ++y)
        for (int x = 180; x < 220; ++x)
            for (int channel = 0; channel < 3; ++channel)
                ASSERT_NEAR(double(GetChannel(picture, x - part.x(), y - part.y(), channel)),
                            double(GetChannel(whole, x, y, channel)), 1)
                    << x << " " << y;
}

TEST_F(LiveViewScenario, showsSettingsOnTopWithoutApplyingThem)
{
    Apply(MakePackage("bottom", 0, 0.4));
    Apply(MakePanel(1));
    ShowWhole();
    const Image before = WaitForPicture();

    m_view->SetShownOnTop(MakePackage("panel", 7, -1));
    EXPECT_TRUE(HaveSamePixels(WaitForPicture(),
                               Draw({MakePackage("bottom", 0, 0.4), MakePackage("panel", 7, -1)})));
    EXPECT_EQ(m_drawer.GetPackageIndex("panel"), 1u);
    m_view->SetShownOnTop(std::nullopt);
    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), before));
}

TEST_F(LiveViewScenario, showsTheUntouchedPhoto)
{
    Apply(MakePanel(1));
    Commit();
    ShowWhole();
    WaitForPicture();
    m_view->SetShowsOriginal(true);
    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), m_photo));
    m_view->SetShowsOriginal(false);
    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), Draw({MakePanel(1)})));
    EXPECT_TRUE(HaveSamePixels(m_view->GetOriginal(), m_photo));
}

TEST_F(LiveViewScenario, aNewerStateCancelsTheRunningRendering)
{
    m_gate.Close();
    ShowWhole();
    m_gate.WaitForArrival(1);
    EXPECT_FALSE(m_gate.IsWaitingOneCancelled());
    Apply(MakePanel(1));
    EXPECT_TRUE(m_gate.IsWaitingOneCancelled());
    for (const double stops : {2.0, 3.0, -1.0})
        Apply(MakePanel(stops));
    m_gate.Open();

    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), Draw({MakePanel(-1)})));
    ASSERT_EQ(m_frames.size(), 1u);
    // The states between were never rendered.
    ASSERT_EQ(m_gate.GetSeen().size(), 2u);
    EXPECT_EQ(m_gate.GetSeen()[1].serial, 5u);
}

TEST_F(LiveViewScenario, neverCancelsTwiceWithoutAFrameBetween)
{
    m_gate.Close();
    ShowWhole();
    m_gate.WaitForArrival(1);
    Apply(MakePanel(1));
    m_gate.LetOnePass();
    m_gate.WaitForArrival(2);
    Apply(MakePanel(2));
    EXPECT_FALSE(m_gate.IsWaitingOneCancelled());
    m_gate.Open();
    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), Draw({MakePanel(2)})));
}

TEST_F(LiveViewScenario, neverShowsAnotherPhotosFrameAfterANewPhoto)
{
    m_gate.Close();
    ShowWhole();
    m_gate.WaitForArrival(1);
    Apply(MakePanel(1));
    m_gate.LetOnePass();
    m_gate.WaitForArrival(2);
    const Image other = MakeRandomPicture(50, 40, Image::Depth::Bits8, 3);
    m_drawer.SetPhoto(other);
    EXPECT_TRUE(m_gate.IsWaitingOneCancelled());
    m_gate.Open();

    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), other));
    EXPECT_EQ(m_frames.size(), 1u);
}

TEST_F(LiveViewScenario, showsAReducedFrameFirstWhereTheFullOneWouldBeLate)
{
    MakeLateView();
    Apply(MakePanel(1));
    m_gate.Close();
    ShowWhole();
    m_gate.WaitForArrival(1);
    QEventLoop loop;
    QObject::connect(m_view.get(), &LiveView::frameReady, &loop, &QEventLoop::quit);
    m_gate.Open();
    loop.exec();
    ASSERT_FALSE(m_frames.empty());
    m_view->WaitForFrame();

    ASSERT_EQ(m_gate.GetSeen().size(), 2u);
    EXPECT_TRUE(m_gate.GetSeen()[0].isReduced);
    EXPECT_FALSE(m_gate.GetSeen()[1].isReduced);
    const ViewFrame& last = m_view->GetFrame();
    EXPECT_FALSE(last.isReduced);
    EXPECT_TRUE(HaveSamePixels(last.picture, Draw({MakePanel(1)})));
    if (m_frames.size() == 2) {
        EXPECT_EQ(m_frames[0].picture.GetWidth(), 22);
        EXPECT_EQ(m_frames[0].part, last.part);
        EXPECT_EQ(m_frames[0].serial, last.serial);
    }
}

TEST_F(LiveViewScenario, endsWithTheSameFrameWhateverCameBefore)
{
    MakeLateView();
    Apply(MakePackage("bottom", 0, 0.4));
    Apply(MakePanel(1));
    ShowWhole();
    StartBlend();
    for (int amount = 2; amount < 200; amount += 3)
        UpdateBlend(amount);
    m_drawer.GetPainter().FinishPainting(Whole, Whole, false);
    Apply(MakePanel(0.7));

    EXPECT_TRUE(
        HaveSamePixels(WaitForPicture(), Draw({MakePackage("bottom", 0, 0.4), MakePanel(0.7)})));
}

TEST_F(LiveViewScenario, rendersOnItsOwnThreadOnly)
{
    Apply(MakePanel(1));
    ShowWhole();
    WaitForPicture();
    StartBlend();
    UpdateBlend(100);
    m_drawer.GetPainter().FinishPainting(Whole, Whole, false);
    Commit();
    Apply(MakePanel(0.5));
    m_view->SetShownOnTop(MakePanel(2));
    WaitForPicture();

    EXPECT_GE(m_gate.GetSeen().size(), 2u);
    for (const RenderGate::Seen& seen : m_gate.GetSeen())
        EXPECT_NE(seen.thread, std::this_thread::get_id());
    EXPECT_EQ(m_drawer.GetDrawnLayerCount(), 0u);
}

TEST_F(LiveViewScenario, endsWhileARenderingRuns)
{
    m_gate.Close();
    ShowWhole();
    m_gate.WaitForArrival(1);
    std::thread opener([this] { m_gate.Open(); });
    m_view.reset();
    opener.join();
    Apply(MakePanel(1));
    EXPECT_TRUE(m_frames.empty());
}

TEST(ViewFrameImage, sharesThePixels)
{
    const Image picture = MakeRandomPicture(9, 4, Image::Depth::Bits8, 1);
    const QImage straight = ViewFrame::WrapImage(picture, false);
    EXPECT_EQ(straight.constBits(), picture.Row(0));
    EXPECT_EQ(straight.format(), QImage::Format_RGBA8888);
    EXPECT_EQ(unsigned(qRed(straight.pixel(8, 3))), GetChannel(picture, 8, 3, 0));
    EXPECT_EQ(ViewFrame::WrapImage(picture, true).format(), QImage::Format_RGBX8888);
    const Image deep = MakeRandomPicture(9, 4, Image::Depth::Bits16, 1);
    EXPECT_EQ(ViewFrame::WrapImage(deep, false).format(), QImage::Format_RGBA64);
    EXPECT_TRUE(ViewFrame::WrapImage(Image(), true).isNull());
}

TEST(ViewFrameImage, outlivesTheFrame)
{
    QImage wrapped;
    Image copy;
    {
        const Image picture = MakeRandomPicture(9, 4, Image::Depth::Bits8, 1);
        copy = picture.Clone();
        wrapped = ViewFrame::WrapImage(picture, false);
    }
    EXPECT_EQ(unsigned(qGreen(wrapped.pixel(2, 2))), GetChannel(copy, 2, 2, 1));
}

TEST_F(LiveViewScenario, showsFramesInTheDisplaysColours)
{
    const auto display = DisplayTransform::Make(LumetraTest::MakeStrangeMonitor(), "monitor");
    m_view->SetDisplay(display);
    ShowWhole();
    Apply(MakePanel(1));

    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), m_drawer.Result()));
    const ViewFrame& frame = m_view->GetFrame();
    EXPECT_TRUE(HaveSamePixels(frame.shown, display->Apply(frame.picture)));
    EXPECT_EQ(frame.ToQImage().constBits(), static_cast<const Image&>(frame.shown).Row(0));

    m_view->SetDisplay(nullptr);
    EXPECT_FALSE(m_view->IsUpToDate());
    WaitForPicture();
    EXPECT_TRUE(m_view->GetFrame().shown.SharesPixelsWith(m_view->GetFrame().picture));
}

TEST_F(LiveViewScenario, showsPhotosOfOtherSpacesInSrgbWithoutADisplay)
{
    const TestSpace& p3 = GetTestSpaces().front();
    for (const Image::Depth depth : {Image::Depth::Bits8, Image::Depth::Bits16}) {
        const Image photo = InSpace(MakeRandomPicture(90, 60, depth, 3), p3.space);
        m_drawer.SetPhoto(photo);
        Apply(MakePanel(0.5));
        m_view->SetNeedsOriginal(true);
        ShowWhole();

        const Image picture = WaitForPicture();

        EXPECT_TRUE(HaveSamePixels(picture, m_drawer.Result()));
        EXPECT_EQ(picture.GetSpace(), p3.space);
        EXPECT_FALSE(m_view->GetFrame().shown.GetSpace());
        EXPECT_TRUE(HaveSamePixels(m_view->GetFrame().shown, Renderer().ToSrgb(picture)));
        EXPECT_TRUE(HaveSamePixels(m_view->GetShownOriginal(), Renderer().ToSrgb(photo)));
    }
}

TEST_F(LiveViewScenario, showsPhotosOfOtherSpacesInTheDisplaysColours)
{
    const auto display = DisplayTransform::Make(LumetraTest::MakeStrangeMonitor(), "monitor");
    m_drawer.SetPhoto(
        InSpace(MakeRandomPicture(90, 60, Image::Depth::Bits8, 3), GetTestSpaces()[1].space));
    m_view->SetDisplay(display);
    Apply(MakePanel(0.5));
    ShowWhole();

    const Image picture = WaitForPicture();

    EXPECT_TRUE(HaveSamePixels(m_view->GetFrame().shown, display->Apply(picture)));
    EXPECT_FALSE(HaveSamePixels(m_view->GetFrame().shown, picture));
}

TEST_F(LiveViewScenario, showsTheOriginalInTheDisplaysColoursWhenItIsNeeded)
{
    const auto display = DisplayTransform::Make(LumetraTest::MakeStrangeMonitor(), "monitor");
    m_view->SetDisplay(display);
    ShowWhole();
    Apply(MakePanel(1));
    WaitForPicture();
    EXPECT_TRUE(m_view->GetShownOriginal().IsNull());

    m_view->SetNeedsOriginal(true);
    WaitForPicture();
    const Image shown = m_view->GetShownOriginal();
    EXPECT_TRUE(HaveSamePixels(shown, display->Apply(m_photo)));

    Apply(MakePanel(2));
    WaitForPicture();
    EXPECT_TRUE(m_view->GetShownOriginal().SharesPixelsWith(shown)) << "it has not changed";
}

} // namespace
} // namespace LumetraHost
