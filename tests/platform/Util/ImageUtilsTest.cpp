// SPDX-License-Identifier: MIT
#include "Zorvik/Util/ImageUtils.h"

#include "Zorvik/Proc/Frame.h"
#include "Zorvik/Util/Utf8.h"

#include <gtest/gtest.h>

using namespace Zorvik::Proc;
using Zorvik::Util::IImageConverter;
using Zorvik::Util::ImageUtils;
using Zorvik::Util::Utf8ToQString;

namespace {

class PassingConverter : public IImageConverter
{
public:
    Frame ToDisplay(const Frame& frame) const override { return frame; }
};

class FailingConverter : public IImageConverter
{
public:
    Frame ToDisplay(const Frame& /*frame*/) const override { return Frame(); }
};

Frame MakeFrame()
{
    Frame frame = Frame::Allocate(3, 2, PixelFormat::Rgba8Premultiplied);
    frame.pixels[0] = 10;
    frame.pixels[1] = 20;
    frame.pixels[2] = 30;
    frame.pixels[3] = 255;
    frame.pixels[frame.stride + 8] = 40;
    frame.pixels[frame.stride + 11] = 255;
    return frame;
}

} // namespace

TEST(ImageUtils, aNullFrameGivesANullImage)
{
    EXPECT_TRUE(ImageUtils::FrameToImage(Frame(), PassingConverter()).isNull());
    EXPECT_TRUE(ImageUtils::FrameToImage(MakeFrame(), FailingConverter()).isNull());
}

TEST(ImageUtils, theImageHasTheFramesPixels)
{
    const QImage image = ImageUtils::FrameToImage(MakeFrame(), PassingConverter());
    EXPECT_EQ(image.format(), QImage::Format_RGBA8888_Premultiplied);
    EXPECT_EQ(image.size(), QSize(3, 2));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(10, 20, 30, 255));
    EXPECT_EQ(image.pixelColor(2, 1), QColor(40, 0, 0, 255));
}

TEST(ImageUtils, theImageSharesTheBufferAndKeepsItAlive)
{
    Frame frame = MakeFrame();
    const std::uint8_t* bytes = frame.pixels.get();
    const std::weak_ptr<std::uint8_t[]> watch = frame.pixels;
    QImage image = ImageUtils::FrameToImage(frame, PassingConverter());
    EXPECT_EQ(image.constBits(), bytes);
    EXPECT_EQ(image.bytesPerLine(), static_cast<int>(frame.stride));

    frame = Frame();
    EXPECT_FALSE(watch.expired());
    QImage copy = image;
    image = QImage();
    EXPECT_EQ(copy.pixelColor(0, 0), QColor(10, 20, 30, 255));
    copy = QImage();
    EXPECT_TRUE(watch.expired()) << "the buffer goes with the last image";
}

TEST(ImageUtils, paintingOnTheImageLeavesTheFrameAlone)
{
    const Frame frame = MakeFrame();
    QImage image = ImageUtils::FrameToImage(frame, PassingConverter());
    image.setPixelColor(0, 0, Qt::white);
    EXPECT_EQ(frame.pixels[0], 10);
    EXPECT_NE(image.constBits(), frame.pixels.get());
}

TEST(Utf8ToQString, convertsEveryByte)
{
    EXPECT_EQ(Utf8ToQString(""), QString());
    EXPECT_EQ(Utf8ToQString("M\xC3\xA4rz"), QStringLiteral("M\u00e4rz"));
    const QString withNul = Utf8ToQString(std::string("a\0b", 3));
    EXPECT_EQ(withNul.size(), 3);
    EXPECT_EQ(withNul, QString::fromLatin1("a\0b", 3));
}

TEST(Utf8ToQString, convertsInvalidBytesAsQtDoes)
{
    EXPECT_EQ(Utf8ToQString("a\xFFz"), QString::fromUtf8("a\xFFz"));
}
