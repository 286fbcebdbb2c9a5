// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/RgbSpace.h"

#include "image/Srgb.h"

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

/// The highest encoded value that a curve is asked for.
constexpr double MostEncoded = 2;

bool IsCurveOfSrgb(const RgbSpace::Curve& curve)
{
    constexpr double tolerance = 8.0 / 65535;
    constexpr int steps = 1024;
    for (int i = 0; i <= steps; ++i) {
        const double encoded = static_cast<double>(i) / steps;
        if (!(std::abs(LinearToSrgb(curve(encoded)) - encoded) <= tolerance))
            return false;
    }
    return true;
}

bool AreSame(const RgbSpace::Curve& first, const RgbSpace::Curve& second)
{
    constexpr int steps = 256;
    for (int i = 0; i <= steps; ++i)
        if (const double encoded = static_cast<double>(i) / steps;
            first(encoded) != second(encoded))
            return false;
    return true;
}

double GetLinear(int node)
{
    const double root = static_cast<double>(node) / RootGrid::PiecesOfUnit;
    return root * root * root * root;
}

/// Finds the encoded values of rising linear values.
class InverseCurve
{
public:
    explicit InverseCurve(const RgbSpace::Curve& curve) : m_curve(curve) {}

    /// `linear` is not less than in the call before.
    double Find(double linear)
    {
        while (m_high < MostEncoded && m_curve(m_high) < linear) {
            m_low = m_high;
            m_high = std::min(m_high + Step, MostEncoded);
        }
        double low = m_low;
        double high = m_high;
        for (int i = 0; i < Halvings; ++i) {
            const double middle = 0.5 * (low + high);
            (m_curve(middle) < linear ? low : high) = middle;
        }
        return 0.5 * (low + high);
    }

private:
    static constexpr double Step = 1.0 / 1024;
    static constexpr int Halvings = 20;

    const RgbSpace::Curve& m_curve;
    double m_low = 0;
    double m_high = Step;
};

/// The table's value; see RootTableKernel.
double LookUp(const std::vector<float>& table, double linear)
{
    const double place = std::sqrt(std::sqrt(linear)) * RootGrid::PiecesOfUnit;
    const auto piece =
        static_cast<std::size_t>(std::clamp(place, 0.0, double{RootGrid::Pieces - 1}));
    const double rise = static_cast<double>(table[piece + 1]) - static_cast<double>(table[piece]);
    return static_cast<double>(table[piece]) + (place - static_cast<double>(piece)) * rise;
}

} // namespace

RgbSpace::RgbSpace(const std::array<Curve, 3>& curves, const Matrix& toSrgb,
                   const QByteArray& profile, const std::string& name)
    : m_toSrgb(toSrgb), m_profile(profile), m_name(name),
      m_hasSrgbCurves(std::all_of(curves.begin(), curves.end(), IsCurveOfSrgb))
{
    for (std::size_t channel = 0; channel < curves.size() && !m_hasSrgbCurves; ++channel) {
        if (channel > 0 && AreSame(curves[channel], curves[channel - 1])) {
            m_decoding[channel] = m_decoding[channel - 1];
            m_encoding[channel] = m_encoding[channel - 1];
        } else {
            AddTables(curves[channel], channel);
        }
    }
}

void RgbSpace::AddTables(const Curve& curve, std::size_t channel)
{
    InverseCurve inverse(curve);
    for (int node = 0; node < RootGrid::Nodes; ++node) {
        const double linear = GetLinear(node);
        m_decoding[channel].push_back(
            static_cast<float>(curve(std::min(LinearToSrgb(linear), MostEncoded))));
        m_encoding[channel].push_back(
            node == 0 ? 0.0f : static_cast<float>(SrgbToLinear(inverse.Find(linear))));
    }
}

bool RgbSpace::KeepsValue(double encoded, double tolerance) const
{
    for (std::size_t channel = 0; channel < 3; ++channel) {
        const double light = LookUp(m_decoding[channel], SrgbToLinear(encoded));
        const double back = LinearToSrgb(LookUp(m_encoding[channel], light));
        if (!(light >= 0) || !(std::abs(back - encoded) <= tolerance))
            return false;
    }
    return true;
}

bool RgbSpace::KeepsValues(int bits) const
{
    if (m_hasSrgbCurves)
        return true;
    const int most = (1 << bits) - 1;
    constexpr int dark = 1024; // values that are all looked at
    constexpr int stride = 61;
    for (int value = 0; value <= most; value += value < dark ? 1 : stride)
        if (!KeepsValue(static_cast<double>(value) / most, 1.0 / most))
            return false;
    return true;
}

} // namespace LumetraHost
