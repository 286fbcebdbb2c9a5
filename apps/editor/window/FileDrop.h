// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

class QMimeData;
class QTabWidget;

namespace LumetraEditor {

/// The local files that are being dragged, in order.
QStringList GetLocalFiles(const QMimeData& data);

/// True for files with looks (.lumetra, .zip) and tables (.cube, .3dl, .clf, .look, .cdl, .cc,
/// .ccc), which are for panels. A table in the form of a picture counts as a photo and has to be
/// dropped on a panel.
bool IsLookFile(const QString& path);

/// Drops the files on the first panel that takes them; false when none does.
bool DropOnPanel(const QTabWidget& panels, const QStringList& paths);

} // namespace LumetraEditor
