// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPoint>

#include <cstdint>
#include <vector>

struct xcb_connection_t;

namespace LumetraBenchmark {

/// The pointer and the screen of an X server, on a connection of their own: what an observer in
/// front of the screen would do and see. One thread at a time.
class ScreenPointer
{
public:
    /// Connects to the server of DISPLAY; std::runtime_error when it is not there or takes no
    /// events for tests.
    ScreenPointer();
    ~ScreenPointer();
    ScreenPointer(const ScreenPointer&) = delete;
    ScreenPointer& operator=(const ScreenPointer&) = delete;

    /// Moves the pointer to a place of the screen.
    void Move(const QPoint& to);
    void Press();
    void Release();
    /// The pixels from a place of the screen to the right, as the server has them.
    std::vector<std::uint8_t> ReadPixels(const QPoint& from, int count);

private:
    void Send(std::uint8_t type, std::uint8_t detail, const QPoint& at);

    xcb_connection_t* m_connection;
    std::uint32_t m_root = 0;
};

} // namespace LumetraBenchmark
