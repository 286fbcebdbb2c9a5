// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;

namespace LumetraEditor {

class PhotoCanvas;

/// Lets keys of the photo work in the whole window: backslash (held: the original), plus, minus, 0,
/// 1, and with Alt the left and right arrow for the line of the split view. A widget for typing
/// text keeps its keys, and so does every other one that accepts QEvent::ShortcutOverride for a
/// key. Keys that move or press something everywhere (arrows, Space) stay where the focus is.
class PhotoKeys : public QObject
{
    Q_OBJECT

public:
    /// Both are kept by reference.
    PhotoKeys(QWidget& window, PhotoCanvas& canvas);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool IsPhotoKey(const QKeyEvent& event) const;
    bool PassOn(QWidget& focus, QKeyEvent& event);

    QWidget& m_window;
    PhotoCanvas& m_canvas;
};

} // namespace LumetraEditor
