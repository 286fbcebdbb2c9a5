// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QImage>
#include <QString>

#include <functional>
#include <vector>

namespace LumetraScreenshots {

class EditorOnStage;

/// One state of the editor: its name in file names, and how it comes about and looks.
struct Scene
{
    QString name;
    std::function<QImage(EditorOnStage& stage)> play;
    const char* inDocs = ""; ///< which of its pictures the documents show: theme-language@scale
};

/// Each is played on a stage of its own.
const std::vector<Scene>& AllScenes();

} // namespace LumetraScreenshots
