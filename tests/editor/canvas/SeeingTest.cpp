// SPDX-License-Identifier: GPL-2.0-or-later
// Ways to look at the photo that change nothing of it, by the pixels that they show.
#include "drawer/view/LiveView.h"
#include "editor/EditorFixture.h"

#include "canvas/ClippingMarks.h"
#include "canvas/PhotoCanvas.h"
#include "photo/Photo.h"
#include "photo/PhotoWriter.h"

#include <QAction>
#include <QLabel>
#include <QSlider>
#include <QTest>

using namespace LumetraTest;
using LumetraEditor::ClippingMarks;
using LumetraEditor::PhotoCanvas;
using LumetraHost::Image;

namespace {

template <class Channel>
void SetPixel(Channel* pixel, Channel red, Channel green, Channel blue, Channel alpha)
{
    pixel[0] = red;
    pixel[1] = green;
    pixel[2] = blue;
    pixel[3] = alpha;
}

class SeeingTest : public EditorTest
{
protected:
    PhotoCanvas& Canvas() { return GetPart<PhotoCanvas>(); }
    const LumetraEditor::ViewTransform& View() { return Canvas().GetView(); }

    QImage Grab()
    {
        GetCanvasView().WaitForFrame();
        return Canvas().grab().toImage();
    }

    /// Opens a photo of three stripes: black, grey, white.
    void OpenStripes()
    {
        LumetraHost::Photo photo;
        photo.image = Image::Allocate(300, 100, Image::Depth::Bits8);
        for (int y = 0; y < 100; ++y)
            for (int x = 0; x < 300; ++x) {
                const auto value = static_cast<std::uint8_t>(x < 100 ? 0 : x < 200 ? 128 : 255);
                SetPixel<std::uint8_t>(photo.image.Row(y) + 4 * x, value, value, value, 255);
            }
        LumetraHost::PhotoWriter::Write(Path("stripes.png"), photo);
        Open(Path("stripes.png"));
    }

    /// The canvas' colour over that point of the photo.
    QColor ColourAt(const QImage& picture, double x, double y)
    {
        return picture.pixelColor(View().ToView(QPointF(x, y)).toPoint());
    }

    QColor GetCorner() { return Grab().pixelColor(2, 2); }
};

} // namespace

