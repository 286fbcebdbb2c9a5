// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace LumetraHost {
struct KeptPhoto;
}

namespace LumetraEditor {

/// One line for the status bar: name, size in pixels, bits per channel, colour profile.
QString DescribePhoto(const QString& path, const LumetraHost::KeptPhoto& photo);

} // namespace LumetraEditor
