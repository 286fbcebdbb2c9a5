// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

class QScreen;

namespace LumetraEditor {

/// The profile that the window system has of a monitor: on X11 the property "_ICC_PROFILE" of the
/// root window, "_ICC_PROFILE_1" and so on for further screens in Qt's order. Other window systems
/// are not asked.
struct SystemProfile
{
    /// The profile of that screen, empty when there is none.
    static SystemProfile Of(const QScreen& screen);

    QByteArray icc;
    QString origin; ///< for messages
};

} // namespace LumetraEditor
