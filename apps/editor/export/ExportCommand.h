// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "export/Exporter.h"
#include "export/selection/SelectionExporter.h"
#include "export/selection/SelectionProgress.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <memory>

class QWidget;

namespace LumetraEditor {

class Editor;
class EditorSettings;
class ExportGuard;

/// The commands that export the open photo, or several: they ask how, and let the exporters do it.
class ExportCommand : public QObject
{
    Q_OBJECT

public:
    /// All are kept by reference. `window` is the parent of the dialogs.
    ExportCommand(Editor& editor, EditorSettings& settings, QWidget& window);

    Exporter& GetExporter() { return m_exporter; }
    /// The guard, which has to be told of the photos; it hears of the open one by itself.
    ExportGuard& GetGuard() { return *m_guard; }
    /// True while photos are exported, one or several.
    bool IsRunning() const { return m_exporter.IsRunning() || m_selection.IsRunning(); }
    /// Asks with the dialog; the export then runs beside the window.
    void Ask();
    /// Saves the edit of the open photo, asks how `photos` are to be exported, each with its own
    /// edit, changes that are still waiting for it included, and exports them beside the window,
    /// with a window of its own that shows how far it is. Shows that window alone while an earlier
    /// such export runs. Does nothing without photos.
    void ExportSelection(const QStringList& photos);

signals:
    void started();
    /// An export that had started has ended; `message` is for the user. `isAsWanted` false: it says
    /// something that has to be read.
    void ended(const QString& message, bool isAsWanted);

private:
    bool SaveOpenPhoto();

    Editor& m_editor;
    EditorSettings& m_settings;
    QWidget& m_window;
    std::shared_ptr<ExportGuard> m_guard;
    Exporter m_exporter;
    SelectionExporter m_selection;
    QPointer<SelectionProgress> m_progress; ///< of the last export of several; the window's child
};

} // namespace LumetraEditor
