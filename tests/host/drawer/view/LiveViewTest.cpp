// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/drawer/DrawerFixture.h"
#include "host/drawer/GatedEffect.h"
#include "host/drawer/view/DisplaySamples.h"
#include "host/engine/TestSpaces.h"

#include "drawer/view/DisplayTransform.h"
#include "drawer/view/LiveView.h"

#include "image/Resize.h"

#include "Zorvik/Quindle/IQuindleDrawerPainter.h"
#include "Zorvik/Quindle/SettingsPainterEffectsPackage.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <chrono>
#include <memory>
#include <thread>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectsSettings;

constexpr int Whole = Zorvik::Quindle::IQuindleDrawerPainter::MAX_POS;

class LiveViewScenario : public DrawerFixture
{
protected:
    LiveViewScenario() { MakeView(); }
    // The view ends by waiting for what stands at a gate.
    ~LiveViewScenario() override
    {
        for (const EffectGatePtr& gate : m_gates)
            gate->Open();
        m_view.reset();
    }

    void MakeView(const LiveViewOptions& options = {})
    {
        m_view = std::make_unique<LiveView>(m_drawer, nullptr, options);
        QObject::connect(m_view.get(), &LiveView::frameReady, m_view.get(),
                         [this](const ViewFrame& frame) { m_frames.push_back(frame); });
    }

    /// Makes every full frame late.
    void MakeLateView()
    {
        LiveViewOptions options;
        options.previewBeyond = std::chrono::nanoseconds(0);
        MakeView(options);
    }

    void ShowWhole() { m_view->SetView({QRectF(0, 0, 90, 60), QSize(90, 60)}); }

    Image WaitForPicture()
    {
        m_view->WaitForFrame();
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

    /// A gate at which the renderings of what is applied with it can be held.
    EffectGatePtr MakeGate()
    {
        m_gates.push_back(std::make_shared<EffectGate>());
        return m_gates.back();
    }

    void ApplyGated(double stops, const EffectGatePtr& gate)
    {
        Apply(MakePackage("panel", 1, Zorvik::Quindle::EffectList{new GatedEffect(stops, gate)}));
    }

    /// Starts a rendering that is held at the gate which is returned.
    EffectGatePtr HoldARendering(double stops)
    {
        const auto gate = MakeGate();
        gate->Close();
        ApplyGated(stops, gate);
        return gate;
    }

    /// Takes the frames that have been rendered until now.
    std::size_t CountFrames()
    {
        QCoreApplication::sendPostedEvents(m_view.get());
        return m_frames.size();
    }

    std::vector<EffectGatePtr> m_gates;
    std::unique_ptr<LiveView> m_view;
    std::vector<ViewFrame> m_frames;
};

TEST_F(LiveViewScenario, rendersNothingBeforeItKnowsWhatToShow)
{
    const auto gate = MakeGate();
    ApplyGated(1, gate);
    m_view->WaitForFrame();
    EXPECT_TRUE(m_view->GetFrame().picture.IsNull());
    EXPECT_EQ(gate->CountReadings(), 0);
}

TEST_F(LiveViewScenario, showsTheWholePhotoAsTheDrawerHasIt)
{
    Apply(MakePackage("bottom", 0, 0.4));
    Apply(MakePanel(1));
    ShowWhole();
    EXPECT_TRUE(m_frames.empty());

    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), Result()));
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
    EXPECT_TRUE(HaveSamePixels(m_view->GetFrame().picture, m_photo));
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
    m_view->WaitForFrame();
    EXPECT_EQ(m_frames.size(), 1u);
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

TEST_F(LiveViewScenario, tellsTheUntouchedPhotoToo)
{
    Apply(MakePanel(1));
    Commit();
    ShowWhole();
    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), Draw({MakePanel(1)})));
    EXPECT_TRUE(HaveSamePixels(m_view->GetOriginal(), m_photo));
}

