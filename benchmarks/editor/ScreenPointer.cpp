// SPDX-License-Identifier: GPL-2.0-or-later
#include "ScreenPointer.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>

#include <sys/uio.h>

#include <xcb/xcb.h>
#include <xcb/xcbext.h>

namespace LumetraBenchmark {
namespace {

/// The server's extension for tests, of which one request is needed. Its layout is that of the
/// XTEST extension protocol, version 2.2.
xcb_extension_t testExtension = {"XTEST", 0};

struct FakeInput
{
    static constexpr std::uint8_t Opcode = 2;

    std::uint8_t majorOpcode;
    std::uint8_t minorOpcode;
    std::uint16_t length;
    std::uint8_t type;
    std::uint8_t detail;
    std::uint8_t padding1[2];
    std::uint32_t time;
    std::uint32_t root;
    std::uint8_t padding2[8];
    std::int16_t rootX;
    std::int16_t rootY;
    std::uint8_t padding3[7];
    std::uint8_t deviceId;
};
static_assert(sizeof(FakeInput) == 36);

} // namespace

ScreenPointer::ScreenPointer() : m_connection(xcb_connect(nullptr, nullptr))
{
    if (xcb_connection_has_error(m_connection) != 0)
        throw std::runtime_error("expected an X server, as xvfb-run starts one");
    const auto* const extension = xcb_get_extension_data(m_connection, &testExtension);
    if (!extension || extension->present == 0)
        throw std::runtime_error("expected an X server with the XTEST extension");
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
}

ScreenPointer::~ScreenPointer()
{
    xcb_disconnect(m_connection);
}

void ScreenPointer::Move(const QPoint& to)
{
    Send(XCB_MOTION_NOTIFY, 0, to);
}

void ScreenPointer::Press()
{
    Send(XCB_BUTTON_PRESS, XCB_BUTTON_INDEX_1, {});
}

void ScreenPointer::Release()
{
    Send(XCB_BUTTON_RELEASE, XCB_BUTTON_INDEX_1, {});
}

void ScreenPointer::Send(std::uint8_t type, std::uint8_t detail, const QPoint& at)
{
    FakeInput request{};
    request.type = type;
    request.detail = detail;
    request.root = m_root;
    request.rootX = static_cast<std::int16_t>(at.x());
    request.rootY = static_cast<std::int16_t>(at.y());
    // The library writes in front of the request that it is given.
    iovec parts[3] = {{}, {}, {&request, sizeof(request)}};
    const xcb_protocol_request_t description = {1, &testExtension, FakeInput::Opcode, 1};
    xcb_send_request(m_connection, 0, parts + 2, &description);
    xcb_flush(m_connection);
}

std::vector<std::uint8_t> ScreenPointer::ReadPixels(const QPoint& from, int count)
{
    const auto cookie = xcb_get_image(
        m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_root, static_cast<std::int16_t>(from.x()),
        static_cast<std::int16_t>(from.y()), static_cast<std::uint16_t>(count), 1, ~0U);
    const std::unique_ptr<xcb_get_image_reply_t, decltype(&std::free)> reply(
        xcb_get_image_reply(m_connection, cookie, nullptr), &std::free);
    if (!reply)
        throw std::runtime_error("the X server does not tell its pixels");
    const std::uint8_t* const pixels = xcb_get_image_data(reply.get());
    return {pixels, pixels + xcb_get_image_data_length(reply.get())};
}

} // namespace LumetraBenchmark
