// SPDX-License-Identifier: GPL-2.0-or-later
#include "appearance/SystemProfile.h"

#include <QGuiApplication>
#include <QScreen>

#ifdef LUMETRA_HAS_XCB
#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>
#endif

namespace LumetraEditor {
namespace {

#ifdef LUMETRA_HAS_XCB

constexpr std::uint32_t MostWords = std::uint32_t{64} << 18; // 64 MB, far beyond any profile

struct Free
{
    void operator()(void* reply) const { std::free(reply); }
};

struct Disconnect
{
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

xcb_atom_t FindAtom(xcb_connection_t* connection, const QByteArray& name)
{
    const auto cookie = xcb_intern_atom(connection, true, static_cast<std::uint16_t>(name.size()),
                                        name.constData());
    const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

QByteArray ReadProperty(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property)
{
    const auto cookie =
        xcb_get_property(connection, false, window, property, XCB_ATOM_ANY, 0, MostWords);
    const std::unique_ptr<xcb_get_property_reply_t, Free> reply(
        xcb_get_property_reply(connection, cookie, nullptr));
    if (!reply || reply->format != 8)
        return {};
    return QByteArray(static_cast<const char*>(xcb_get_property_value(reply.get())),
                      xcb_get_property_value_length(reply.get()));
}

/// Reads a property of the root window of the screen that the program runs on.
QByteArray ReadRootProperty(const QByteArray& name)
{
    int number = 0;
    const Connection connection(xcb_connect(nullptr, &number));
    if (xcb_connection_has_error(connection.get()))
        return {};
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    while (number-- > 0 && screens.rem > 1)
        xcb_screen_next(&screens);
    const xcb_atom_t property = FindAtom(connection.get(), name);
    if (property == XCB_ATOM_NONE || screens.rem == 0)
        return {};
    return ReadProperty(connection.get(), screens.data->root, property);
}

#else

QByteArray ReadRootProperty(const QByteArray&)
{
    return {};
}

#endif

} // namespace

SystemProfile SystemProfile::Of(const QScreen& screen)
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return {};
    const auto screens = QGuiApplication::screens();
    const auto number = screens.indexOf(const_cast<QScreen*>(&screen));
    QByteArray name = QByteArrayLiteral("_ICC_PROFILE");
    if (number > 0)
        name += '_' + QByteArray::number(number);
    return {ReadRootProperty(name), QString::fromLatin1(name)};
}

} // namespace LumetraEditor
