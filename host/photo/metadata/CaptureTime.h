// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDateTime>

class QString;

namespace LumetraHost {

/// When photos were taken, as their EXIF blocks have it. Only the beginning of each file is read,
/// so that a folder of photos can be put into order. Usable from any thread.
namespace CaptureTime {

/// The time on the camera's clock, to the millisecond where the camera tells that, as local time.
/// Invalid when the beginning of the file does not say it, and for a file that is no photo or
/// cannot be read.
QDateTime Find(const QString& path);

} // namespace CaptureTime
} // namespace LumetraHost
