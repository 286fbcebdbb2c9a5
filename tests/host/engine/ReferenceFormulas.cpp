// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/ReferenceFormulas.h"

#include "image/Srgb.h"

#include <cmath>

namespace LumetraHost {
namespace {

void LimitSlopes(double secant, double& first, double& second)
{
    if (secant == 0) {
        first = second = 0;
        return;
    }
    const double alpha = first / secant, beta = second / secant;
    const double square = alpha * alpha + beta * beta;
    if (square <= 9)
        return;
    first = 3 / std::sqrt(square) * alpha * secant;
    second = 3 / std::sqrt(square) * beta * secant;
}

} // namespace

double Luma(const Colour& c)
{
    return 0.2126 * c[0] + 0.7152 * c[1] + 0.0722 * c[2];
}

Colour Map(const Colour& c, const std::function<double(double)>& function)
{
    return {function(c[0]), function(c[1]), function(c[2])};
}

double SmoothStep(double t)
{
    return 3 * t * t - 2 * t * t * t;
}

ReferenceFormula OnEncoded(const ReferenceFormula& formula)
{
    return [formula](const Colour& c, int x, int y) {
        return Map(formula(Map(c, LinearToSrgb), x, y), SrgbToLinear);
    };
}

Colour Pure(double hue)
{
    const double h = hue / 60;
    const double rising = h - std::floor(h);
    static const Colour corners[] = {{1, 0, 0}, {1, 1, 0}, {0, 1, 0}, {0, 1, 1},
                                     {0, 0, 1}, {1, 0, 1}, {1, 0, 0}};
    const auto sector = static_cast<std::size_t>(h) % 6;
    Colour pure{};
    for (std::size_t i = 0; i < 3; ++i)
        pure[i] = corners[sector][i] + rising * (corners[sector + 1][i] - corners[sector][i]);
    return pure;
}

Colour Tint(double hue, double saturation)
{
    const Colour pure = Pure(hue);
    const double luma = Luma(pure);
    return Map(pure, [=](double v) { return saturation / 200 * (v - luma); });
}

HermiteCurve::HermiteCurve(std::vector<double> xs, std::vector<double> ys, double endSlope)
    : x(std::move(xs)), y(std::move(ys)), slopes(x.size())
{
    const std::size_t n = x.size();
    const auto secant = [this](std::size_t i) { return (y[i + 1] - y[i]) / (x[i + 1] - x[i]); };
    slopes[0] = std::isnan(endSlope) ? secant(0) : endSlope;
    slopes[n - 1] = std::isnan(endSlope) ? secant(n - 2) : endSlope;
    for (std::size_t i = 1; i + 1 < n; ++i)
        slopes[i] = secant(i - 1) * secant(i) > 0 ? 0.5 * (secant(i - 1) + secant(i)) : 0;
    for (std::size_t i = 0; i + 1 < n; ++i)
        LimitSlopes(secant(i), slopes[i], slopes[i + 1]);
}

double HermiteCurve::Evaluate(double at) const
{
    std::size_t i = 0;
    while (i + 2 < x.size() && at > x[i + 1])
        ++i;
    const double h = x[i + 1] - x[i];
    const double t = (at - x[i]) / h;
    return y[i] * (1 + 2 * t) * (1 - t) * (1 - t) + h * slopes[i] * t * (1 - t) * (1 - t) +
           y[i + 1] * t * t * (3 - 2 * t) + h * slopes[i + 1] * t * t * (t - 1);
}

double HermiteCurve::Extend(double at) const
{
    if (at < x.front())
        return y.front() + slopes.front() * (at - x.front());
    if (at > x.back())
        return y.back() + slopes.back() * (at - x.back());
    return Evaluate(at);
}

} // namespace LumetraHost
