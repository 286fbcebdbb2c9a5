// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/ExportCommand.h"

#include "export/ExportDialog.h"
#include "export/ExportGuard.h"
#include "export/selection/SelectionDialog.h"
#include "session/Editor.h"

#include <QFileInfo>
#include <QWidget>

namespace LumetraEditor {

ExportCommand::ExportCommand(Editor& editor, EditorSettings& settings, QWidget& window)
    : QObject(&window), m_editor(editor), m_settings(settings), m_window(window),
      m_guard(std::make_shared<ExportGuard>()), m_selection(m_guard)
{
    connect(&editor, &Editor::photoChanged, this,
            [this] { m_guard->SetOpenPhoto(m_editor.GetPhotoPath()); });
    connect(&m_exporter, &Exporter::failed, this,
            [this](const QString& problem) { emit ended(problem, false); });
    connect(&m_exporter, &Exporter::cancelled, this,
            [this] { emit ended(tr("The export was cancelled."), true); });
    connect(&m_exporter, &Exporter::finished, this,
            [this](const QString& path, const QStringList& warnings) {
                const QString exported = tr("Exported to %1").arg(path);
                emit ended((QStringList(exported) + warnings).join(QLatin1Char('\n')),
                           warnings.isEmpty());
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

void ExportCommand::ExportSelection(const QStringList& photos)
{
    if (m_selection.IsRunning())
        return m_progress->Raise();
    if (photos.isEmpty() || !SaveOpenPhoto())
        return;
    const auto settle = [steps = &m_editor.GetManySteps()](const QString& photo) {
        steps->Settle(photo);
    };
    SelectionDialog dialog(photos, settle, m_settings, m_guard, &m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    delete m_progress; // one that speaks the language of now takes its place
    m_progress = new SelectionProgress(m_selection, &m_window);
    m_selection.Start(dialog.GetPlan());
    m_progress->Begin();
}

/// False, after a message, when the edit cannot be saved: the file would be made of an earlier one.
bool ExportCommand::SaveOpenPhoto()
{
    if (!m_editor.HasPhoto() || m_editor.SaveEdit())
        return true;
    m_editor.ShowMessage(tr("The edit of “%1” could not be saved, so that nothing is exported.")
                             .arg(QFileInfo(m_editor.GetPhotoPath()).fileName()));
    return false;
}

} // namespace LumetraEditor
