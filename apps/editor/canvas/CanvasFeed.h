// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canvas/PhotoCanvas.h"

#include "drawer/IDrawerObserver.h"

#include <QObject>

namespace LumetraHost {
class Drawer;
}

namespace LumetraEditor {

class Editor;

/// Brings the drawer's pictures to the canvas: of the part in view, as large as the screen needs.
class CanvasFeed : public QObject, private LumetraHost::IDrawerObserver
{
    Q_OBJECT

public:
    /// Both are kept by reference.
    CanvasFeed(Editor& editor, PhotoCanvas& canvas);
    ~CanvasFeed() override;

signals:
    /// The canvas shows another picture of the edit.
    void frameShown();

private:
    void FrameChanged() override;
    void CommittedPhotoChanged() override {}
    void TakePhoto();
    void Render();

    Editor& m_editor;
    PhotoCanvas& m_canvas;
};

} // namespace LumetraEditor
