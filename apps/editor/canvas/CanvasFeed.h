// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canvas/PhotoCanvas.h"

#include "drawer/view/LiveView.h"

#include <QObject>

namespace LumetraEditor {

class Editor;

/// Brings the drawer's pictures to the canvas: the part in view, in the screen's resolution,
/// rendered beside the GUI thread.
class CanvasFeed : public QObject
{
    Q_OBJECT

public:
    /// Both are kept by reference.
    CanvasFeed(Editor& editor, PhotoCanvas& canvas, QObject* parent = nullptr);

private:
    void TakePhoto();
    void RequestView();
    void ShowFrame(const LumetraHost::ViewFrame& frame);
    void ShowOriginal();
    QImage DrawClipping(const LumetraHost::Image& picture) const;

    Editor& m_editor;
    PhotoCanvas& m_canvas;
    LumetraHost::LiveView m_view;
};

} // namespace LumetraEditor
