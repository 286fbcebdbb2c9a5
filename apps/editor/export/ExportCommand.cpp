// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/ExportCommand.h"

#include "export/ExportDialog.h"
#include "export/ExportGuard.h"
#include "session/Editor.h"

#include <QWidget>

namespace LumetraEditor {

ExportCommand::ExportCommand(Editor& editor, EditorSettings& settings, QWidget& window)
    : QObject(&window), m_editor(editor), m_settings(settings), m_window(window),
      m_guard(std::make_shared<ExportGuard>())
{
    connect(&editor, &Editor::photoChanged, this,
            [this] { m_guard->SetOpenPhoto(m_editor.GetPhotoPath()); });
    connect(&m_exporter, &Exporter::failed, this, &ExportCommand::ended);
    connect(&m_exporter, &Exporter::cancelled, this,
            [this] { emit ended(tr("The export was cancelled.")); });
    connect(&m_exporter, &Exporter::finished, this,
            [this](const QString& path, const QStringList& warnings) {
                const QString exported = tr("Exported to %1").arg(path);
                emit ended((QStringList(exported) + warnings).join(QLatin1Char('\n')));
            });
}

void ExportCommand::Ask()
{
    const auto& image = m_editor.GetPhoto().image;
    ExportDialog dialog(m_editor.GetPhotoPath(), {image.GetWidth(), image.GetHeight()}, m_settings,
                        *m_guard, &m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_exporter.Start(std::make_shared<ExportJob>(m_editor.GetPhoto(), m_editor.GetPackages(),
                                                 m_editor.GetRecords(), dialog.GetOptions(),
                                                 m_guard));
    emit started();
}

} // namespace LumetraEditor
