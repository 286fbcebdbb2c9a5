// SPDX-License-Identifier: MIT
#include "Zorvik/Lumetra/IntToIntMapping.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace Zorvik::Lumetra {
namespace {

std::uint64_t Distance(int a, int b)
{
    return static_cast<std::uint64_t>(std::llabs(std::int64_t(a) - std::int64_t(b)));
}

int Map(int value, int fromBegin, int fromEnd, int toBegin, int toEnd)
{
    if (fromBegin == fromEnd)
        return toBegin;
    const int clamped =
        std::clamp(value, std::min(fromBegin, fromEnd), std::max(fromBegin, fromEnd));

    // Both distances are below 2^32, so their product fits.
    const std::uint64_t product = Distance(clamped, fromBegin) * Distance(toEnd, toBegin);
    const std::uint64_t span = Distance(fromEnd, fromBegin);
    const std::int64_t direction = toEnd >= toBegin ? 1 : -1;
    const std::int64_t lower = toBegin + direction * static_cast<std::int64_t>(product / span);
    const std::uint64_t rest = product % span;

    if (2 * rest < span)
        return static_cast<int>(lower);
    const std::int64_t upper = lower + direction;
    if (2 * rest > span)
        return static_cast<int>(upper);
    return static_cast<int>(std::llabs(upper) > std::llabs(lower) ? upper : lower);
}

} // namespace

IntToIntMapping::IntToIntMapping(int firstBegin, int firstEnd, int secondBegin, int secondEnd)
    : m_firstBegin(firstBegin), m_firstEnd(firstEnd), m_secondBegin(secondBegin),
      m_secondEnd(secondEnd)
{
}

int IntToIntMapping::GetForward(int first) const
{
    return Map(first, m_firstBegin, m_firstEnd, m_secondBegin, m_secondEnd);
}

int IntToIntMapping::GetBackward(int second) const
{
    return Map(second, m_secondBegin, m_secondEnd, m_firstBegin, m_firstEnd);
}

} // namespace Zorvik::Lumetra
