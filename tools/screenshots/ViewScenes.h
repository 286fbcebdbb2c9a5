// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QImage>

namespace LumetraScreenshots {

class EditorOnStage;

// Scenes of ways to look at the photo, and of windows that are small or large.
QImage PlaySideBySide(EditorOnStage& stage);
/// Much light, so that the sky is clipped, on a middle grey.
QImage PlayClipping(EditorOnStage& stage);
QImage PlayFullScreen(EditorOnStage& stage);
// A look with six sliders, 1366 x 768, 600 x 480 and 2560 x 1440.
QImage PlayLaptop(EditorOnStage& stage);
QImage PlaySmallest(EditorOnStage& stage);
QImage PlayLargeScreen(EditorOnStage& stage);
/// Histogram and sliders are folded, and thumbnails are large.
QImage PlayFolded(EditorOnStage& stage);
QImage PlayListFolded(EditorOnStage& stage);
QImage PlayPanelMenu(EditorOnStage& stage);

} // namespace LumetraScreenshots
