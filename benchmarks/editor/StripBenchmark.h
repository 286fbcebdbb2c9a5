// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class QTemporaryDir;

namespace LumetraEditor {
class EditorWindow;
}

namespace LumetraBenchmark {

class WatchedApplication;

/// Measures the window's thread while 1,000 thumbnails load and the strip is scrolled over all of
/// them, the same beside an export of several photos, and the memory that a row of 10,000 photos
/// takes. Writes the photos into `folder`.
void RunStripBenchmark(WatchedApplication& application, LumetraEditor::EditorWindow& window,
                       const QTemporaryDir& folder);

} // namespace LumetraBenchmark
