// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/dehaze/HazeMap.h"

#include "image/Srgb.h"

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <functional>

namespace LumetraHost {
namespace {

constexpr double PatchReach = 0.01; // of the diagonal
constexpr double GuideReach = 0.04;
// A little haze is left: without any, distance is no longer seen.
constexpr double RemovedHaze = 0.95;
constexpr double AirShare = 0.001;
constexpr double AirMargin = 1.0 / 255;
constexpr double DarkestAir = 0.25;
// Variance of the guide below which places count as flat.
constexpr double Flatness = 1e-3;

using Plane = cv::Mat_<double>;
using Air = std::array<double, 3>;

struct Planes
{
    std::array<Plane, 3> colours;
    Plane luma;
};

Planes ReadPlanes(const Image& picture)
{
    Planes planes;
    for (Plane* const plane :
         {&planes.colours[0], &planes.colours[1], &planes.colours[2], &planes.luma})
        plane->create(picture.GetHeight(), picture.GetWidth());
    for (int y = 0; y < picture.GetHeight(); ++y) {
        const std::uint16_t* pixel = picture.Row16(y);
        for (int x = 0; x < picture.GetWidth(); ++x, pixel += Image::Channels) {
            for (std::size_t c = 0; c < 3; ++c)
                planes.colours[c](y, x) = pixel[c] / 65535.0;
            planes.luma(y, x) = LumaRed * planes.colours[0](y, x) +
                                LumaGreen * planes.colours[1](y, x) +
                                LumaBlue * planes.colours[2](y, x);
        }
    }
    return planes;
}

int GetReach(const Planes& planes, double share)
{
    return static_cast<int>(std::lround(share * std::hypot(planes.luma.cols, planes.luma.rows)));
}

cv::Size GetSquare(int reach)
{
    return {2 * reach + 1, 2 * reach + 1};
}

/// Squares end at the borders of the picture.
Plane FindDarkChannel(const Planes& planes, const Air& white)
{
    Plane dark = planes.colours[0] / white[0];
    for (std::size_t c = 1; c < 3; ++c)
        dark = cv::min(dark, Plane(planes.colours[c] / white[c]));
    const cv::Size square = GetSquare(GetReach(planes, PatchReach));
    cv::erode(dark, dark, cv::getStructuringElement(cv::MORPH_RECT, square));
    return dark;
}

/// The least of the largest thousandth, of which there is one at least.
double FindBrightestShare(const Plane& dark)
{
    std::vector<double> values(dark.begin(), dark.end());
    const auto count = static_cast<std::size_t>(AirShare * static_cast<double>(values.size()));
    const auto place = values.begin() + static_cast<std::ptrdiff_t>(count);
    std::nth_element(values.begin(), place, values.end(), std::greater<double>());
    return *place;
}

Air FindAirLight(const Planes& planes)
{
    const Plane dark = FindDarkChannel(planes, {1, 1, 1});
    const Plane weights = cv::max(dark - (FindBrightestShare(dark) - AirMargin), 0.0);
    Air air{};
    for (std::size_t c = 0; c < 3; ++c)
        air[c] = std::max(DarkestAir, weights.dot(planes.colours[c]) / cv::sum(weights)[0]);
    return air;
}

/// Means of the squares of a guided filter, which end at the borders of the picture.
class SquareMean
{
public:
    SquareMean(const cv::Size& picture, int reach)
        : m_square(GetSquare(reach)), m_counts(Sum(Plane::ones(picture)))
    {
    }

    Plane operator()(const Plane& plane) const { return Sum(plane) / m_counts; }

private:
    Plane Sum(const Plane& plane) const
    {
        Plane sum;
        cv::boxFilter(plane, sum, -1, m_square, {-1, -1}, false, cv::BORDER_CONSTANT);
        return sum;
    }

    cv::Size m_square;
    Plane m_counts;
};

std::vector<float> ToFloats(const Plane& plane)
{
    return {plane.begin(), plane.end()};
}

} // namespace

HazeMap::HazeMap() : m_area(PictureArea::Whole(1, 1)), m_slopes{0.0f}, m_offsets{1.0f} {}

HazeMap::HazeMap(const Image& picture, const PictureArea& area)
    : m_width(picture.GetWidth()), m_height(picture.GetHeight()), m_area(area)
{
    const Planes planes = ReadPlanes(picture);
    m_airLight = FindAirLight(planes);
    const Plane hazy = cv::min(FindDarkChannel(planes, m_airLight), 1.0);
    const Plane through = 1.0 - RemovedHaze * hazy;
    const Plane& guide = planes.luma;
    const SquareMean mean(guide.size(), GetReach(planes, GuideReach));
    const Plane meanGuide = mean(guide);
    const Plane meanThrough = mean(through);
    const Plane covariance = mean(guide.mul(through)) - meanGuide.mul(meanThrough);
    const Plane variance = mean(guide.mul(guide)) - meanGuide.mul(meanGuide);
    const Plane slope = covariance / (variance + Flatness);
    m_slopes = ToFloats(mean(slope));
    m_offsets = ToFloats(mean(meanThrough - slope.mul(meanGuide)));
}

} // namespace LumetraHost
