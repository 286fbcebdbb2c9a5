// SPDX-License-Identifier: GPL-2.0-or-later
#include "canvas/ViewTransform.h"

#include <gtest/gtest.h>

using LumetraEditor::ViewTransform;

namespace {

constexpr int Margin = ViewTransform::Margin;

ViewTransform MakeView(const QSize& photo, const QSize& view, double devicePixelRatio = 1)
{
    ViewTransform transform;
    transform.SetViewSize(view, devicePixelRatio);
    transform.SetPhotoSize(photo);
    return transform;
}

void ExpectNear(const QPointF& actual, const QPointF& expected)
{
    EXPECT_NEAR(actual.x(), expected.x(), 1e-6);
    EXPECT_NEAR(actual.y(), expected.y(), 1e-6);
}

QRectF PhotoRect(const ViewTransform& view)
{
    return view.ToView(QRectF(QPointF(), QSizeF(view.GetPhotoSize())));
}

} // namespace

TEST(ViewTransform, fitsALargePhotoBetweenTheMargins)
{
    const auto view = MakeView({2000, 1000}, {500 + 2 * Margin, 400 + 2 * Margin});

    EXPECT_TRUE(view.IsFitted());
    EXPECT_DOUBLE_EQ(view.GetZoom(), 0.25);
    EXPECT_EQ(PhotoRect(view), QRectF(Margin, Margin + 75, 500, 250));
    EXPECT_EQ(view.GetVisiblePart(), QRect(0, 0, 2000, 1000));
    EXPECT_EQ(view.GetScreenSize(view.GetVisiblePart()), QSize(500, 250));
}

TEST(ViewTransform, doesNotEnlargeASmallPhoto)
{
    const auto view = MakeView({1, 1}, {500, 400});

    EXPECT_DOUBLE_EQ(view.GetZoom(), 1);
    EXPECT_EQ(PhotoRect(view), QRectF(249.5, 199.5, 1, 1));
}

TEST(ViewTransform, countsZoomInDevicePixels)
{
    auto view = MakeView({2000, 2000}, {500, 500}, 2);

    view.SetZoom(1, view.GetViewCentre());

    // 500 view units are 1000 device pixels, each of which shows one photo pixel.
    EXPECT_EQ(view.GetVisiblePart(), QRect(500, 500, 1000, 1000));
    EXPECT_EQ(view.GetScreenSize(view.GetVisiblePart()), QSize(1000, 1000));
}

TEST(ViewTransform, keepsThePointUnderThePointer)
{
    auto view = MakeView({4000, 3000}, {800, 600});
    const QPointF pointer(250, 333);
    const QPointF before = view.ToPhoto(pointer);

    view.SetZoom(0.5, pointer);
    ExpectNear(view.ToPhoto(pointer), before);
    view.SetZoom(3, pointer);

    ExpectNear(view.ToPhoto(pointer), before);
    EXPECT_FALSE(view.IsFitted());
}

TEST(ViewTransform, fitsWhenZoomedOutBelowFitting)
{
    auto view = MakeView({4000, 3000}, {800, 600});
    view.SetZoom(1, {10, 10});

    view.SetZoom(0.01, {10, 10});

    EXPECT_TRUE(view.IsFitted());
    EXPECT_DOUBLE_EQ(view.GetZoom(), view.GetFittingZoom());
}

TEST(ViewTransform, zoomsNoFurtherThanTheMaximum)
{
    auto view = MakeView({4000, 3000}, {800, 600});

    view.SetZoom(1000, {10, 10});

    EXPECT_DOUBLE_EQ(view.GetZoom(), ViewTransform::MaximumZoom);
}

TEST(ViewTransform, pansUntilTheEdgeAndNoFurther)
{
    auto view = MakeView({1000, 1000}, {400, 300});
    view.SetZoom(1, {200, 150});

    view.Pan({10000, -10000});

    EXPECT_EQ(view.GetVisiblePart(), QRect(0, 700, 400, 300));
}

TEST(ViewTransform, doesNotPanAFittedPhoto)
{
    auto view = MakeView({1000, 1000}, {400, 300});
    const QRectF before = PhotoRect(view);

    view.Pan({50, 50});

    EXPECT_EQ(PhotoRect(view), before);
}

TEST(ViewTransform, staysFittedWhenTheViewGrows)
{
    auto view = MakeView({1000, 1000}, {432, 432});

    view.SetViewSize({532, 532}, 1);

    EXPECT_TRUE(view.IsFitted());
    EXPECT_DOUBLE_EQ(view.GetZoom(), 0.5);
}

TEST(ViewTransform, keepsTheCentreWhenTheViewGrows)
{
    auto view = MakeView({1000, 1000}, {400, 400});
    view.SetZoom(2, {0, 0});
    view.Pan({-500, -500});
    const QPointF centre = view.ToPhoto(view.GetViewCentre());

    view.SetViewSize({600, 500}, 1);

    ExpectNear(view.ToPhoto(view.GetViewCentre()), centre);
}

TEST(ViewTransform, showsNothingWithoutAPhoto)
{
    const auto view = MakeView({}, {400, 400});

    EXPECT_FALSE(view.HasPhoto());
    EXPECT_TRUE(view.GetVisiblePart().isEmpty());
}

TEST(ViewTransform, mapsBackAndForth)
{
    auto view = MakeView({1234, 777}, {501, 403}, 1.5);
    view.SetZoom(1.7, {13, 17});

    ExpectNear(view.ToView(view.ToPhoto({77, 99})), {77, 99});
}
