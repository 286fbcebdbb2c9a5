// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class QImage;

namespace LumetraScreenshots {

class EditorOnStage;

/// Scenes with a dialog or a window over the editor's.
namespace DialogScenes {

QImage PlayPaste(EditorOnStage& stage);
QImage PlayExport(EditorOnStage& stage);
QImage PlayExportSeveral(EditorOnStage& stage);
QImage PlayExporting(EditorOnStage& stage);
QImage PlayExported(EditorOnStage& stage);
QImage PlayRecipe(EditorOnStage& stage);
QImage PlaySave(EditorOnStage& stage);
QImage PlaySaveLook(EditorOnStage& stage);
QImage PlayShare(EditorOnStage& stage);
QImage PlayImported(EditorOnStage& stage);
QImage PlayImporting(EditorOnStage& stage);
QImage PlayImportMenu(EditorOnStage& stage);
QImage PlayTaken(EditorOnStage& stage);
QImage PlayDelete(EditorOnStage& stage);
QImage PlayRefused(EditorOnStage& stage);
QImage PlayKept(EditorOnStage& stage);
QImage PlayReplaced(EditorOnStage& stage);
QImage PlayLost(EditorOnStage& stage);
QImage PlayShortcuts(EditorOnStage& stage);
QImage PlayModules(EditorOnStage& stage);
QImage PlayAbout(EditorOnStage& stage);

} // namespace DialogScenes
} // namespace LumetraScreenshots