TEST_F(LiveViewScenario, aNewerStateCancelsTheRunningRendering)
{
    ShowWhole();
    WaitForPicture();
    m_frames.clear();
    const auto running = HoldARendering(1);
    running->WaitForReading(1);
    const auto between = MakeGate();
    for (const double stops : {2.0, 3.0})
        ApplyGated(stops, between);
    const auto newest = HoldARendering(-1);
    running->Open();
    newest->WaitForReading(1);

    EXPECT_EQ(CountFrames(), 0u) << "it was cancelled";
    newest->Open();
    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), Draw({MakePanel(-1)})));
    EXPECT_EQ(m_frames.size(), 1u);
    EXPECT_EQ(between->CountReadings(), 0) << "they never got their turn";
}

TEST_F(LiveViewScenario, neverCancelsTwiceWithoutAFrameBetween)
{
    ShowWhole();
    WaitForPicture();
    m_frames.clear();
    const auto first = HoldARendering(1);
    first->WaitForReading(1);
    const auto second = HoldARendering(2);
    first->Open();
    second->WaitForReading(1);
    const auto third = HoldARendering(3);
    second->Open();
    third->WaitForReading(1);

    ASSERT_EQ(CountFrames(), 1u) << "the first was cancelled, the second not";
    EXPECT_TRUE(HaveSamePixels(m_frames[0].picture, Draw({MakePanel(2)})));
    third->Open();
    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), Draw({MakePanel(3)})));
}

TEST_F(LiveViewScenario, neverShowsAnotherPhotosFrameAfterANewPhoto)
{
    ShowWhole();
    WaitForPicture();
    m_frames.clear();
    const auto first = HoldARendering(1);
    first->WaitForReading(1);
    const auto second = HoldARendering(2);
    first->Open();
    second->WaitForReading(1);
    const Image other = MakeRandomPicture(50, 40, Image::Depth::Bits8, 3);
    m_drawer.SetPhoto(other);
    const auto ofOther = HoldARendering(1);
    second->Open();
    ofOther->WaitForReading(1);

    EXPECT_EQ(CountFrames(), 0u);
    ofOther->Open();
    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), Renderer().Render(other, MakePanel(1))));
    EXPECT_EQ(m_frames.size(), 1u);
}

TEST_F(LiveViewScenario, showsAReducedFrameFirstWhereTheFullOneWouldBeLate)
{
    MakeLateView();
    const auto gate = HoldARendering(1);
    ShowWhole();
    gate->WaitForReading(1);
    for (int readings = 2; CountFrames() == 0; ++readings) {
        gate->LetOnePass();
        gate->WaitForReading(readings); // the full frame reads the effect again
    }

    ASSERT_EQ(m_frames.size(), 1u);
    EXPECT_TRUE(m_frames[0].isReduced);
    EXPECT_EQ(m_frames[0].picture.GetWidth(), 22);
    gate->Open();
    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), Draw({MakePanel(1)})));
    const ViewFrame& last = m_view->GetFrame();
    EXPECT_FALSE(last.isReduced);
    EXPECT_EQ(last.part, m_frames[0].part);
    EXPECT_EQ(last.serial, m_frames[0].serial);
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
    const auto gate = MakeGate();
    ApplyGated(1, gate);
    ShowWhole();
    WaitForPicture();
    StartBlend();
    UpdateBlend(100);
    m_drawer.GetPainter().FinishPainting(Whole, Whole, false);
    Commit();
    ApplyGated(0.5, gate);
    m_view->SetShownOnTop(
        MakePackage("panel", 1, Zorvik::Quindle::EffectList{new GatedEffect(2, gate)}));
    WaitForPicture();

    EXPECT_GE(gate->CountReadings(), 2);
    EXPECT_EQ(gate->CountOwnReadings(), 0);
}

TEST_F(LiveViewScenario, endsWhileARenderingRuns)
{
    const auto gate = HoldARendering(1);
    ShowWhole();
    gate->WaitForReading(1);
    std::thread opener([&gate] { gate->Open(); });
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

    EXPECT_TRUE(HaveSamePixels(WaitForPicture(), Result()));
    const ViewFrame& frame = m_view->GetFrame();
    EXPECT_TRUE(HaveSamePixels(frame.shown, display->Apply(frame.picture)));
    EXPECT_EQ(frame.ToQImage().constBits(), static_cast<const Image&>(frame.shown).Row(0));

    m_view->SetDisplay(nullptr);
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

        EXPECT_TRUE(HaveSamePixels(picture, Result()));
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
