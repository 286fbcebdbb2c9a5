// SPDX-License-Identifier: GPL-2.0-or-later
#include "PointerDrag.h"

#include <algorithm>
#include <cstdlib>
#include <thread>

namespace LumetraBenchmark {
namespace {

using namespace std::chrono_literals;

/// Between two looks at the screen: half of it is what a time is too long on average.
constexpr auto LookInterval = 500us;
constexpr auto StillTime = 120ms;
/// Events at the begin of a drag in which the editor finds out which way is quicker.
constexpr int FirstEvents = 60;
/// A difference of all values together that is no more than rounding.
constexpr int Rounding = 400;

double ToMilliseconds(PointerDrag::Clock::duration time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

int GetDistance(const std::vector<std::uint8_t>& first, const std::vector<std::uint8_t>& second)
{
    int distance = 0;
    for (std::size_t i = 0; i < first.size(); ++i)
        distance += std::abs(first[i] - second[i]);
    return distance;
}

} // namespace

/// Back and forth between the ends.
int PointerDrag::GetPlaceOfEvent(int event) const
{
    const int last = m_target.places - 1;
    const int step = event % (2 * last);
    return step <= last ? step : 2 * last - step;
}

PointerDrag::Pixels PointerDrag::WaitUntilStill()
{
    Pixels pixels = Read();
    auto changed = Clock::now();
    while (Clock::now() - changed < StillTime) {
        std::this_thread::sleep_for(5ms);
        Pixels now = Read();
        if (now != pixels)
            changed = Clock::now();
        pixels = std::move(now);
    }
    return pixels;
}

void PointerDrag::Learn()
{
    for (int place = 0; place < m_target.places; ++place) {
        m_pointer.Move(GetPlace(place));
        m_learnt.push_back(WaitUntilStill());
    }
    m_pointer.Move(GetPlace(0));
    WaitUntilStill();
}

int PointerDrag::FindPlace(const Pixels& pixels) const
{
    const auto nearest =
        std::min_element(m_learnt.begin(), m_learnt.end(), [&](const auto& a, const auto& b) {
            return GetDistance(pixels, a) < GetDistance(pixels, b);
        });
    return static_cast<int>(nearest - m_learnt.begin());
}

/// The latest event of the shown place that has been sent, and all before it, have been followed.
void PointerDrag::Follow(const Pixels& pixels, Clock::time_point now)
{
    const int place = FindPlace(pixels);
    std::size_t end = m_events.size();
    while (end > m_followed && m_events[end - 1].place != place)
        --end;
    for (; m_followed < end; ++m_followed)
        if (m_followed >= FirstEvents)
            m_times.push_back(ToMilliseconds(now - m_events[m_followed].sent));
}

PointerDrag::Result PointerDrag::Run()
{
    Result result;
    m_pointer.Move(GetPlace(0));
    m_pointer.Press();
    Learn();
    for (std::size_t i = 1; i < m_learnt.size(); ++i)
        result.notTold += GetDistance(m_learnt[i], m_learnt[i - 1]) <= Rounding;
    const auto begin = Clock::now();
    Pixels shown = Read();
    auto changed = begin;
    const int events = FirstEvents + m_target.events;
    while (m_followed < static_cast<std::size_t>(events) &&
           Clock::now() < begin + events * m_target.interval + 2s) {
        const int next = static_cast<int>(m_events.size());
        if (next < events && Clock::now() >= begin + next * m_target.interval) {
            const int place = GetPlaceOfEvent(next + 1);
            m_events.push_back({place, Clock::now()});
            m_pointer.Move(GetPlace(place));
        }
        Pixels now = Read();
        if (now != shown) {
            const auto time = Clock::now();
            if (m_followed >= FirstEvents)
                result.longestPause = std::max(result.longestPause, ToMilliseconds(time - changed));
            changed = time;
            ++result.changes;
            shown = std::move(now);
            Follow(shown, time);
        }
        std::this_thread::sleep_for(LookInterval);
    }
    m_pointer.Release();
    std::sort(m_times.begin(), m_times.end());
    result.times = std::move(m_times);
    return result;
}

double GetQuantile(const std::vector<double>& times, double share)
{
    return times.empty()
               ? 0
               : times[static_cast<std::size_t>(share * static_cast<double>(times.size() - 1))];
}

} // namespace LumetraBenchmark