TEST(ClippingMarks, marksPixelsOfWhichAChannelIsAtAnEnd)
{
    Image picture = Image::Allocate(6, 1, Image::Depth::Bits8);
    std::uint8_t* const row = picture.Row(0);
    SetPixel<std::uint8_t>(row, 1, 254, 128, 255);
    SetPixel<std::uint8_t>(row + 4, 90, 255, 90, 255);
    SetPixel<std::uint8_t>(row + 8, 90, 0, 90, 255);
    SetPixel<std::uint8_t>(row + 12, 255, 0, 90, 255);
    SetPixel<std::uint8_t>(row + 16, 0, 0, 0, 0);
    SetPixel<std::uint8_t>(row + 20, 0, 0, 0, 1);

    const QImage marks = ClippingMarks::Draw(picture);

    EXPECT_EQ(marks.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(marks.pixelColor(1, 0), ClippingMarks::Highlights);
    EXPECT_EQ(marks.pixelColor(2, 0), ClippingMarks::Shadows);
    EXPECT_EQ(marks.pixelColor(3, 0), ClippingMarks::Highlights);
    EXPECT_EQ(marks.pixelColor(4, 0).alpha(), 0) << "it is not seen";
    EXPECT_EQ(marks.pixelColor(5, 0), ClippingMarks::Shadows);
}

TEST(ClippingMarks, sixteenBitsCountAsTheyAreShown)
{
    Image picture = Image::Allocate(3, 1, Image::Depth::Bits16);
    SetPixel<std::uint16_t>(picture.Row16(0), 256, 65279, 9000, 65535);
    SetPixel<std::uint16_t>(picture.Row16(0) + 4, 255, 9000, 9000, 65535);
    SetPixel<std::uint16_t>(picture.Row16(0) + 8, 9000, 65280, 9000, 65535);

    const QImage marks = ClippingMarks::Draw(picture);

    EXPECT_EQ(marks.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(marks.pixelColor(1, 0), ClippingMarks::Shadows);
    EXPECT_EQ(marks.pixelColor(2, 0), ClippingMarks::Highlights);
}

TEST(ClippingMarks, nothingIsDrawnWhereNothingIsClipped)
{
    Image picture = Image::Allocate(2, 2, Image::Depth::Bits8);
    for (int y = 0; y < 2; ++y)
        for (int i = 0; i < 8; ++i)
            picture.Row(y)[i] = 128;

    EXPECT_TRUE(ClippingMarks::Draw(picture).isNull());
    EXPECT_TRUE(ClippingMarks::Draw(Image()).isNull());
}

TEST_F(SeeingTest, clippingIsMarkedOverThePhotoWhileItIsAskedFor)
{
    OpenStripes();
    const QImage plain = Grab();

    QTest::keyClick(window.get(), Qt::Key_J, Qt::ControlModifier);
    const QImage marked = Grab();

    EXPECT_EQ(ColourAt(marked, 50, 50), ClippingMarks::Shadows);
    EXPECT_EQ(ColourAt(marked, 150, 50), ColourAt(plain, 150, 50));
    EXPECT_EQ(ColourAt(marked, 250, 50), ClippingMarks::Highlights);
    EXPECT_EQ(marked.pixelColor(2, 2), plain.pixelColor(2, 2)) << "beside the photo";
    FindAction("clipping")->trigger();
    EXPECT_EQ(Grab(), plain);
}

TEST_F(SeeingTest, clippingMarksFollowTheEdit)
{
    LoadExamplePanel();
    OpenStripes();
    FindAction("clipping")->trigger();
    ASSERT_NE(ColourAt(Grab(), 150, 50), ClippingMarks::Highlights);

    Find<QSlider>("exposureSlider")->setValue(30);

    EXPECT_EQ(ColourAt(Grab(), 150, 50), ClippingMarks::Highlights);
    Canvas().SetComparing(true);
    EXPECT_NE(ColourAt(Grab(), 150, 50), ClippingMarks::Highlights) << "it is not so there";
}

TEST_F(SeeingTest, exportedPhotosHaveNoMarks)
{
    OpenStripes();
    FindAction("clipping")->trigger();

    EXPECT_EQ(GetPicture().pixelColor(2, 2), QColor(Qt::black));
    EXPECT_EQ(editor->GetUndoStack().count(), 0);
}

TEST_F(SeeingTest, theHistogramsCornersAreLitWhereThePhotoIsClipped)
{
    const auto corners = [this] {
        GetHistogramView().WaitForFrame();
        const QImage picture = Find<QWidget>("histogram")->grab().toImage();
        return std::make_pair(picture.pixelColor(5, 5) == ClippingMarks::Shadows,
                              picture.pixelColor(picture.width() - 6, 5) ==
                                  ClippingMarks::Highlights);
    };
    Open(WritePhoto("lake.png", 300, 200)); // from 20 to 220
    EXPECT_EQ(corners(), std::make_pair(false, false));

    OpenStripes();
    EXPECT_EQ(corners(), std::make_pair(true, true));
    EXPECT_EQ(Find<QWidget>("histogram")->accessibleDescription(),
              QStringLiteral("Shadows are clipped, Highlights are clipped"));
}

TEST_F(SeeingTest, aClickOnTheHistogramsCornerShowsWhere)
{
    OpenStripes();
    auto* const histogram = Find<QWidget>("histogram");

    QTest::mouseClick(histogram, Qt::LeftButton, {}, {histogram->width() / 2, 5});
    EXPECT_FALSE(Canvas().IsClippingShown());
    QTest::mouseClick(histogram, Qt::LeftButton, {}, {histogram->width() - 4, 4});

    EXPECT_TRUE(Canvas().IsClippingShown());
    EXPECT_TRUE(FindAction("clipping")->isChecked());
}

TEST_F(SeeingTest, theGroundIsOneOfTheNeutralColours)
{
    OpenStripes();
    const QColor ofTheme = GetCorner();
    std::vector<int> values;
    for (const char* const name :
         {"backgroundDark", "backgroundMiddle", "backgroundLight", "backgroundWhite"}) {
        FindAction(name)->trigger();
        const QColor ground = GetCorner();
        EXPECT_EQ(ground.hsvSaturation(), 0) << name;
        values.push_back(ground.red());
    }
    EXPECT_TRUE(std::is_sorted(values.begin(), values.end()));
    EXPECT_LT(values.front(), 50);
    EXPECT_NEAR(values[1], 119, 2) << "half way by lightness";
    EXPECT_EQ(values.back(), 255);

    FindAction("backgroundTheme")->trigger();
    EXPECT_EQ(GetCorner(), ofTheme);
}

TEST_F(SeeingTest, theGroundIsRemembered)
{
    FindAction("backgroundMiddle")->trigger();
    ASSERT_TRUE(window->close());
    Restart();
    OpenStripes();

    EXPECT_TRUE(FindAction("backgroundMiddle")->isChecked());
    EXPECT_EQ(GetCorner().red(), 119);
    FindAction("light")->trigger();
    EXPECT_EQ(GetCorner().red(), 119) << "whatever the theme is";
}

TEST_F(SeeingTest, singlePixelsAreSharpAtTwoAndFourHundredPercent)
{
    LumetraHost::Photo photo;
    photo.image = Image::Allocate(2000, 1500, Image::Depth::Bits8);
    for (int y = 0; y < 1500; ++y)
        for (int x = 0; x < 2000; ++x) {
            const auto value = static_cast<std::uint8_t>((x + y) % 2 ? 220 : 30); // a chess board
            SetPixel<std::uint8_t>(photo.image.Row(y) + 4 * x, value, value, value, 255);
        }
    LumetraHost::PhotoWriter::Write(Path("board.png"), photo);
    Open(Path("board.png"));

    for (const int factor : {2, 4}) {
        SCOPED_TRACE(factor);
        QTest::keyClick(window.get(), static_cast<Qt::Key>(Qt::Key_0 + factor),
                        Qt::ControlModifier);
        EXPECT_EQ(Find<QLabel>("zoomText")->text(), QStringLiteral("%1 %").arg(factor * 100));
        const QImage picture = Grab();
        std::map<int, int> runs; // the lengths of runs of one value in a row of the screen
        int length = 0;
        for (int x = 1; x < picture.width(); ++x) {
            const int value = picture.pixelColor(x, 50).red();
            ASSERT_TRUE(value == 30 || value == 220) << value << " at " << x;
            ++length;
            if (value != picture.pixelColor(x - 1, 50).red())
                ++runs[std::exchange(length, 0)];
        }
        EXPECT_GT(runs[factor], 50);
        EXPECT_LE(runs.size(), 2u) << "only the first pixel may be cut";
    }
}

TEST_F(SeeingTest, theKeysTwoAndFourZoomToo)
{
    Open(WritePhoto("large.png", 2000, 1500));
    Find<QWidget>("photoStrip"); // the keys work wherever the focus is

    QTest::keyClick(&Canvas(), Qt::Key_2);
    EXPECT_DOUBLE_EQ(View().GetZoom(), 2);
    QTest::keyClick(&Canvas(), Qt::Key_4);
    EXPECT_DOUBLE_EQ(View().GetZoom(), 4);
}

TEST_F(SeeingTest, zoomGoesByTheUsualSteps)
{
    Open(WritePhoto("large.png", 2000, 1500));
    FindAction("actualSize")->trigger();
    std::vector<double> steps;
    for (int i = 0; i < 5; ++i) {
        FindAction("zoomIn")->trigger();
        steps.push_back(View().GetZoom());
    }
    EXPECT_EQ(steps, (std::vector<double>{1.5, 2, 3, 4, 6}));
    for (int i = 0; i < 20; ++i)
        FindAction("zoomIn")->trigger();
    EXPECT_DOUBLE_EQ(View().GetZoom(), LumetraEditor::ViewTransform::MaximumZoom);

    for (int i = 0; i < 20; ++i)
        FindAction("zoomOut")->trigger();
    EXPECT_TRUE(View().IsFitted());
}

TEST_F(SeeingTest, originalAndEditStandSideBySide)
{
    LoadExamplePanel();
    Open(WritePhoto("large.png", 2000, 1500));
    Find<QSlider>("exposureSlider")->setValue(10);

    QTest::keyClick(window.get(), Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier);
    const QImage picture = Grab();

    const int half = (Canvas().width() - 2) / 2;
    const QPoint middle = View().ToView(QPointF(1000, 750)).toPoint();
    ASSERT_LT(middle.x(), half);
    const QPoint other = middle + QPoint(Canvas().width() - half, 0);
    EXPECT_EQ(picture.pixelColor(middle).red(), 120) << "the file's own value";
    EXPECT_GT(picture.pixelColor(other).red(), 140);
    EXPECT_TRUE(View().IsFitted());
    FindAction("sideBySide")->trigger();
    EXPECT_GT(Grab().pixelColor(Canvas().rect().center()).red(), 140) << "one photo again";
}

TEST_F(SeeingTest, sideBySideAndSplitEndEachOther)
{
    Open(WritePhoto("large.png", 2000, 1500));
    FindAction("split")->trigger();

    FindAction("sideBySide")->trigger();
    EXPECT_FALSE(Canvas().IsSplit());
    EXPECT_FALSE(FindAction("split")->isChecked());
    FindAction("split")->trigger();

    EXPECT_FALSE(Canvas().IsSideBySide());
    EXPECT_FALSE(FindAction("sideBySide")->isChecked());
    EXPECT_TRUE(Canvas().IsSplit());
}

TEST_F(SeeingTest, bothSidesAreZoomedAndMovedTogether)
{
    Open(WritePhoto("large.png", 2000, 1500));
    FindAction("sideBySide")->trigger();
    const QPoint onTheRight(Canvas().width() * 3 / 4, Canvas().height() / 3);
    const QPointF inPlace(onTheRight.x() - (Canvas().width() - (Canvas().width() - 2) / 2),
                          onTheRight.y());
    const QPointF pointed = View().ToPhoto(inPlace);

    QTest::mouseDClick(&Canvas(), Qt::LeftButton, {}, onTheRight);
    EXPECT_DOUBLE_EQ(View().GetZoom(), 1);
    EXPECT_NEAR(View().ToPhoto(inPlace).x(), pointed.x(), 1) << "the point under the pointer stays";

    const QPointF before = View().ToView(QPointF(1000, 750));
    Drag(Canvas(), onTheRight, onTheRight - QPoint(30, 20));
    EXPECT_EQ(View().ToView(QPointF(1000, 750)), before - QPointF(30, 20));
    const QImage picture = Grab();
    const QRect left(40, 100, 60, 60);
    const int shift = Canvas().width() - (Canvas().width() - 2) / 2;
    EXPECT_EQ(picture.copy(left), picture.copy(left.translated(shift, 0)))
        << "without an edit both sides are the same";
}

TEST_F(SeeingTest, thumbnailsOfAPortraitShowItsUpperPart)
{
    LumetraHost::Photo photo;
    photo.image = Image::Allocate(400, 600, Image::Depth::Bits8);
    for (int y = 0; y < 600; ++y)
        for (int x = 0; x < 400; ++x) // red is where the head is
            SetPixel<std::uint8_t>(photo.image.Row(y) + 4 * x, y > 100 && y < 260 ? 200 : 20, 20,
                                   20, 255);
    LumetraHost::PhotoWriter::Write(Path("portrait.png"), photo);
    LoadPresetsPanel();
    Open(Path("portrait.png"));
    const auto thumbnail = [this] {
        return FindLook(QStringLiteral("Soft Light"))
            .second.data(Qt::DecorationRole)
            .value<QPixmap>()
            .toImage();
    };
    WaitUntil([&] { return !thumbnail().isNull(); });

    const QImage picture = thumbnail();
    const int x = picture.width() / 2;
    EXPECT_GT(picture.pixelColor(x, picture.height() / 5).red(), 100);
    EXPECT_GT(picture.pixelColor(x, picture.height() / 2).red(), 100);
    EXPECT_LT(picture.pixelColor(x, picture.height() - 4).red(), 100);
}
