// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "export/Exporter.h"

#include <QObject>

#include <memory>

class QWidget;

namespace LumetraEditor {

class Editor;
class EditorSettings;
class ExportGuard;

/// The command that exports the open photo: asks how, and lets the exporter do it.
class ExportCommand : public QObject
{
    Q_OBJECT

public:
    /// All are kept by reference. `window` is the parent of the dialog.
    ExportCommand(Editor& editor, EditorSettings& settings, QWidget& window);

    Exporter& GetExporter() { return m_exporter; }
    /// The guard, which has to be told of the photos; it hears of the open one by itself.
    ExportGuard& GetGuard() { return *m_guard; }
    /// Asks with the dialog; the export then runs beside the window.
    void Ask();

signals:
    void started();
    /// An export that had started has ended; `message` is for the user.
    void ended(const QString& message);

private:
    Editor& m_editor;
    EditorSettings& m_settings;
    QWidget& m_window;
    std::shared_ptr<ExportGuard> m_guard;
    Exporter m_exporter;
};

} // namespace LumetraEditor
