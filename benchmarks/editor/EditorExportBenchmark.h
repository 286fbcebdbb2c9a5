// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class QString;

namespace LumetraEditor {
class Editor;
}

namespace LumetraBenchmark {

/// Exports the editor's open photo with the look that is on it, in turn with the tool, which
/// exports the file `photo` with the same look: how many times the tool's time the editor takes.
void RunEditorExportBenchmark(const LumetraEditor::Editor& editor, const QString& photo);

} // namespace LumetraBenchmark
