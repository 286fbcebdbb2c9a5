// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraEditor {

class EditorActions;
class EditorSettings;
class HistogramWidget;
class PhotoCanvas;

/// Connects the commands that change how the photo is looked at, and nothing of the photo: zoom,
/// comparison with the original, clipping warnings, the colour around it. The colour is remembered.
/// All are kept by reference.
void ConnectViewCommands(EditorActions& actions, PhotoCanvas& canvas, HistogramWidget& histogram,
                         EditorSettings& settings);

} // namespace LumetraEditor
