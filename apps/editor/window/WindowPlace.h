// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class QByteArray;
class QSize;
class QWidget;

namespace LumetraEditor {

/// Gives a window that is not shown yet its size and place: those of `stored`, which
/// QWidget::saveGeometry() has made, else the size `first` at a place of the system's choice. The
/// window gets no larger than its screen has room for, its frame and the desktop's bars left out.
void RestorePlace(QWidget& window, const QByteArray& stored, const QSize& first);

} // namespace LumetraEditor
