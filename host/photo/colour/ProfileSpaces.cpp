// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/colour/ProfileSpaces.h"

#include "photo/colour/ProfileHandles.h"
#include "photo/colour/ProfileParts.h"

#include <algorithm>
#include <cmath>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

namespace LumetraHost {
namespace {

using SpacePtr = std::shared_ptr<const RgbSpace>;

/// A matrix whose determinant is smaller, or that has larger numbers, takes colours where single
/// floats do not bring them back from. Those of known spaces have 1 to 2 and up to 2.
constexpr double SmallestDeterminant = 1e-2;
constexpr double LargestNumber = 16;

double GetDeterminant(const RgbSpace::Matrix& m)
{
    return m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) -
           m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
           m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
}

bool CanBeUndone(const RgbSpace::Matrix& matrix)
{
    for (const auto& row : matrix)
        for (const double number : row)
            if (!(std::abs(number) <= LargestNumber))
                return false;
    return std::abs(GetDeterminant(matrix)) >= SmallestDeterminant;
}

/// Between the entries of a table, and beyond the last one, along a straight line. The colour
/// library rounds what it takes from tables to 16 bits of linear light.
RgbSpace::Curve MakeCurveOfTable(std::vector<double> entries)
{
    return [entries = std::move(entries)](double encoded) {
        const double place = encoded * static_cast<double>(entries.size() - 1);
        const auto piece = static_cast<std::size_t>(
            std::clamp(place, 0.0, static_cast<double>(entries.size() - 2)));
        const double rise = entries[piece + 1] - entries[piece];
        return entries[piece] + (place - static_cast<double>(piece)) * rise;
    };
}

RgbSpace::Curve MakeCurve(const cmsToneCurve* curve)
{
    const cmsUInt32Number count = cmsGetToneCurveEstimatedTableEntries(curve);
    if (cmsGetToneCurveParametricType(curve) == 0 && count >= 2) {
        const cmsUInt16Number* const table = cmsGetToneCurveEstimatedTable(curve);
        std::vector<double> entries(count);
        std::transform(table, table + count, entries.begin(),
                       [](cmsUInt16Number entry) { return entry / 65535.0; });
        return MakeCurveOfTable(std::move(entries));
    }
    const std::shared_ptr<cmsToneCurve> copy(cmsDupToneCurve(curve), cmsFreeToneCurve);
    return [copy](double encoded) {
        return static_cast<double>(cmsEvalToneCurveFloat(copy.get(), static_cast<float>(encoded)));
    };
}

std::optional<std::array<RgbSpace::Curve, 3>> ReadCurves(void* profile)
{
    constexpr cmsTagSignature tags[] = {cmsSigRedTRCTag, cmsSigGreenTRCTag, cmsSigBlueTRCTag};
    std::array<RgbSpace::Curve, 3> curves;
    for (std::size_t channel = 0; channel < curves.size(); ++channel) {
        const auto* const curve =
            static_cast<const cmsToneCurve*>(cmsReadTag(profile, tags[channel]));
        if (!curve)
            return std::nullopt;
        curves[channel] = MakeCurve(curve);
    }
    return curves;
}

SpacePtr MakeSpace(const QByteArray& bytes)
{
    const ProfileHandle profile = OpenProfile(bytes);
    if (!profile || cmsGetColorSpace(profile.get()) != cmsSigRgbData ||
        !ProfileParts::IsMatrixProfile(profile.get()))
        return nullptr;
    const auto matrix = ProfileParts::GetToSrgb(profile.get());
    const auto curves = ReadCurves(profile.get());
    if (!matrix || !curves || !CanBeUndone(*matrix))
        return nullptr;
    return std::make_shared<const RgbSpace>(*curves, *matrix, bytes,
                                            ProfileParts::GetName(profile.get()));
}

/// Keeps the spaces that were asked for last: photos of one camera share theirs, and making one
/// takes milliseconds.
class SpaceCache
{
public:
    SpacePtr Find(const QByteArray& profile)
    {
        const std::lock_guard lock(m_mutex);
        const auto found =
            std::find_if(m_spaces.begin(), m_spaces.end(),
                         [&](const SpacePtr& space) { return space->GetProfile() == profile; });
        if (found != m_spaces.end()) {
            std::rotate(m_spaces.begin(), found, std::next(found));
            return m_spaces.front();
        }
        const SpacePtr space = MakeSpace(profile);
        if (!space)
            return nullptr;
        m_spaces.insert(m_spaces.begin(), space);
        if (m_spaces.size() > Most)
            m_spaces.pop_back();
        return space;
    }

private:
    static constexpr std::size_t Most = 8;

    std::mutex m_mutex;
    std::vector<SpacePtr> m_spaces; ///< the one asked for last first
};

} // namespace

SpacePtr ProfileSpaces::Find(const QByteArray& profile, Image::Depth depth)
{
    static SpaceCache cache;
    const SpacePtr space = cache.Find(profile);
    return space && space->KeepsValues(depth == Image::Depth::Bits16 ? 16 : 8) ? space : nullptr;
}

} // namespace LumetraHost
