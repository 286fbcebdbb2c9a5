// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "ScreenPointer.h"

#include <QPoint>

#include <chrono>
#include <cstdint>
#include <vector>

namespace LumetraBenchmark {

/// Drags a slider with the pointer of an X server and watches some pixels of the screen, on a
/// thread of its own beside the program that is measured.
///
/// The slider is stopped at each of its places first, to learn what the pixels look like there.
/// While it is dragged, the pixels then tell which place the screen shows, and so which of the
/// pointer's events have been followed: an event's time runs from sending it until the screen
/// shows it or a later one.
class PointerDrag
{
public:
    using Clock = std::chrono::steady_clock;

    struct Target
    {
        QPoint first;             ///< of the slider's places, on the screen
        QPoint step;              ///< from one place to the next
        int places;               ///< how many
        QPoint pixels;            ///< the first of the pixels that are watched
        int count;                ///< of them, to the right
        int events;               ///< how many are measured
        Clock::duration interval; ///< between two events
    };

    /// Milliseconds.
    struct Result
    {
        std::vector<double> times; ///< of the events, shortest first
        double longestPause = 0;   ///< between two changes of the screen
        int changes = 0;           ///< of the screen
        int notTold = 0;           ///< places whose pixels are too close to those of the next
    };

    explicit PointerDrag(const Target& target) : m_target(target) {}

    /// Takes some 10 seconds, and the time of the events.
    Result Run();

private:
    using Pixels = std::vector<std::uint8_t>;

    struct Event
    {
        int place;
        Clock::time_point sent;
    };

    Pixels Read() { return m_pointer.ReadPixels(m_target.pixels, m_target.count); }
    QPoint GetPlace(int place) const { return m_target.first + m_target.step * place; }
    int GetPlaceOfEvent(int event) const;
    void Learn();
    Pixels WaitUntilStill();
    int FindPlace(const Pixels& pixels) const;
    void Follow(const Pixels& pixels, Clock::time_point now);

    const Target m_target;
    ScreenPointer m_pointer;
    std::vector<Pixels> m_learnt; ///< by place
    std::vector<Event> m_events;
    std::size_t m_followed = 0; ///< how many of the events the screen has shown
    std::vector<double> m_times;
};

/// The time that this share of the sorted times does not exceed.
double GetQuantile(const std::vector<double>& times, double share);

} // namespace LumetraBenchmark
